// What the graph writes on the worksheet, and what it reads from a line of it.

#include "engine/evaluacion/validadores.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"
#include "ui/grafica/datos_hoja.h"
#include "ui/grafica/funcion_linea.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

TEST(DatosHoja, UnExtremoEsUnDecimalSinExponente) {
    const struct {
        double valor;
        double separación;
        const char* texto;
    } casos[] = {
        {10, .03, "10"},
        {-10, .03, "-10"},
        {0, .03, "0"},
        {1.0 / 3, .03, ".33"},
        {-2.5, .03, "-2.5"},
        {1e-7, 1e-9, ".0000001"},
        {-1.23456e-7, 1e-9, "-.000000123"},
        {9.999, .03, "10"},
        {.004, .03, "0"},
        {123456.7, 300, "123500"},
        {1e20, 1e17, "100000000000000000000"},
        {-1.5e16, 1e14, "-15000000000000000"},
        {1234567890.0078, 1e-5, "1234567890.0078"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(TextoPlano(caso.valor, caso.separación), caso.texto) << caso.valor;
}

// Whatever the window, a command takes its ends, in their order and where they are to a pixel.
TEST(DatosHoja, TodaVentanaDaExtremosQueSeAdmiten) {
    constexpr unsigned Semilla = 20261122;
    std::mt19937 azar(Semilla);
    std::uniform_real_distribution<double> exponente(-12, 12);
    std::uniform_real_distribution<double> desvío(-1000, 1000);
    for (int i = 0; i < 3000; ++i) {
        const double ancho = std::pow(10, exponente(azar));
        const double mínimo = desvío(azar) * ancho;
        const double separación = ancho / 700;
        const std::string desde = TextoPlano(mínimo, separación);
        const std::string hasta = TextoPlano(mínimo + ancho, separación);
        for (const std::string& texto : {desde, hasta})
            EXPECT_TRUE(EsNúmeroEnRango(texto, 0, 0)) << texto << ", seed " << Semilla;
        EXPECT_NEAR(Val(desde), mínimo, separación) << desde;
        EXPECT_NEAR(Val(hasta), mínimo + ancho, separación) << hasta;
        EXPECT_LT(Val(desde), Val(hasta));
    }
}

TEST(DatosHoja, LosDatosSonLaFunciónSobreLaVentana) {
    const Ventana ventana{.XMáx = 7.5, .XMín = -2};
    EXPECT_EQ(DevDatosEnVentana("X^2-4", ventana, .01), "X^2-4,-2,7.5");
    EXPECT_EQ(DevDiferencia("X^2", "-X"), "(X^2)-(-X)");
}

TEST(FunciónDeLínea, EsLaDeLosDatosYLaDeUnResultado) {
    const struct {
        const char* línea;
        const char* función; // empty: none
    } casos[] = {
        {"X^2-4,-5,5", "X^2-4"},
        {"SIN(X) 'seno", "SIN(X)"},
        {"'X^2-4,-5,5", "X^2-4"},
        {"'4*X^3", "4*X^3"},
        {"'Desarrollo : X^3+1", "X^3+1"},
        {"'Tangente :6*X-9", "6*X-9"},
        {"'y=2*X-1", "2*X-1"},
        {"Simplificación :(X+1)/(X-1)", "(X+1)/(X-1)"},
        {"'f0(X)=X^2", "X^2"},
        {"'f0(X)=X^2, sin dibujar", "X^2"},
        {"'f(x) = sin(x)", "SIN(X)"},
        {"x^2-4,-5,5", "X^2-4"},
        {"EXP(X)", "EXP(X)"},
        {"EXP(2)", ""},
        {"'Solución en X= 2", ""},
        {"'Máximo en X=-1    f(X)= 2", ""},
        {"'Area= 8", ""},
        {"X(1)+X(2)=3", ""},
        {"(a+b)^2", ""},
        {"12,18", ""},
        {"2X", ""},
        {"'nota", ""},
        {"", ""},
        {"'", ""},
    };
    Banco banco;
    for (const auto& caso : casos)
        EXPECT_EQ(DevFunciónDeLínea(banco.contexto, caso.línea).value_or(""), caso.función)
            << caso.línea;
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

} // namespace
} // namespace quiralto
