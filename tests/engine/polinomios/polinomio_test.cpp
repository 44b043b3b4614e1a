#include "engine/polinomios/polinomio.h"

#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/denso.h"
#include "engine/polinomios/division.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

// The number of the fault that some work ends with; 0 for none.
int DevFallo(const auto& trabajo) {
    try {
        trabajo();
        return 0;
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
}

class Polinomios : public testing::Test {
protected:
    Polinomio Lee(std::string_view texto) {
        return ReduceTérminos(banco.contexto, LeePolinomio(texto));
    }
    std::string Escribe(const Polinomio& p) { return EscribePolinomio(banco.contexto, p); }

    Banco banco;
};

double DevValor(const Polinomio& p, double x) {
    double valor = 0;
    for (const auto& [exponente, coeficiente] : AReal(p))
        valor += coeficiente * std::pow(x, exponente);
    return valor;
}

TEST_F(Polinomios, LeeCadaTérminoConSuCoeficienteYSuExponente) {
    const struct {
        const char* texto;
        std::vector<std::pair<double, double>> términos; // coefficient, exponent
    } casos[] = {
        {"", {}},
        {"X", {{1, 1}}},
        {"-X^3", {{-1, 3}}},
        {"7", {{7, 0}}},
        {"-7", {{-7, 0}}},
        {"X^2", {{1, 2}}},
        {"X^1", {{1, 1}}},
        {"5*X^0", {{5, 0}}},
        {"2*X^-1+1.5E-03", {{2, -1}, {1.5e-3, 0}}},
        {"1.5E-07*X^2-X", {{1.5e-7, 2}, {-1, 1}}},
        {"1E+20*X-1E+20", {{1e20, 1}, {-1e20, 0}}},
        {"3*X^2+X-.5", {{3, 2}, {1, 1}, {-.5, 0}}},
        {"X+3*X^2-X^2", {{1, 1}, {3, 2}, {-1, 2}}},
        {"X^0.5-X^-2+.25*X^-.5", {{1, .5}, {-1, -2}, {.25, -.5}}},
        {"X^1E+20+X", {{1, 1e20}, {1, 1}}},
    };
    for (const auto& caso : casos) {
        const Monomios<double> leídos = LeePolinomio(caso.texto);
        ASSERT_EQ(leídos.size(), caso.términos.size()) << caso.texto;
        for (std::size_t i = 0; i < leídos.size(); ++i) {
            EXPECT_EQ(leídos[i].coeficiente, caso.términos[i].first) << caso.texto;
            EXPECT_EQ(leídos[i].exponente, caso.términos[i].second) << caso.texto;
        }
    }
}

TEST_F(Polinomios, EscribeLaFormaDePresentación) {
    const struct {
        const char* texto;
        const char* escrito;
    } casos[] = {
        {"4*X^3", "4*X^3"},
        {"4*X^1", "4*X"},
        {"1*X^5", "X^5"},
        {"X-1*X^5", "X-X^5"},
        {"X+1*X^5", "X+X^5"},
        {"-1*X^5", "-X^5"},
        {"1*X", "X"},
        {"-1*X", "-X"},
        {"-1", "-1"},
        {"1", "1"},
        {"5*X^0", "5"},
        {"0", "0"},
        {"", "0"},
        {"0*X^3+0*X", "0"},
        {"0*X^3+2*X", "2*X"},
        {"0*X^3-2*X", "-2*X"},
        {".000000004*X^2+X", "X"},
        {".000000005*X^2", ".00000001*X^2"},
        {"X^.123456789", "X^.12345679"},
        {"2*X^-1+1.5E-03", "2*X^-1+.0015"},
        {"1E+20*X^2-1.5E+16", "1E+20*X^2-1.5E+16"},
        {"X^2+2*X^2", "X^2+2*X^2"}, // writing alone neither orders nor collects
    };
    for (const auto& caso : casos)
        EXPECT_EQ(EscribePolinomio(banco.contexto, caso.texto), caso.escrito) << caso.texto;
    banco.contexto.DígitosRedondeo = 2;
    EXPECT_EQ(EscribePolinomio(banco.contexto, "1.006*X^2+.333*X-.004"), "1.01*X^2+.33*X");
}

TEST_F(Polinomios, ReúneLosTérminosDeIgualExponente) {
    const struct {
        const char* texto;
        const char* reducido;
    } casos[] = {
        {"X+3*X^2-X^2", "2*X^2+X"},
        {"X-X", "0"},
        {"1+X-X-1", "0"},
        {"2+X^2-3+X^-1-X^2", "-1+X^-1"},
        {".1*X+.2*X-.3*X", "0"},
        {"X^.5+X^2+X^.5", "X^2+2*X^.5"},
        {".123456789012*X+X", "1.12345679*X"}, // more places than are rounded to
        {"1E+300*X+1E+300*X", "2E+300*X"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Escribe(Lee(caso.texto)), caso.reducido) << caso.texto;
}

TEST_F(Polinomios, EsExactoLoDeDecimalesCortosYLoDemásReal) {
    for (const char* texto : {"X", ".12345678*X", "1E+300", "0", "1.5*X^-1"})
        EXPECT_TRUE(std::holds_alternative<PolinomioExacto>(Lee(texto))) << texto;
    for (const char* texto : {".123456789*X", "X+.333333333333333", "1E-10"})
        EXPECT_TRUE(std::holds_alternative<PolinomioReal>(Lee(texto))) << texto;
}

TEST_F(Polinomios, SumaRestaYMultiplica) {
    const struct {
        const char* p;
        const char* q;
        const char* suma;
        const char* resta;
        const char* producto;
    } casos[] = {
        {"X", "1", "X+1", "X-1", "X"},
        {"X+1", "X-1", "2*X", "2", "X^2-1"},
        {"0", "X", "X", "-X", "0"},
        {".1*X", ".2", ".1*X+.2", ".1*X-.2", ".02*X"},
        {"X^2+X^-2", "X^-1", "X^2+X^-1+X^-2", "X^2-X^-1+X^-2", "X+X^-3"},
        {"X^1000000+1", "X^1000000-1", "2*X^1000000", "2", "X^2000000-1"},
        {"X^.5+1", "X^.5-1", "2*X^.5", "2", "X-1"},
        {"1E+200*X", "1E-08", "1E+200*X+.00000001", "1E+200*X-.00000001", "1E+192*X"},
    };
    for (const auto& caso : casos) {
        const Polinomio p = Lee(caso.p);
        const Polinomio q = Lee(caso.q);
        EXPECT_EQ(Escribe(SumaPolinomios(p, q)), caso.suma) << caso.p << " , " << caso.q;
        EXPECT_EQ(Escribe(RestaPolinomios(p, q)), caso.resta) << caso.p << " , " << caso.q;
        EXPECT_EQ(Escribe(MultiplicaPolinomios(banco.contexto, p, q)), caso.producto)
            << caso.p << " , " << caso.q;
    }
}

TEST_F(Polinomios, UnSumandoPequeñoNoSePierdeEnUnoGrande) {
    const Polinomio grande = Lee("1E+30*X");
    const Polinomio suma = SumaPolinomios(grande, Lee(".00000001*X"));
    EXPECT_EQ(Escribe(RestaPolinomios(suma, grande)), ".00000001*X");
}

TEST_F(Polinomios, LoQueSeSaleDelRangoEsUnDesbordamiento) {
    const Polinomio grande = Lee("1E+308*X^2");
    EXPECT_EQ(DevFallo([&] { MultiplicaPolinomios(banco.contexto, grande, grande); }), 6);
    EXPECT_EQ(DevFallo([&] { SumaPolinomios(grande, grande); }), 6);
    EXPECT_EQ(DevFallo([&] { // the same for real ones
                  const Polinomio real = AReal(grande);
                  MultiplicaPolinomios(banco.contexto, real, real);
              }),
              6);
    // An exponent that a Double cannot hold: X^1E+20 * X
    EXPECT_EQ(DevFallo([&] {
                  MultiplicaPolinomios(banco.contexto, DevPotenciaDeX(1e20), DevPotenciaDeX(1));
              }),
              6);
    EXPECT_EQ(DevFallo([&] { LeePolinomio("1E+400*X"); }), 6);
    EXPECT_EQ(DevFallo([&] { DividePolinomios(banco.contexto, grande, Lee("0")); }), 11);
    // Every step leaves terms where there were none; of the quotient there are fewer than are kept.
    std::string divisor = "X^100000";
    for (int i = 1; i <= 930; ++i)
        divisor += "+X^" + std::to_string(i * i / 9 + i);
    int pasos = 0;
    banco.vigilante.continúa = [&] { return ++pasos > 0; };
    EXPECT_EQ(DevFallo([&] { DividePolinomios(banco.contexto, Lee("X^165000"), Lee(divisor)); }),
              14);
    EXPECT_LT(pasos, 1000); // and not once all of it has been divided
}

TEST_F(Polinomios, MásTérminosDeLosQueSeGuardanEsElError14) {
    // The exponents of the one are the digits that the other lacks: every product is another term.
    Monomios<double> bajos;
    Monomios<double> altos;
    for (int i = 0; i < 300; ++i) {
        bajos.push_back({static_cast<double>(i * i), 1});
        altos.push_back({i * 1e6, 1});
    }
    EXPECT_EQ(DevFallo([&] {
                  MultiplicaPolinomios(banco.contexto, ReduceTérminos(banco.contexto, bajos),
                                       ReduceTérminos(banco.contexto, altos));
              }),
              14);
}

// To the last one that is stored, and no further.
TEST_F(Polinomios, LosTérminosYElGradoTienenUnMáximo) {
    Monomios<Entero> términos;
    for (std::size_t i = MáximoTérminosPolinomio; i > 0; --i)
        términos.push_back({static_cast<double>(i), 1});
    EXPECT_EQ(DevGrado(DevExacto(términos, 1)), MáximoTérminosPolinomio);
    términos.push_back({0, 1});
    EXPECT_EQ(DevFallo([&] { DevExacto(términos, 1); }), 14);
    EXPECT_EQ(DevDenso({{MáximoTérminosPolinomio, 1}, {0, 2}}).size(), MáximoTérminosPolinomio + 1);
    EXPECT_EQ(DevFallo([&] { DevDenso({{MáximoTérminosPolinomio + 1, 1}}); }), 14);
}

TEST_F(Polinomios, ElVigilanteCortaUnProductoLargo) {
    Monomios<double> términos;
    for (int i = 0; i < 5000; ++i)
        términos.push_back({static_cast<double>(i), 1});
    const Polinomio p = ReduceTérminos(banco.contexto, términos);
    int veces = 0;
    banco.vigilante.continúa = [&] { return ++veces < 3; };
    EXPECT_THROW(MultiplicaPolinomios(banco.contexto, p, p), OrdenCancelada);
}

TEST_F(Polinomios, DivideConSuResto) {
    const struct {
        const char* dividendo;
        const char* divisor;
        const char* cociente;
        const char* resto;
    } casos[] = {
        {"X^2-1", "X-1", "X+1", "0"},
        {"X^3-2*X+5", "X-1", "X^2+X-1", "4"},
        {"X", "X^2", "0", "X"},
        {"0", "X", "0", "0"},
        {"X^2+1", "2*X", ".5*X", "1"},
        {"X^2", "3*X-1", ".33333333*X+.11111111", ".11111111"},
        {"X^9", "10*X-1",
         ".1*X^8+.01*X^7+.001*X^6+.0001*X^5+.00001*X^4+.000001*X^3+.0000001*X^2+.00000001*X", "0"},
        {"5", "2", "2.5", "0"},
        {"X^-1", "X^-2", "X", "0"},
        {"X^1.5-1", "X^.5-1", "X+X^.5+1", "0"},
    };
    for (const auto& caso : casos) {
        const División división =
            DividePolinomios(banco.contexto, Lee(caso.dividendo), Lee(caso.divisor));
        EXPECT_EQ(Escribe(división.cociente), caso.cociente) << caso.dividendo;
        EXPECT_EQ(Escribe(división.resto), caso.resto) << caso.dividendo;
    }
    // What is written as 0 above is not 0.
    EXPECT_FALSE(EsCero(DividePolinomios(banco.contexto, Lee("X^9"), Lee("10*X-1")).resto));
}

Polinomio DevAleatorio(const Contexto& contexto, std::mt19937_64& azar, int grado, bool real) {
    Monomios<double> términos;
    for (int e = 0; e <= grado; ++e)
        términos.push_back(
            {static_cast<double>(e),
             (static_cast<double>(azar() % 2001) - 1000) / 100 + (e == grado ? 20 : 0)});
    const Polinomio p = ReduceTérminos(contexto, términos);
    return real ? Polinomio(AReal(p)) : p;
}

TEST_F(Polinomios, DividendoEsDivisorPorCocienteMásResto) {
    std::mt19937_64 azar(20267);
    for (int i = 0; i < 600; ++i) {
        const bool real = i % 2 == 1;
        const Polinomio p = DevAleatorio(banco.contexto, azar, i % 13, real);
        const Polinomio d = DevAleatorio(banco.contexto, azar, i % 7, real);
        const auto [q, r] = DividePolinomios(banco.contexto, p, d);
        EXPECT_TRUE(EsCero(r) || DevGrado(r) < DevGrado(d)) << i;
        const Polinomio suma = SumaPolinomios(MultiplicaPolinomios(banco.contexto, q, d), r);
        if (!real)
            EXPECT_TRUE(EsCero(RestaPolinomios(suma, p))) << i;
        else
            for (const double x : {-1.0, -.4, .3, 1.0})
                EXPECT_NEAR(DevValor(suma, x), DevValor(p, x), 1e-5) << i;
    }
}

TEST_F(Polinomios, LasOperacionesTienenElValorDeSusTérminosEnCadaPunto) {
    std::mt19937_64 azar(20268);
    for (int i = 0; i < 400; ++i) {
        const bool real = i % 2 == 1;
        const Polinomio p = DevAleatorio(banco.contexto, azar, i % 9, real);
        const Polinomio q = DevAleatorio(banco.contexto, azar, i % 5, false);
        for (const double x : {-1.7, -1.0, .25, .9, 1.3}) {
            const double a = DevValor(p, x);
            const double b = DevValor(q, x);
            EXPECT_NEAR(DevValor(SumaPolinomios(p, q), x), a + b, 1e-9 * (1 + std::fabs(a)));
            EXPECT_NEAR(DevValor(RestaPolinomios(p, q), x), a - b, 1e-9 * (1 + std::fabs(a)));
            EXPECT_NEAR(DevValor(MultiplicaPolinomios(banco.contexto, p, q), x), a * b,
                        1e-9 * (1 + std::fabs(a * b)));
        }
    }
}

TEST_F(Polinomios, LoEscritoVuelveALeerseIgualYLoAceptaSintaxis) {
    std::mt19937_64 azar(20269);
    for (int i = 0; i < 300; ++i) {
        const Polinomio p = DevAleatorio(banco.contexto, azar, i % 20, i % 2 == 0);
        const std::string texto = Escribe(p);
        EXPECT_EQ(Escribe(Lee(texto)), texto);
        std::string normal = texto;
        EXPECT_TRUE(Sintaxis(banco.contexto, normal)) << texto;
        EXPECT_EQ(normal, texto);
    }
}

TEST_F(Polinomios, RedondearDaElValorDeLoEscrito) {
    for (const char* texto : {"X", ".123456789*X+.000000001", "1E+20*X-.5"}) {
        const Polinomio redondeado = RedondeaPolinomio(banco.contexto, Lee(texto));
        EXPECT_TRUE(std::holds_alternative<PolinomioExacto>(redondeado)) << texto;
        EXPECT_TRUE(EsCero(RestaPolinomios(redondeado, Lee(Escribe(Lee(texto)))))) << texto;
    }
}

} // namespace
} // namespace quiralto
