#include "engine/numeros/primos_grandes.h"

#include "tests/criba.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(PrimosGrandes, SeReconocen) {
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

TEST(PrimosGrandes, LaSucesiónDaLosMayoresPrimosUnoTrasOtro) {
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
