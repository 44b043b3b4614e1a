// The benchmark's functions as C++ code, each over a whole array.
#pragma once

#include <array>
#include <span>

namespace quiralto::bench {

struct Función {
    const char* texto;    // as Quiralto takes it
    const char* muparser; // as muParser takes it
    void (*nativa)(std::span<const double> equis, std::span<double> valores);
};

extern const std::array<Función, 12> Funciones;

} // namespace quiralto::bench
