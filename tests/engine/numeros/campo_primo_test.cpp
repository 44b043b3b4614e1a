#include "engine/numeros/campo_primo.h"

#include "engine/numeros/primos_grandes.h"

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

} // namespace
} // namespace quiralto
