// The source of random numbers: one word of state, cheap to make, to copy and to start anew.
#pragma once

#include <cstdint>
#include <limits>
#include <random>

namespace quiralto {

// SplitMix64 (Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014), as a
// generator for the distributions of <random>.
class Azar {
public:
    using result_type = std::uint64_t;

    void Siembra(std::uint64_t semilla) {
        estado_ = semilla;
        sembrado_ = true;
    }

    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() {
        if (!sembrado_)
            SiembraDelSistema();
        std::uint64_t z = estado_ += 0x9E3779B97F4A7C15U;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9U;
        z = (z ^ z >> 27) * 0x94D049BB133111EBU;
        return z ^ z >> 31;
    }

private:
    // Every run of the program draws other numbers. Asking the system takes longer than all else in
    // making a context, so it is asked by the first draw.
    void SiembraDelSistema() {
        std::random_device fuente;
        Siembra(std::uint64_t{fuente()} << 32 | fuente());
    }

    std::uint64_t estado_ = 0;
    bool sembrado_ = false;
};

} // namespace quiralto
