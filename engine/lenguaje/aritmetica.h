// The arithmetic behind the rows of operaciones.h, inline so that the scalar and the block run are
// compiled from the same lines and give the same bits.
#pragma once

#include "engine/base/azar.h"

#include <cmath>

namespace quiralto {

// Whole exponents up to this one are products, and negative ones one over them: many times faster
// than the general power, and off by four units in the last place at the most.
inline constexpr int MáximoExponenteProducto = 8;

template <int Exponente> inline double PotenciaEntera(double base) {
    if constexpr (Exponente == 1)
        return base;
    else if constexpr (Exponente % 2 == 0)
        return PotenciaEntera<Exponente / 2>(base) * PotenciaEntera<Exponente / 2>(base);
    else
        return PotenciaEntera<Exponente - 1>(base) * base;
}

// The exponent as a small whole number, or 0 where the general power is to be used.
inline int ExponenteProducto(double exponente) {
    if (!(exponente >= 2 && exponente <= MáximoExponenteProducto))
        return 0;
    const int entero = static_cast<int>(exponente);
    return entero == exponente ? entero : 0;
}

// The base raised to 1 to MáximoExponenteProducto.
inline double DevPotenciaEntera(double base, int exponente) {
    switch (exponente) {
    case 2:
        return PotenciaEntera<2>(base);
    case 3:
        return PotenciaEntera<3>(base);
    case 4:
        return PotenciaEntera<4>(base);
    case 5:
        return PotenciaEntera<5>(base);
    case 6:
        return PotenciaEntera<6>(base);
    case 7:
        return PotenciaEntera<7>(base);
    case 8:
        return PotenciaEntera<8>(base);
    default:
        return base;
    }
}

inline double DevPotencia(double base, double exponente) {
    if (const int entero = ExponenteProducto(exponente))
        return DevPotenciaEntera(base, entero);
    // One over the product, unless that is too large or small for a Double to hold it well.
    if (const int entero = exponente == -1 ? 1 : ExponenteProducto(-exponente)) {
        const double producto = DevPotenciaEntera(base, entero);
        if (std::isnormal(producto))
            return 1 / producto;
    }
    return std::pow(base, exponente);
}

inline double DevSecante(double a) {
    return 1 / std::cos(a);
}

inline double DevCosecante(double a) {
    return 1 / std::sin(a);
}

// An infinity where the quotient has no value, at 1 and -1, so that the fault is not lost in ATN.
inline double DevArcoseno(double a) {
    const double raíz = std::sqrt(1 - a * a);
    return raíz == 0 ? a / raíz : std::atan(a / raíz);
}

// The argument itself; a random number in [0, 1) where it is 0.
inline double DevSln(double a, Azar* azar) {
    return a == 0 ? std::uniform_real_distribution<double>(0, 1)(*azar) : a;
}

} // namespace quiralto
