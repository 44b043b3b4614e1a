#include "engine/base/fallos.h"
#include "engine/numeros/mcd_decimales.h"
#include "engine/numeros/numero.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace quiralto {
namespace {

// By halves and differences, as no division does it.
std::int64_t DevMcdBinario(std::int64_t a, std::int64_t b) {
    if (a == 0 || b == 0)
        return a + b;
    int doses = 0;
    for (; (a | b) % 2 == 0; ++doses) {
        a /= 2;
        b /= 2;
    }
    while (a != b) {
        if (a % 2 == 0)
            a /= 2;
        else if (b % 2 == 0)
            b /= 2;
        else
            (a > b ? a : b) -= a > b ? b : a;
    }
    for (; doses > 0; --doses)
        a *= 2;
    return a;
}

TEST(Mcd, DaLosCasosConocidos) {
    const struct {
        double a;
        double b;
        double mcd;
    } casos[] = {
        {12, 18, 6},
        {0.5, 0.75, 0.25},
        {-4, 6, 2},
        {-4, -6, 2},
        {7, 7, 7},
        {1, 1e15, 1},
        {0.29, 0.5, 0.01}, // .29 * 100 is not 29 in Doubles
        {1.1, 2.2, 1.1},
        {0.1, 0.3, 0.1},
        {4.35, 1.45, 1.45},
        {1.0 / 3, 1, 1e-15}, // as it is written: .333333333333333
        {9007199254740991, 6361, 6361},
        {9007199254740992, 96, 32},
        {1e20, 3, 1},
        {1e20, 5, 5},
        {1e23, 10, 10},
        {1e300, 1e-20, 1e-20},
        {1e200, 1e200, 1e200},
        {1e-200, 1e-200, 1e-200},
        {3e-20, 1.5e-19, 3e-20},
        {123456.789012345, 3e-20, 3e-20},
    };
    for (const auto& [a, b, mcd] : casos) {
        EXPECT_EQ(DevMCDReales(a, b), mcd) << a << ' ' << b;
        EXPECT_EQ(DevMCDReales(b, a), mcd) << b << ' ' << a;
    }
}

TEST(Mcd, ConUnCeroEsElOtroNúmeroConSuSigno) {
    EXPECT_EQ(DevMCDReales(0, 0), 0);
    EXPECT_EQ(DevMCDReales(0, -5), -5);
    EXPECT_EQ(DevMCDReales(-.5, 0), -.5);
    EXPECT_EQ(DevMCDReales(1e-300, 0), 1e-300);
}

TEST(Mcd, DeDecimalesEsElDeSusEnteros) {
    std::mt19937 azar(5201);
    std::uniform_int_distribution<std::int64_t> factor(1, 3000);
    constexpr double Potencias[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
    for (int i = 0; i < 50000; ++i) {
        const double escala = Potencias[static_cast<std::size_t>(i) % std::size(Potencias)];
        const std::int64_t común = factor(azar);
        const std::int64_t a = común * factor(azar);
        const std::int64_t b = común * factor(azar);
        const double mcd = DevMCDReales(static_cast<double>(i % 2 == 0 ? a : -a) / escala,
                                        static_cast<double>(i % 3 == 0 ? b : -b) / escala);
        ASSERT_EQ(mcd, static_cast<double>(DevMcdBinario(a, b)) / escala) << a << ' ' << b;
    }
}

TEST(Mcd, DeEnterosHastaElLímiteExactoEsExacto) {
    std::mt19937_64 azar(5202);
    for (int i = 0; i < 20000; ++i) {
        const int bits = std::uniform_int_distribution<int>(1, 52)(azar);
        std::uniform_int_distribution<std::int64_t> número(1, std::int64_t{1} << bits);
        const std::int64_t a = número(azar);
        const std::int64_t b =
            std::uniform_int_distribution<std::int64_t>(1, 9007199254740992)(azar);
        ASSERT_EQ(DevMCDReales(static_cast<double>(a), static_cast<double>(b)),
                  static_cast<double>(DevMcdBinario(a, b)))
            << a << ' ' << b;
    }
}

TEST(Mcd, LoDemasiadoPequeñoYLoNoFinitoSonErroresDeEjecución) {
    EXPECT_THROW(DevMCDReales(1e-320, 5), ErrorEjecución);
    EXPECT_THROW(DevMCDReales(std::numeric_limits<double>::infinity(), 5), ErrorEjecución);
    EXPECT_THROW(DevMCDReales(5, std::numeric_limits<double>::quiet_NaN()), ErrorEjecución);
}

TEST(FormaEntera, EsExactaParaEnterosYDecimalParaElResto) {
    const struct {
        double valor;
        std::int64_t mantisa;
        int exponente;
    } casos[] = {
        {0, 0, 0},
        {-0.0, 0, 0},
        {5, 5, 0},
        {-1500, 1500, 0},
        {0.75, 75, -2},
        {-2.5, 25, -1},
        {1e20, 1, 20},
        {1.5e-7, 15, -8},
        {0.1 + 0.2, 3, -1},
        {1e15 + 1, 1000000000000001, 0},
        {1e16, 1, 16},
        {9007199254740992, 9007199254740992, 0},
        {1.0 / 3, 333333333333333, -15},
    };
    for (const auto& caso : casos) {
        const FormaEntera forma = DevFormaEntera(caso.valor);
        EXPECT_EQ(forma.mantisa, caso.mantisa) << caso.valor;
        EXPECT_EQ(forma.exponente, caso.exponente) << caso.valor;
    }
}

TEST(FormaEntera, VuelveASuDouble) {
    EXPECT_EQ(DevDoble({75, -2}), 0.75);
    EXPECT_EQ(DevDoble({1, 300}), 1e300);
    EXPECT_EQ(DevDoble({1, -400}), 0);
    EXPECT_THROW(DevDoble({1, 309}), ErrorEjecución);
    std::mt19937_64 azar(5203);
    for (int i = 0; i < 20000; ++i) {
        const double valor = std::uniform_real_distribution<double>(-10, 10)(azar) *
                             std::pow(10.0, std::uniform_int_distribution<int>(-290, 290)(azar));
        EXPECT_EQ(TextoNúmero(DevDoble(DevFormaEntera(valor))), TextoNúmero(std::fabs(valor)));
    }
}

TEST(Mcm, EsExactoPorGrandeQueSea) {
    const auto mcm = [](std::initializer_list<double> números) {
        Decimal resultado{1, 0};
        for (const double número : números)
            resultado = DevMCMReales(resultado, Decimal::DesdeDouble(número));
        return resultado.ADouble();
    };
    EXPECT_EQ(mcm({12, 18}), 36);
    EXPECT_EQ(mcm({-4, 6}), -12);
    EXPECT_EQ(mcm({0, 5}), 0);
    EXPECT_EQ(DevMCMReales(Decimal::DesdeDouble(.25), Decimal::DesdeDouble(.1)).ADouble(), .5);
    // 140601792817642202142294, by whole numbers of any size elsewhere.
    EXPECT_EQ(TextoNúmero(mcm({1590175129, 7405926, 131328571})), "1.40601792817642E+23");
    EXPECT_THROW(mcm({1e200, 3e200, 7e299, 1.1e307}), ErrorEjecución);
    EXPECT_THROW(DevMCMReales({0, 0}, {0, 3}), ErrorEjecución);
}

#ifdef __SIZEOF_INT128__
// Its factors tell the multiple of whole numbers below 2^31, in 128 bits.
TEST(Mcm, LoDividenTodosYNingunoMenor) {
    __extension__ using Doble = unsigned __int128;
    constexpr std::uint64_t Semilla = 20301;
    std::mt19937_64 azar(Semilla);
    for (int i = 0; i < 2000; ++i) {
        Decimal resultado{1, 0};
        Doble esperado = 1;
        for (int k = 0; k < 4; ++k) {
            const auto n = static_cast<std::int64_t>(azar() % 2147483647 + 1) >> azar() % 31;
            const std::int64_t número = std::max<std::int64_t>(n, 1);
            resultado = DevMCMReales(resultado, {número, 0});
            const auto resto = static_cast<std::int64_t>(esperado % static_cast<Doble>(número));
            const std::int64_t común = resto == 0 ? número : DevMcdBinario(resto, número);
            esperado *= static_cast<Doble>(número / común);
        }
        const auto alta = static_cast<std::uint64_t>(esperado >> 64);
        Entero entero = Entero(static_cast<std::int64_t>(alta >> 1)).Desplazado(1);
        entero += static_cast<std::int64_t>(alta & 1);
        entero = entero.Desplazado(63);
        entero += static_cast<std::int64_t>(static_cast<std::uint64_t>(esperado) >> 1);
        entero = entero.Desplazado(1);
        entero += static_cast<std::int64_t>(static_cast<std::uint64_t>(esperado) & 1);
        EXPECT_EQ(resultado.exponente, 0);
        EXPECT_TRUE(resultado.mantisa == entero) << "seed " << Semilla << ", " << i;
    }
}
#endif

} // namespace
} // namespace quiralto
