// What the tests share: a context that records messages instead of showing them.
#pragma once

#include "engine/base/contexto.h"

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace quiralto {

struct Mensaje {
    Icono icono;
    std::string texto;
    bool operator==(const Mensaje&) const = default;
};

inline std::ostream& operator<<(std::ostream& salida, const Mensaje& mensaje) {
    return salida << "icono " << static_cast<int>(mensaje.icono) << " \"" << mensaje.texto << '"';
}

class MensajesGrabados : public Mensajes {
public:
    void Muestra(Icono icono, std::string_view texto) override {
        mensajes.push_back({icono, std::string(texto)});
    }
    std::vector<Mensaje> mensajes;
};

class VigilanteDePrueba : public Vigilante {
public:
    bool Continúa() override { return continúa(); }
    std::function<bool()> continúa = [] { return true; };
};

// A context of a test's own, with what it has shown.
struct Banco {
    MensajesGrabados grabados;
    VigilanteDePrueba vigilante;
    Primos tabla{};
    Contexto contexto{grabados, vigilante, tabla};

    std::vector<Mensaje> TomaMensajes() { return std::exchange(grabados.mensajes, {}); }
};

} // namespace quiralto
