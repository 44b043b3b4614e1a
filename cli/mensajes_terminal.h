// What the terminal program tells its user beside the result.
#pragma once

#include "engine/base/mensajes.h"

#include <string>
#include <string_view>
#include <vector>

namespace quiralto::cli {

// The exit status.
enum Estado { SinMensajes = 0, ConMensajes = 1, MalUso = 2 };

// "exclamación", "crítico" or "mensaje".
std::string_view DevPalabra(Icono icono);

// Every message box becomes a line (or some lines) on standard error, which asks for no memory; or
// it is kept, for whoever writes it elsewhere.
class MensajesDeTerminal : public Mensajes {
public:
    struct Guardado {
        Icono icono;
        std::string texto;
    };

    void Muestra(Icono icono, std::string_view texto) override;
    void Guarda(bool guarda) { guarda_ = guarda; }
    const std::vector<Guardado>& Guardados() const { return guardados_; }
    Estado DevEstado() const { return mostrado_ ? ConMensajes : SinMensajes; }

private:
    static void Escribe(Icono icono, std::string_view texto);

    bool guarda_ = false;
    bool mostrado_ = false;
    std::vector<Guardado> guardados_;
};

// A wrong call: one line, whatever the words of the call that it repeats, which names --ayuda.
Estado RechazaUso(std::string esperado);

} // namespace quiralto::cli
