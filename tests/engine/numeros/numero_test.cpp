#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace quiralto {
namespace {

TEST(Número, SeEscribeEnLaFormaGeneral) {
    const struct {
        double valor;
        const char* texto;
    } casos[] = {
        {0, "0"},
        {-0.0, "0"},
        {7, "7"},
        {-7, "-7"},
        {0.5, ".5"},
        {-0.25, "-.25"},
        {10, "10"},
        {1500, "1500"},
        {1234.5, "1234.5"},
        {0.00000015, ".00000015"},
        {1.0 / 3, ".333333333333333"},
        {2.0 / 3, ".666666666666667"},
        {0.1 + 0.2, ".3"},
        {999999999999999.0, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1e15, "1E+15"},
        {1e20, "1E+20"},
        {-1e20, "-1E+20"},
        {1e100, "1E+100"},
        {1.5e-100, "1.5E-100"},
        {1.0 / 30, "3.33333333333333E-02"},
        {1.23456789e-10, "1.23456789E-10"},
        {1e-15, ".000000000000001"},
        {1.5e-15, "1.5E-15"},
        {1e-16, "1E-16"},
        {123456789012345.6, "123456789012346"},
        {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
        {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(TextoNúmero(caso.valor), caso.texto) << caso.valor;
}

TEST(Número, LoNoFinitoEsUnErrorDeEjecución) {
    EXPECT_THROW(TextoNúmero(std::numeric_limits<double>::infinity()), ErrorEjecución);
    EXPECT_THROW(TextoNúmero(std::numeric_limits<double>::quiet_NaN()), ErrorEjecución);
}

TEST(Número, LlevaUnBlancoDelanteSiNoEsNegativo) {
    EXPECT_EQ(TextoNúmeroConBlanco(2), " 2");
    EXPECT_EQ(TextoNúmeroConBlanco(0), " 0");
    EXPECT_EQ(TextoNúmeroConBlanco(-0.0), " 0");
    EXPECT_EQ(TextoNúmeroConBlanco(-2), "-2");
    EXPECT_EQ(TextoResultado(-0.000000001, 8), " 0");
}

TEST(Número, ValLeeElNúmeroMásLargoDelPrincipio) {
    const struct {
        const char* texto;
        double valor;
    } casos[] = {
        {"", 0},       {"   ", 0},  {"X", 0},     {"5", 5},       {"  -2.5", -2.5}, {"+3", 3},
        {".5", .5},    {"5.", 5},   {"12*X", 12}, {"1E3", 1000},  {"1D3", 1000},    {"1e-2", .01},
        {"1d+2", 100}, {"2E", 2},   {"2E+", 2},   {"2EXP(1)", 2}, {"1.2.3", 1.2},   {"5-3", 5},
        {"-", 0},      {".", 0},    {"-.", 0},    {"--5", 0},     {"1E-400", 0},    {"0E999", 0},
        {"00012", 12}, {"0x10", 0}, {"inf", 0},   {"nan", 0},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Val(caso.texto), caso.valor) << caso.texto;
}

TEST(Número, ValMásAlláDelRangoEsDesbordamiento) {
    for (const std::string& texto :
         {std::string("1E309"), std::string("-1D999"), std::string("1E99999999999999999999"),
          std::string(400, '9'), "." + std::string(400, '0') + "1E800"}) {
        try {
            Val(texto);
            ADD_FAILURE() << texto;
        } catch (const ErrorEjecución& error) {
            EXPECT_EQ(error.Número(), Desbordamiento) << texto;
        }
    }
    EXPECT_EQ(Val("." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(Val("1E-99999999999999999999"), 0);
    EXPECT_EQ(Val(std::string(400, '9') + "E-400"), 1);
}

TEST(Número, LoEscritoVuelveConQuinceCifras) {
    std::mt19937_64 azar(20261);
    std::uniform_real_distribution<double> mantisa(-10, 10);
    std::uniform_int_distribution<int> exponente(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double valor = mantisa(azar) * std::pow(10.0, exponente(azar));
        const std::string texto = TextoNúmero(valor);
        EXPECT_NEAR(Val(texto) / valor, 1, 5e-15) << texto;
        EXPECT_EQ(TextoNúmero(Val(texto)), texto);
    }
}

TEST(Número, CuentaLosDecimalesQueSeEscriben) {
    const struct {
        double valor;
        int decimales;
    } casos[] = {{0, 0},      {7, 0},      {-1.5, 1},     {0.75, 2},     {1e20, 0},
                 {1.5e-7, 8}, {1e-20, 20}, {1.0 / 3, 15}, {1.0 / 30, 16}};
    for (const auto& caso : casos)
        EXPECT_EQ(DecimalesNúmero(caso.valor), caso.decimales) << caso.valor;
}

TEST(Número, RedondeaAlejándoseDelCero) {
    EXPECT_EQ(Redondea(2.5, 0), 3);
    EXPECT_EQ(Redondea(-2.5, 0), -3);
    EXPECT_EQ(Redondea(0.123456789, 8), 12345679 * 1e-8);
    EXPECT_EQ(Redondea(7, 8), 7);
    EXPECT_EQ(Redondea(0.4, 0), 0);
    EXPECT_EQ(Redondea(-0.000000004, 8), 0);
    EXPECT_EQ(Redondea(1e300, 15), 1e300);
    EXPECT_EQ(TextoNúmero(Redondea(2.675, 2)), "2.68");
    EXPECT_EQ(TextoNúmero(Redondea(-1.005, 15)), "-1.005");
}

} // namespace
} // namespace quiralto
