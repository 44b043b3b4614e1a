// Expansions against independent mathematics: values at points, difference quotients, products
// worked out term by term.
#include "engine/desarrollo/separa.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"
#include "tests/engine/desarrollo/desarrolla.h"
#include "tests/engine/generador.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <map>
#include <optional>

namespace quiralto {
namespace {

// The expansions of random expressions: accepted by Sintaxis, the same when they are expanded
// again, and of the same value. How many values were compared.
int CompruebaAlAzar(std::uint64_t semilla, std::uint64_t cuántas,
                    const std::vector<std::string>& números,
                    const std::vector<std::string>& funciones) {
    int comparados = 0;
    for (std::uint64_t i = 0; i < cuántas; ++i) {
        Generador generador(semilla + i);
        generador.números = números;
        generador.funciones = funciones;
        generador.conCadenasDePotencias = false;
        Banco banco;
        banco.contexto.generador.Siembra(i);
        std::string texto = generador.Expresión(2 + i % 7);
        EXPECT_TRUE(Sintaxis(banco.contexto, texto)) << texto;
        for (const Clase clase : {Clase::Completo, Clase::Simplificado}) {
            SCOPED_TRACE(texto + " semilla " + std::to_string(semilla + i));
            std::string desarrollo;
            try {
                desarrollo = Desarrolla(banco.contexto, clase, texto);
            } catch (const ErrorEjecución&) {
                continue;
            }
            std::string aceptado = desarrollo;
            EXPECT_TRUE(Sintaxis(banco.contexto, aceptado)) << desarrollo;
            EXPECT_EQ(aceptado, desarrollo);
            EXPECT_EQ(Desarrolla(banco.contexto, clase, desarrollo), desarrollo);
            Programa antes = CompilaExpresión(texto);
            Programa después = CompilaExpresión(desarrollo);
            for (const double x : {.37, 1.3, 2.1, -.7, -1.9}) {
                const auto a = DevValor(banco.contexto, antes, x);
                const auto b = DevValor(banco.contexto, después, x);
                constexpr double Cerca = 1e-7;
                const auto vecino = DevValor(banco.contexto, antes, x * (1 + Cerca));
                // Where a rounded coefficient would show, nothing can be said.
                if (!a || !b || !vecino || std::fabs(*a) > 1e4 ||
                    std::fabs(*a - *vecino) > 1e-5 * (1 + std::fabs(*a)))
                    continue;
                EXPECT_NEAR(*a, *b, 1e-4 * (1 + std::fabs(*a))) << desarrollo << " en " << x;
                ++comparados;
            }
        }
    }
    return comparados;
}

TEST(Desarrollo, ConservaElValorYNoCambiaAlRepetirse) {
    EXPECT_GT(CompruebaAlAzar(20240, 1500, {"1", "2", "3"}, {"SIN", "COS"}), 5000);
}

TEST(Desarrollo, TampocoConDecimalesYFuncionesSinValorEnPartes) {
    EXPECT_GT(CompruebaAlAzar(50240, 1500, {"1", "2", "3", "4", ".5", "2.5"},
                              {"SIN", "COS", "LOG", "EXP", "SQR", "ATN", "ARCSIN"}),
              5000);
}

// With letters for some of the X's in every third.
std::string SorteaExpresión(std::uint64_t semilla) {
    Generador generador(semilla);
    generador.números = {"1", "2", "3", "4", ".5", "2.5", "7"};
    generador.funciones = {"SIN", "COS", "LOG", "EXP", "SQR", "ATN", "ARCSIN"};
    generador.conCadenasDePotencias = false;
    const std::string texto = generador.Expresión(2 + semilla % 9);
    if (semilla % 3 != 2)
        return texto;
    std::string conLetras;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (texto[i] == 'X' && (i == 0 || texto[i - 1] != 'E') && generador.Hasta(2) == 0)
            conLetras += "SLN(" + std::to_string(65 + generador.Hasta(3)) + ")";
        else
            conLetras += texto[i];
    return conLetras;
}

// How far a text may be from what it stands for: half a unit of the last decimal of each
// coefficient of its sum, and what 15 digits and Doubles lose.
std::optional<double> DevHolgura(Contexto& contexto, const std::string& texto, double x) {
    const double mitad = .5 * std::pow(10, -contexto.DígitosRedondeo);
    double holgura = 0;
    for (const std::string& término : SeparaTérminos(texto)) {
        const TérminoSeparado partes = SeparaCoeficiente(término);
        Programa literal = CompilaExpresión(partes.literal.empty() ? "1" : partes.literal);
        const auto valor = DevValor(contexto, literal, x);
        if (!valor)
            return std::nullopt;
        constexpr double Dobles = 1e-9;
        holgura +=
            std::fabs(*valor) *
            (1.0001 * mitad + Dobles * std::fabs(std::strtod(partes.coeficiente.c_str(), nullptr)));
    }
    return holgura;
}

// Only the coefficients of the sum are rounded: with 0 and 15 digits as with 8.
TEST(Desarrollo, SoloRedondeaLosCoeficientesDeLaSuma) {
    constexpr std::uint64_t Semilla = 30240;
    constexpr std::uint64_t Cuántas = 1500;
    constexpr std::array Dígitos = {0, 3, 8, 15};
    int comparados = 0;
    for (std::uint64_t i = 0; i < Cuántas; ++i) {
        Banco banco;
        banco.contexto.DígitosRedondeo = Dígitos[i % Dígitos.size()];
        banco.contexto.generador.Siembra(i);
        const std::string texto = SorteaExpresión(Semilla + i);
        for (const Clase clase : {Clase::Completo, Clase::Simplificado}) {
            std::string desarrollo;
            try {
                desarrollo = Desarrolla(banco.contexto, clase, texto);
                EXPECT_EQ(Desarrolla(banco.contexto, clase, desarrollo), desarrollo) << texto;
            } catch (const ErrorEjecución&) {
                continue;
            }
            Programa antes = CompilaExpresión(texto);
            Programa después = CompilaExpresión(desarrollo);
            for (const double x : {.37, 1.3, 2.1, -.7, -1.9, 3.7}) {
                const auto a = DevValor(banco.contexto, antes, x);
                const auto b = DevValor(banco.contexto, después, x);
                constexpr double Cerca = 1e-12;
                const auto vecino = DevValor(banco.contexto, antes, x * (1 + Cerca));
                const auto holgura = DevHolgura(banco.contexto, desarrollo, x);
                if (!a || !b || !vecino || !holgura)
                    continue;
                // How much Doubles can say of it.
                const double ruido = 1e3 * std::fabs(*a - *vecino) + 1e-9 * std::fabs(*a) + 1e-9;
                EXPECT_NEAR(*a, *b, *holgura + ruido)
                    << texto << " da " << desarrollo << " en " << x << " con "
                    << banco.contexto.DígitosRedondeo << " dígitos, semilla " << Semilla + i;
                ++comparados;
            }
        }
    }
    EXPECT_GT(comparados, 5000);
}

std::string DesarrollaConSemilla(Clase clase, const std::string& texto, std::uint64_t semilla) {
    Banco banco;
    banco.contexto.generador.Siembra(semilla);
    try {
        return Desarrolla(banco.contexto, clase, texto);
    } catch (const ErrorEjecución& error) {
        return "error " + std::to_string(error.Número());
    }
}

// In parts, each a test of its own: together they are 2,000 expressions under 20 seeds.
class ConTodasLasSemillas : public testing::TestWithParam<std::uint64_t> {};

TEST_P(ConTodasLasSemillas, ElDesarrolloEsElMismo) {
    constexpr std::uint64_t Cuántas = 250;
    const std::uint64_t Primera = 90000 + GetParam() * Cuántas;
    constexpr std::uint64_t Semillas = 20;
    for (std::uint64_t i = 0; i < Cuántas; ++i) {
        Banco banco;
        const GuardaPrefijo prefijo(banco.contexto, "SLN(");
        std::string texto = SorteaExpresión(Primera + i);
        if (!Sintaxis(banco.contexto, texto))
            continue;
        for (const Clase clase : {Clase::Completo, Clase::Simplificado}) {
            const std::string primero = DesarrollaConSemilla(clase, texto, 0);
            for (std::uint64_t semilla = 1; semilla < Semillas; ++semilla)
                ASSERT_EQ(DesarrollaConSemilla(clase, texto, semilla), primero)
                    << texto << ", expresión " << Primera + i << ", semilla " << semilla;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Desarrollo, ConTodasLasSemillas, testing::Range<std::uint64_t>(0, 8));

// A polynomial in three unknowns and X, small enough for exact values.
using Exponentes = std::array<int, 4>;
using PolinomioIngenuo = std::map<Exponentes, long>;

PolinomioIngenuo SorteaPolinomio(Generador& azar, std::size_t términos) {
    PolinomioIngenuo p;
    for (std::size_t i = 0; i < términos; ++i) {
        Exponentes exponentes{};
        for (int& exponente : exponentes)
            exponente = static_cast<int>(azar.Hasta(3));
        p[exponentes] += static_cast<long>(azar.Hasta(19)) - 9;
    }
    std::erase_if(p, [](const auto& par) { return par.second == 0; });
    return p;
}

std::string DevTexto(const PolinomioIngenuo& p) {
    std::string texto;
    for (const auto& [exponentes, coeficiente] : p) {
        texto += (coeficiente < 0 ? "-" : "+") + std::to_string(std::abs(coeficiente));
        const std::array símbolos = {"SLN(2)", "SLN(3)", "SLN(5)", "X"};
        for (std::size_t i = 0; i < símbolos.size(); ++i)
            texto += std::string("*") + símbolos[i] + "^" + std::to_string(exponentes[i]);
    }
    return texto.empty() ? "0" : texto.substr(texto.starts_with('+') ? 1 : 0);
}

TEST(Desarrollo, ElProductoDePolinomiosEsElDeSusTérminos) {
    constexpr std::uint64_t Semilla = 70240;
    for (std::uint64_t i = 0; i < 200; ++i) {
        Generador azar(Semilla + i);
        const PolinomioIngenuo p = SorteaPolinomio(azar, 2 + i % 12);
        const PolinomioIngenuo q = i % 5 == 0 ? p : SorteaPolinomio(azar, 2 + i % 9);
        PolinomioIngenuo esperado;
        for (const auto& [deP, coeficienteP] : p)
            for (const auto& [deQ, coeficienteQ] : q) {
                Exponentes suma{};
                for (std::size_t k = 0; k < suma.size(); ++k)
                    suma[k] = deP[k] + deQ[k];
                esperado[suma] += coeficienteP * coeficienteQ;
            }
        std::erase_if(esperado, [](const auto& par) { return par.second == 0; });
        Banco banco;
        const std::string producto = Desarrolla(banco.contexto, Clase::Simplificado,
                                                "(" + DevTexto(p) + ")*(" + DevTexto(q) + ")");
        SCOPED_TRACE("semilla " + std::to_string(Semilla + i) + ": " + producto);
        EXPECT_EQ(producto == "0" ? 0 : SeparaTérminos(producto).size(), esperado.size());
        Programa suyo = CompilaExpresión(producto);
        Programa ingenuo = CompilaExpresión(DevTexto(esperado));
        for (const double x : {-3, 1, 2, 7})
            EXPECT_EQ(DevValor(banco.contexto, suyo, x), DevValor(banco.contexto, ingenuo, x));
    }
}

TEST(Desarrollo, LosProductosLargosSonExactos) {
    Banco banco;
    // 1+X+...+X^299, squared: 1, 2, ..., 300, ..., 2, 1
    const std::string cuadrado =
        Desarrolla(banco.contexto, Clase::Completo, "((X^300-1)/(X-1))*((X^300-1)/(X-1))");
    EXPECT_EQ(SeparaTérminos(cuadrado).size(), 599U);
    EXPECT_TRUE(cuadrado.starts_with("X^598+2*X^597+3*X^596+"));
    EXPECT_NE(cuadrado.find("+299*X^300+300*X^299+299*X^298+"), std::string::npos);
    EXPECT_TRUE(cuadrado.ends_with("+3*X^2+2*X+1"));
}

// The derivative as a command writes it, against the difference quotient of the function.
TEST(Desarrollo, LaDerivadaDesarrolladaEsLaDeLaFunción) {
    const char* const funciones[] = {"X^5-3*X^4+2*X^3-X^2+X-7",
                                     "SIN(X)^2",
                                     "X*EXP(X)",
                                     "LOG(X+3)/X",
                                     "X^X",
                                     "ARCSIN(X/4)",
                                     "SEC(X)*COSEC(X)",
                                     "(X+1)^3*(X-2)^2/(X^2+1)",
                                     "SQR(X^2+1)",
                                     "ATN(X)^2-TAN(X/3)",
                                     "3*-X^2",
                                     "2^X*X^-3",
                                     "COS(X*SIN(X))",
                                     "1/X^3",
                                     "-X^2+X/-2",
                                     "EXP(-X^2/2)",
                                     "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3"};
    for (const char* const f : funciones) {
        Banco banco;
        std::string derivada =
            DesarrollaSimplificado(banco.contexto, CompilaExpresión(Deriva(banco.contexto, f)));
        ASSERT_TRUE(Sintaxis(banco.contexto, derivada)) << f << " gives " << derivada;
        Programa función = CompilaExpresión(f);
        Programa suya = CompilaExpresión(derivada);
        for (const double x : {.3, .55, .8, 1.1, 1.3}) {
            constexpr double H = 1e-5;
            const auto valor = [&](double en) {
                return EvalúaPrograma(banco.contexto, función, en);
            };
            // Richardson's extrapolation of the central quotient: its error goes with h^4.
            const double esperada =
                (8 * (valor(x + H) - valor(x - H)) - (valor(x + 2 * H) - valor(x - 2 * H))) /
                (12 * H);
            EXPECT_NEAR(EvalúaPrograma(banco.contexto, suya, x), esperada,
                        2e-6 * std::max(1.0, std::fabs(esperada)))
                << f << " at " << x << ": " << derivada;
            ASSERT_EQ(banco.contexto.ErrorCódigo, SinFallo) << f << " at " << x;
        }
    }
}

} // namespace
} // namespace quiralto
