#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/fraccion_continua.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <random>

namespace quiralto {
namespace {

TEST(FracciónContinua, DaLosCasosConocidos) {
    const struct {
        double x;
        const char* texto;
    } casos[] = {
        {0, "0"},
        {-0.0, "0"},
        {7, "7"},
        {-7, "-7"},
        {0.5, "(1/2)"},
        {-2.5, "-(5/2)"},
        {0.75, "(3/4)"},
        {0.1, "(1/10)"},
        {0.00000001, "(1/100000000)"},
        {1.25, "(5/4)"},
        {3.1416, "(3927/1250)"},
        {0.33333333, "(33333333/100000000)"},
        {0.333333333333333, "(333333333333333/1E+15)"},
        {1.0 / 3, "(1/3)"}, // more digits than are written: a convergent has the very value
        {2.0 / 7, "(2/7)"},
        {std::numbers::pi, "(355/113)"}, // no convergent has it: the smallest |x - p/q| * q^2
        {12345678901234.5, "(24691357802469/2)"},
        {999999999999999, "999999999999999"},
        {9007199254740992, "9.00719925474099E+15"},
        {1e20, "1E+20"},
        {1.23456789012345678e17, "1.23456789012346E+17"},
        {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
        {1e-15, "(1/1E+15)"},
        {1.5e-7, "(3/20000000)"},
        {1e-20, "(1/1E+20)"},
        {3.33333333333333e-2, "(333333333333333/1E+16)"},
        {-1.5e-300, "-(15/1E+301)"},
        {1.23456789012345e-20, "(123456789012345/1E+34)"},
        {1.23456789012345e-300, "1.23456789012345E-300"},
        {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(DevFracciónContinua(caso.x), caso.texto) << caso.x;
}

struct Cociente {
    double p;
    double q;
};

// The two integers of a "p" or "(p/q)".
Cociente LeeCociente(const std::string& texto) {
    const std::size_t barra = texto.find('/');
    if (barra == std::string::npos)
        return {Val(texto), 1};
    EXPECT_EQ(texto.front(), '(') << texto;
    EXPECT_EQ(texto.back(), ')') << texto;
    return {Val(std::string_view(texto).substr(1)), Val(std::string_view(texto).substr(barra + 1))};
}

TEST(FracciónContinua, DePocosDecimalesEsLaFracciónIrreducible) {
    std::mt19937 azar(5301);
    std::int64_t potencia = 1;
    for (int decimales = 0; decimales <= 4; ++decimales, potencia *= 10) {
        for (int i = 0; i < 5000; ++i) {
            const auto entero = std::uniform_int_distribution<std::int64_t>(0, 9999999)(azar);
            const double x = static_cast<double>(entero) / static_cast<double>(potencia);
            const std::int64_t mcd = std::gcd(entero, potencia);
            const auto [p, q] = LeeCociente(DevFracciónContinua(x));
            ASSERT_EQ(p, static_cast<double>(entero / mcd)) << x;
            ASSERT_EQ(q, static_cast<double>(potencia / mcd)) << x;
        }
    }
}

TEST(FracciónContinua, VuelveAlMismoDoubleEnCualquierEscritura) {
    std::mt19937_64 azar(5302);
    for (int i = 0; i < 50000; ++i) {
        // Whatever stands in a checked expression: at most 15 digits and 15 decimals.
        const int decimales = std::uniform_int_distribution<int>(0, 15)(azar);
        const int cifras = std::uniform_int_distribution<int>(1, 15)(azar);
        std::string escrito = "1";
        for (int k = 1; k < cifras; ++k)
            escrito += static_cast<char>('0' + std::uniform_int_distribution<int>(0, 9)(azar));
        const double x = Val(escrito + "E-" + std::to_string(decimales));
        const auto [p, q] = LeeCociente(DevFracciónContinua(x));
        ASSERT_EQ(p / q, x) << escrito << "E-" << decimales;
        ASSERT_LE(p, 1e15) << x;
        ASSERT_LE(q, 1e15) << x;
        ASSERT_EQ(p, std::trunc(p)) << x;
        ASSERT_EQ(q, std::trunc(q)) << x;
    }
}

TEST(FracciónContinua, DeCualquierDoubleTieneSuValorHastaDondeSeEscribe) {
    std::mt19937_64 azar(5303);
    for (int i = 0; i < 50000; ++i) {
        const double x =
            Val(TextoNúmero(std::uniform_real_distribution<double>(1, 10)(azar) *
                            std::pow(10.0, std::uniform_int_distribution<int>(-307, 307)(azar))));
        const std::string texto = DevFracciónContinua(x);
        const auto [p, q] = LeeCociente(texto);
        ASSERT_NEAR(p / q / x, 1, 1e-15) << texto;
    }
}

TEST(ConvFrCont, CambiaLosNúmerosYNadaMás) {
    const struct {
        const char* expresión;
        const char* convertida;
    } casos[] = {
        {"", ""},
        {"X", "X"},
        {"2.5", "(5/2)"},
        {"-2.5", "-(5/2)"},
        {"2^-.5", "2^-(1/2)"},
        {".5*X^2-.125*X+3", "(1/2)*X^2-(1/8)*X+3"},
        {"SIN(.1)+EXP(X)/1.5", "SIN((1/10))+EXP(X)/(3/2)"},
        {"1E+20*X-1.5E-10", "1E+20*X-(3/20000000000)"},
        {"X^1.5E-10", "X^(3/20000000000)"},
        {"1.5D+3", "1500"},
        {"(.25)(", "((1/4))("},
        {".", "."},
    };
    Banco banco;
    for (const auto& caso : casos)
        EXPECT_EQ(ConvFrCont(banco.contexto, caso.expresión), caso.convertida) << caso.expresión;
}

// A random expression of the language with decimal coefficients.
std::string DevExpresión(std::mt19937& azar, int operadores) {
    const auto hasta = [&](int máximo) {
        return std::uniform_int_distribution<int>(0, máximo)(azar);
    };
    if (operadores == 0) {
        if (hasta(3) == 0)
            return "X";
        return std::to_string(hasta(20)) + '.' + std::to_string(hasta(9999));
    }
    const int izquierda = hasta(operadores - 1);
    const std::string a = DevExpresión(azar, izquierda);
    const std::string b = DevExpresión(azar, operadores - 1 - izquierda);
    static constexpr std::array Formas = {"+", "-", "*", "/", "^", "*-", "/-", "^-"};
    if (hasta(4) == 0)
        return '(' + a + ")+SIN(" + b + ')';
    return a + Formas[static_cast<std::size_t>(hasta(Formas.size() - 1))] + b;
}

TEST(ConvFrCont, LoConvertidoEsUnaExpresiónConLosMismosValores) {
    std::mt19937 azar(5304);
    int conValor = 0;
    for (int i = 0; i < 3000; ++i) {
        Banco banco;
        banco.contexto.DígitosRedondeo = i % 16;
        std::string f = (i % 2 == 0 ? "-" : "") + DevExpresión(azar, i % 7);
        ASSERT_TRUE(Sintaxis(banco.contexto, f)) << f;
        std::string convertida = ConvFrCont(banco.contexto, f);
        const std::string sinComprobar = convertida;
        ASSERT_TRUE(Sintaxis(banco.contexto, convertida)) << f << " da " << sinComprobar;
        ASSERT_EQ(convertida, sinComprobar);
        Programa original = CompilaExpresión(f);
        Programa nuevo = CompilaExpresión(convertida);
        for (const double x : {-2.5, 0.0, 0.7, 3.0}) {
            banco.contexto.ErrorCódigo = SinFallo;
            const double esperado = EvalúaPrograma(banco.contexto, original, x);
            const auto fallo = std::exchange(banco.contexto.ErrorCódigo, SinFallo);
            const double valor = EvalúaPrograma(banco.contexto, nuevo, x);
            ASSERT_EQ(banco.contexto.ErrorCódigo, fallo) << f << " da " << convertida;
            if (fallo != SinFallo)
                continue;
            ++conValor;
            ASSERT_EQ(valor, esperado) << f << " da " << convertida << " en " << x;
        }
    }
    EXPECT_GT(conValor, 3000);
}

TEST(ConvFrCont, UnTextoDemasiadoLargoEsUnErrorDeEjecución) {
    Banco banco;
    constexpr std::string_view Sumando = "9E-14"; // (9/100000000000000)
    constexpr std::size_t Convertido = 19;
    std::string larga(Sumando);
    for (std::size_t i = 0; i < MáximoTexto / (Convertido + 1); ++i)
        (larga += '+') += Sumando;
    try {
        ConvFrCont(banco.contexto, larga);
        FAIL();
    } catch (const ErrorEjecución& error) {
        EXPECT_EQ(error.Número(), EspacioDeCadenasInsuficiente);
    }
}

TEST(ConvFrCont, SePuedeCancelar) {
    Banco banco;
    banco.vigilante.continúa = [] { return false; };
    EXPECT_THROW(ConvFrCont(banco.contexto, "X+.5"), OrdenCancelada);
}

} // namespace
} // namespace quiralto
