#include "commands/formas.h"

#include "commands/ordenes.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

Lectura Lee(Banco& banco, const Forma& forma, const std::string& texto) {
    Lectura lectura = LeeDatos(banco.contexto, forma, LeeTextBox(texto));
    EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << texto;
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo) << texto;
    EXPECT_EQ(banco.contexto.PrefijoVariable, "") << texto;
    return lectura;
}

constexpr const char* Muestras[] = {
    "",        "'nota",     "12,18",      "360",       "1",     "-5,7",     "2,100",
    "2,4,3,9", "1,2,3",     "X",          "X\r\nX",    "X^2,3", "X^2,-1,1", "X^2,1,-1",
    "X^2,1,a", "X^2-1,X-1", "X^2-1,SIN(", "(a+b)^2",   "1..2",  "X(1)=1",   "X(1)=1\r\nX(2)",
    "X(1)==1", "=",         "9E999",      "9E999,1,2", "ñ",
};

// The column of the table and the data that the command itself takes are one thing.
TEST(Formas, LaColumnaEsLaFormaQueLaOrdenLee) {
    for (const Orden& orden : DevÓrdenes()) {
        EXPECT_FALSE(orden.forma.texto.empty());
        Banco banco;
        EXPECT_FALSE(Lee(banco, orden.forma, std::string(orden.ejemplo)).rechazo) << orden.texto;
        for (const char* muestra : Muestras) {
            const Lectura lectura = Lee(banco, orden.forma, muestra);
            Hoja hoja(muestra);
            EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
            const auto mensajes = banco.TomaMensajes();
            banco.contexto.ErrorCódigo = SinFallo;
            if (!lectura.rechazo)
                continue;
            ASSERT_EQ(mensajes.size(), 1U) << orden.texto << ": " << muestra;
            EXPECT_EQ(mensajes[0].texto, TextoRechazo(lectura.rechazo->rechazo))
                << orden.texto << ": " << muestra;
            const auto línea = lectura.rechazo->línea;
            EXPECT_EQ(hoja.líneaSeleccionada,
                      línea ? std::optional(hoja.líneas[*línea]) : std::nullopt)
                << orden.texto << ": " << muestra;
        }
    }
}

TEST(Formas, LoLeídoSonValores) {
    Banco banco;
    const auto función =
        std::get<DatosFunción>(Lee(banco, FormaFunciónYExtremos, "X--1,-5,5").datos);
    EXPECT_EQ(función.función, "X+1");
    EXPECT_EQ(función.primero, -5);
    EXPECT_EQ(función.segundo, 5);
    EXPECT_EQ(std::get<DatosNúmeros>(Lee(banco, FormaEnteros, "0,5\r\n0,75").datos),
              (DatosNúmeros{0, 5, 0, 75}));
    EXPECT_EQ(std::get<DatosMultivariable>(Lee(banco, FormaMultivariable, "a+X").datos).función,
              "SLN(97)+X");
    const auto lista = std::get<DatosFunciones>(Lee(banco, FormaRacionales, "X,1\r\n2*X").datos);
    ASSERT_EQ(lista.funciones.size(), 3U);
    EXPECT_EQ(lista.funciones[2].función, "2*X");
    EXPECT_EQ(lista.funciones[2].línea, 1U);
    const auto sistema = std::get<DatosEcuaciones>(
        Lee(banco, FormaEcuaciones, "2 * x(1) + X(20) = 3\r\nX(1)=-3/2").datos);
    ASSERT_EQ(sistema.ecuaciones.size(), 2U);
    EXPECT_EQ(sistema.ecuaciones[0].izquierda, "2*SLN(1)+SLN(20)");
    EXPECT_EQ(sistema.ecuaciones[0].derecha, "3");
}

TEST(Formas, LoDeDelanteDeLoRechazadoSeLee) {
    Banco banco;
    const struct {
        Forma forma;
        const char* texto;
        Motivo motivo;
        std::optional<std::size_t> línea;
        std::size_t lugar;
    } casos[] = {
        {FormaEnteros, "1,2\r\n3,a,4", Motivo::NoEsNúmeroDelRango, 1, 2},
        {FormaRacionales, "X,1\r\nX,X+*2", Motivo::FaltaDeLógica, 1, 4},
        {FormaFunciónYExtremos, "X,1,b", Motivo::NoEsDoblePrecisión, 0, 4},
        {FormaFunciónYExtremos, "X,2,1", Motivo::ExtremosDesordenados, 0, 2},
        {FormaFunciónYExtremos, "X,2", Motivo::UsoFunciónYExtremos, {}, 0},
        {FormaFunción, "X+ñ,1", Motivo::CarácterExtraño, 0, 2},
        {FormaEcuaciones, "X(1)=1\r\nX(2)", Motivo::SinIgualdad, 1, 0},
        {FormaPuntos, "1,2,3", Motivo::UsoParesLagrange, {}, 0},
    };
    for (const auto& caso : casos) {
        const Lectura lectura = Lee(banco, caso.forma, caso.texto);
        ASSERT_TRUE(lectura.rechazo) << caso.texto;
        EXPECT_EQ(lectura.rechazo->rechazo.motivo, caso.motivo) << caso.texto;
        EXPECT_EQ(lectura.rechazo->línea, caso.línea) << caso.texto;
        EXPECT_EQ(lectura.rechazo->rechazo.lugar, caso.lugar) << caso.texto;
    }
    EXPECT_EQ(std::get<DatosNúmeros>(Lee(banco, FormaEnteros, "1,2\r\n3,a,4").datos),
              (DatosNúmeros{1, 2, 3}));
    EXPECT_EQ(std::get<DatosEcuaciones>(Lee(banco, FormaEcuaciones, "X(1)=1\r\nX(2)").datos)
                  .ecuaciones.size(),
              1U);
}

TEST(Formas, SeReconocenEnLaHoja) {
    const std::pair<const char*, const char*> casos[] = {
        {"", ""},
        {"'nota", ""},
        {"0,5,0,75", "enteros"},
        {"1\r\n2", "enteros"},
        {"X(1)=1\r\nX(2)=3", "ecuaciones"},
        {"X(1)=", "ecuaciones"},
        {"X^2-4,-5,5", "f(x),extremo1,extremo2"},
        {"X^2-4,-5,5,7", "f(x),extremo1,extremo2"},
        {"X^2,3", "f(x),punto"},
        {"SIN(X)+2E5", "f(x)"},
        {"X+", "f(x)"},
        {"A+X", "f(...,x,y,z,...,s)"},
        {"X^2-1,X-1", "f(x),g(x),..."},
        {"X^2\r\n3", ""},
        {"X\r\nX=1", ""},
    };
    for (const auto& [texto, esperada] : casos) {
        const auto forma = ReconoceForma(LeeTextBox(texto));
        EXPECT_EQ(forma ? forma->texto : "", esperada) << texto;
    }
}

} // namespace
} // namespace quiralto
