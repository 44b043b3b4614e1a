#include "engine/polinomios/factores.h"

#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quiralto {
namespace {

class Factorización : public testing::Test {
protected:
    std::string Factoriza(std::string_view texto, double a = -10, double b = 10) {
        return FactorizaPolinomio(banco.contexto,
                                  ReduceTérminos(banco.contexto, LeePolinomio(texto)), a, b,
                                  (b - a) / 1000);
    }
    Banco banco;
};

TEST_F(Factorización, DaUnFactorPorCadaRaízDelIntervalo) {
    const struct {
        const char* p;
        double a, b;
        const char* factores;
    } casos[] = {
        {"X^2-1", -10, 10, "(X+1)*(X-1)"},
        {"X^3-X", -10, 10, "(X+1)*X*(X-1)"},
        {"X^2+X", -.5, 10, "X*(X+1)"},
        {"2*X^2-2", -10, 10, "2*(X+1)*(X-1)"},
        {"-X^2+1", -10, 10, "-(X+1)*(X-1)"},
        {"-X", -10, 10, "-X"},
        {".5*X-1", -10, 10, ".5*(X-2)"},
        {"X^2-4", 0, 5, "(X-2)*(X+2)"},
        {"X^2-4", 3, 5, "X^2-4"},
        {"X^2-4", -2, 2, "(X+2)*(X-2)"},
        {"3*X^3-3*X^2+X-1", -10, 10, "(X-1)*(3*X^2+1)"},
        {"3*X^3-2*X^2", -10, 10, "X*(X-.66666667)*(3*X)"},
        {"9*X^2-6*X+1", -10, 10, "(X-.33333333)*(9*X-3)"},
        {"7*X^3+14*X-2*X^2-4", -10, 10, "(X-.28571429)*(7*X^2+14)"},
        {"X^2-.000000001*X-4", -10, 10, "(X+2)*(X-2)"},
        {"1E-300*X^3+X^2-4", -10, 10, "(X+2)*(X-2)"},
        {"7*X^3-50*X^2+84*X-16", -10, 10, "7*(X-.21786834)*(X-2.23872838)*(X-4.68626043)"},
        {"X^3-2", -10, 10, "(X-1.25992105)*(X^2+1.25992105*X+1.58740105)"},
        {"X^2-2", -10, 10, "(X+1.41421356)*(X-1.41421356)"},
        {"X^2-2*X+1", -10, 10, "(X-1)*(X-1)"},
        {"X^2-.026*X+.000169", -10, 10, "(X-.013)*(X-.013)"},
        {"X^3+X^2-X-1", -10, 10, "(X+1)*(X-1)*(X+1)"},
        {"X^400", -10, 10, "X*(X^399)"},
        {"X^1000001", -10, 10, "X*(X^1000000)"},
        {"X^2+1", -10, 10, "X^2+1"},
        {"5", -10, 10, "5"},
        {"0", -10, 10, "0"},
        {"X^2.5-X", -10, 10, "X^2.5-X"},
        {"X-X^-1", -10, 10, "X-X^-1"},
        {"1E+20*X-1E+20", -10, 10, "1E+20*(X-1)"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Factoriza(caso.p, caso.a, caso.b), caso.factores) << caso.p;
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST_F(Factorización, UnaRaízRepetidaSeHallaUnaSolaVez) {
    EXPECT_EQ(Factoriza("X^6-6*X^5+15*X^4-20*X^3+15*X^2-6*X+1", .99, 1.01),
              "(X-1)*(X^5-5*X^4+10*X^3-10*X^2+5*X-1)");
    EXPECT_EQ(Factoriza("X^4-2*X^3+X^2"), "X*(X-1)*(X^2-X)");
}

// Above the degree that is looked at exactly. X^1000 is 0 in Doubles wherever |X| < .47.
TEST_F(Factorización, NoTomaPorRaícesDondeUnaPotenciaSeQuedaEn0) {
    EXPECT_EQ(Factoriza("X^1001-X^1000", -3, 3), "X*(X-1)*(X^999)");
    EXPECT_EQ(Factoriza("X^1001-2*X^1000", -1, 1), "X*(X^1000-2*X^999)");
    EXPECT_EQ(Factoriza("X^1002-2*X^1000"), "(X+1.41421356)*X*(X-1.41421356)*(X^999)");
}

TEST_F(Factorización, DivideEntreTodosLosDígitosDeUnaRaízDeGradoAlto) {
    const std::string factores = Factoriza("X^1001-2", 0, 2);
    EXPECT_TRUE(factores.starts_with("(X-1.00069269)*(X^1000+1.00069269*X^999+1.00138587*X^998+"));
    const std::string último = TextoNúmero(Redondea(std::pow(2, 1000.0 / 1001), 8));
    EXPECT_TRUE(factores.ends_with("*X+" + último + ")")) << último;
    const std::string conMedio = Factoriza("2*X^1500-X^1499-2*X+1", 0, 2);
    EXPECT_TRUE(conMedio.starts_with("(X-.5)*(X-1)*(2*X^1498+2*X^1497+"));
    EXPECT_TRUE(conMedio.ends_with("+2*X^2+2*X+2)"));
}

// What is left of rounding would grow with the powers of a root beyond 1.
TEST_F(Factorización, ElCocienteDeGradoAltoNoCrece) {
    // (X^3-2*X^2+X-1)*(X^1140-3*X^642+1)
    const std::string factores = Factoriza("X^1143-2*X^1142+X^1141-X^1140-3*X^645+6*X^644-3*X^643+"
                                           "3*X^642+X^3-2*X^2+X-1",
                                           -3, 3);
    ASSERT_TRUE(factores.starts_with("(X+1.00201533)*(X-.99856738)*(X-1.75487767)*(X^1140-"));
    EXPECT_EQ(factores.find('E'), std::string::npos);
    const double último = std::stod(factores.substr(factores.find_last_of("+-")));
    EXPECT_NEAR(último * 1.00201533 * -.99856738 * -1.75487767, -1, 1e-7);
}

TEST_F(Factorización, SiempreTermina) {
    // Few digits: the rounded root stands far from the root; a step that is nearly nothing.
    banco.contexto.DígitosRedondeo = 0;
    EXPECT_EQ(Factoriza("4*X^2-1"), "4*(X+1)*(X-1)"); // -.5 and .5, rounded
    banco.contexto.DígitosRedondeo = 8;
    EXPECT_EQ(Factoriza("X^2-1", 1 - 1e-13, 1 + 1e-13), "(X-1)*(X+1)");
    EXPECT_EQ(Factoriza("X-1E+17", 0, 2e17), "(X-1E+17)");
}

TEST_F(Factorización, ElVigilanteLaCorta) {
    int veces = 0;
    banco.vigilante.continúa = [&] { return ++veces < 20; };
    EXPECT_THROW(Factoriza("X^2-1"), OrdenCancelada);
}

} // namespace
} // namespace quiralto
