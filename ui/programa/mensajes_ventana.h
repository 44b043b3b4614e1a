// Messages as modal boxes over the active window.
#pragma once

#include "engine/base/mensajes.h"
#include "ui/programa/vigilante_ventana.h"

namespace quiralto {

class MensajesVentana : public Mensajes {
public:
    // The watcher, which outlives it, halts while a box is open.
    explicit MensajesVentana(VigilanteVentana& vigilante) : vigilante_(vigilante) {}

    void Muestra(Icono icono, std::string_view texto) override;

private:
    VigilanteVentana& vigilante_;
};

} // namespace quiralto
