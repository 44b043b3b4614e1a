// The table of primes as it is held; numeros/primos.h calculates with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quiralto {

// 2 to 46337, the last prime below the square root of 2^31: enough for every positive 32-bit
// integer.
inline constexpr std::size_t CantidadPrimos = 4792;

// The first primes up to its end or to its first 0, behind which all are 0: what the file of primes
// did not give.
using Primos = std::array<std::int32_t, CantidadPrimos>;

} // namespace quiralto
