// Looking for solutions, extremes and inflection points: whole commands on a line each, alone and
// beside the walk that asks the program as it stands for one X at a time, to the last Double.

#include "bench/apoyo.h"
#include "commands/datos_funcion.h"
#include "commands/ordenes.h"
#include "engine/evaluacion/raices.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/numeros/numero.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quiralto::bench {
namespace {

std::string Anida(std::size_t veces) {
    std::string texto;
    for (std::size_t i = 0; i < veces; ++i)
        texto += "TAN(";
    return texto + "X" + std::string(veces, ')');
}

// The examples of the help, a line without solutions, and one with as many as steps.
const std::array<std::string, 5> Líneas = {
    "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3,.5,2", "ATN(X-2)^(SIN(X)-COS(X)*3),-5,10",
    "X^5-3*X^4+2*X^3-X^2+X-7,-5,5", "EXP(X)+1,-5,5", Anida(1000) + ",-10,10"};

void Ejecuta(benchmark::State& estado, const char* orden) {
    Banco banco;
    const std::string& línea = Líneas[static_cast<std::size_t>(estado.range(0))];
    std::size_t hallados = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        Hoja hoja(línea);
        EjecutaInstrucciones(banco.contexto, hoja, orden);
        hallados = hoja.hallazgos.size();
    }
    estado.SetLabel(línea.substr(0, 44) + " " + std::to_string(hallados));
}

void Soluciones(benchmark::State& estado) {
    Ejecuta(estado, "Hallar soluciones ecuación");
}
void Máximos(benchmark::State& estado) {
    Ejecuta(estado, "Hallar máximos");
}
void Inflexiones(benchmark::State& estado) {
    Ejecuta(estado, "Hallar puntos de inflexión");
}

// The next zero of the program at or after a, in steps of h that are halved.
std::optional<Solución> BuscaUnoAUno(Contexto& contexto, Programa& programa, double a, double b,
                                     double h) {
    const auto signo = [&](double x) -> std::optional<int> {
        const std::optional<double> valor = DevValor(contexto, programa, x);
        return valor ? std::optional((*valor > 0) - (*valor < 0)) : std::nullopt;
    };
    b += h;
    std::optional<int> primero;
    while (a <= b && !(primero = signo(a)))
        a += h;
    for (double x0 = a; a <= b;) {
        a = x0 + h;
        if (a == x0)
            return DevSolución(x0, contexto.DígitosRedondeo);
        const std::optional<int> suyo = signo(a);
        if (!suyo || *suyo == *primero)
            x0 = a;
        else
            h /= 2;
    }
    return std::nullopt;
}

// All zeros of the derivative of that order, and what the command asks at each.
std::size_t RecorreUnoAUno(Contexto& contexto, const std::string& línea, std::size_t orden) {
    Hoja hoja(línea);
    hoja.líneas = LeeTextBox(hoja.texto);
    const DatosFunción datos = *CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYExtremos);
    std::vector<Programa> derivadas = {CompilaExpresión(datos.función)};
    std::string texto = datos.función;
    while (orden > 0 && derivadas.size() <= 2)
        derivadas.push_back(CompilaExpresión(texto = Deriva(contexto, texto)));
    const double h = (datos.segundo - datos.primero) / PasosDeBúsqueda;
    std::size_t hallados = 0;
    for (std::optional<double> a = datos.primero; a && *a <= datos.segundo;) {
        const auto hallada = BuscaUnoAUno(contexto, derivadas[orden], *a, datos.segundo, h);
        if (!hallada)
            break;
        ++hallados;
        const double x = Val(hallada->texto);
        if (orden == 1)
            benchmark::DoNotOptimize(DevValor(contexto, derivadas[2], x));
        if (orden > 0)
            benchmark::DoNotOptimize(DevValor(contexto, derivadas[0], x));
        hoja.texto += hallada->texto;
        a = DevSiguienteComienzo(*hallada, h);
    }
    return hallados;
}

// The time of the command to that of the walk.
void EntreUnoAUno(benchmark::State& estado, const char* orden, std::size_t derivada) {
    Banco banco;
    const std::string& línea = Líneas[static_cast<std::size_t>(estado.range(0))];
    std::size_t hallados = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        const auto [suyo, paseo] = MideAVeces(
            40,
            [&] {
                Hoja hoja(línea);
                EjecutaInstrucciones(banco.contexto, hoja, orden);
            },
            [&] { hallados = RecorreUnoAUno(banco.contexto, línea, derivada); });
        estado.counters["razón"] = suyo / paseo;
        estado.counters["orden_µs"] = suyo * 1e6;
        estado.counters["paseo_µs"] = paseo * 1e6;
    }
    estado.SetLabel(línea.substr(0, 44) + " " + std::to_string(hallados));
}

BENCHMARK(Soluciones)->DenseRange(0, 4);
BENCHMARK(Máximos)->DenseRange(0, 3);
BENCHMARK(Inflexiones)->DenseRange(0, 3);

BENCHMARK_CAPTURE(EntreUnoAUno, soluciones, "Hallar soluciones ecuación", 0)
    ->DenseRange(0, 3)
    ->Iterations(1);
BENCHMARK_CAPTURE(EntreUnoAUno, máximos, "Hallar máximos", 1)->DenseRange(0, 3)->Iterations(1);
BENCHMARK_CAPTURE(EntreUnoAUno, inflexiones, "Hallar puntos de inflexión", 2)
    ->DenseRange(0, 3)
    ->Iterations(1);

} // namespace
} // namespace quiralto::bench
