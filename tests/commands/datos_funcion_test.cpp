#include "commands/datos_funcion.h"

#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

constexpr const char* Uso1 = "Se esperaba una línea con la forma : f(x), en donde  f(x) es una "
                             "función de la variable x.\r\nEjemplo : \r\n"
                             "(1/3)*X^2+LOG(X-3)+COS(X+11)-3";
constexpr const char* Uso2 =
    "Se esperaba una línea con el formato: f(x),punto, en donde  el primer parámetro es una "
    "función de la variable x, y el segundo, un valor de doble precisión, que indica el punto "
    "donde se aplicará la operación solicitada.\r\nEjemplo : \r\n"
    "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3";
constexpr const char* Uso3 =
    "Se esperaba una línea con el formato: f(x),extremo1,extremo2, en donde  el primer parámetro "
    "es una función de la variable x,  el segundo, un valor de doble precisión, que indica el "
    "punto inicial de aplicación de la operación solicitada, y el tercero el punto final.\r\n"
    "Ejemplo : \r\n"
    "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3,7";
constexpr const char* Doble = "Se esperaba un número de doble precisión";
constexpr const char* Mayor = "Se esperaba que el extremo superior fuera mayor que el inferior";
constexpr const char* Lógica = "Error de lógica en la expresión, verifique la sintaxis";

Hoja DevHoja(const std::string& texto) {
    Hoja hoja(texto);
    hoja.líneas = LeeTextBox(texto);
    return hoja;
}

TEST(CargaDatosFunción, AceptaLasTresFormas) {
    const struct {
        TipoDatos tipo;
        const char* línea;
        const char* función;
        double primero;
        double segundo;
    } casos[] = {
        {TipoDatos::Función, "X^2", "X^2", 0, 0},
        {TipoDatos::Función, "0.50*X'nota, con comas", ".5*X", 0, 0},
        {TipoDatos::FunciónYPunto, "X--1,5", "X+1", 5, 0},
        {TipoDatos::FunciónYPunto, "X,-.25", "X", -.25, 0},
        {TipoDatos::FunciónYPunto, "X,0", "X", 0, 0},
        {TipoDatos::FunciónYExtremos, "X^2-4,-5,5", "X^2-4", -5, 5},
        {TipoDatos::FunciónYExtremos, "X,+1,+1.5", "X", 1, 1.5},
        {TipoDatos::FunciónYExtremos, "X,-0,.001", "X", 0, .001},
        {TipoDatos::FunciónYExtremos, "X,00012,13", "X", 12, 13},
        // Behind the second end no further comma is looked for.
        {TipoDatos::FunciónYExtremos, "X^2,1,2,3", "X^2", 1, 2},
        {TipoDatos::FunciónYExtremos, "X^2,1,2,", "X^2", 1, 2},
        {TipoDatos::FunciónYExtremos, "X^2,1,2,ñ,,SIN(", "X^2", 1, 2},
        // The numbers are taken as typed, not rounded to DígitosRedondeo.
        {TipoDatos::FunciónYExtremos, "X,.1234567890123,.1234567890124", "X", .1234567890123,
         .1234567890124},
        // A sign behind digits ends the number.
        {TipoDatos::FunciónYExtremos, "X,12-3,20", "X", 12, 20},
    };
    for (const auto& caso : casos) {
        Banco banco;
        Hoja hoja = DevHoja(caso.línea);
        const auto datos = CargaDatosFunción(banco.contexto, hoja, caso.tipo);
        ASSERT_TRUE(datos) << caso.línea;
        EXPECT_EQ(datos->función, caso.función) << caso.línea;
        EXPECT_EQ(datos->primero, caso.primero) << caso.línea;
        EXPECT_EQ(datos->segundo, caso.segundo) << caso.línea;
        EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << caso.línea;
        EXPECT_EQ(hoja.texto, caso.línea);
        EXPECT_FALSE(hoja.líneaSeleccionada) << caso.línea;
    }
}

TEST(CargaDatosFunción, RechazaConUnMensajeYEligeLaLíneaQueConoce) {
    const struct {
        TipoDatos tipo;
        const char* hoja;
        const char* mensaje;
        std::optional<std::string> línea;
    } casos[] = {
        {TipoDatos::Función, "", Uso1, {}},
        {TipoDatos::Función, "'nota\r\n\r\n", Uso1, {}},
        {TipoDatos::Función, "X\r\nX", Uso1, {}},
        {TipoDatos::Función, "X^2,3", Uso1, {}},
        {TipoDatos::Función, "X,", Uso1, {}},
        {TipoDatos::Función, "1..2", Lógica, "1..2"},
        {TipoDatos::Función, "1..2,3", Lógica, "1..2,3"},
        {TipoDatos::Función, "X ", "Error de sintáxis: ' '", "X "},
        {TipoDatos::Función, ",", "No ha escrito ninguna función o valor numérico ", ","},

        {TipoDatos::FunciónYPunto, "", Uso2, {}},
        {TipoDatos::FunciónYPunto, "X,1\r\nX,1", Uso2, {}},
        {TipoDatos::FunciónYPunto, "X", Uso2, {}},
        {TipoDatos::FunciónYPunto, "X,1,2", Uso2, {}},
        {TipoDatos::FunciónYPunto, "X,1,", Uso2, {}},
        {TipoDatos::FunciónYPunto, "X,", Doble, "X,"},
        {TipoDatos::FunciónYPunto, "X,a", Doble, "X,a"},
        {TipoDatos::FunciónYPunto, "X,a,2", Doble, "X,a,2"},
        {TipoDatos::FunciónYPunto, "X^2,5 'mi nota", Doble, "X^2,5 "},
        {TipoDatos::FunciónYPunto, "1..2,a", Lógica, "1..2,a"},

        {TipoDatos::FunciónYExtremos, "", Uso3, {}},
        {TipoDatos::FunciónYExtremos, "X,0,1\r\n3", Uso3, {}},
        {TipoDatos::FunciónYExtremos, "X", Uso3, {}},
        {TipoDatos::FunciónYExtremos, "X,0", Uso3, {}},
        {TipoDatos::FunciónYExtremos, "X,a", Doble, "X,a"},
        {TipoDatos::FunciónYExtremos, "X,0,b", Doble, "X,0,b"},
        {TipoDatos::FunciónYExtremos, "X,0,b,2", Doble, "X,0,b,2"},
        {TipoDatos::FunciónYExtremos, "X,,1,2", Doble, "X,,1,2"},
        {TipoDatos::FunciónYExtremos, "X,0,1E2", Doble, "X,0,1E2"},
        {TipoDatos::FunciónYExtremos, "X,0,", Doble, "X,0,"},
        {TipoDatos::FunciónYExtremos, "X^2,3,3", Mayor, "X^2,3,3"},
        {TipoDatos::FunciónYExtremos, "X^2,7,3", Mayor, "X^2,7,3"},
        {TipoDatos::FunciónYExtremos, "X^2,3,1,7", Mayor, "X^2,3,1,7"},
        {TipoDatos::FunciónYExtremos, "X,-0,0", Mayor, "X,-0,0"},
        {TipoDatos::FunciónYExtremos, "1..2,7,3", Lógica, "1..2,7,3"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        Hoja hoja = DevHoja(caso.hoja);
        EXPECT_FALSE(CargaDatosFunción(banco.contexto, hoja, caso.tipo)) << caso.hoja;
        EXPECT_EQ(banco.TomaMensajes(), (std::vector<Mensaje>{{Icono::Exclamación, caso.mensaje}}))
            << caso.hoja;
        EXPECT_EQ(hoja.líneaSeleccionada, caso.línea) << caso.hoja;
        EXPECT_EQ(hoja.texto, caso.hoja);
    }
}

TEST(CargaDatosFunción, LaFunciónSeRedondeaALasCifras) {
    Banco banco;
    banco.contexto.DígitosRedondeo = 2;
    Hoja hoja = DevHoja("X*1.236,1.2345");
    const auto datos = CargaDatosFunción(banco.contexto, hoja, TipoDatos::FunciónYPunto);
    ASSERT_TRUE(datos);
    EXPECT_EQ(datos->función, "X*1.24");
    EXPECT_EQ(datos->primero, 1.2345);
}

TEST(CargaDatosFunción, UnNúmeroFueraDelRangoDeLosDoblesNoEsUnNúmero) {
    const std::string ceros(308, '0');
    Banco banco;
    Hoja cabe = DevHoja("X,1" + ceros);
    EXPECT_TRUE(CargaDatosFunción(banco.contexto, cabe, TipoDatos::FunciónYPunto));
    Hoja noCabe = DevHoja("X,10" + ceros);
    EXPECT_FALSE(CargaDatosFunción(banco.contexto, noCabe, TipoDatos::FunciónYPunto));
    EXPECT_EQ(banco.TomaMensajes(), (std::vector<Mensaje>{{Icono::Exclamación, Doble}}));
}

} // namespace
} // namespace quiralto
