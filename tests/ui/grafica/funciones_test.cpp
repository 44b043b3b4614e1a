// The functions as they stand in their boxes: when a typed text is a formula, half-written or
// refused, and what each way of leaving it does.

#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"
#include "ui/grafica/funciones.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

class Funciones : public testing::Test {
protected:
    EstadoTexto Estado(const char* texto) {
        funciones.Escribe(0, texto);
        return funciones[0].estado;
    }

    Banco banco;
    FuncionesGráficas funciones{banco.contexto};
};

TEST_F(Funciones, UnTextoEsFórmulaMediaEscritaORechazado) {
    using enum EstadoTexto;
    const struct {
        const char* texto;
        EstadoTexto estado;
    } casos[] = {
        {"", Vacío},
        {"X", Fórmula},
        {"-6", Fórmula},
        {"X^2", Fórmula},
        {"SIN(X)", Fórmula},
        {"(X+1)*(X-1)", Fórmula},
        {"X^2+", MediaEscrita},
        {"SI", MediaEscrita},
        {"X+SI", MediaEscrita},
        {"S", MediaEscrita},
        {"SIN", MediaEscrita},
        {"SIN(", MediaEscrita},
        {"SIN(X", MediaEscrita},
        {"(", MediaEscrita},
        {"((X+1)*", MediaEscrita},
        {"-", MediaEscrita},
        {"X^-", MediaEscrita},
        {"2*ARC", MediaEscrita},
        {"COSE", MediaEscrita},
        {"LOG(SQR(X)+", MediaEscrita},
        {"SEN(", Rechazado},
        {"SEN(X)", Rechazado},
        {"2,5", Rechazado},
        {"2X", Rechazado},
        {"X+1)", Rechazado},
        {"X&", Rechazado},
        {"X^2+&", Rechazado},
        {"*X", Rechazado},
        {"Z", Rechazado},
        {"X(", Rechazado},
        {"X++*", Rechazado},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Estado(caso.texto), caso.estado) << caso.texto;
    EXPECT_TRUE(banco.TomaMensajes().empty());
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

// Whatever a formula is cut to, typing on can complete it.
TEST_F(Funciones, TodoComienzoDeUnaFórmulaSePuedeCompletar) {
    const char* const fórmulas[] = {"X^2-4*X+1",
                                    "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3",
                                    "ATN(X-2)^(SIN(X)-COS(X)*3)",
                                    "ARCSIN(X/10)+COSEC(X)",
                                    "1.5*X/(2-X)",
                                    "EXP(-X^2/2)"};
    for (const std::string fórmula : fórmulas)
        for (std::size_t n = 1; n <= fórmula.size(); ++n)
            EXPECT_NE(Estado(fórmula.substr(0, n).c_str()), EstadoTexto::Rechazado)
                << fórmula.substr(0, n);
}

TEST_F(Funciones, LoTecleadoTieneEfectoEnCuantoEsFórmula) {
    funciones.Escribe(0, "X^2");
    ASSERT_TRUE(funciones.Asienta(0));
    funciones.Enciende(0);
    EXPECT_EQ(funciones.DevValor(0, 3), 9);
    funciones.Escribe(0, "-6");
    EXPECT_EQ(funciones.DevValor(0, 3), -6);
    funciones.Escribe(0, "-6+");
    EXPECT_EQ(funciones.DevValor(0, 3), std::nullopt);
    EXPECT_TRUE(funciones[0].EstáAtenuada());
    funciones.Escribe(0, "-6+,");
    EXPECT_FALSE(funciones[0].EstáAtenuada());
    funciones.Escribe(0, "-6+X");
    EXPECT_EQ(funciones.DevValor(0, 3), -3);
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Funciones, AsentarReescribeElTextoORechazaConUnMensaje) {
    funciones.Escribe(1, "+X--.50");
    EXPECT_EQ(funciones[1].texto, "+X--.50");
    ASSERT_TRUE(funciones.Asienta(1));
    EXPECT_EQ(funciones[1].texto, "X+.5");
    funciones.Enciende(1);
    funciones.Escribe(1, "X+");
    EXPECT_FALSE(funciones.Asienta(1));
    EXPECT_EQ(banco.TomaMensajes(),
              (std::vector{Mensaje{Icono::Exclamación, "No está permitido terminar con: +"}}));
    EXPECT_FALSE(funciones[1].encendida);
    EXPECT_EQ(funciones.DevValor(1, 0), std::nullopt);
}

TEST_F(Funciones, ApagarValeParaElTextoQueHabía) {
    funciones.Escribe(0, "X");
    funciones.Apaga(0);
    EXPECT_TRUE(funciones[0].apagadaAquí);
    funciones.Escribe(0, "X"); // nothing new
    EXPECT_TRUE(funciones[0].apagadaAquí);
    funciones.Escribe(0, "X+1");
    EXPECT_FALSE(funciones[0].apagadaAquí);
}

TEST_F(Funciones, UnPuntoSinValorNoDejaFallo) {
    funciones.Escribe(0, "1/X");
    funciones.Enciende(0);
    EXPECT_EQ(funciones.DevValor(0, 0), std::nullopt);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST_F(Funciones, UnaFunciónDemasiadoLargaSeRechazaConSuMotivo) {
    std::string larga = "X";
    for (int i = 0; i < 33000; ++i)
        larga += "+X";
    EXPECT_EQ(Estado(larga.c_str()), EstadoTexto::Rechazado);
    ASSERT_TRUE(funciones[0].rechazo.has_value());
    EXPECT_EQ(funciones[0].rechazo->motivo, Motivo::FunciónDemasiadoLarga);
}

// Random keys: the state is what the check of the language says, and nothing is ever shown.
TEST_F(Funciones, ElEstadoEsElQueDiceLaSintaxis) {
    const std::uint32_t semilla = 20240607;
    std::mt19937 azar(semilla);
    const std::string teclas = "X12.+-*/^()SINCOE,";
    for (int vez = 0; vez < 300; ++vez) {
        std::string texto;
        for (int i = 0; i < 12; ++i) {
            texto += teclas[azar() % teclas.size()];
            std::string copia = texto;
            const bool esFórmula = !CompruebaSintaxis(banco.contexto, copia);
            EXPECT_EQ(Estado(texto.c_str()) == EstadoTexto::Fórmula, esFórmula)
                << texto << " seed " << semilla;
            EXPECT_EQ(funciones[0].rechazo.has_value(), !esFórmula) << texto;
        }
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

} // namespace
} // namespace quiralto
