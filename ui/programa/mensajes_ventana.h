// Messages as modal boxes over the active window.
#pragma once

#include "engine/base/mensajes.h"

namespace quiralto {

class MensajesVentana : public Mensajes {
public:
    void Muestra(Icono icono, std::string_view texto) override;
};

} // namespace quiralto
