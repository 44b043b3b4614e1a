#include "engine/numeros/campo_primo.h"

#include "tests/criba.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

__extension__ using Doble = unsigned __int128;

TEST(CampoPrimo, OperaComoLosRestosDeLaDivisión) {
    std::mt19937_64 azar(20266);
    SucesiónDePrimos primos;
    for (int i = 0; i < 30; ++i) {
        const std::uint64_t p = i == 0 ? 3 : i == 1 ? 1000003 : primos.Siguiente();
        const CampoPrimo campo(p);
        for (int j = 0; j < 200; ++j) {
            const std::uint64_t a = azar() % p;
            const std::uint64_t b = azar() % p;
            const auto x = campo.AResto(a);
            const auto y = campo.AResto(b);
            EXPECT_EQ(campo.DevValor(x), a);
            EXPECT_EQ(campo.DevValor(campo.Suma(x, y)), (a + b) % p);
            EXPECT_EQ(campo.DevValor(campo.Resta(x, y)), (a + p - b) % p);
            EXPECT_EQ(campo.DevValor(campo.Producto(x, y)),
                      static_cast<std::uint64_t>(Doble{a} * b % p));
            if (a != 0) {
                EXPECT_EQ(campo.Producto(x, campo.Inverso(x)), campo.Uno());
            }
        }
    }
}

TEST(CampoPrimo, ReconoceLosPrimos) {
    const std::vector<bool> criba = CribaEratóstenes(200000);
    for (std::size_t n = 3; n < criba.size(); n += 2)
        EXPECT_EQ(EsPrimo(n), criba[n]) << n;
    // Strong pseudoprimes to the first bases, and products of two large primes.
    for (const std::uint64_t n : {3215031751U, 4294967295U})
        EXPECT_FALSE(EsPrimo(n)) << n;
    EXPECT_FALSE(EsPrimo(3825123056546413051U));
    EXPECT_FALSE(EsPrimo(2147483647ULL * 2147483629ULL));
    EXPECT_TRUE(EsPrimo(2305843009213693951U)); // 2^61 - 1
}

TEST(CampoPrimo, LaSucesiónDaLosMayoresPrimosUnoTrasOtro) {
    SucesiónDePrimos primos;
    std::uint64_t n = std::uint64_t{1} << 62;
    for (int i = 0; i < 12; ++i) {
        do
            --n;
        while (n % 2 == 0 || !EsPrimo(n));
        EXPECT_EQ(primos.Siguiente(), n) << i;
    }
}

} // namespace
} // namespace quiralto
