#include "engine/evaluacion/evalua.h"

#include "engine/lenguaje/compila.h"
#include "tests/apoyo.h"
#include "tests/engine/generador.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>
#include <set>
#include <utility>

namespace quiralto {
namespace {

constexpr double Máximo = std::numeric_limits<double>::max();
constexpr double Mínimo = std::numeric_limits<double>::denorm_min();
constexpr double Infinito = std::numeric_limits<double>::infinity();

int FalloDe(const std::string& texto, double x) {
    Banco banco;
    Programa programa = CompilaExpresión(texto);
    EvalúaPrograma(banco.contexto, programa, x);
    EXPECT_TRUE(banco.TomaMensajes().empty()) << texto;
    return banco.contexto.ErrorCódigo;
}

struct CasoFallo {
    const char* texto;
    double x;
    int fallo;
};

const std::vector<CasoFallo> CasosFallo = {
    {"1/X", 0, 11},
    {"1/X", -0.0, 11},
    {"0/X", 0, 11},
    {"X/X", 0, 11},
    {"1/(X-X)", 3, 11},
    {"X^-1", 0, 11},
    {"X^-.5", 0, 11},
    {"0^-X", 2, 11},
    {"X^0", 0, 0},
    {"LOG(X)", 0, 5},
    {"LOG(X)", -1, 5},
    {"LOG(X)", Mínimo, 0},
    {"SQR(X)", -1, 5},
    {"SQR(X)", 0, 0},
    {"SQR(-X)", 0, 0},
    {"X^(1/3)", -8, 5},
    {"X^.5", -4, 5},
    {"X^-.5", -4, 5},
    {"X^3", -8, 0},
    {"X^-3", -8, 0},
    {"X^20", -2, 0},
    {"ARCSIN(X)", 1, 11},
    {"ARCSIN(X)", -1, 11},
    {"ARCSIN(X)", 2, 5},
    {"ARCSIN(X)", -1.0000001, 5},
    {"ARCSIN(X)", 1e200, 5},
    {"ARCSIN(X)", 0.9999999999999999, 0},
    {"EXP(X)", 1000, 6},
    {"EXP(X)", -1000, 0},
    {"X*X", 1e300, 6},
    {"X*X", -1e-300, 0},
    {"X+X", Máximo, 6},
    {"-X-X", Máximo, 6},
    {"X/.5", Máximo, 6},
    {"1/X", Mínimo, 6},
    {"X^2", 1e200, 6},
    {"X^9", 1e200, 6},
    {"X^-2", 1e-200, 6},
    {"10^X", 400, 6},
    {"COSEC(X)", 0, 11},
    {"COSEC(X)", Mínimo, 6},
    {"SEC(X)", std::numbers::pi / 2, 0},
    {"TAN(X)", std::numbers::pi / 2, 0},
    {"SIN(X)", 1e300, 0},
    {"ATN(X)", Máximo, 0},
    // What the operations behind a fault would hide is a fault still.
    {"1/(1/X)", 0, 11},
    {"ATN(1/X)", 0, 11},
    {"ATN(X*X)", 1e300, 6},
    {"EXP(-(X*X))", 1e300, 6},
    {"EXP(LOG(X))", 0, 5},
    {"1/EXP(X)", 1000, 6},
    {"(1/X)^0", 0, 11},
    {"LOG(X)^0", -1, 5},
    {"SQR(X)^0", -1, 5},
    {"1^(1/X)", 0, 11},
    {"1^LOG(X)", -1, 5},
    {".5^(X*X)", 1e300, 6},
    {"ATN(EXP(X))", 1000, 6},
    {"ATN(SQR(X))", -1, 5},
    {"ATN(ARCSIN(X))", 1, 11},
    {"ATN(COSEC(X))", 0, 11},
    {"1/(X+X)", Máximo, 6},
    {"0*(1/X)", 0, 11},
    // The first fault is the one that is told.
    {"LOG(X)+1/X", 0, 5},
    {"1/X+SQR(-1)", 0, 5},
    {"1/X+X*1E+300", 0, 11},
    {"(1/X)+LOG(X)", 0, 11},
    // Faults that do not depend on X.
    {"1/0+X", 1, 11},
    {"LOG(0)*X", 1, 5},
    {"X+ATN(1/0)", 1, 11},
    {"X^(1/0)", 1, 11},
    {"X+1E+300*1E+300", 1, 6},
};

TEST(EvalúaPrograma, DaElFalloDeCadaCaso) {
    for (const CasoFallo& caso : CasosFallo)
        EXPECT_EQ(FalloDe(caso.texto, caso.x), caso.fallo) << caso.texto << " X=" << caso.x;
}

TEST(EvalúaPrograma, NuncaBorraElFallo) {
    Banco banco;
    Programa programa = CompilaExpresión("1/X");
    banco.contexto.ErrorCódigo = ArgumentoInválido;
    EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 4), 0.25);
    EXPECT_EQ(banco.contexto.ErrorCódigo, ArgumentoInválido);
    EvalúaPrograma(banco.contexto, programa, 0);
    EXPECT_EQ(banco.contexto.ErrorCódigo, DivisiónPorCero);
}

TEST(EvalúaPrograma, LosRegistrosGuardanLoCalculadoHastaElFallo) {
    Banco banco;
    Programa programa = CompilaExpresión("X*3+LOG(X)+X");
    EvalúaPrograma(banco.contexto, programa, 2);
    const double producto = programa.registros[5];
    EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 2), 6 + std::log(2.0) + 2);
    EvalúaPrograma(banco.contexto, programa, -2);
    EXPECT_EQ(banco.contexto.ErrorCódigo, ArgumentoInválido);
    EXPECT_EQ(programa.registros[0], -2);
    EXPECT_EQ(programa.registros[2], -2); // 0+X, the argument
    EXPECT_EQ(programa.registros[5], producto);
}

TEST(EvalúaPrograma, UnaInstrucciónQueFallaNoTocaSuRegistro) {
    Banco banco;
    Programa programa = CompilaExpresión("3+1/X");
    EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 0), 0); // nothing has run yet
    EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 4), 3.25);
    EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 0), 3.25);
    EXPECT_EQ(banco.contexto.ErrorCódigo, DivisiónPorCero);
}

TEST(EvalúaPrograma, CalculaLasFunciones) {
    const struct {
        const char* texto;
        double (*f)(double);
    } casos[] = {
        {"LOG(X)", [](double x) { return std::log(x); }},
        {"SIN(X)", [](double x) { return std::sin(x); }},
        {"COS(X)", [](double x) { return std::cos(x); }},
        {"TAN(X)", [](double x) { return std::tan(x); }},
        {"ATN(X)", [](double x) { return std::atan(x); }},
        {"EXP(X)", [](double x) { return std::exp(x); }},
        {"SQR(X)", [](double x) { return std::sqrt(x); }},
        {"SEC(X)", [](double x) { return 1 / std::cos(x); }},
        {"COSEC(X)", [](double x) { return 1 / std::sin(x); }},
        {"ARCSIN(X)", [](double x) { return std::asin(x); }},
    };
    Banco banco;
    for (const auto& caso : casos) {
        Programa programa = CompilaExpresión(caso.texto);
        for (int i = 1; i < 16; ++i) {
            const double x = i / 16.0;
            EXPECT_NEAR(EvalúaPrograma(banco.contexto, programa, x), caso.f(x), 1e-14)
                << caso.texto << x;
        }
    }
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST(EvalúaPrograma, LasPotenciasEnterasSonCasiExactas) {
    Banco banco;
    Generador generador(2);
    for (int exponente = -12; exponente <= 12; ++exponente) {
        Programa programa = CompilaExpresión("X^" + std::to_string(exponente));
        for (int i = 0; i < 2000; ++i) {
            const double x = generador.Real(-20, 20);
            const double exacta = std::pow(x, exponente);
            EXPECT_NEAR(EvalúaPrograma(banco.contexto, programa, x) / exacta, 1, 1e-15)
                << x << '^' << exponente;
        }
    }
}

// Where the product is beyond the range, or has lost digits, its inverse need not be.
TEST(EvalúaPrograma, LasPotenciasNegativasLleganHastaElFinalDelRango) {
    Banco banco;
    for (int exponente = 1; exponente <= 8; ++exponente) {
        Programa programa = CompilaExpresión("X^-" + std::to_string(exponente));
        for (double diez = 300; diez <= 323; diez += .25)
            for (const double x :
                 {std::pow(10, diez / exponente), std::pow(10, -diez / exponente)}) {
                const double exacta = std::pow(x, -exponente);
                const double valor = EvalúaPrograma(banco.contexto, programa, x);
                if (std::isinf(exacta))
                    EXPECT_EQ(std::exchange(banco.contexto.ErrorCódigo, SinFallo), Desbordamiento);
                else
                    EXPECT_NEAR(valor, exacta, std::max(exacta * 1e-15, Mínimo))
                        << x << "^-" << exponente;
            }
    }
}

TEST(EvalúaPrograma, SlnEsElArgumentoOAzar) {
    Banco banco;
    Programa fija = CompilaExpresión("SLN(5)");
    EXPECT_EQ(EvalúaPrograma(banco.contexto, fija, 0), 5);
    Programa azar = CompilaExpresión("SLN(0)");
    std::set<double> vistos;
    for (int i = 0; i < 1000; ++i) {
        const double valor = EvalúaPrograma(banco.contexto, azar, 0);
        EXPECT_GE(valor, 0);
        EXPECT_LT(valor, 1);
        vistos.insert(valor);
    }
    EXPECT_GT(vistos.size(), 990U);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST(EvalúaPrograma, UnCódigoFueraDeLaTablaNoHaceNada) {
    for (const int código : {0, 16, 17, 100, 127, 129, 32767, -1, -32768}) {
        Banco banco;
        Programa programa = CompilaExpresión("X+2");
        Instrucción ajena = programa.instrucciones.front();
        ajena.código = static_cast<Operación>(código);
        programa.instrucciones.push_back(ajena);
        EXPECT_EQ(EvalúaPrograma(banco.contexto, programa, 3), 5) << código;
        EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
        std::vector<double> equis = {3, 4};
        std::vector<double> valores(2);
        std::vector<std::int16_t> fallos(2);
        EvalúaBloque(banco.contexto, programa, equis, valores, fallos);
        EXPECT_EQ(valores, (std::vector<double>{5, 6})) << código;
    }
}

// What the evaluator gives of one value of X after the other: not a number for a fault.
std::vector<double> DevSueltos(Contexto& contexto, const Programa& programa,
                               const std::vector<double>& equis) {
    contexto.generador.Siembra(1);
    EvaluadorDeBloques evaluador(programa);
    std::vector<double> sueltos;
    for (const double x : equis) {
        contexto.ErrorCódigo = Desbordamiento;
        sueltos.push_back(evaluador.DevValor(contexto, x));
        EXPECT_EQ(contexto.ErrorCódigo, SinFallo);
    }
    return sueltos;
}

// All runs at the same values of X: the same bits and the same faults.
void CompruebaBloque(const std::string& texto, const std::vector<double>& equis) {
    Banco banco;
    const Programa programa = CompilaExpresión(texto);
    std::vector<double> valores(equis.size(), 12345);
    std::vector<std::int16_t> fallos(equis.size(), 99);
    banco.contexto.ErrorCódigo = 77;
    banco.contexto.generador.Siembra(1);
    EvalúaBloque(banco.contexto, programa, equis, valores, fallos);
    ASSERT_EQ(banco.contexto.ErrorCódigo, 77) << texto;
    std::vector<double> valoresSinCausa(equis.size(), 12345);
    std::vector<std::int16_t> fallosSinCausa(equis.size(), 99);
    banco.contexto.generador.Siembra(1);
    EvalúaBloque(banco.contexto, programa, equis, valoresSinCausa, fallosSinCausa, Causa::Ninguna);
    ASSERT_EQ(banco.contexto.ErrorCódigo, 77) << texto;
    const std::vector<double> sueltos = DevSueltos(banco.contexto, programa, equis);
    banco.contexto.generador.Siembra(1);
    Programa copia = programa;
    for (std::size_t i = 0; i < equis.size(); ++i) {
        banco.contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(banco.contexto, copia, equis[i]);
        ASSERT_EQ(fallos[i], banco.contexto.ErrorCódigo) << texto << " X=" << equis[i];
        ASSERT_EQ(fallosSinCausa[i] == SinFallo, fallos[i] == SinFallo)
            << texto << " X=" << equis[i];
        ASSERT_EQ(std::isnan(sueltos[i]), fallos[i] != SinFallo) << texto << " X=" << equis[i];
        if (fallos[i] != SinFallo)
            continue;
        for (const double suyo : {valores[i], valoresSinCausa[i], sueltos[i]})
            ASSERT_EQ(std::bit_cast<std::uint64_t>(suyo), std::bit_cast<std::uint64_t>(valor))
                << texto << " X=" << equis[i];
    }
}

const std::vector<double> EquisNotables = {0.0,
                                           -0.0,
                                           1,
                                           -1,
                                           2,
                                           -2,
                                           .5,
                                           -.5,
                                           1.5,
                                           -1.5,
                                           10,
                                           -10,
                                           1e-5,
                                           -1e-5,
                                           1e5,
                                           -1e5,
                                           1e150,
                                           -1e150,
                                           1e300,
                                           -1e300,
                                           Máximo,
                                           -Máximo,
                                           Mínimo,
                                           -Mínimo,
                                           1e-300,
                                           -1e-300,
                                           1e-160,
                                           709.78,
                                           709.79,
                                           -745.2,
                                           1000,
                                           -1000,
                                           std::nextafter(1, 0),
                                           std::nextafter(1, 2),
                                           std::numbers::pi,
                                           std::numbers::pi / 2,
                                           -std::numbers::pi / 2,
                                           Infinito,
                                           -Infinito,
                                           std::numeric_limits<double>::quiet_NaN()};

std::vector<double> EquisDe(std::size_t cantidad, Generador& generador) {
    std::vector<double> equis;
    while (equis.size() < cantidad)
        equis.push_back(generador.Hasta(3) == 0 ? generador.Elige(EquisNotables)
                                                : generador.Real(-10, 10));
    return equis;
}

TEST(EvalúaBloque, DaLosMismosFallosQueUnoAUno) {
    for (const CasoFallo& caso : CasosFallo) {
        CompruebaBloque(caso.texto, {caso.x});
        CompruebaBloque(caso.texto, {2, caso.x, -3, caso.x, .5});
        CompruebaBloque(caso.texto, EquisNotables);
    }
}

TEST(EvalúaBloque, DaLosMismosBitsQueUnoAUno) {
    Generador generador(3);
    const std::vector<std::size_t> longitudes = {0, 1, 2, 127, 128, 129, 257};
    for (int i = 0; i < 4000 && !HasFatalFailure(); ++i) {
        const std::string texto = generador.Expresión(1 + generador.Hasta(16));
        CompruebaBloque(texto, EquisDe(generador.Elige(longitudes), generador));
    }
    for (int i = 0; i < 4000 && !HasFatalFailure(); ++i)
        CompruebaBloque(generador.Expresión(1 + generador.Hasta(8)), EquisNotables);
}

TEST(EvalúaBloque, DaLosMismosBitsEnUnaCurvaEntera) {
    Generador generador(4);
    for (const char* texto :
         {"X^2-4", "(X+1)*(X-2)/(X^2+1)", "X^5-3*X^4+2*X^3-X^2+X-7", "SIN(X)*COS(X)", "EXP(-X^2/2)",
          "(1/3)*X^2+LOG(X+11)+COS(X+11)-3", "1/X", "LOG(X)", "X^X", "X^-X", "X", "5", "2*3",
          "X+1/0", "SLN(X)", "SLN(X-X)+X", "X^2^2^2", "2^X^3"}) {
        std::vector<double> equis;
        for (int i = 0; i <= 4800; ++i)
            equis.push_back(-10 + i / 240.0);
        CompruebaBloque(texto, equis);
        CompruebaBloque(texto, EquisDe(4801, generador));
    }
}

TEST(EvalúaBloque, CadaPotenciaEnteraEsLaMismaEnAmbos) {
    Generador generador(5);
    for (int exponente = -12; exponente <= 12; ++exponente)
        CompruebaBloque("X^" + std::to_string(exponente), EquisDe(300, generador));
}

// Among ordinary bases, one whose power is beyond the range, or has lost digits, or is none.
TEST(EvalúaBloque, UnaPotenciaNegativaFueraDeRangoEsLaMismaEnAmbos) {
    Generador generador(8);
    for (int exponente = 1; exponente <= 8; ++exponente)
        for (const double diez : {-323.5, -308.0, -307.7, 307.9, 308.3, 320.0}) {
            std::vector<double> equis = EquisDe(20, generador);
            equis[generador.Hasta(equis.size())] = std::pow(10, diez / exponente);
            CompruebaBloque("X^-" + std::to_string(exponente), equis);
            equis[generador.Hasta(equis.size())] = 0;
            CompruebaBloque("(X/3)^-" + std::to_string(exponente), equis);
        }
}

TEST(EvalúaBloque, UnExponenteConXPuedeSerEntero) {
    Generador generador(6);
    for (const char* exponente : {"X-X-3", "X-X", "X-X+2", "X-X+3", "X-X+7", "X-X+8", "X-X+2.5"})
        CompruebaBloque("(X/7)^(" + std::string(exponente) + ")", EquisDe(300, generador));
}

TEST(EvalúaBloque, LosProgramasDeMuchasFilasDanLoMismo) {
    // A right-leaning sum holds as many values at a time as it has terms.
    std::string hondo;
    for (int i = 0; i < 9000; ++i)
        hondo += "X*X+(";
    CompruebaBloque(hondo + "X" + std::string(9000, ')'), {1, 2, -3.5, 0, 1e300});
}

// Sines and cosines of one argument, too far from each other to be found equal: each keeps its own.
TEST(EvalúaBloque, LosSenosYCosenosRepetidosLejosDanLoMismo) {
    Generador generador(7);
    std::string relleno;
    for (int i = 0; i < 40; ++i)
        relleno += "+(X-" + std::to_string(i) + ")^2";
    for (int i = 0; i < 200 && !HasFatalFailure(); ++i) {
        // The inner groups, with all of their sums, are compiled between the outer functions.
        std::string texto = "X";
        for (std::size_t k = 2 + generador.Hasta(4); k > 0; --k)
            texto = (generador.Hasta(2) == 0 ? "SIN(X)+(" : "COS(X)-(") + texto + relleno + ')';
        CompruebaBloque(texto, EquisDe(32, generador));
        CompruebaBloque(texto, EquisDe(300, generador));
    }
}

TEST(EvalúaBloque, PreguntaAlVigilante) {
    Banco banco;
    banco.vigilante.continúa = [] { return false; };
    const std::vector<double> equis(1000, 1);
    std::vector<double> valores(1000);
    std::vector<std::int16_t> fallos(1000);
    EXPECT_THROW(EvalúaBloque(banco.contexto, CompilaExpresión("X^2"), equis, valores, fallos),
                 OrdenCancelada);
}

} // namespace
} // namespace quiralto
