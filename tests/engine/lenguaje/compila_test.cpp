#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "tests/apoyo.h"
#include "tests/engine/generador.h"
#include "tests/engine/lenguaje/compilador_ingenuo.h"

#include <gtest/gtest.h>

#include <bit>

namespace quiralto {
namespace {

double Evalúa(const std::string& texto, double x = 0) {
    Banco banco;
    Programa programa = CompilaExpresión(texto);
    const double valor = EvalúaPrograma(banco.contexto, programa, x);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo) << texto;
    return valor;
}

void EsperaError(const std::string& texto, int número) {
    try {
        CompilaExpresión(texto);
        ADD_FAILURE() << texto.substr(0, 60);
    } catch (const ErrorEjecución& error) {
        EXPECT_EQ(error.Número(), número) << texto.substr(0, 60);
    }
}

TEST(CompilaExpresión, DaElValorDelLenguaje) {
    const struct {
        const char* texto;
        double x;
        double valor;
    } casos[] = {
        {"", 0, 0},
        {"5", 0, 5},
        {"X", 7, 7},
        {"-X", 7, -7},
        {"-5", 0, -5},
        {"2^3^2", 0, 64},
        {"-2^2", 0, -4},
        {"-3^2", 0, -9},
        {"2*-3^2", 0, 18},
        {"(-3)^2", 0, 9},
        {"2^-1", 0, 0.5},
        {"2^-2", 0, 0.25},
        {"2^-2^2", 0, 0.0625},
        {"2^-1^-2", 0, 4},
        {"X*-3", 5, -15},
        {"X/-2", 5, -2.5},
        {"12/-2*-3", 0, 18},
        {"1-2-3", 0, -4},
        {"1-2+3", 0, 2},
        {"1+2-3+4-5", 0, -1},
        {"8/4/2", 0, 1},
        {"8/2*4", 0, 16},
        {"2*8/4", 0, 4},
        {"2*3^2", 0, 18},
        {"2+3*4", 0, 14},
        {"(2+3)*4", 0, 20},
        {"-(2+3)*4", 0, -20},
        {"((((X))))", 3, 3},
        {"-(-(-X))", 3, -3},
        {"1E+20*X", 2, 2e20},
        {"X-1E-07", 0, -1e-7},
        {"1E+20+1E+20-1E+20", 0, 1e20},
        {"1E-05-1E-07-X", 0, 1e-5 - 1e-7},
        {"1E-05+1E-07-X", 1e-7, 1e-5 + (1e-7 - 1e-7)},
        {"-1E-05*-1E+05", 0, 1e-5 * 1e5},
        {"SQR(16)", 0, 4},
        {"EXP(0)", 0, 1},
        {"LOG(EXP(1))", 0, 1},
        {"SEC(X)", 0, 1},
        {"ATN(0)+ARCSIN(0)+SIN(0)+TAN(0)", 0, 0},
        {"SQR(SQR(81))", 0, 3},
        {"SIN(X)^2+COS(X)^2", 0, 1},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Evalúa(caso.texto, caso.x), caso.valor) << caso.texto;
}

TEST(CompilaExpresión, EscribeLasInstruccionesEnSuOrden) {
    const struct {
        const char* texto;
        const char* lista;
    } casos[] = {
        {"5", "Z3 := 0 + 5\n"},
        {"X", "Z2 := 0 + X\n"},
        {"", "Z3 := 0 + 0\n"},
        {"X+X", "Z1 := X + X\n"},
        {"-X^2", "Z2 := X ^ 2\n"
                 "Z4 := 0 - Z2\n"},
        // The sign is taken before the power and before the product.
        {"3*-X^2", "Z2 := 0 - X\n"
                   "Z4 := Z2 ^ 2\n"
                   "Z6 := 3 * Z4\n"},
        {"2^-X/-3*-4", "Z2 := 0 - X\n"
                       "Z5 := 0 - 3\n"
                       "Z8 := 0 - 4\n"
                       "Z10 := 2 ^ Z2\n"
                       "Z11 := Z10 / Z5\n"
                       "Z12 := Z11 * Z8\n"},
        // Divisions before products, differences before sums.
        {"1+2*3/4-X", "Z3 := 3 / 4\n"
                      "Z5 := 2 * Z3\n"
                      "Z6 := Z5 - X\n"
                      "Z8 := 1 + Z6\n"},
        {"2^3^X", "Z3 := 2 ^ 3\n"
                  "Z4 := Z3 ^ X\n"},
        // Groups innermost and leftmost first; a lone X in one is added to 0.
        {"(X+1)*((X-2)/(X))", "Z2 := X + 1\n"
                              "Z4 := X - 2\n"
                              "Z6 := 0 + X\n"
                              "Z7 := Z4 / Z6\n"
                              "Z8 := Z2 * Z7\n"},
        {"((X))", "Z2 := 0 + X\n"},
        // All the groups, then the functions name by name.
        {"SIN(X)*LOG(2)+COSEC(X)-SEC(X)*ARCSIN(X)", "Z2 := 0 + X\n"
                                                    "Z5 := 0 + 2\n"
                                                    "Z7 := 0 + X\n"
                                                    "Z9 := 0 + X\n"
                                                    "Z11 := 0 + X\n"
                                                    "Z12 := ARCSIN Z11\n"
                                                    "Z13 := COSEC Z7\n"
                                                    "Z14 := LOG Z5\n"
                                                    "Z15 := SIN Z2\n"
                                                    "Z16 := SEC Z9\n"
                                                    "Z17 := Z15 * Z14\n"
                                                    "Z18 := Z16 * Z12\n"
                                                    "Z19 := Z13 - Z18\n"
                                                    "Z20 := Z17 + Z19\n"},
        {"SLN(0)*1E+20", "Z3 := 0 + 0\n"
                         "Z4 := SLN Z3\n"
                         "Z6 := Z4 * 1E+20\n"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(ListaPrograma(CompilaExpresión(caso.texto)), caso.lista) << caso.texto;
}

// The instructions, registers, values and faults of the two compilers for one text.
void CompruebaContraIngenuo(Contexto& contexto, const std::string& texto) {
    const CompiladorIngenuo ingenuo(texto);
    Programa programa = CompilaExpresión(texto);
    ASSERT_EQ(programa.registros.size(), ingenuo.registros.size()) << texto;
    for (std::size_t i = 0; i < ingenuo.registros.size(); ++i)
        ASSERT_EQ(programa.registros[i], ingenuo.registros[i]) << texto << " Z" << i;
    ASSERT_EQ(programa.instrucciones.size(), ingenuo.instrucciones.size()) << texto;
    for (std::size_t i = 0; i < ingenuo.instrucciones.size(); ++i) {
        const Instrucción& suya = programa.instrucciones[i];
        const InstrucciónIngenua& esperada = ingenuo.instrucciones[i];
        const bool iguales = static_cast<int>(suya.código) == esperada.código &&
                             suya.derecho == esperada.derecho &&
                             suya.resultado == esperada.resultado &&
                             (esperada.izquierdo < 0 || suya.izquierdo == esperada.izquierdo);
        ASSERT_TRUE(iguales) << texto << '\n' << ListaPrograma(programa) << "instruction " << i;
    }
    for (const double x : {0.0, -1.5, 2.0}) {
        const ValorIngenuo esperado = EvalúaIngenuo(ingenuo, x);
        contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(contexto, programa, x);
        ASSERT_EQ(contexto.ErrorCódigo, esperado.fallo) << texto << " X=" << x;
        if (esperado.fallo == 0) {
            ASSERT_EQ(std::bit_cast<std::uint64_t>(valor),
                      std::bit_cast<std::uint64_t>(esperado.valor))
                << texto << " X=" << x;
        }
    }
}

TEST(CompilaExpresión, CompilaComoLaReescrituraCadaTextoCorto) {
    Banco banco;
    std::size_t cuántos = 0;
    const auto comprueba = [&](const std::string& texto) {
        ++cuántos;
        if (!testing::Test::HasFatalFailure())
            CompruebaContraIngenuo(banco.contexto, texto);
    };
    Enumerador({"X", "3"}, {"SIN", "LOG"}, comprueba).Enumera(9);
    Enumerador({"X"}, {}, comprueba).Enumera(12);
    EXPECT_GT(cuántos, 300000U);
}

TEST(CompilaExpresión, CompilaComoLaReescrituraTextosAlAzar) {
    Banco banco;
    Generador generador(1);
    for (int i = 0; i < 10000 && !HasFatalFailure(); ++i)
        CompruebaContraIngenuo(banco.contexto, generador.Expresión(1 + generador.Hasta(25)));
}

TEST(CompilaExpresión, CompilaSumasLargas) {
    std::string suma = "1";
    for (int i = 2; i <= 5000; ++i)
        suma += "+" + std::to_string(i);
    EXPECT_EQ(Evalúa(suma), 5000 * 5001 / 2);
    std::string resta = "X";
    for (int i = 1; i <= 5000; ++i)
        resta += i % 2 == 0 ? "+X" : "-X";
    EXPECT_EQ(Evalúa(resta, 3), 3);
}

TEST(CompilaExpresión, CompilaParéntesisHondos) {
    const std::size_t hondo = 10000;
    EXPECT_EQ(Evalúa(std::string(hondo, '(') + "X" + std::string(hondo, ')'), 4), 4);
    std::string capas;
    for (int i = 0; i < 5000; ++i)
        capas += "1+(";
    EXPECT_EQ(Evalúa(capas + "X" + std::string(5000, ')'), 4), 5004);
    std::string negado;
    for (int i = 0; i < 9999; ++i)
        negado += "-(";
    EXPECT_EQ(Evalúa(negado + "X" + std::string(9999, ')'), 4), -4);
    EXPECT_EQ(Evalúa(std::string(500000, '(') + "X" + std::string(500000, ')'), 4), 4);
}

TEST(CompilaExpresión, CuentaHastaElLímite) {
    const auto sumaDeEquis = [](std::size_t sumandos) {
        std::string suma = "X";
        for (std::size_t i = 1; i < sumandos; ++i)
            suma += "+X";
        return suma;
    };
    // A sum of n X has n - 1 instructions, each with a register of its own beside register 0.
    EXPECT_EQ(Evalúa(sumaDeEquis(32768), 1), 32768);
    EXPECT_EQ(CompilaExpresión(sumaDeEquis(32768)).instrucciones.size(), 32767U);
    EsperaError(sumaDeEquis(32769), Desbordamiento);
    EsperaError(sumaDeEquis(1000000), Desbordamiento);
    // Each "+1" takes two registers.
    std::string suma = "X";
    for (int i = 0; i < 16383; ++i)
        suma += "+1";
    EXPECT_EQ(Evalúa(suma, 0), 16383);
    EsperaError(suma + "+1", Desbordamiento);
    EXPECT_EQ(Evalúa(suma + "+X", 1), 16385);
}

TEST(CompilaExpresión, RechazaLoQueNoEsDelLenguaje) {
    for (const char* texto :
         {"(",    ")",    "()",    "X)",           "(X",     "+",  "-",        "*",  "X+",
          "X*",   "X-",   "X^-",   "*X",           "+X",     "XX", "2X",       "X2", "(X)(X)",
          "2(X)", "SIN",  "SINX",  "SIN()",        "Y",      "x",  "X,2",      " X", "X--2",
          "X+-2", "X*+2", "X*--2", "SIN(X)COS(X)", "FOO(X)", "Z1", "X\xC3\x91"})
        EsperaError(texto, ArgumentoInválido);
    EsperaError("1E+309", Desbordamiento);
    EsperaError(std::string("X\0", 2), ArgumentoInválido);
}

} // namespace
} // namespace quiralto
