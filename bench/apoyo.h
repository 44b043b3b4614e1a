// A context that shows nothing and is never cancelled, and two pieces of work side by side.
#pragma once

#include "engine/base/contexto.h"

#include <algorithm>
#include <chrono>
#include <utility>

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

// The shortest time in seconds of each of two pieces of work that are done in turns, so that what
// else the machine does falls on both.
template <typename F, typename G> std::pair<double, double> MideAVeces(int veces, F f, G g) {
    const auto mide = [](auto& trabajo, double& mejor) {
        const auto comienzo = std::chrono::steady_clock::now();
        trabajo();
        const std::chrono::duration<double> tardanza = std::chrono::steady_clock::now() - comienzo;
        mejor = std::min(mejor, tardanza.count());
    };
    std::pair mejores{1e9, 1e9};
    for (; veces > 0; --veces) {
        mide(f, mejores.first);
        mide(g, mejores.second);
    }
    return mejores;
}

} // namespace quiralto::bench
