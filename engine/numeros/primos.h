// Primes and factors of positive 32-bit integers by trial division with a table of primes.
//
// Whatever reaches an entry of the table that is 0 ends with run-time error 11.
#pragma once

#include "engine/base/tabla_primos.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quiralto {

// The table as it should be: the first CantidadPrimos primes, by a sieve.
Primos DevPrimerosPrimos();

// Whether n is prime: DevPrimosEntre for the one number. Fault: run-time error 11 where the table
// ends before this is settled.
bool EsPrimoTabla(const Primos& tabla, std::int32_t n);

// The primes from `desde` to `hasta`, both included, in increasing order: a sieve of the whole
// range at once, in memory of half its length. Fault: run-time error 11 where the table ends
// before this is settled for every number of it.
std::vector<std::int32_t> DevPrimosEntre(const Primos& tabla, std::int32_t desde,
                                         std::int32_t hasta);

struct FactorPrimo {
    std::int32_t primo;
    int exponente;
    bool operator==(const FactorPrimo&) const = default;
};

// The prime factors of n, at least 1, in increasing order; none for 1. Faults: run-time error 11 as
// above, 5 for n below 1.
std::vector<FactorPrimo> FactorizaConTabla(const Primos& tabla, std::int32_t n);

// The positive divisors of n in increasing order. Faults as FactorizaConTabla.
std::vector<std::int32_t> DevDivisores(const Primos& tabla, std::int32_t n);

// Sorts the list increasingly: quicksort with the middle element as pivot, no deeper than the
// logarithm of its length.
void OrdenaEnteros(std::span<std::int32_t> lista);

} // namespace quiralto
