// A context that shows nothing and is never cancelled.
#pragma once

#include "engine/base/contexto.h"

namespace quiralto::bench {

class Silencio : public Mensajes {
public:
    void Muestra(Icono, std::string_view) override {}
};

class SinVigilante : public Vigilante {
public:
    bool Continúa() override { return true; }
};

struct Banco {
    Silencio silencio;
    SinVigilante vigilante;
    Primos tabla{};
    Contexto contexto{silencio, vigilante, tabla};
};

} // namespace quiralto::bench
