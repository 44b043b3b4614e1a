#include "engine/lenguaje/deriva.h"

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "tests/apoyo.h"
#include "tests/engine/generador.h"
#include "tests/engine/lenguaje/derivada_ingenua.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>

namespace quiralto {
namespace {

std::string DerivadaDe(const std::string& texto) {
    Banco banco;
    return Deriva(banco.contexto, texto);
}

struct Fila {
    const char* texto;
    const char* derivada;
};

void CompruebaDerivadas(std::span<const Fila> filas) {
    for (const Fila& fila : filas)
        EXPECT_EQ(DerivadaDe(fila.texto), fila.derivada) << fila.texto;
}

TEST(Deriva, EnseñaElTextoDeCadaRonda) {
    const struct {
        const char* texto;
        std::vector<std::string> rondas;
    } casos[] = {
        {"5", {"D(5)D"}},
        {"X^2", {"D(X^2)D", "2*X^(2-1)*D(X)D"}},
        {"X*SIN(X)",
         {"D(X*SIN(X))D", "(X*D(SIN(X))D+SIN(X)*D(X)D)", "(X*D(X)D*COS(X)+SIN(X)*D(X)D)",
          "(X*1*COS(X)+SIN(X)*D(X)D)"}},
        {"X-COS(X)", {"D(X-COS(X))D", "(D(X)D-D(COS(X))D)", "(1-D(COS(X))D)", "(1--D(X)D*SIN(X))"}},
        {"SEC(X)",
         {"D(SEC(X))D", "D(1/COS(X))D", "-1*D(COS(X))D/COS(X)^2", "-1*-D(X)D*SIN(X)/COS(X)^2"}},
        {"COSEC(-X)",
         {"D(COSEC(-X))D", "D(1/SIN(-X))D", "-1*D(SIN(-X))D/SIN(-X)^2",
          "-1*D(-X)D*COS(-X)/SIN(-X)^2", "-1*-D(X)D*COS(-X)/SIN(-X)^2"}},
    };
    for (const auto& [texto, esperadas] : casos) {
        Banco banco;
        std::vector<std::string> rondas;
        const std::string derivada =
            Deriva(banco.contexto, texto, [&](const std::string& r) { rondas.push_back(r); });
        EXPECT_EQ(rondas, esperadas) << texto;
        EXPECT_EQ(derivada, DerivadaDe(texto));
    }
}

std::vector<std::string> RondasDe(const std::string& texto) {
    Banco banco;
    std::vector<std::string> rondas;
    Deriva(banco.contexto, texto, [&](const std::string& r) { rondas.push_back(r); });
    return rondas;
}

// A function that is rewritten goes on as the derivation of what it is rewritten into.
TEST(Deriva, DeLoReescritoSigueComoDeLoEscritoAsí) {
    const struct {
        const char* texto;
        const char* reescrito;
    } casos[] = {
        {"SEC(X)", "1/COS(X)"},
        {"SEC(SEC(X))", "1/COS(SEC(X))"},
        {"SEC(2^-X)", "1/COS(2^-X)"},
        {"COSEC(-X)", "1/SIN(-X)"},
        {"COSEC(EXP(2)*X)", "1/SIN(EXP(2)*X)"},
        {"ARCSIN(X^2)", "ATN((X^2)/SQR(-(X^2)*(X^2)+1))"},
        {"ARCSIN(-2^X)", "ATN((-2^X)/SQR(-(-2^X)*(-2^X)+1))"},
        {"ARCSIN(SEC(ARCSIN(X)))",
         "ATN((SEC(ARCSIN(X)))/SQR(-(SEC(ARCSIN(X)))*(SEC(ARCSIN(X)))+1))"},
    };
    for (const auto& [texto, reescrito] : casos) {
        std::vector<std::string> rondas = RondasDe(texto);
        ASSERT_EQ(rondas.front(), "D(" + std::string(texto) + ")D");
        rondas.erase(rondas.begin());
        EXPECT_EQ(rondas, RondasDe(reescrito)) << texto;
        EXPECT_EQ(DerivadaDe(texto), DerivadaDe(reescrito));
    }
}

TEST(Deriva, EscribeCadaRegla) {
    const Fila filas[] = {
        {"X", "1"},
        {"5", "0"},
        {".5", "0"},
        {"1E+20", "0"},
        {"(5)", "0"},
        {"((X))", "1"},
        {"X+X", "(1+1)"},
        {"X+5", "1"},
        {"5+X", "1"},
        {"2+3", "0"},
        {"X-X", "(1-1)"},
        {"X-5", "1"},
        {"5-X", "-1"},
        {"2-3", "0"},
        {"X*X", "(X*1+X*1)"},
        {"X*5", "5*1"},
        {"5*X", "5*1"},
        {"2*3", "0"},
        {"X/X", "(X*1-X*1)/X^2"},
        {"X/5", "5*1/5^2"},
        {"5/X", "-5*1/X^2"},
        {"2/3", "0"},
        {"X^X", "(X^X*1*LOG(X)+X*X^(X-1)*1)"},
        {"X^2", "2*X^(2-1)*1"},
        {"2^X", "2^X*1*LOG(2)"},
        {"2^3", "0"},
        {"SIN(X)", "1*COS(X)"},
        {"COS(X)", "-1*SIN(X)"},
        {"TAN(X)", "1/COS(X)^2"},
        {"ATN(X)", "1/(1+(X)^2)"},
        {"LOG(X)", "1/(X)"},
        {"EXP(X)", "1*EXP(X)"},
        {"SQR(X)", "1/(2*SQR(X))"},
        {"SEC(X)", "-1*-1*SIN(X)/COS(X)^2"},
        {"COSEC(X)", "-1*1*COS(X)/SIN(X)^2"},
        {"ARCSIN(X)", "(SQR(-(X)*(X)+1)*1-(X)*(-(X)*1+(X)*-1)/(2*SQR(-(X)*(X)+1)))"
                      "/SQR(-(X)*(X)+1)^2/(1+((X)/SQR(-(X)*(X)+1))^2)"},
    };
    CompruebaDerivadas(filas);
}

TEST(Deriva, SinXDentroDaCero) {
    for (const std::string nombre :
         {"SIN", "COS", "TAN", "ATN", "LOG", "EXP", "SQR", "SEC", "COSEC", "ARCSIN"})
        EXPECT_EQ(DerivadaDe(nombre + "(3)"), "0");
}

TEST(Deriva, SeparaDondeDebe) {
    const Fila filas[] = {
        {"X-2-X", "(1-1)"},
        {"5-3-X", "-1"},
        {"X/2/X", "(X*2*1/2^2-X/2*1)/X^2"},
        {"2*X*3", "2*3*1"},
        {"X^2^3", "3*(X^2)^(3-1)*2*X^(2-1)*1"},
        {"1+2*X+X^2", "(2*1+2*X^(2-1)*1)"},
        {"1-X+X^2", "(-1+2*X^(2-1)*1)"},
        {"(X+1)*(X-2)", "((X+1)*1+(X-2)*1)"},
        {"1E+05*X", "1E+05*1"},
        {"X*1E+05", "1E+05*1"},
        {"1E-05*X", "1E-05*1"},
        {"1E-05-X", "-1"},
        {"X+1E+20+X", "(1+1)"},
        {"X-1E-20-X", "(1-1)"},
        {"SIN(2*X)", "2*1*COS(2*X)"},
        {"LOG(X+1)", "1/(X+1)"},
        {"EXP(X)*EXP(X)", "(EXP(X)*1*EXP(X)+EXP(X)*1*EXP(X))"},
        {"SIN(X)^2", "2*SIN(X)^(2-1)*1*COS(X)"},
    };
    CompruebaDerivadas(filas);
}

TEST(Deriva, ElSignoDelantero) {
    const Fila filas[] = {
        {"-X", "-1"},
        {"-5", "0"},
        {"-SIN(3)", "0"},
        {"-(2-7)", "0"},
        {"-X^2", "-2*X^(2-1)*1"},
        {"-(X*X)", "-(X*1+X*1)"},
        {"-(-X)", "1"},
        {"-X*X", "(-X*1+X*-1)"},
        {"-3/X", "3*1/X^2"},
        {"-X/3", "3*-1/3^2"},
        {"-SIN(X)", "-1*COS(X)"},
        {"COS(-X)", "1*SIN(-X)"},
        {"-2-X", "-1"},
        {"X/-3", "-3*1/-3^2"},
        {"X*-3", "-3*1"},
        {"X^-2", "-2*X^(-2-1)*1"},
        {"2^-X", "2^-X*-1*LOG(2)"},
        {"X^-X", "(X^-X*-1*LOG(X)-X*X^(-X-1)*1)"},
        {"EXP(-X^2/2)", "2*-2*X^(2-1)*1/2^2*EXP(-X^2/2)"},
    };
    CompruebaDerivadas(filas);
}

TEST(Deriva, EncierraLasPotenciasConSigno) {
    const Fila filas[] = {
        {"3*-X^2", "3*2*(-X)^(2-1)*-1"},
        {"2/-X^2", "-2*2*(-X)^(2-1)*-1/(-X)^2^2"},
        {"X*COS(2^X)", "(X*(-2^X*1*LOG(2)*SIN(2^X))+COS(2^X)*1)"},
        {"3*(5-2^X)", "3*(-2^X*1*LOG(2))"},
        {"3*(-X^2)", "3*-2*X^(2-1)*1"},
        {"X*(-2^3*X)", "(X*-2^3*1+(-2^3*X)*1)"},
        {"X*(-2^4*X)", "(X*(-2^4*1)+(-2^4*X)*1)"},
        {"SIN(X)*-EXP(X)^4", "(SIN(X)*4*(-EXP(X))^(4-1)*-1*EXP(X)+(-EXP(X))^4*1*COS(X))"},
        {"3*-X^2.5", "3*2.5*(-X)^(2.5-1)*-1"},
        {"3*-X^(3)", "3*(3)*(-X)^((3)-1)*-1"},
        // An odd exponent gives the same with and without them.
        {"3*-X^3", "3*-3*X^(3-1)*1"},
        {"X*-2^3", "-2^3*1"},
        {"SIN(X)*-EXP(X)^3", "(SIN(X)*-3*EXP(X)^(3-1)*1*EXP(X)-EXP(X)^3*1*COS(X))"},
    };
    CompruebaDerivadas(filas);
}

TEST(Deriva, EncierraLasCadenasDePotencias) {
    const Fila filas[] = {
        {"2^X^3", "3*(2^X)^(3-1)*2^X*1*LOG(2)"},
        {"X^2^3^4", "4*((X^2)^3)^(4-1)*3*(X^2)^(3-1)*2*X^(2-1)*1"},
        {"X^-2^3", "3*(X^-2)^(3-1)*-2*X^(-2-1)*1"},
        {"3*-X^2^3", "3*3*((-X)^2)^(3-1)*2*(-X)^(2-1)*-1"},
        {"3*-X^3^2", "3*2*((-X)^3)^(2-1)*3*(-X)^(3-1)*-1"},
        {"-X^2^3", "-3*(X^2)^(3-1)*2*X^(2-1)*1"},
        {"1-X^2^3", "-3*(X^2)^(3-1)*2*X^(2-1)*1"},
        {"SIN(X)^2^3", "3*(SIN(X)^2)^(3-1)*2*SIN(X)^(2-1)*1*COS(X)"},
        {"(X^2)^3", "3*(X^2)^(3-1)*2*X^(2-1)*1"},
        {"1E+05^2^X", "(1E+05^2)^X*1*LOG((1E+05^2))"},
        // What the rules write is no input of theirs.
        {"5/X^2", "-5*2*X^(2-1)*1/X^2^2"},
        {"X/3^X", "(3^X*1-X*3^X*1*LOG(3))/3^X^2"},
    };
    CompruebaDerivadas(filas);
}

// The place behind the operand, without its powers, that begins at i.
std::size_t FinDeOperando(const std::string& texto, std::size_t i) {
    int hondo = 0;
    for (; i < texto.size(); ++i) {
        hondo += texto[i] == '(' ? 1 : texto[i] == ')' ? -1 : 0;
        const bool signo = texto[i] == '+' || texto[i] == '-';
        const bool operador = std::string_view("*/^").find(texto[i]) != std::string::npos;
        if (hondo < 0 || (hondo == 0 && (operador || (signo && texto[i - 1] != 'E'))))
            break;
    }
    return i;
}

bool HayPotenciaEn(const std::string& texto, std::size_t i) {
    return i < texto.size() && texto[i] == '^';
}

// Whether the text has a sign directly behind an operator, and a power of the operand behind it.
bool TienePotenciaConSigno(const std::string& texto) {
    for (std::size_t i = 1; i + 1 < texto.size(); ++i)
        if (texto[i] == '-' && std::string_view("*/^").find(texto[i - 1]) != std::string::npos &&
            HayPotenciaEn(texto, FinDeOperando(texto, i + 1)))
            return true;
    return false;
}

// a^b^c, also a^-b^c
bool TieneCadenaDePotencias(const std::string& texto) {
    for (std::size_t i = 0; i + 1 < texto.size(); ++i)
        if (texto[i] == '^' &&
            HayPotenciaEn(texto, FinDeOperando(texto, i + (texto[i + 1] == '-' ? 2 : 1))))
            return true;
    return false;
}

TEST(Deriva, EscribeLoQueLaReescrituraDePiezasMarcadas) {
    std::size_t comparados = 0;
    std::size_t distintos = 0;
    const auto comprueba = [&](const std::string& texto) {
        if (TienePotenciaConSigno(texto) || TieneCadenaDePotencias(texto) || distintos > 5)
            return;
        const std::string esperada = DerivadorIngenuo::Deriva(texto);
        if (TienePotenciaConSigno(esperada))
            return;
        ++comparados;
        const std::string suya = DerivadaDe(texto);
        if (suya != esperada) {
            ++distintos;
            ADD_FAILURE() << texto << "\n is " << suya << "\nnot " << esperada;
        }
    };
    Enumerador({"X", "3"}, {"COS"}, comprueba).Enumera(8);
    Enumerador({"X"}, {}, comprueba).Enumera(11);
    EXPECT_GT(comparados, 50000U);
    Generador generador(10);
    comparados = 0;
    for (int i = 0; i < 6000; ++i)
        comprueba(generador.Expresión(1 + generador.Hasta(8)));
    EXPECT_GT(comparados, 3000U);
}

Generador GeneradorSuave(std::uint64_t semilla) {
    Generador generador(semilla);
    generador.números = {"1", "2", "3", "4", ".5", "2.5", "7", "10", ".25"};
    return generador;
}

// The largest value that a run passed through: what its last digits are worth.
double Magnitud(const Programa& programa) {
    double magnitud = 0;
    for (const double registro : programa.registros)
        magnitud = std::max(magnitud, std::fabs(registro));
    return magnitud;
}

// Compares the derivative's value with the arithmetic on pairs. True if there was anything to
// compare at x.
bool CompruebaValor(Contexto& contexto, const std::string& texto, const std::string& derivada,
                    double x) {
    const std::optional<Dual> esperado = EvalúaDual(CompilaExpresión(texto), x);
    Programa programa = CompilaExpresión(derivada);
    contexto.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto, programa, x);
    const double magnitud = Magnitud(programa);
    if (!esperado || contexto.ErrorCódigo != SinFallo || magnitud > 1e6)
        return false;
    const auto debido = static_cast<double>(esperado->derivada);
    EXPECT_NEAR(valor, debido, 1e-8 * (1 + magnitud))
        << texto << "\n' = " << derivada << "\nX=" << x;
    return true;
}

TEST(Deriva, TieneElValorDeLaDerivadaEnCadaTextoCorto) {
    Banco banco;
    std::size_t comparados = 0;
    const auto comprueba = [&](const std::string& texto) {
        if (testing::Test::HasFailure())
            return;
        const std::string derivada = Deriva(banco.contexto, texto);
        for (const double x : {0.6875, -1.3125, 2.4375})
            comparados += CompruebaValor(banco.contexto, texto, derivada, x) ? 1 : 0;
    };
    Enumerador({"X", "2"}, {"COS"}, comprueba).Enumera(9);
    EXPECT_GT(comparados, 100000U);
}

TEST(Deriva, TieneElValorDeLaDerivadaEnTextosAlAzar) {
    Banco banco;
    Generador generador = GeneradorSuave(11);
    std::size_t comparados = 0;
    for (int i = 0; i < 6000 && !HasFailure(); ++i) {
        const std::string texto = generador.Expresión(1 + generador.Hasta(8));
        const std::string derivada = Deriva(banco.contexto, texto);
        for (int k = 0; k < 4; ++k)
            comparados +=
                CompruebaValor(banco.contexto, texto, derivada, generador.Real(-4, 4)) ? 1 : 0;
    }
    EXPECT_GT(comparados, 4000U);
}

// The value and whether it is defined.
std::optional<double> ValorEn(Contexto& contexto, Programa& programa, double x) {
    contexto.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto, programa, x);
    return contexto.ErrorCódigo == SinFallo ? std::optional(valor) : std::nullopt;
}

TEST(Deriva, ConcuerdaConElCocienteDeDiferencias) {
    Banco banco;
    for (const std::string texto : {"X^5-3*X^4+2*X^3-X^2+X-7",
                                    "(X+1)*(X-2)/(X^2+1)",
                                    "EXP(-X^2/2)",
                                    "SIN(X)*COS(X)",
                                    "X^X",
                                    "X^-3",
                                    "2^-X",
                                    "3*-X^2",
                                    "3*-X^3",
                                    "X*COS(2^X)",
                                    "2/-X^2",
                                    "X/-2/-X^3",
                                    "-X^2",
                                    "-(X+1)^3*-SIN(X)",
                                    "SEC(X/3)",
                                    "SEC(SEC(X/3)/4)",
                                    "COSEC(-X)",
                                    "ARCSIN(X^2/9)",
                                    "ARCSIN(SEC(X/4)/5)",
                                    "COSEC(X)",
                                    "ARCSIN(X/4)",
                                    "ARCSIN(-X/4)*-X^2",
                                    "ATN(X^2)",
                                    "TAN(X/4)",
                                    "LOG(X^2+1)",
                                    "SQR(X^2+X)",
                                    "SQR(SQR(X))",
                                    "(1/3)*X^2+LOG(X+11)+COS(X+11)-3",
                                    "X-(2-(3-X)*(4-X^2))",
                                    "1/(1+1/(1+1/X))",
                                    "EXP(SIN(X)^2)^.5",
                                    "LOG(LOG(X+2))",
                                    "SIN(COS(TAN(ATN(X))))",
                                    "-X^3/-X^2*-X^2",
                                    "X*(-2^2*X)",
                                    "7/(3-2^X)",
                                    "X^2^3",
                                    "2^X^.5/X",
                                    "X*-X^2^3",
                                    "(X+1)/X^2^X"}) {
        Programa f = CompilaExpresión(texto);
        Programa derivada = CompilaExpresión(Deriva(banco.contexto, texto));
        int comparados = 0;
        for (const double x : {0.375, 0.8125, 1.3125, 1.875, 2.4375}) {
            constexpr double h = 0x1p-10;
            const auto f1 = ValorEn(banco.contexto, f, x - h);
            const auto f2 = ValorEn(banco.contexto, f, x + h);
            const auto f3 = ValorEn(banco.contexto, f, x - 2 * h);
            const auto f4 = ValorEn(banco.contexto, f, x + 2 * h);
            const auto valor = ValorEn(banco.contexto, derivada, x);
            if (!f1 || !f2 || !f3 || !f4)
                continue;
            ASSERT_TRUE(valor) << texto << " X=" << x;
            const double cociente = (8 * (*f2 - *f1) - (*f4 - *f3)) / (12 * h);
            EXPECT_NEAR(*valor, cociente, 1e-6 * (1 + std::fabs(cociente))) << texto << " X=" << x;
            ++comparados;
        }
        EXPECT_GE(comparados, 3) << texto;
    }
}

TEST(Deriva, LaSegundaDerivadaEsLaDerivadaDeLaPrimera) {
    Banco banco;
    for (const char* texto : {"X^5-3*X^4+2*X^3-X^2+X-7",
                              "EXP(-X^2/2)",
                              "SIN(X)*COS(X)",
                              "X^X",
                              "X^-3",
                              "2^-X",
                              "3*-X^2",
                              "X*COS(2^X)",
                              "LOG(X)",
                              "ATN(X)",
                              "TAN(X)",
                              "SQR(X)",
                              "SEC(X)",
                              "COSEC(X)",
                              "ARCSIN(X/4)",
                              "1/X",
                              "X/(X+3)",
                              "-X^3*-SIN(X)",
                              "EXP(-2^X)",
                              "1/X^3",
                              "X+4/X^3",
                              "X/2^X",
                              "(X+1)/X^2^3",
                              "SIN(X)/-X^3",
                              "X/-X^2",
                              "1/(X^2+1)^3",
                              "X^-2/X^.5",
                              "2/EXP(X)^2",
                              "TAN(X)/X^5",
                              "X^3/X^X"}) {
        const std::string primera = Deriva(banco.contexto, texto);
        const std::string segunda = Deriva(banco.contexto, primera);
        int comparados = 0;
        for (const double x : {0.375, 0.8125, 1.3125, 1.875, 2.4375})
            comparados += CompruebaValor(banco.contexto, primera, segunda, x) ? 1 : 0;
        EXPECT_GE(comparados, 3) << texto; // some pass through values too large to compare
    }
    const struct {
        const char* texto;
        double x;
        double segunda;
    } casos[] = {{"X^3", 2, 12},
                 {"SIN(X)", 1, -std::sin(1)},
                 {"EXP(X)", 1, std::exp(1)},
                 {"1/X", 2, .25},
                 {"LOG(X)", 2, -.25},
                 {"X^4-X", 1, 12},
                 {"-X^2", 3, -2},
                 {"3*-X^2", 3, 6},
                 {"X", 1, 0},
                 {"COS(2*X)", 0.5, -4 * std::cos(1)}};
    for (const auto& caso : casos) {
        Programa programa =
            CompilaExpresión(Deriva(banco.contexto, Deriva(banco.contexto, caso.texto)));
        EXPECT_NEAR(EvalúaPrograma(banco.contexto, programa, caso.x), caso.segunda, 1e-12)
            << caso.texto;
    }
}

// Random quotients with powers in their denominators: where a second difference of f settles, the
// second derivative has its value.
TEST(Deriva, LaSegundaDeUnCocienteConPotenciasEsLaDeSusDiferencias) {
    constexpr int Semilla = 13;
    Banco banco;
    Generador generador = GeneradorSuave(Semilla);
    generador.funciones = {"SIN", "COS", "EXP", "ATN"};
    int comparados = 0;
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        const std::string texto =
            generador.Expresión(1 + generador.Hasta(3)) + '/' +
            generador.Elige(std::vector<std::string>{"X", "-X", "2", "(X^2+1)", "EXP(X)"}) + '^' +
            generador.Elige(std::vector<std::string>{"2", "3", "-2", ".5", "X", "2^2", "(X-1)"});
        Programa f = CompilaExpresión(texto);
        Programa segunda = CompilaExpresión(Deriva(banco.contexto, Deriva(banco.contexto, texto)));
        const double x = generador.Real(.5, 3);
        const auto diferencia = [&](double h) -> std::optional<double> {
            const auto antes = ValorEn(banco.contexto, f, x - h);
            const auto aquí = ValorEn(banco.contexto, f, x);
            const auto después = ValorEn(banco.contexto, f, x + h);
            if (!antes || !aquí || !después || std::fabs(*aquí) > 1e3)
                return std::nullopt;
            return (*antes - 2 * *aquí + *después) / (h * h);
        };
        const auto gruesa = diferencia(0x1p-9);
        const auto fina = diferencia(0x1p-10);
        if (!gruesa || !fina || std::fabs(*gruesa - *fina) > 1e-3 * (1 + std::fabs(*fina)))
            continue;
        const auto valor = ValorEn(banco.contexto, segunda, x);
        if (!valor)
            continue; // a part of it may overflow or divide by zero where f does not
        EXPECT_NEAR(*valor, *fina, 2e-3 * (1 + std::fabs(*fina)))
            << texto << " X=" << x << " seed " << Semilla;
        ++comparados;
    }
    EXPECT_GT(comparados, 500);
}

TEST(Deriva, SusResultadosSonDelLenguaje) {
    Banco banco;
    banco.contexto.DígitosRedondeo = 15;
    Generador generador = GeneradorSuave(12);
    for (int i = 0; i < 3000; ++i) {
        std::string texto = generador.Expresión(1 + generador.Hasta(6));
        for (int orden = 1; orden <= 2 && texto.size() < 5000; ++orden) {
            const std::string derivada = Deriva(banco.contexto, texto);
            ASSERT_EQ(SimplificaSignos(derivada), derivada) << texto;
            std::string comprobada = derivada;
            ASSERT_TRUE(Sintaxis(banco.contexto, comprobada)) << texto << '\n' << derivada;
            ASSERT_EQ(comprobada, derivada) << texto;
            texto = derivada;
        }
    }
}

// X^X^...^X, whose derivative grows with the square of its height.
std::string Torre(std::size_t alto) {
    std::string torre = "X";
    for (std::size_t i = 1; i < alto; ++i)
        torre += "^X";
    return torre;
}

TEST(Deriva, LoQueCreceSinMedidaEsElError14) {
    std::string arcos; // each of them triples the derivative
    for (int i = 0; i < 40; ++i)
        arcos += "ARCSIN(";
    arcos += "X" + std::string(40, ')');
    const std::string equis(2'000'001, 'X'); // more than the analysis takes
    for (const std::string& texto : {Torre(5000), Torre(200000), arcos, equis}) {
        Banco banco;
        try {
            Deriva(banco.contexto, texto);
            ADD_FAILURE() << texto.substr(0, 40);
        } catch (const ErrorEjecución& error) {
            EXPECT_EQ(error.Número(), EspacioDeCadenasInsuficiente) << texto.substr(0, 40);
        }
    }
    EXPECT_GT(DerivadaDe(Torre(2000)).size(), 10'000'000U);
}

TEST(Deriva, ResisteTextosHondosYLargos) {
    EXPECT_EQ(DerivadaDe(std::string(500000, '(') + "X" + std::string(500000, ')')), "1");
    std::string suma = "1";
    for (int i = 0; i < 50000; ++i)
        suma += "+1";
    EXPECT_EQ(DerivadaDe(suma + "+X"), "1");
    EXPECT_EQ(DerivadaDe("X-" + std::string(100000, '(') + "-X" + std::string(100000, ')')),
              "(1+1)");
}

TEST(Deriva, PreguntaAlVigilante) {
    Banco banco;
    banco.vigilante.continúa = [] { return false; };
    std::string suma = "X";
    for (int i = 0; i < 5000; ++i)
        suma += "+X";
    EXPECT_THROW(Deriva(banco.contexto, suma), OrdenCancelada);
}

// A derivative that is far longer than what it is of: it is written, and then read twice.
TEST(Deriva, PreguntaAlVigilanteMientrasEscribe) {
    Banco banco;
    std::size_t preguntas = 0;
    banco.vigilante.continúa = [&] { return ++preguntas > 0; };
    std::string producto = "SIN(X)";
    for (int i = 1; i < 100; ++i)
        producto += "*SIN(X)";
    const std::string primera = Deriva(banco.contexto, producto);
    preguntas = 0;
    const std::string segunda = Deriva(banco.contexto, primera);
    EXPECT_GT(segunda.size(), 2'000'000U);
    EXPECT_GE(preguntas, 3 * (segunda.size() >> 18U));
}

TEST(Deriva, RechazaLoQueNoEsDelLenguaje) {
    for (const char* texto :
         {"", "(", ")", "()", "X)", "(X", "FOO(X)", "XX", "SIN", "SIN(X", "SINX", "-"}) {
        Banco banco;
        EXPECT_THROW(Deriva(banco.contexto, texto), ErrorEjecución) << texto;
    }
}

} // namespace
} // namespace quiralto
