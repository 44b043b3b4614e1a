#include "engine/polinomios/raices_exactas.h"

#include "engine/polinomios/division.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

class RaícesExactas : public testing::Test {
protected:
    // The coefficients from the constant on.
    std::optional<RaízExacta> Halla(const Denso& p, double x, double lejos = .01) {
        return DevRaízExacta(banco.contexto, p, x, lejos);
    }
    Banco banco;
};

TEST_F(RaícesExactas, UnaRaízRacionalSeHallaAunqueSeBusqueAlLado) {
    const struct {
        Denso p;
        double x;
        std::int64_t numerador, denominador;
    } casos[] = {
        {{-2, 3}, .6666666666666666, 2, 3},
        {{-2, 3}, .667, 2, 3},
        {{2, 3}, -.66, -2, 3},
        {{0, 1}, 0, 0, 1},
        {{0, 1}, -5e-324, 0, 1},
        {{0, -7, 2}, 1e-9, 0, 1},
        {{-1, 4}, .25, 1, 4},
        {{-123456789, 1000000007}, .12345, 123456789, 1000000007},
        {{-1, 1000000000000000}, 0, 1, 1000000000000000},
        {{100000000000000000, -1}, 1e17 + 16, 100000000000000000, 1},
        {{6, -5, 1}, 1.9999999, 2, 1},
        {{6, -5, 1}, 3.0000001, 3, 1},
    };
    for (const auto& caso : casos) {
        const auto raíz = Halla(caso.p, caso.x, 32);
        ASSERT_TRUE(raíz) << caso.x;
        EXPECT_TRUE(raíz->esRacional) << caso.x;
        EXPECT_EQ(raíz->numerador, Entero(caso.numerador)) << caso.x;
        EXPECT_EQ(raíz->denominador, Entero(caso.denominador)) << caso.x;
    }
}

TEST_F(RaícesExactas, UnaRaízIrracionalSeAcercaHastaElÚltimoBit) {
    for (const double a : {2.0, 3.0, 5.0, 1234567.0}) {
        const Denso p{Entero(static_cast<std::int64_t>(-a)), 0, 1};
        for (const double signo : {-1.0, 1.0}) {
            const auto raíz = Halla(p, signo * std::sqrt(a) * (1 + 1e-12));
            ASSERT_TRUE(raíz);
            EXPECT_FALSE(raíz->esRacional);
            EXPECT_EQ(raíz->ADouble(), signo * std::sqrt(a));
        }
    }
}

TEST_F(RaícesExactas, DondeNoHayCambioDeSignoNoHayRaíz) {
    EXPECT_FALSE(Halla({1, 0, 1}, 0));
    EXPECT_FALSE(Halla({-1, 1}, .5));
    EXPECT_TRUE(Halla({-1, 1}, .5, 1));
}

// The product of (X - n/d) for the roots, and of X^2 + 1; constant first.
TEST_F(RaícesExactas, ElCocientePorLasRaícesEsElQueSeEspera) {
    std::mt19937_64 azar(20291);
    for (int i = 0; i < 300; ++i) {
        Polinomio p = DevExacto({{2, 3}, {0, 1}}, 1);
        std::vector<RaízExacta> raíces;
        for (std::size_t n = 1 + azar() % 5; n > 0; --n) {
            const auto arriba = static_cast<std::int64_t>(azar() % 2001) - 1000;
            const auto abajo = static_cast<std::int64_t>(1 + azar() % 50);
            raíces.push_back({arriba, abajo, i % 2 == 0});
            p = MultiplicaPolinomios(banco.contexto, p,
                                     DevExacto({{1, abajo}, {0, -arriba}}, abajo));
        }
        const Polinomio cociente = DivideEntreRaíces(banco.contexto, *SiExacto(p), raíces);
        const Polinomio sobra = RestaPolinomios(cociente, DevExacto({{2, 3}, {0, 1}}, 1));
        if (i % 2 == 0)
            EXPECT_TRUE(EsCero(sobra)) << i;
        else // told that the roots are not exact: as many bits as are kept
            for (const Monomio<double>& t : AReal(sobra))
                EXPECT_LT(std::fabs(t.coeficiente), 0x1p-90) << i;
    }
}

TEST_F(RaícesExactas, ElVigilanteCortaLaBúsqueda) {
    Denso p(1000, 1);
    p.front() = -5;
    int veces = 0;
    banco.vigilante.continúa = [&] { return ++veces < 100; };
    EXPECT_THROW(Halla(p, .8), OrdenCancelada);
}

} // namespace
} // namespace quiralto
