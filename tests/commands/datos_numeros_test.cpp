#include "commands/datos_numeros.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

using Números = std::vector<double>;

struct Lectura {
    std::optional<Números> números;
    std::vector<Mensaje> mensajes;
    std::optional<std::string> línea;
};

Lectura Lee(const std::string& texto, ClaseNúmeros clase, std::size_t cantidad) {
    Banco banco;
    Hoja hoja(texto);
    hoja.líneas = LeeTextBox(texto);
    Lectura lectura;
    lectura.números = CargaNúmeros(banco.contexto, hoja, clase, cantidad);
    lectura.mensajes = banco.TomaMensajes();
    lectura.línea = hoja.líneaSeleccionada;
    EXPECT_EQ(hoja.texto, texto);
    return lectura;
}

constexpr auto Doble = ClaseNúmeros::DoblePrecisión;
constexpr auto Largos = ClaseNúmeros::EnterosLargos;
constexpr auto Cortos = ClaseNúmeros::EnterosCortos;
constexpr auto Positivos = ClaseNúmeros::EnterosPositivos;

TEST(CargaNúmeros, LosNúmerosSeSeparanConComasYConLíneas) {
    const struct {
        const char* hoja;
        Números números;
    } casos[] = {
        {"12,18", {12, 18}},
        {"12\r\n18", {12, 18}},
        {"1,2\r\n'nota\r\n\r\n3\r\n4,5,6\r\n", {1, 2, 3, 4, 5, 6}},
        {"-1.5,+2,.25,007", {-1.5, 2, .25, 7}},
        {"8'tres,nueve", {8}},
        {"5-3", {5}},
        {"12345678901234567890", {12345678901234567890.0}},
    };
    for (const auto& caso : casos) {
        const Lectura lectura = Lee(caso.hoja, Doble, 0);
        EXPECT_EQ(lectura.números, caso.números) << caso.hoja;
        EXPECT_TRUE(lectura.mensajes.empty()) << caso.hoja;
        EXPECT_FALSE(lectura.línea) << caso.hoja;
    }
}

TEST(CargaNúmeros, RechazaElCampoQueNoEsUnNúmeroDeSuClase) {
    const std::string enteros = "números enteros largos : -2147483648 a 2147483647";
    const std::string dobles =
        "números de doble precisión : -1.79769313486231E+308 a 1.79769313486231E+308";
    const std::string cortos = "números enteros cortos : -32768 a 32767";
    const std::string positivos = "números enteros positivos : 2 a 2147483647";
    const std::string nueves(309, '9');
    const struct {
        std::string hoja;
        ClaseNúmeros clase;
        std::string línea;
        std::string rango;
    } casos[] = {
        {"12,,18", Doble, "12,,18", dobles},
        {"12,", Doble, "12,", dobles},
        {",12", Doble, ",12", dobles},
        {",", Doble, ",", dobles},
        {"1\r\n2,X\r\n3", Doble, "2,X", dobles},
        {"1, 2", Doble, "1, 2", dobles},
        {"1 'nota", Doble, "1 ", dobles},
        {"1E3", Doble, "1E3", dobles},
        {"1.", Doble, "1.", dobles},
        {"--1", Doble, "--1", dobles},
        {"1.2.3", Doble, "1.2.3", dobles},
        {"ñ", Doble, "ñ", dobles},
        {nueves, Doble, nueves, dobles},
        {"-" + nueves, Doble, "-" + nueves, dobles},
        {"2147483648", Largos, "2147483648", enteros},
        {"-2147483649", Largos, "-2147483649", enteros},
        {"2147483647.5", Largos, "2147483647.5", enteros},
        {"32768", Cortos, "32768", cortos},
        {"-32769", Cortos, "-32769", cortos},
        {"1", Positivos, "1", positivos},
        {"-5", Positivos, "-5", positivos},
        {"5,2147483648", Positivos, "5,2147483648", positivos},
    };
    for (const auto& caso : casos) {
        const Lectura lectura = Lee(caso.hoja, caso.clase, 0);
        EXPECT_FALSE(lectura.números) << caso.hoja;
        EXPECT_EQ(
            lectura.mensajes,
            (std::vector<Mensaje>{
                {Icono::Exclamación,
                 "Error de sintaxis , se esperaba un número en el rango de los " + caso.rango}}))
            << caso.hoja;
        EXPECT_EQ(lectura.línea, caso.línea) << caso.hoja;
    }
}

TEST(CargaNúmeros, AceptaLosExtremosDeCadaClase) {
    EXPECT_EQ(Lee("-2147483648,2147483647,0", Largos, 3).números,
              (Números{-2147483648.0, 2147483647, 0}));
    EXPECT_EQ(Lee("-32768,32767", Cortos, 2).números, (Números{-32768, 32767}));
    EXPECT_EQ(Lee("2,2147483647", Positivos, 2).números, (Números{2, 2147483647}));
    const std::string máximo = "179769313486231" + std::string(294, '0');
    EXPECT_EQ(Lee(máximo + ",-" + máximo, Doble, 2).números,
              (Números{1.79769313486231E+308, -1.79769313486231E+308}));
}

TEST(CargaNúmeros, CuentaLosNúmerosAlFinal) {
    const struct {
        const char* hoja;
        ClaseNúmeros clase;
        std::size_t cantidad;
        const char* mensaje;
    } casos[] = {
        {"12,18", Largos, 1,
         "Se esperaba 1 número en el rango de los números enteros largos : -2147483648 a "
         "2147483647"},
        {"", Largos, 1,
         "Se esperaba 1 número en el rango de los números enteros largos : -2147483648 a "
         "2147483647"},
        {"5", Positivos, 2,
         "Se esperaba una lista de  2 números, separados por comas,  ó separados por al menos una "
         "línea  en el rango de los números enteros positivos : 2 a 2147483647"},
        {"5,6,7", Positivos, 2,
         "Se esperaba una lista de  2 números, separados por comas,  ó separados por al menos una "
         "línea  en el rango de los números enteros positivos : 2 a 2147483647"},
        {"'12", Doble, 0,
         "Se esperaba una lista de  números, separados por comas,  ó separados por al menos una "
         "línea  en el rango de los números de doble precisión : -1.79769313486231E+308 a "
         "1.79769313486231E+308"},
        {"", Cortos, 3,
         "Se esperaba una lista de  3 números, separados por comas,  ó separados por al menos una "
         "línea  en el rango de los números enteros cortos : -32768 a 32767"},
    };
    for (const auto& caso : casos) {
        const Lectura lectura = Lee(caso.hoja, caso.clase, caso.cantidad);
        EXPECT_FALSE(lectura.números) << caso.hoja;
        EXPECT_EQ(lectura.mensajes, (std::vector<Mensaje>{{Icono::Exclamación, caso.mensaje}}))
            << caso.hoja;
        EXPECT_FALSE(lectura.línea) << caso.hoja;
    }
}

TEST(CargaNúmeros, LeeUnMillónDeNúmerosYSePuedeCancelar) {
    std::string texto = "1";
    for (int i = 1; i < 1000000; ++i)
        texto += i % 7 == 0 ? "\r\n1" : ",1";
    const Lectura lectura = Lee(texto, Doble, 0);
    ASSERT_TRUE(lectura.números);
    EXPECT_EQ(lectura.números->size(), 1000000U);

    Banco banco;
    banco.vigilante.continúa = [] { return false; };
    Hoja hoja(texto);
    hoja.líneas = LeeTextBox(texto);
    EXPECT_THROW(CargaNúmeros(banco.contexto, hoja, Doble, 0), OrdenCancelada);
}

} // namespace
} // namespace quiralto
