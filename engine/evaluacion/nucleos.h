// The loops of a plan's steps over rows of values.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/evaluacion/plan.h"

#include <array>
#include <cstddef>

namespace quiralto {

// The values that a loop takes at a time: those of a row behind the last one, up to a whole number
// of them, may be read and written too, and are to be finite where the last one is.
inline constexpr std::size_t Carriles = 16;

inline constexpr std::size_t EnCarriles(std::size_t cantidad) {
    return (cantidad + Carriles - 1) / Carriles * Carriles;
}

// A row, or a constant, which has its Carriles values only.
struct Fuente {
    double* datos = nullptr;
    std::size_t máscara = ~std::size_t{0}; // 0 of a constant
};

// The rows of a step: what it reads and where it writes; the cosine's row where there is one.
struct FilasDePaso {
    std::array<Fuente, 4> fuentes;
    double* destino = nullptr;
    double* coseno = nullptr;
};

// Runs a step over `cantidad` values; true where all of the results are finite.
using Núcleo = bool (*)(std::size_t cantidad, const FilasDePaso&);

// The loop of the step, for the instruction set of this processor.
Núcleo DevNúcleo(const Paso& paso);

} // namespace quiralto
