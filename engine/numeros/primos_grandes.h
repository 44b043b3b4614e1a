// Primes just below 2^62, for arithmetic in images (campo_primo.h).
#pragma once

#include <cstddef>
#include <cstdint>

namespace quiralto {

// The largest primes below 2^62, one after the other.
class SucesiónDePrimos {
public:
    std::uint64_t Siguiente();

private:
    std::size_t tomados_ = 0;
    std::uint64_t último_ = 0;
};

// Whether an odd number from 3 to 2^62 is a prime (Miller and Rabin's test with the bases that
// decide it for every number of 64 bits).
bool EsPrimo(std::uint64_t número);

} // namespace quiralto
