// What the terminal program prints for one expression.

#include "tests/cli/terminal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <sstream>

namespace quiralto {
namespace {

using Palabras = std::vector<std::string>;

// As printf writes it in the C locale, in which this program runs.
std::string General(double valor, int cifras) {
    std::array<char, 64> búfer{};
    std::snprintf(búfer.data(), búfer.size(), "%.*g", cifras, valor);
    return búfer.data();
}

TEST(ModoSintaxis, EscribeElTextoNormalizado) {
    const struct {
        const char* texto;
        const char* salida;
    } casos[] = {
        {"X--2", "X+2\n"},
        {"+X", "X\n"},
        {"X*+2", "X*2\n"},
        {"2E+3", "2000\n"},
        {"0.123456789", ".12345679\n"},
        {"1E20", "1E+20\n"},
        {"EXP(X)+1.50", "EXP(X)+1.5\n"},
    };
    for (const auto& [texto, salida] : casos)
        EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis", texto}), 0, salida, "")) << texto;
}

TEST(LosModosDeExpresión, NoEscribenNadaDeUnTextoRechazado) {
    const struct {
        const char* texto;
        const char* mensaje;
    } casos[] = {
        {"", "exclamación: No ha escrito ninguna función o valor numérico \n"},
        {"x", "exclamación: Error de sintáxis: 'x'\n"},
        {"X,5", "exclamación: Error de sintáxis: ','\n"},
        {"X€", "exclamación: Error de sintáxis: '€'\n"},
        {"(X", "exclamación: Desequilibrio de paréntesis abiertos y cerrados\n"},
        {"X+", "exclamación: No está permitido terminar con: +\n"},
        {"*X", "exclamación: No está permitido comenzar con:*\n"},
        {"2X", "exclamación: Error de lógica en la expresión, verifique la sintaxis\n"},
        {"1E999", "exclamación: Un número de doble precisión está fuera del rango permitido\n"},
    };
    for (const auto& [texto, mensaje] : casos)
        for (const Palabras& palabras :
             {Palabras{"--sintaxis", texto}, Palabras{"--evaluar", texto, "1"},
              Palabras{"--derivar", texto}, Palabras{"--derivar", texto, "--pasos"},
              Palabras{"--programa", texto}, Palabras{"--muestrear", texto},
              Palabras{"--tabla", texto}})
            EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 1, "", mensaje))
                << palabras.front() << ' ' << texto;
}

TEST(ModoEvaluar, EscribeUnaLíneaPorCadaX) {
    const struct {
        Palabras palabras;
        const char* salida;
    } casos[] = {
        {{"X", "1", "-2", "+3", ".5", "1E3", "1e-3"}, "1\n-2\n3\n0.5\n1000\n0.001\n"},
        {{"X/10", "1"}, "0.10000000000000001\n"},
        {{"X/3", "1", "2"}, "0.33333333333333331\n0.66666666666666663\n"},
        {{"X*X", "1E10", "1E-10"}, "1e+20\n1.0000000000000001e-20\n"},
        {{"X", "123456789012345678"}, "1.2345678901234568e+17\n"},
        {{"0*X", "-1", "1"}, "-0\n0\n"},
        {{"2^3^2", "0"}, "64\n"},
        {{"5", "7", "8"}, "5\n5\n"},
        {{"X", "1.7976931348623157E308", "5E-324"},
         "1.7976931348623157e+308\n4.9406564584124654e-324\n"},
    };
    for (const auto& [palabras, salida] : casos) {
        Palabras todas = palabras;
        todas.insert(todas.begin(), "--evaluar");
        EXPECT_TRUE(Termina(LlamaAlTerminal(todas), 0, salida, "")) << palabras.front();
    }
}

TEST(ModoEvaluar, UnFalloOcupaSuLíneaYNoEsUnMensaje) {
    const struct {
        Palabras palabras;
        const char* salida;
    } casos[] = {
        {{"1/X", "-1", "0", "2"}, "-1\nerror 11\n0.5\n"},
        {{"SQR(X)", "-1", "4"}, "error 5\n2\n"},
        {{"LOG(X)", "0", "1"}, "error 5\n0\n"},
        {{"EXP(X)", "1000", "0"}, "error 6\n1\n"},
        {{"0/X", "0"}, "error 11\n"},
        {{"X^-1", "0"}, "error 11\n"},
        {{"X^.5", "-1"}, "error 5\n"},
        {{"ARCSIN(X)", "2"}, "error 5\n"},
        {{"X*X", "1E200", "-1E200"}, "error 6\nerror 6\n"},
    };
    for (const auto& [palabras, salida] : casos) {
        Palabras todas = palabras;
        todas.insert(todas.begin(), "--evaluar");
        EXPECT_TRUE(Termina(LlamaAlTerminal(todas), 0, salida, "")) << palabras.front();
    }
}

TEST(ModoEvaluar, TodosLosDoblesVanYVienen) {
    const auto semilla = std::random_device{}();
    std::mt19937_64 generador(semilla);
    Palabras palabras = {"--evaluar", "X"};
    std::string esperado;
    for (int i = 0; i < 1000; ++i) {
        const std::uint64_t bits = generador();
        double valor = 0;
        static_assert(sizeof bits == sizeof valor);
        std::memcpy(&valor, &bits, sizeof valor);
        if (!std::isfinite(valor))
            continue;
        palabras.push_back(General(valor, 17));
        esperado += palabras.back() + '\n';
    }
    EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 0, esperado, "")) << "seed " << semilla;
}

TEST(ModoDerivar, EscribeLaDerivadaSinDesarrollar) {
    const struct {
        const char* texto;
        const char* salida;
    } casos[] = {
        {"X", "1\n"},
        {"5", "0\n"},
        {"X^2", "2*X^(2-1)*1\n"},
        {"SIN(3)", "0\n"},
        {"SIN(X)", "1*COS(X)\n"},
        {"X*+2", "2*1\n"},
    };
    for (const auto& [texto, salida] : casos)
        EXPECT_TRUE(Termina(LlamaAlTerminal({"--derivar", texto}), 0, salida, "")) << texto;
}

TEST(ModoDerivar, UnaDerivadaDemasiadoGrandeEsUnErrorDeEjecución) {
    std::string producto = "X";
    for (int i = 0; i < 20000; ++i)
        producto += "*X";
    const std::string mensaje =
        "crítico: Se produjo el error número :14. Tipo de error :Espacio de cadenas insuficiente. "
        "Utilice valores diferentes para evitar este tipo de error. El proceso solicitado se "
        "cancelará.\n";
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--derivar", producto}), 1, "", mensaje));
}

TEST(ModoDerivar, LosPasosVanDelanteDeLaDerivada) {
    const struct {
        const char* texto;
        const char* salida;
    } casos[] = {
        {"X", "D(X)D\n1\n"},
        {"5", "D(5)D\n0\n"},
        {"X^2", "D(X^2)D\n2*X^(2-1)*D(X)D\n2*X^(2-1)*1\n"},
        {"X--SIN(X)",
         "D(X+SIN(X))D\n(D(X)D+D(SIN(X))D)\n(1+D(SIN(X))D)\n(1+D(X)D*COS(X))\n(1+1*COS(X))\n"},
    };
    for (const auto& [texto, salida] : casos) {
        EXPECT_TRUE(Termina(LlamaAlTerminal({"--derivar", texto, "--pasos"}), 0, salida, ""));
        EXPECT_TRUE(Termina(LlamaAlTerminal({"--pasos", "--derivar", texto}), 0, salida, ""));
    }
}

TEST(ModoDerivar, DemasiadosPasosSonUnErrorDeEjecución) {
    std::string suma = "X";
    for (int i = 0; i < 20000; ++i)
        suma += "+X";
    const Final final = LlamaAlTerminal({"--derivar", suma, "--pasos"});
    EXPECT_EQ(final.estado, 1);
    EXPECT_EQ(final.salida, "");
    EXPECT_TRUE(final.errores.starts_with("crítico: Se produjo el error número :14."));
    EXPECT_LT(final.cpu, 2);
}

TEST(ModoPrograma, EscribeUnaLíneaPorInstrucción) {
    const struct {
        const char* texto;
        const char* salida;
    } casos[] = {
        {"X^2+2*X", "Z2 := X ^ 2\nZ4 := 2 * X\nZ5 := Z2 + Z4\n"},
        {"SIN(X)/3", "Z2 := 0 + X\nZ3 := SIN Z2\nZ5 := Z3 / 3\n"},
        {"0.5000*X", "Z2 := .5 * X\n"},
    };
    for (const auto& [texto, salida] : casos)
        EXPECT_TRUE(Termina(LlamaAlTerminal({"--programa", texto}), 0, salida, "")) << texto;
}

TEST(ModoPrograma, UnTextoQueNoCabeEsUnErrorDeEjecución) {
    std::string suma = "X";
    for (int i = 0; i < 33000; ++i)
        suma += "+X";
    const Final final = LlamaAlTerminal({"--programa", suma});
    EXPECT_EQ(final.estado, 1);
    EXPECT_EQ(final.salida, "");
    EXPECT_TRUE(final.errores.starts_with("crítico: Se produjo el error número :6."));
}

TEST(ModoTabla, SinOpcionesSonTrescientasPartesDeLaVistaInicial) {
    const Final final = LlamaAlTerminal({"--tabla", "X"});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(std::ranges::count(final.salida, '\n'), 301);
    EXPECT_TRUE(final.salida.starts_with("-10\t-10\n"));
    EXPECT_TRUE(final.salida.ends_with("\n10\t10\n"));
}

TEST(ModoTabla, EscribeXYElValorEnSuFormaMásCorta) {
    const struct {
        Palabras palabras;
        const char* salida;
    } casos[] = {
        {{"X/3", "--xmin=0", "--xmax=1", "--puntos=1"}, "0\t0\n1\t0.3333333333333333\n"},
        {{"1/X", "--xmin=-1", "--xmax=1", "--puntos=2"}, "-1\t-1\n0\t\n1\t1\n"},
        {{"LOG(X)", "--xmin=-2", "--xmax=-1", "--puntos=1"}, "-2\t\n-1\t\n"},
        {{"EXP(X)", "--xmin=709", "--xmax=711", "--puntos=1"},
         "709\t8.218407461554972e+307\n711\t\n"},
        {{"0*X", "--xmin=-1", "--xmax=1", "--puntos=1"}, "-1\t-0\n1\t0\n"},
        // No error adds up.
        {{"X", "--xmin=0", "--xmax=1", "--puntos=10"},
         "0\t0\n0.1\t0.1\n0.2\t0.2\n0.3\t0.3\n0.4\t0.4\n0.5\t0.5\n0.6\t0.6\n0.7\t0.7\n"
         "0.8\t0.8\n0.9\t0.9\n1\t1\n"},
        {{"X/X", "--xmin=-1E308", "--xmax=1E308", "--puntos=4"},
         "-1e+308\t1\n-5e+307\t1\n0\t\n5e+307\t1\n1e+308\t1\n"},
    };
    for (const auto& [palabras, salida] : casos) {
        Palabras todas = palabras;
        todas.insert(todas.begin(), "--tabla");
        EXPECT_TRUE(Termina(LlamaAlTerminal(todas), 0, salida, "")) << palabras.front();
    }
}

TEST(ModoTabla, LasXCrecenYNoSalenDelIntervalo) {
    const Final final =
        LlamaAlTerminal({"--tabla", "X", "--xmin", "0.1", "--xmax", "0.7", "--puntos", "32767"});
    std::istringstream salida(final.salida);
    double anterior = 0;
    double x = 0;
    double valor = 0;
    int filas = 0;
    for (; salida >> x >> valor; ++filas, anterior = x) {
        ASSERT_GT(x, anterior);
        ASSERT_EQ(x, valor);
        ASSERT_TRUE(filas > 0 || x == .1);
    }
    EXPECT_EQ(filas, 32768);
    EXPECT_EQ(anterior, .7);
}

// The sampling written down once more, with the steps added up.
template <typename F>
std::string DevMuestras(F f, double xMín, double xMáx, double yMín, double yMáx, int puntos) {
    std::string salida;
    const double paso = (xMáx - xMín) / puntos;
    for (double x = xMín; x <= xMáx; x += paso) {
        const double valor = f(x);
        if (std::isnan(valor))
            continue;
        double s = 20 * (valor - yMín) / (yMáx - yMín) - 10;
        s = s > 10 ? 11 : s < -10 ? -11 : s;
        const double columna = 20 * (x - xMín) / (xMáx - xMín) - 10;
        salida += General(static_cast<float>(columna), 9) + '\t' +
                  General(static_cast<float>(s), 9) + '\n';
    }
    return salida;
}

TEST(ModoMuestrear, SinOpcionesEsLaVistaInicial) {
    const std::string salida = DevMuestras([](double x) { return x * x; }, -10, 10, -10, 10, 300);
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--muestrear", "X^2"}), 0, salida, ""));
    EXPECT_TRUE(salida.starts_with("-10\t11\n")) << salida;
}

TEST(ModoMuestrear, TodasLasOpcionesConYSinAcento) {
    const std::string salida =
        DevMuestras([](double x) { return std::sqrt(x); }, -1.5, 8, -.5, 2.25, 50);
    EXPECT_TRUE(salida.ends_with("\t11\n"));
    const Palabras conAcento = {"--muestrear", "SQR(X)", "--xmín", "-1.5", "--xmáx",   "8",
                                "--ymín",      "-.5",    "--ymáx", "2.25", "--puntos", "50"};
    const Palabras sinAcento = {"--puntos", "50", "--ymax", "2.25", "--ymin",      "-.5",
                                "--xmax",   "8",  "--xmin", "-1.5", "--muestrear", "SQR(X)"};
    EXPECT_TRUE(Termina(LlamaAlTerminal(conAcento), 0, salida, ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal(sinAcento), 0, salida, ""));
}

TEST(ModoMuestrear, LosValoresFueraDelMarcoVanJustoFuera) {
    EXPECT_TRUE(Termina(
        LlamaAlTerminal({"--muestrear", "20*X", "--xmín", "-2", "--xmáx", "2", "--puntos", "4"}), 0,
        "-10\t-11\n-5\t-11\n0\t0\n5\t11\n10\t11\n", ""));
}

TEST(ModoMuestrear, UnaSolaDivisiónSonDosPuntos) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--muestrear", "X", "--puntos", "1"}), 0,
                        "-10\t-10\n10\t10\n", ""));
}

TEST(ModoMuestrear, SinValoresNoHayLíneas) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--muestrear", "SQR(-1)"}), 0, "", ""));
    const Final hueco =
        LlamaAlTerminal({"--muestrear", "1/X", "--xmín", "-2", "--xmáx", "2", "--puntos", "4"});
    EXPECT_TRUE(Termina(hueco, 0, "-10\t-0.5\n-5\t-1\n5\t1\n10\t0.5\n", ""));
}

TEST(ModoMuestrear, ElMáximoDePuntosEsLineal) {
    const Final final = LlamaAlTerminal({"--muestrear", "X", "--puntos", "32767"});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.salida, DevMuestras([](double x) { return x; }, -10, 10, -10, 10, 32767));
}

TEST(ModoMuestrear, UnaVentanaSinPasosEsUnErrorDeEjecución) {
    const std::string mensaje =
        "crítico: Se produjo el error número :6. Tipo de error :Desbordamiento. Utilice valores "
        "diferentes para evitar este tipo de error. El proceso solicitado se cancelará.\n";
    for (const Palabras& ventana : {Palabras{"--xmín", "-1E308", "--xmáx", "1E308"},
                                    Palabras{"--ymín", "-1E308", "--ymáx", "1E308"},
                                    Palabras{"--xmín", "1", "--xmáx", "1.0000000000000002"}}) {
        Palabras palabras = {"--muestrear", "X"};
        palabras.insert(palabras.end(), ventana.begin(), ventana.end());
        EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 1, "", mensaje)) << ventana[1];
    }
}

} // namespace
} // namespace quiralto
