// Primes found without the engine, for the tests to compare with.
#pragma once

#include "engine/numeros/primos.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quiralto {

// Eratosthenes: whether each number from 0 to `hasta` is prime.
inline std::vector<bool> CribaEratóstenes(std::size_t hasta) {
    std::vector<bool> primo(hasta + 1, true);
    primo[0] = primo[1] = false;
    for (std::size_t i = 2; i * i <= hasta; ++i)
        for (std::size_t j = i * i; primo[i] && j <= hasta; j += i)
            primo[j] = false;
    return primo;
}

// The table of primes with its first `leídos` entries, the rest 0 as behind a short file.
inline Primos DevTablaDePrueba(std::size_t leídos = CantidadPrimos) {
    constexpr std::size_t ÚltimoPrimo = 46337;
    const std::vector<bool> primo = CribaEratóstenes(ÚltimoPrimo);
    Primos tabla{};
    std::size_t k = 0;
    for (std::size_t n = 2; n <= ÚltimoPrimo && k < leídos; ++n)
        if (primo[n])
            tabla[k++] = static_cast<std::int32_t>(n);
    return tabla;
}

inline std::uint64_t DevPotenciaModular(std::uint64_t base, std::uint64_t exponente,
                                        std::uint64_t módulo) {
    std::uint64_t potencia = 1;
    for (base %= módulo; exponente > 0; exponente /= 2, base = base * base % módulo)
        if (exponente % 2 == 1)
            potencia = potencia * base % módulo;
    return potencia;
}

// Miller and Rabin with the bases 2, 3, 5 and 7, which settle every number below 3215031751
// (Jaeschke, "On strong pseudoprimes to several bases", 1993).
inline bool EsPrimoMillerRabin(std::uint32_t n) {
    if (n < 2 || (n % 2 == 0 && n != 2))
        return false;
    std::uint32_t impar = n - 1;
    int doses = 0;
    for (; impar % 2 == 0 && impar > 0; impar /= 2)
        ++doses;
    return std::ranges::all_of(std::vector<std::uint32_t>{2, 3, 5, 7}, [&](std::uint32_t base) {
        if (n == base)
            return true;
        std::uint64_t x = DevPotenciaModular(base, impar, n);
        bool pasa = x == 1 || x == n - 1;
        for (int i = 1; i < doses && !pasa; ++i) {
            x = x * x % n;
            pasa = x == n - 1;
        }
        return pasa;
    });
}

} // namespace quiralto
