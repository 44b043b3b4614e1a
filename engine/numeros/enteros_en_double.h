// Doubles that hold whole numbers.
#pragma once

#include <cmath>

namespace quiralto {

// 2^53: a Double holds every whole number from its opposite up to it.
inline constexpr double MáximoEnteroExacto = 9007199254740992;

// Whether a finite value has no decimals.
inline bool EsEntero(double valor) {
    return std::trunc(valor) == valor;
}

// Whether it is a whole number that is not itself rounded.
inline bool EsEnteroExacto(double valor) {
    return std::fabs(valor) <= MáximoEnteroExacto && EsEntero(valor);
}

} // namespace quiralto
