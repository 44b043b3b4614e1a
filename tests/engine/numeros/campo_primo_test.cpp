#include "engine/numeros/campo_primo.h"

#include "engine/numeros/primos_grandes.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

// a*b mod p by doublings, for p below 2^63.
std::uint64_t DevRestoDelProducto(std::uint64_t a, std::uint64_t b, std::uint64_t p) {
    std::uint64_t resto = 0;
    for (; b > 0; b >>= 1, a = 2 * a % p)
        if ((b & 1) != 0)
            resto = (resto + a) % p;
    return resto;
}

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
            EXPECT_EQ(campo.DevValor(campo.Producto(x, y)), DevRestoDelProducto(a, b, p));
            if (a != 0) {
                EXPECT_EQ(campo.Producto(x, campo.Inverso(x)), campo.Uno());
            }
        }
    }
}

} // namespace
} // namespace quiralto
