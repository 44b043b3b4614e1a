// The numeric commands against mathematics of their own: functions are built from the answers.

#include "commands/ordenes.h"
#include "engine/lenguaje/compila.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"
#include "tests/engine/generador.h"
#include "tests/engine/lenguaje/derivada_ingenua.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <span>

namespace quiralto {
namespace {

constexpr const char* Soluciones = "Hallar soluciones ecuación";
constexpr const char* Máximos = "Hallar máximos";
constexpr const char* Mínimos = "Hallar mínimos";
constexpr const char* Inflexión = "Hallar puntos de inflexión";
constexpr const char* Área = "Hallar área";

constexpr int Repeticiones = 200;
constexpr double A = -10.37; // no step of 1/1000 falls on a whole number
constexpr double B = 10.91;

// What a command has added behind the two line breaks.
std::string Resuelve(Banco& banco, const std::string& línea, std::string_view orden) {
    Hoja hoja(línea);
    EjecutaInstrucciones(banco.contexto, hoja, orden);
    EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << línea;
    EXPECT_TRUE(hoja.texto.starts_with(línea + "\r\n\r\n")) << línea;
    return hoja.texto.substr(std::min(hoja.texto.size(), línea.size() + 4));
}

std::string ConIntervalo(const std::string& f) {
    return f + ",-10.37,10.91";
}

struct Resultado {
    double x;
    double valor; // 0 where the line has none
};

// The lines `prefijo`X[    f(X)=Y] of the results.
std::vector<Resultado> LeeResultados(const std::string& salida, const std::string& prefijo) {
    constexpr std::string_view Separador = "    f(X)=";
    std::vector<Resultado> resultados;
    for (const std::string_view línea : CortaLíneas(salida)) {
        if (línea.empty())
            continue;
        EXPECT_TRUE(línea.starts_with(prefijo)) << línea;
        const std::size_t corte = línea.find(Separador);
        const std::string_view valor =
            corte == std::string_view::npos ? "" : línea.substr(corte + Separador.size());
        resultados.push_back(
            {Val(línea.substr(prefijo.size(), corte - prefijo.size())), Val(valor)});
    }
    return resultados;
}

// A polynomial with whole coefficients, coeficientes[k] that of X^k.
using Coeficientes = std::vector<long long>;

double Valor(const Coeficientes& p, double x) {
    double valor = 0;
    for (std::size_t k = p.size(); k-- > 0;)
        valor = valor * x + static_cast<double>(p[k]);
    return valor;
}

Coeficientes Derivada(const Coeficientes& p) {
    Coeficientes derivada;
    for (std::size_t k = 1; k < p.size(); ++k)
        derivada.push_back(p[k] * static_cast<long long>(k));
    return derivada;
}

Coeficientes Producto(std::span<const int> raíces, long long factor) {
    Coeficientes p = {factor};
    for (const int raíz : raíces) {
        p.insert(p.begin(), 0);
        for (std::size_t k = 0; k + 1 < p.size(); ++k)
            p[k] -= raíz * p[k + 1];
    }
    return p;
}

// The polynomial without a constant term that has this derivative, times `divisor`.
Coeficientes Primitiva(const Coeficientes& p, long long divisor) {
    Coeficientes primitiva = {0};
    for (std::size_t k = 0; k < p.size(); ++k) {
        EXPECT_EQ(p[k] * divisor % static_cast<long long>(k + 1), 0);
        primitiva.push_back(p[k] * divisor / static_cast<long long>(k + 1));
    }
    return primitiva;
}

std::string Texto(const Coeficientes& p) {
    std::string texto;
    for (std::size_t k = 0; k < p.size(); ++k) {
        (texto += p[k] < 0 ? "" : "+") += std::to_string(p[k]);
        if (k == 1)
            texto += "*X"; // the second derivative of X^1 would have no value at 0
        if (k > 1)
            texto += "*X^" + std::to_string(k);
    }
    return texto;
}

class ConAzar : public testing::Test {
protected:
    // Different whole numbers inside the interval, in order.
    std::vector<int> DevRaíces(std::size_t cuántas) {
        std::vector<int> raíces;
        std::uniform_int_distribution<int> enteros(-10, 10);
        while (raíces.size() < cuántas) {
            const int raíz = enteros(generador);
            if (std::ranges::find(raíces, raíz) == raíces.end())
                raíces.push_back(raíz);
        }
        std::ranges::sort(raíces);
        return raíces;
    }
    std::size_t DevCuántas(std::size_t mínimo, std::size_t máximo) {
        return std::uniform_int_distribution<std::size_t>(mínimo, máximo)(generador);
    }

    std::uint32_t semilla = std::random_device{}();
    std::mt19937 generador{semilla};
    testing::ScopedTrace traza{__FILE__, __LINE__, "seed " + std::to_string(semilla)};
    Banco banco;
};

void CompruebaSoluciones(Banco& banco, const std::string& f, std::span<const int> raíces) {
    const auto halladas =
        LeeResultados(Resuelve(banco, ConIntervalo(f), Soluciones), "'Solución en X=");
    ASSERT_EQ(halladas.size(), raíces.size()) << f;
    for (std::size_t i = 0; i < raíces.size(); ++i)
        EXPECT_NEAR(halladas[i].x, raíces[i], 1e-7) << f;
}

using Análisis = ConAzar;

TEST_F(Análisis, HallaLasRaícesDeUnPolinomioEnFactoresYDesarrollado) {
    for (int i = 0; i < Repeticiones; ++i) {
        const std::vector<int> raíces = DevRaíces(DevCuántas(1, 5));
        const Coeficientes p = Producto(raíces, i % 2 == 0 ? 1 : -3);
        CompruebaSoluciones(banco, Texto(p), raíces);
        std::string factores = "2";
        for (const int raíz : raíces)
            factores += "*(X-" + std::to_string(raíz) + ")";
        CompruebaSoluciones(banco, factores, raíces);
    }
}

TEST_F(Análisis, UnaRaízDobleNoCambiaElSignoYUnaTripleSí) {
    for (int i = 0; i < Repeticiones; ++i) {
        const std::vector<int> raíces = DevRaíces(2);
        const auto factor = [&](std::size_t k, int exponente) {
            return "(X-" + std::to_string(raíces[k]) + ")^" + std::to_string(exponente);
        };
        CompruebaSoluciones(banco, factor(0, 2) + "*" + factor(1, 1), std::span(raíces).last(1));
        const auto halladas = LeeResultados(Resuelve(banco, ConIntervalo(factor(0, 3)), Soluciones),
                                            "'Solución en X=");
        ASSERT_EQ(halladas.size(), 1U);
        EXPECT_EQ(halladas[0].x, raíces[0]);
    }
}

// Maxima or minima of p are the roots of its derivative with a second derivative of that sign.
void CompruebaExtremos(Banco& banco, const Coeficientes& p, std::span<const int> lugares,
                       bool máximos) {
    const Coeficientes segunda = Derivada(Derivada(p));
    std::vector<int> esperados;
    for (const int x : lugares)
        if ((Valor(segunda, x) < 0) == máximos)
            esperados.push_back(x);
    const std::string salida = Resuelve(banco, ConIntervalo(Texto(p)), máximos ? Máximos : Mínimos);
    if (esperados.empty()) {
        EXPECT_EQ(salida, máximos ? "'No se hallaron máximos" : "'No se hallaron mínimos");
        return;
    }
    const auto hallados = LeeResultados(salida, máximos ? "'Máximo en X=" : "'Mínimo en X=");
    ASSERT_EQ(hallados.size(), esperados.size()) << Texto(p);
    for (std::size_t i = 0; i < esperados.size(); ++i) {
        EXPECT_NEAR(hallados[i].x, esperados[i], 1e-7) << Texto(p);
        EXPECT_NEAR(hallados[i].valor, Valor(p, hallados[i].x), 1e-6) << Texto(p);
    }
}

TEST_F(Análisis, HallaLosExtremosDondeLaDerivadaSeAnula) {
    for (int i = 0; i < Repeticiones; ++i) {
        const std::vector<int> lugares = DevRaíces(DevCuántas(1, 3));
        const Coeficientes p = Primitiva(Producto(lugares, i % 2 == 0 ? 12 : -12), 1);
        CompruebaExtremos(banco, p, lugares, true);
        CompruebaExtremos(banco, p, lugares, false);
    }
}

TEST_F(Análisis, HallaLaInflexiónDondeLaSegundaDerivadaSeAnula) {
    for (int i = 0; i < Repeticiones; ++i) {
        const std::vector<int> lugares = DevRaíces(DevCuántas(1, 3));
        const Coeficientes p = Primitiva(Primitiva(Producto(lugares, 60), 1), 1);
        const auto hallados = LeeResultados(Resuelve(banco, ConIntervalo(Texto(p)), Inflexión),
                                            "'Punto de inflexión en X=");
        ASSERT_EQ(hallados.size(), lugares.size()) << Texto(p);
        for (std::size_t k = 0; k < lugares.size(); ++k) {
            EXPECT_NEAR(hallados[k].x, lugares[k], 1e-7) << Texto(p);
            EXPECT_NEAR(hallados[k].valor, Valor(p, hallados[k].x), 1e-5) << Texto(p);
        }
    }
}

TEST_F(Análisis, ElÁreaEsLaIntegralDelValorAbsoluto) {
    for (int i = 0; i < Repeticiones; ++i) {
        const std::vector<int> raíces = DevRaíces(DevCuántas(1, 3));
        const Coeficientes p = Producto(raíces, 1);
        const Coeficientes doce = Primitiva(p, 12);
        double exacta = 0;
        double desde = A;
        std::vector<double> cortes(raíces.begin(), raíces.end());
        cortes.push_back(B);
        for (const double hasta : cortes) {
            exacta += std::fabs(Valor(doce, hasta) - Valor(doce, desde)) / 12;
            desde = hasta;
        }
        // The trapezoid rule's bound, with what a change of sign inside a step may add.
        const Coeficientes primera = Derivada(p);
        const Coeficientes segunda = Derivada(primera);
        double pendiente = 0;
        double curvatura = 0;
        for (const double x : {A, -5.0, 0.0, 5.0, B}) {
            pendiente = std::max(pendiente, std::fabs(Valor(primera, x)));
            curvatura = std::max(curvatura, std::fabs(Valor(segunda, x)));
        }
        const double h = (B - A) / 1000;
        const double cota = h * h * ((B - A) / 12 * curvatura + 3 * pendiente) + 1e-7;
        const std::string salida = Resuelve(banco, ConIntervalo(Texto(p)), Área);
        ASSERT_TRUE(salida.starts_with("'Area= ")) << salida;
        EXPECT_NEAR(Val(salida.substr(6)), exacta, cota) << Texto(p);
    }
}

TEST_F(Análisis, ElÁreaDeUnaRectaQueNoCambiaDeSignoEsExacta) {
    std::uniform_int_distribution<int> enteros(1, 1000);
    for (int i = 0; i < Repeticiones; ++i) {
        const int pendiente = enteros(generador);
        const int ancho = enteros(generador);
        const std::string línea = "-" + std::to_string(pendiente) + "*X,0," + std::to_string(ancho);
        const double exacta = pendiente * .5 * ancho * ancho;
        const std::string salida = Resuelve(banco, línea, Área);
        ASSERT_TRUE(salida.starts_with("'Area= ")) << salida;
        // But for the rounding of a sum of a thousand values.
        EXPECT_NEAR(Val(salida.substr(6)), exacta, exacta * 1000 * 0x1p-52) << línea;
    }
}

// Whatever the interval, a command asks the watcher a bounded number of times.
// What the commands report on generated functions, against a fine scan of derivatives that are
// calculated on pairs (value, derivative) and by their differences.

constexpr double Paso = (B - A) / 1000;
constexpr int PorPaso = 4;
constexpr int Alrededor = 4 * PorPaso; // fine points to either side that tell a place apart

using Derivadas = std::vector<std::optional<double>>; // at the fine points

double PuntoFino(std::size_t i) {
    return A + static_cast<double>(i) * Paso / PorPaso;
}

std::optional<double> PrimeraEn(const Programa& f, double x) {
    const std::optional<Dual> dual = EvalúaDual(f, x);
    return dual ? std::optional(static_cast<double>(dual->derivada)) : std::nullopt;
}

std::optional<double> SegundaEn(const Programa& f, double x) {
    constexpr double e = 0x1p-14;
    const auto antes = EvalúaDual(f, x - e);
    const auto después = EvalúaDual(f, x + e);
    if (!antes || !después)
        return std::nullopt;
    return static_cast<double>((después->derivada - antes->derivada) / (2 * e));
}

Derivadas Recorre(const Programa& f, std::optional<double> (*derivada)(const Programa&, double)) {
    Derivadas valores;
    for (std::size_t i = 0; i <= 1000 * PorPaso; ++i)
        valores.push_back(derivada(f, PuntoFino(i)));
    return valores;
}

struct Entorno {
    bool liso = true; // defined, and nowhere so small that its sign is in doubt but at a change
    int cambios = 0;
    bool monótono = true; // neither a pole nor a jump back
};

Entorno DevEntorno(const Derivadas& g, std::size_t i) {
    Entorno entorno;
    double mayor = 0;
    for (std::size_t k = i - Alrededor; k <= i + Alrededor; ++k) {
        if (!g[k])
            return {.liso = false};
        mayor = std::max(mayor, std::fabs(*g[k]));
    }
    const bool sube = *g[i + Alrededor] > *g[i - Alrededor];
    for (std::size_t k = i - Alrededor; k < i + Alrededor; ++k) {
        entorno.monótono = entorno.monótono && (*g[k + 1] > *g[k]) == sube;
        entorno.cambios += std::signbit(*g[k]) != std::signbit(*g[k + 1]) ? 1 : 0;
    }
    const double salto = std::fabs(*g[i + 1] - *g[i]);
    // A pole grows towards its change of sign, a zero towards the ends.
    entorno.liso = mayor > 1e-4 && mayor < 1e4 && std::fabs(*g[i - Alrededor]) > mayor / 10 &&
                   std::fabs(*g[i + Alrededor]) > mayor / 10 &&
                   (entorno.cambios == 0 || (std::fabs(*g[i]) < mayor / 4 && salto > mayor / 1000));
    return entorno;
}

struct Comparación {
    std::size_t hallados = 0;
    std::size_t ausentes = 0;
};

// Every clear change of sign of g is among the places, and no place is where g clearly has none.
void ComparaConRecorrido(const std::string& f, const Derivadas& g,
                         const std::vector<double>& lugares, Comparación& total) {
    for (std::size_t i = Alrededor; i + Alrededor + 1 < g.size(); ++i) {
        if (!g[i] || !g[i + 1] || std::signbit(*g[i]) == std::signbit(*g[i + 1]))
            continue;
        const Entorno entorno = DevEntorno(g, i);
        if (!entorno.liso || !entorno.monótono || entorno.cambios != 1)
            continue;
        ++total.hallados;
        EXPECT_TRUE(std::ranges::any_of(
            lugares, [&](double x) { return std::fabs(x - PuntoFino(i)) < Paso / 4; }))
            << f << " has a change of sign at " << PuntoFino(i);
    }
    for (const double x : lugares) {
        const auto i = static_cast<std::size_t>((x - A) / Paso * PorPaso);
        if (i < Alrededor || i + Alrededor >= g.size())
            continue;
        const Entorno entorno = DevEntorno(g, i);
        if (!entorno.liso)
            continue;
        ++total.ausentes;
        EXPECT_GT(entorno.cambios, 0) << f << " has no change of sign at " << x;
    }
}

// f grows on the left of a maximum and falls on its right.
void ComparaMáximos(const std::string& f, const Derivadas& g, const std::vector<double>& lugares) {
    for (const double x : lugares) {
        const auto i = static_cast<std::size_t>((x - A) / Paso * PorPaso);
        if (i < Alrededor || i + Alrededor >= g.size())
            continue;
        const Entorno entorno = DevEntorno(g, i);
        if (!entorno.liso || entorno.cambios != 1)
            continue;
        EXPECT_GT(*g[i - Alrededor], 0) << f << " at " << x;
        EXPECT_LT(*g[i + Alrededor], 0) << f << " at " << x;
    }
}

std::vector<double> LugaresDe(Banco& banco, const std::string& f, const char* orden) {
    Hoja hoja(ConIntervalo(f));
    EjecutaInstrucciones(banco.contexto, hoja, orden);
    std::vector<double> lugares;
    for (const Hallazgo& hallazgo : hoja.hallazgos)
        lugares.push_back(hallazgo.x);
    return lugares;
}

TEST(AnálisisGenerado, ExtremosEInflexionesConcuerdanConUnRecorridoFino) {
    constexpr int Semilla = 31;
    Generador generador(Semilla);
    generador.números = {"1", "2", "3", ".5", "4", "7", "2.5"};
    generador.funciones = {"SIN", "COS", "EXP", "ATN", "LOG"};
    Comparación extremos;
    Comparación inflexiones;
    for (int i = 0; i < 200; ++i) {
        Banco banco;
        std::string f = generador.Expresión(2 + generador.Hasta(3));
        if (i % 3 == 0)
            f += "/X^" + std::to_string(2 + i % 4);
        SCOPED_TRACE("seed " + std::to_string(Semilla));
        const Programa programa = CompilaExpresión(f);
        std::vector<double> lugares = LugaresDe(banco, f, Máximos);
        const Derivadas primera = Recorre(programa, PrimeraEn);
        ComparaMáximos(f, primera, lugares);
        std::ranges::copy(LugaresDe(banco, f, Mínimos), std::back_inserter(lugares));
        ComparaConRecorrido(f, primera, lugares, extremos);
        ComparaConRecorrido(f, Recorre(programa, SegundaEn), LugaresDe(banco, f, Inflexión),
                            inflexiones);
    }
    EXPECT_GT(extremos.hallados, 200U);
    EXPECT_GT(inflexiones.hallados, 200U);
    EXPECT_GT(extremos.ausentes + inflexiones.ausentes, 400U);
}

TEST(AnálisisSinFin, NingúnIntervaloHaceUnaBúsquedaInterminable) {
    constexpr int MáximoPreguntas = 2'000'000;
    const std::string grande = "1" + std::string(308, '0');
    const std::string pequeño = "." + std::string(322, '0') + "5";
    const char* funciones[] = {"X",         "X^2-2",    "SIN(X)",  "TAN(X)",     "1/X",
                               "SQR(-X^2)", "SIN(1/X)", "X^3-2*X", "SIN(1E9*X)", "LOG(X^2)*X",
                               "X-X",       "5",        "X-1/3",   "X-.4"};
    const std::pair<std::string, std::string> intervalos[] = {
        {"0", pequeño},
        {"-" + pequeño, pequeño},
        {"0", grande},
        {"-" + grande, grande},
        {"-1", grande},
        {"100000000000000000", "100000000000000016"},
        {"1", "1.0000000000000002"},
        {"1", "1.0000000000001"},
        {"1.41421356", "1.41421357"},
        {".33333333", ".33333334"},
        {"-.0000000001", ".0000000001"},
        {"-1", "1"},
    };
    for (const char* f : funciones)
        for (const auto& [a, b] : intervalos)
            for (const int cifras : {0, 1, 8, 15})
                for (const char* orden : {Soluciones, Máximos, Mínimos, Inflexión, Área}) {
                    Banco banco;
                    banco.contexto.DígitosRedondeo = cifras;
                    int preguntas = 0;
                    banco.vigilante.continúa = [&] { return ++preguntas < MáximoPreguntas; };
                    Hoja hoja(std::string(f).append(",").append(a).append(",").append(b));
                    EjecutaInstrucciones(banco.contexto, hoja, orden);
                    EXPECT_LT(preguntas, MáximoPreguntas)
                        << f << ',' << a << ',' << b << ' ' << orden << ' ' << cifras;
                }
}

} // namespace
} // namespace quiralto
