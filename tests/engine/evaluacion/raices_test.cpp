#include "engine/evaluacion/raices.h"

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"
#include "tests/engine/generador.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

constexpr const char* SinSolución = "No se halló solución";

std::string Busca(Contexto& contexto, const std::string& texto, double a, double b, double h) {
    Programa programa = CompilaExpresión(texto);
    const auto solución = BuscaSolución(contexto, programa, a, b, h);
    EXPECT_EQ(contexto.ErrorCódigo, SinFallo) << texto;
    return solución ? solución->texto : SinSolución;
}

struct CasoRaíz {
    const char* texto;
    double a;
    double b;
    double h;
    const char* solución;
};

TEST(BuscaSolución, HallaLaPrimera) {
    const CasoRaíz casos[] = {
        {"X^2-4", -5, 5, 0.01, "-2"},
        {"X^2-4", -1.99, 5, 0.00699, " 2"},
        {"X^2-2", 0, 5, 0.005, " 1.41421356"},
        {"COS(X)", 0, 10, 0.01, " 1.57079633"},
        {"SIN(X)", 1, 10, 0.009, " 3.14159265"},
        {"EXP(X)-2", -3, 3, 0.006, " .69314718"},
        {"X^3", -1, 1, 0.002, " 0"},
        {"X+.123456789", -1, 1, 0.002, "-.12345679"},
        // No change of sign.
        {"X^2+1", -5, 5, 0.01, SinSolución},
        {"0*X", -5, 5, 0.01, SinSolución},
        {"X-7", -5, 5, 0.01, SinSolución},
        {"X+7", -5, 5, 0.01, SinSolución},
        // A pole where the sign changes counts, one where it does not does not.
        {"1/X", -1, 1, 0.002, " 0"},
        {"1/X^3", -1, 1, 0.0625, " 0"},
        {"1/X^2", -1, 1, 0.002, SinSolución},
        {"TAN(X)", 1, 2, 0.001, " 1.57079633"},
        // A touching zero only where a sample falls on it.
        {"X^2", -1, 1, 0.25, " 0"},
        {"X^2", -1, 1.1, 0.3, SinSolución},
        {"-(X-1)^2", 0, 2, 0.125, " 1"},
        // The start itself is a zero.
        {"X", 0, 1, 0.001, " 0"},
        {"X-3", 3, 4, 0.001, " 3"},
        {"X-3", 2, 3, 0.125, " 3"},
        // Undefined starts, gaps and ends.
        {"LOG(X)", -5, 5, 0.01, " 1"},
        {"SQR(X-1)-1", -5, 5, 0.01, " 2"},
        {"SQR(X)", -5, -1, 0.004, SinSolución},
        {"LOG(-X)", -5, 5, 0.01, "-1"},
        {"SQR(X)", -1, 1, 0.25, " 0"},
        {"LOG(LOG(X))", -3, 3, 0.006, " 2.71828183"},
        // The sign is kept across the gap (-1, 1), so its far end counts.
        {"X*(SQR(X^2-1)+1)", -3, 3, 0.25, " 1"},
        // The end is extended by h.
        {"X-1.125", 0, 1, 0.25, " 1.125"},
        {"X-1.25", 0, 1, 0.25, " 1.25"},
        {"X-1.375", 0, 1, 0.25, SinSolución},
        // A step larger than the interval.
        {"X-.5", 0, 1, 2, " .5"},
        {"X-2.5", 0, 1, 2, SinSolución}, // the sample behind it lies past the end
        // Tiny and huge intervals.
        {"X-.0000000049", 0, 1e-7, 1e-10, " 0"},
        {"X-1E+20", 0, 1e21, 1e18, " 1E+20"},
        {"X", -1e300, 1e300, 2e297, " 0"},
    };
    for (const CasoRaíz& caso : casos) {
        Banco banco;
        EXPECT_EQ(Busca(banco.contexto, caso.texto, caso.a, caso.b, caso.h), caso.solución)
            << caso.texto << " [" << caso.a << ", " << caso.b << "]";
    }
}

TEST(BuscaSolución, DaElÚltimoDobleAntesDelCambio) {
    Banco banco;
    for (const char* texto : {"X^2-2", "COS(X)", "EXP(X)-2", "X^3-X-1", "LOG(X)-.5"}) {
        Programa programa = CompilaExpresión(texto);
        const auto solución = BuscaSolución(banco.contexto, programa, 0.125, 5, 0.0048);
        ASSERT_TRUE(solución) << texto;
        const auto signo = [&](double x) {
            const double valor = EvalúaPrograma(banco.contexto, programa, x);
            return (valor > 0) - (valor < 0);
        };
        EXPECT_EQ(signo(solución->raíz), signo(0.125)) << texto;
        EXPECT_NE(signo(std::nextafter(solución->raíz, 10)), signo(0.125)) << texto;
    }
}

TEST(BuscaSolución, RedondeaALosDígitosElegidos) {
    const char* esperado[] = {" 1", " 1.4", " 1.41", " 1.414", " 1.4142"};
    for (int dígitos = 0; dígitos <= 4; ++dígitos) {
        Banco banco;
        banco.contexto.DígitosRedondeo = dígitos;
        EXPECT_EQ(Busca(banco.contexto, "X^2-2", 0, 5, 0.005), esperado[dígitos]);
    }
}

TEST(BuscaSolución, ElPasoQueNoMueveElDobleTermina) {
    Banco banco;
    EXPECT_EQ(Busca(banco.contexto, "X-5", 1e20, 2e20, 1), " 1E+20");
    EXPECT_EQ(Busca(banco.contexto, "SQR(-X)", 1e20, 2e20, 1), SinSolución);
}

TEST(BuscaSolución, ElExtremoQueDesbordaEsUnErrorDeEjecución) {
    Banco banco;
    Programa programa = CompilaExpresión("X");
    const double máximo = std::numeric_limits<double>::max();
    try {
        BuscaSolución(banco.contexto, programa, 0, máximo, máximo / 100);
        ADD_FAILURE();
    } catch (const ErrorEjecución& error) {
        EXPECT_EQ(error.Número(), Desbordamiento);
    }
}

TEST(BuscaSolución, SeCancela) {
    Banco banco;
    int quedan = 7; // it is asked at single points and between blocks
    banco.vigilante.continúa = [&] { return --quedan > 0; };
    Programa programa = CompilaExpresión("X^2+1");
    EXPECT_THROW(BuscaSolución(banco.contexto, programa, -5, 5, 0.01), OrdenCancelada);
}

TEST(BuscaSolución, SeCancelaMientrasPorMitades) {
    Banco banco;
    int quedan = 20; // the walk is one block, and the halving some fifty points
    banco.vigilante.continúa = [&] { return --quedan > 0; };
    Programa programa = CompilaExpresión("X-1/3");
    EXPECT_THROW(BuscaSolución(banco.contexto, programa, 0, 1, 1), OrdenCancelada);
}

// The search step by step, for the tests; none past `máximo` evaluations.
std::optional<std::string> BuscaIngenuo(Contexto& contexto, Programa& programa, double a, double b,
                                        double h, int máximo) {
    const auto signo = [&](double x) -> std::optional<int> {
        --máximo;
        contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(contexto, programa, x);
        if (std::exchange(contexto.ErrorCódigo, SinFallo) != SinFallo)
            return std::nullopt;
        return valor > 0 ? 1 : valor < 0 ? -1 : 0;
    };
    b = b + h;
    std::optional<int> s0;
    while (a <= b && !(s0 = signo(a)) && máximo > 0)
        a = a + h;
    if (!s0)
        return SinSolución;
    double x0 = a;
    while (máximo > 0) {
        if (a > b)
            return SinSolución;
        a = x0 + h;
        if (a == x0)
            return TextoResultado(x0, contexto.DígitosRedondeo);
        const std::optional<int> s = signo(a);
        if (!s || *s == *s0)
            x0 = a;
        else
            h = h / 2;
    }
    return std::nullopt;
}

TEST(BuscaSolución, HallaLoMismoPasoAPaso) {
    Banco banco;
    Generador generador(20);
    // Without what oscillates faster than a Double can tell: there the two may part by a last bit.
    generador.números = {"1", "2", "3", ".5", "2.5", "7", "10", ".25"};
    generador.funciones = {"SQR", "LOG", "ATN", "EXP"};
    int halladas = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::string texto = generador.Expresión(1 + generador.Hasta(8));
        const double a = generador.Real(-6, 3);
        const double b = a + generador.Real(0, 6);
        const double h = (b - a) / 200;
        if (a + h == a)
            continue;
        Programa programa = CompilaExpresión(texto);
        const auto esperado = BuscaIngenuo(banco.contexto, programa, a, b, h, 10000);
        if (!esperado)
            continue;
        ASSERT_EQ(Busca(banco.contexto, texto, a, b, h), *esperado)
            << texto << " [" << a << ", " << b << "]";
        halladas += *esperado == SinSolución ? 0 : 1;
    }
    EXPECT_GT(halladas, 200);
}

// The walk one X at a time, every sign asked of the scalar run.
std::optional<double> BuscaUnoAUno(Contexto& contexto, Programa& programa, double a, double b,
                                   double h) {
    const auto signo = [&](double x) -> std::optional<int> {
        const std::optional<double> valor = DevValor(contexto, programa, x);
        return valor ? std::optional((*valor > 0) - (*valor < 0)) : std::nullopt;
    };
    b += h;
    std::optional<int> s0;
    while (a <= b && !(s0 = signo(a)) && a + h != a)
        a += h;
    if (!s0)
        return std::nullopt;
    double cambio = std::numeric_limits<double>::infinity();
    for (double x0 = a; a <= b;) {
        a = std::min(x0 + h, cambio);
        if (a == x0)
            return x0;
        const std::optional<int> s = signo(a);
        if (!s || *s == *s0) {
            x0 = a;
        } else {
            cambio = a;
            h /= 2;
        }
    }
    return std::nullopt;
}

TEST(BuscadorDeSoluciones, HallaTodasLasDeUnoAUnoConLosMismosBits) {
    constexpr int Semilla = 23;
    Banco banco;
    Generador generador(Semilla);
    Generador dígitos(Semilla + 1);
    std::size_t halladas = 0;
    for (int i = 0; i < 1500; ++i) {
        const std::string texto = generador.Expresión(1 + generador.Hasta(8));
        const double a = generador.Real(-6, 3);
        const double b = a + generador.Real(0, 6);
        const double h = (b - a) / PasosDeBúsqueda;
        banco.contexto.DígitosRedondeo = static_cast<int>(dígitos.Hasta(16));
        Programa programa = CompilaExpresión(texto);
        BuscadorDeSoluciones buscador(banco.contexto, programa);
        for (std::optional<double> comienzo = a; comienzo && *comienzo <= b;) {
            const auto esperada = BuscaUnoAUno(banco.contexto, programa, *comienzo, b, h);
            const auto exacta = buscador.Busca(*comienzo, b, h, Precisión::ÚltimoDoble);
            const auto hallada = buscador.Busca(*comienzo, b, h, Precisión::Texto);
            ASSERT_EQ(exacta.has_value(), esperada.has_value())
                << texto << " from " << *comienzo << " seed " << Semilla;
            ASSERT_EQ(hallada.has_value(), esperada.has_value()) << texto << " seed " << Semilla;
            if (!esperada)
                break;
            ASSERT_EQ(exacta->raíz, *esperada) << texto << " seed " << Semilla;
            ASSERT_EQ(hallada->texto, TextoResultado(*esperada, banco.contexto.DígitosRedondeo))
                << texto << " seed " << Semilla;
            ++halladas;
            comienzo = DevSiguienteComienzo(*exacta, h);
            ASSERT_EQ(DevSiguienteComienzo(*hallada, h), comienzo) << texto << " seed " << Semilla;
        }
    }
    EXPECT_GT(halladas, 5000U);
}

std::string TextoExacto(double valor) {
    std::array<char, 64> búfer{};
    const auto fin =
        std::to_chars(búfer.data(), búfer.data() + búfer.size(), valor, std::chars_format::fixed)
            .ptr;
    return {búfer.data(), fin};
}

TEST(BuscaSolución, TerminaDondeFTocaElCeroEnUnaMuestra) {
    Generador generador(21);
    for (int i = 0; i < 400; ++i) {
        const double a = generador.Real(0, 3);
        const double b = a + generador.Real(0.01, 6);
        const double h = (b - a) / 1000;
        double muestra = a;
        for (std::size_t k = 1 + generador.Hasta(900); k > 0; --k)
            muestra += h;
        const std::string resta = "(X-" + TextoExacto(muestra) + ")";
        for (const std::string& texto : {resta + "^2", resta + "^8", "SQR(" + resta + "^2)"}) {
            Banco banco;
            int evaluaciones = 0;
            banco.vigilante.continúa = [&] { return ++evaluaciones < 100000; };
            ASSERT_EQ(Busca(banco.contexto, texto, a, b, h), TextoResultado(muestra, 8)) << texto;
            ASSERT_LT(evaluaciones, 1000 + 2200) << texto;
        }
    }
}

TEST(BuscaSolución, AcotaSusEvaluaciones) {
    Generador generador(22);
    for (int i = 0; i < 2000; ++i) {
        Banco banco;
        int evaluaciones = 0;
        banco.vigilante.continúa = [&] { return ++evaluaciones < 1'000'000; };
        const std::string texto = generador.Expresión(1 + generador.Hasta(8));
        const double a = static_cast<double>(generador.Hasta(9)) - 4;
        Programa programa = CompilaExpresión(texto);
        // The steps, and halvings down to the smallest Double with a step or two after each.
        BuscaSolución(banco.contexto, programa, a, a + 4, 0.015625);
        ASSERT_LT(evaluaciones, 256 + 3 * 1100) << texto;
    }
}

Solución Hallada(double raíz, const std::string& texto) {
    return {raíz, texto, Val(texto)};
}

TEST(DevSiguienteComienzo, EsLaRaízRedondeadaMásElPaso) {
    EXPECT_EQ(DevSiguienteComienzo(Hallada(-2.000000000000001, "-2"), 0.01), -2 + 0.01);
    EXPECT_EQ(DevSiguienteComienzo(Hallada(1.9999999999999998, " 2"), 0.01), 2 + 0.01);
    EXPECT_EQ(DevSiguienteComienzo(Hallada(1.41421356237, " 1.41421356"), 0.01), 1.41421356 + 0.01);
    // Where that does not lie beyond the root: the root itself.
    EXPECT_EQ(DevSiguienteComienzo(Hallada(0.4, " 0"), 0.002), 0.4 + 0.002);
    EXPECT_EQ(DevSiguienteComienzo(Hallada(4.9e-9, " 0"), 1e-10), 4.9e-9 + 1e-10);
    EXPECT_EQ(DevSiguienteComienzo(Hallada(0.5, " .25"), 0.25), 0.5 + 0.25);
    // Rounding up may skip ahead.
    EXPECT_EQ(DevSiguienteComienzo(Hallada(0.6, " 1"), 0.002), 1 + 0.002);
    // A step that leaves no root.
    EXPECT_EQ(DevSiguienteComienzo(Hallada(1, " 1"), 1e-30), std::nullopt);
}

} // namespace
} // namespace quiralto
