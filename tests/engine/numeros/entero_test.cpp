#include "engine/numeros/entero.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace quiralto {
namespace {

// A number of about that many bits; words of all zeros and all ones are frequent, since carries and
// the estimates of the long division go wrong there first.
Entero DevAleatorio(std::mt19937_64& azar, std::uint64_t bits) {
    Entero número = 0;
    for (std::size_t puestos = 0; puestos < bits; puestos += 32) {
        const auto suerte = azar() % 4;
        const std::int64_t palabra = suerte == 0   ? 0
                                     : suerte == 1 ? 0xFFFFFFFF
                                                   : static_cast<std::int64_t>(azar() >> 32);
        número = número.Desplazado(32) + palabra;
    }
    if (azar() % 2 == 0)
        número.CambiaSigno();
    return número;
}

// All of them, up to the last bit.
TEST(Entero, SeHaceDeNúmerosDe128Bits) {
    const Entero128 uno = 1;
    for (int bits = 0; bits < 127; ++bits)
        for (const int resto : {-1, 0, 1})
            for (const int signo : {1, -1}) {
                const Entero128 ancho = ((uno << bits) + resto) * signo;
                Entero esperado = Entero(1).Desplazado(static_cast<std::size_t>(bits)) + resto;
                if (signo < 0)
                    esperado.CambiaSigno();
                EXPECT_EQ(Entero::DesdeAncho(ancho), esperado) << bits << ", " << resto;
            }
    Entero menor = Entero(1).Desplazado(127);
    menor.CambiaSigno();
    EXPECT_EQ(Entero::DesdeAncho(-((uno << 126) - 1) * 2 - 2), menor);
}

TEST(Entero, LosPequeñosSeComportanComoLosDelProcesador) {
    constexpr std::int64_t Mínimo = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t Máximo = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(Entero(Máximo) + 1 - 1, Entero(Máximo));
    EXPECT_EQ(Entero(Mínimo) - 1 + 1, Entero(Mínimo));
    EXPECT_EQ(Entero(Mínimo) + 1, Entero(-Máximo));
    EXPECT_EQ(Entero(-Máximo) - 1, Entero(Mínimo));
    EXPECT_EQ(Entero(Mínimo) * -1, Entero(Máximo) + 1);
    EXPECT_EQ(Entero(Mínimo).Bits(), 64U);
    EXPECT_EQ(Entero(0).Signo(), 0);
    EXPECT_EQ((Entero(Máximo) * Máximo - Entero(Máximo) * Máximo).Signo(), 0);
    EXPECT_EQ(Entero::Divide(-7, 2).cociente, Entero(-3));
    EXPECT_EQ(Entero::Divide(-7, 2).resto, Entero(-1));
}

TEST(Entero, CocientePorDivisorMásRestoEsElDividendo) {
    std::mt19937_64 azar(20261);
    for (int i = 0; i < 20000; ++i) {
        const Entero a = DevAleatorio(azar, azar() % 700);
        const Entero b = DevAleatorio(azar, azar() % 500);
        const Entero c = DevAleatorio(azar, azar() % 300);
        EXPECT_EQ((a + b) * c, a * c + b * c) << i;
        EXPECT_EQ((a - b) + b, a) << i;
        Entero suma = c;
        suma.SumaProducto(a, b);
        suma.RestaProducto(b, a);
        EXPECT_EQ(suma, c) << i;
        if (b.EsCero())
            continue;
        const auto [cociente, resto] = Entero::Divide(a, b);
        EXPECT_EQ(cociente * b + resto, a) << i;
        EXPECT_TRUE(resto.EsCero() || resto.Signo() == a.Signo()) << i;
        Entero absResto = resto;
        Entero absB = b;
        if (resto.Signo() < 0)
            absResto.CambiaSigno();
        if (b.Signo() < 0)
            absB.CambiaSigno();
        EXPECT_LT((absResto - absB).Signo(), 0) << i;
    }
}

TEST(Entero, ElMcdDeDosMúltiplosEsSuFactorPorElMcdDeLosOtros) {
    std::mt19937_64 azar(20262);
    for (int i = 0; i < 3000; ++i) {
        const Entero g = DevAleatorio(azar, 1 + azar() % 300);
        const Entero a = DevAleatorio(azar, azar() % 200);
        const Entero b = DevAleatorio(azar, azar() % 200);
        Entero esperado = g * DevMCD(a, b);
        if (esperado.Signo() < 0)
            esperado.CambiaSigno();
        EXPECT_EQ(DevMCD(g * a, g * b), esperado) << i;
    }
    EXPECT_EQ(DevMCD(0, 0), Entero(0));
    EXPECT_EQ(DevMCD(-6, 0), Entero(6));
    EXPECT_EQ(DevMCD(0, -6), Entero(6));
    EXPECT_EQ(DevMCD(12, -18), Entero(6));
}

TEST(Entero, SuRestoEsElDeSusCifras) {
    std::mt19937_64 azar(20263);
    for (int i = 0; i < 3000; ++i) {
        const Entero a = DevAleatorio(azar, azar() % 400);
        const auto módulo = static_cast<std::int64_t>(azar() >> 2 | 1);
        Entero resto = Entero::Divide(a, módulo).resto;
        if (resto.Signo() < 0)
            resto += módulo;
        EXPECT_EQ(resto,
                  Entero(static_cast<std::int64_t>(a.Módulo(static_cast<std::uint64_t>(módulo)))))
            << i;
    }
}

TEST(Entero, VaYVieneDeUnDoble) {
    std::mt19937_64 azar(20264);
    for (int i = 0; i < 3000; ++i) {
        const double valor = std::trunc(
            std::ldexp(static_cast<double>(static_cast<std::int64_t>(azar())), i % 900 - 60));
        EXPECT_EQ(Entero::DesdeDouble(valor).ADouble(), valor) << i;
    }
    EXPECT_EQ(Entero::DesdeDouble(0).ADouble(), 0);
    EXPECT_EQ(Entero(1).Desplazado(1023).ADouble(), std::ldexp(1.0, 1023));
    EXPECT_TRUE(std::isinf(Entero(1).Desplazado(1024).ADouble()));
    EXPECT_TRUE(std::isinf(Entero(-1).Desplazado(100000).ADouble()));
    // 2^53 + 1 is half way and rounds to even; one unit far below the half decides otherwise.
    const Entero mitad = Entero((std::int64_t{1} << 53) + 1).Desplazado(100);
    EXPECT_EQ(mitad.ADouble(), std::ldexp(1.0, 153));
    EXPECT_EQ((mitad + 1).ADouble(), std::ldexp(std::ldexp(1.0, 53) + 2, 100));
}

TEST(Entero, ElCocienteEsElDobleMásCercano) {
    std::mt19937_64 azar(20265);
    for (int i = 0; i < 5000; ++i) {
        // What is common to both does not count: the quotient of the small ones is the processor's.
        const auto a = static_cast<std::int64_t>(azar() >> 12);
        const auto b = static_cast<std::int64_t>(azar() >> (12 + azar() % 50)) + 1;
        const Entero común = DevAleatorio(azar, azar() % 1500);
        if (común.EsCero())
            continue;
        EXPECT_EQ(DevCociente(común * a, común * b),
                  static_cast<double>(a) / static_cast<double>(b))
            << i;
        EXPECT_EQ(DevCociente(común * -a, común * b),
                  -static_cast<double>(a) / static_cast<double>(b))
            << i;
    }
    EXPECT_TRUE(std::isinf(DevCociente(Entero(1).Desplazado(5000), 3)));
    EXPECT_EQ(DevCociente(3, Entero(1).Desplazado(500000)), 0);
    EXPECT_EQ(DevCociente(DevPotenciaDeDiez(400), DevPotenciaDeDiez(401)), 0.1);
    // Half way between two Doubles the even one is nearest, and the least remainder decides.
    const Entero mitad = Entero((std::int64_t{1} << 53) + 1) * DevPotenciaDeDiez(40);
    const Entero divisor = DevPotenciaDeDiez(40) * 2;
    EXPECT_EQ(DevCociente(mitad, divisor), 0x1p52);
    EXPECT_EQ(DevCociente(mitad + 1, divisor), 0x1p52 + 1);
    EXPECT_EQ(DevCociente((mitad + 1) * -1, divisor), -0x1p52 - 1);
    EXPECT_EQ(DevCociente(mitad + -1, divisor), 0x1p52);
}

TEST(Entero, LasPotenciasDeDiezSonProductosDeDieces) {
    Entero potencia = 1;
    for (int i = 0; i < 330; ++i, potencia *= 10)
        EXPECT_EQ(DevPotenciaDeDiez(i), potencia) << i;
}

} // namespace
} // namespace quiralto
