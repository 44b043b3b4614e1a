#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(Contexto, EmpiezaComoElPrograma) {
    Banco banco;
    EXPECT_EQ(banco.contexto.DígitosRedondeo, 8);
    EXPECT_EQ(banco.contexto.PrefijoVariable, "");
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST(Contexto, DosContextosNoSabenElUnoDelOtro) {
    Banco uno;
    Banco otro;
    uno.contexto.DígitosRedondeo = 2;
    const GuardaPrefijo guarda(uno.contexto, "SLN(");

    std::string texto = "SLN(0.123456789)";
    EXPECT_TRUE(Sintaxis(uno.contexto, texto));
    EXPECT_EQ(texto, "SLN(.12)");
    EXPECT_FALSE(Sintaxis(otro.contexto, texto));
    EXPECT_TRUE(uno.TomaMensajes().empty());
    EXPECT_EQ(otro.TomaMensajes(),
              (std::vector<Mensaje>{{Icono::Exclamación, "Error de sintáxis: 'S'"}}));

    texto = "0.123456789";
    EXPECT_TRUE(Sintaxis(otro.contexto, texto));
    EXPECT_EQ(texto, ".12345679");

    Programa programa = CompilaExpresión("1/X");
    EvalúaPrograma(uno.contexto, programa, 0);
    EXPECT_EQ(uno.contexto.ErrorCódigo, DivisiónPorCero);
    EXPECT_EQ(otro.contexto.ErrorCódigo, SinFallo);
}

TEST(Contexto, CadaUnoTieneSuAzar) {
    Banco uno;
    Banco otro;
    uno.contexto.generador.Siembra(7);
    otro.contexto.generador.Siembra(7);
    Programa programa = CompilaExpresión("SLN(X)");
    const double primero = EvalúaPrograma(uno.contexto, programa, 0);
    EvalúaPrograma(uno.contexto, programa, 0);
    EXPECT_EQ(EvalúaPrograma(otro.contexto, programa, 0), primero);
}

TEST(Contexto, SinSemillaCadaUnoSorteaOtrosNúmeros) {
    Banco uno;
    Banco otro;
    EXPECT_NE(uno.contexto.generador(), otro.contexto.generador());
}

TEST(Contexto, LosProgramasSonValores) {
    Banco banco;
    Programa cuadrado = CompilaExpresión("X^2");
    Programa seno = CompilaExpresión("SIN(X)");
    EXPECT_EQ(EvalúaPrograma(banco.contexto, cuadrado, 3), 9);
    EXPECT_EQ(EvalúaPrograma(banco.contexto, seno, 0), 0);
    const Programa copia = cuadrado;
    EXPECT_EQ(EvalúaPrograma(banco.contexto, cuadrado, 4), 16);
    EXPECT_EQ(copia.registros[copia.Resultado()], 9);
}

TEST(Contexto, ElPrefijoVuelveASerElAnterior) {
    Banco banco;
    {
        const GuardaPrefijo guarda(banco.contexto, "SLN(");
        EXPECT_EQ(banco.contexto.PrefijoVariable, "SLN(");
        {
            const GuardaPrefijo dentro(banco.contexto, "");
            EXPECT_EQ(banco.contexto.PrefijoVariable, "");
        }
        EXPECT_EQ(banco.contexto.PrefijoVariable, "SLN(");
    }
    EXPECT_EQ(banco.contexto.PrefijoVariable, "");
}

TEST(Contexto, ElPrefijoVuelveTambiénTrasUnaExcepción) {
    Banco banco;
    const auto falla = [&] {
        const GuardaPrefijo guarda(banco.contexto, "SLN(");
        throw ErrorEjecución(Desbordamiento);
    };
    EXPECT_THROW(falla(), ErrorEjecución);
    EXPECT_EQ(banco.contexto.PrefijoVariable, "");
}

TEST(Contexto, ElVigilanteCancela) {
    Banco banco;
    EXPECT_NO_THROW(banco.contexto.Vigila());
    banco.vigilante.continúa = [] { return false; };
    EXPECT_THROW(banco.contexto.Vigila(), OrdenCancelada);
}

TEST(ErrorEjecución, TieneSuDescripción) {
    const struct {
        int número;
        const char* descripción;
    } casos[] = {
        {5, "Argumento o llamada a procedimiento no válida"},
        {6, "Desbordamiento"},
        {7, "Memoria insuficiente"},
        {11, "División por cero"},
        {14, "Espacio de cadenas insuficiente"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(DescripciónError(caso.número), caso.descripción);
        EXPECT_STREQ(ErrorEjecución(caso.número).what(), caso.descripción);
        EXPECT_EQ(ErrorEjecución(caso.número).Número(), caso.número);
    }
    EXPECT_FALSE(DescripciónError(12345).empty());
}

} // namespace
} // namespace quiralto
