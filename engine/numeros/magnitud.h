// Magnitudes: natural numbers of any size, words of 64 bits with the lowest first and the highest
// not 0. Multiplication and division are the schoolbook methods (Knuth, The Art of Computer
// Programming, vol. 2, 4.3.1), which the sizes that the engine lets grow do not outgrow.
// Tested by entero_test.cpp.
#pragma once

#include "engine/numeros/ancho128.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quiralto {

using Palabra = std::uint64_t;
using DoblePalabra = Natural128;
using Magnitud = std::vector<Palabra>;

inline constexpr std::size_t BitsPalabra = 64;

inline Palabra Baja(DoblePalabra doble) {
    return static_cast<Palabra>(doble);
}
inline Palabra Alta(DoblePalabra doble) {
    return static_cast<Palabra>(doble >> BitsPalabra);
}

// Drops the highest words that are 0.
void QuitaCerosAltos(Magnitud& m);

bool EsMenor(std::span<const Palabra> a, std::span<const Palabra> b);
void SumaEn(Magnitud& a, std::span<const Palabra> b);  // a += b
void RestaEn(Magnitud& a, std::span<const Palabra> b); // a -= b, where a is not the smaller one
Magnitud Multiplica(std::span<const Palabra> a, std::span<const Palabra> b);
Magnitud Desplaza(std::span<const Palabra> a, std::size_t bits); // times 2^bits

// The quotient; the dividend becomes the remainder. DivideLarga: the divisor has at least two words
// and is not greater than the dividend; DivideCorta: it is not 0.
Magnitud DivideLarga(Magnitud& dividendo, std::span<const Palabra> divisor);
Magnitud DivideCorta(Magnitud& dividendo, Palabra divisor);

} // namespace quiralto
