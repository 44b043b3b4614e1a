// Nanoseconds a point over 4801 points: the block and the scalar run, the same function as compiled
// C++, and muParser; and the block run beside the compiled function, in turns.

#include "bench/apoyo.h"
#include "bench/evalua_nativa.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <string>
#include <vector>

namespace quiralto::bench {
namespace {

constexpr std::size_t CantidadPuntos = 4801;

struct Curva : Banco {
    std::vector<double> equis = std::vector<double>(CantidadPuntos);
    std::vector<double> valores = std::vector<double>(CantidadPuntos);
    std::vector<std::int16_t> fallos = std::vector<std::int16_t>(CantidadPuntos);

    Curva() {
        for (std::size_t i = 0; i < CantidadPuntos; ++i)
            equis[i] = -10 + 20 * static_cast<double>(i) / (CantidadPuntos - 1);
    }

    Programa Compila(const char* texto) {
        std::string f = texto;
        Sintaxis(contexto, f);
        return CompilaExpresión(f);
    }
};

const Función& FunciónDe(const benchmark::State& estado) {
    return Funciones[static_cast<std::size_t>(estado.range(0))];
}

void Anota(benchmark::State& estado) {
    estado.SetLabel(FunciónDe(estado).texto);
    estado.counters["por_punto"] = benchmark::Counter(
        static_cast<double>(CantidadPuntos),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Nativa(benchmark::State& estado) {
    Curva banco;
    for ([[maybe_unused]] auto vuelta : estado) {
        FunciónDe(estado).nativa(banco.equis, banco.valores);
        benchmark::DoNotOptimize(banco.valores.data());
        benchmark::ClobberMemory();
    }
    Anota(estado);
}

void Bloque(benchmark::State& estado) {
    Curva banco;
    const Programa programa = banco.Compila(FunciónDe(estado).texto);
    for ([[maybe_unused]] auto vuelta : estado) {
        EvalúaBloque(banco.contexto, programa, banco.equis, banco.valores, banco.fallos);
        benchmark::DoNotOptimize(banco.valores.data());
        benchmark::ClobberMemory();
    }
    Anota(estado);
}

void Escalar(benchmark::State& estado) {
    Curva banco;
    Programa programa = banco.Compila(FunciónDe(estado).texto);
    for ([[maybe_unused]] auto vuelta : estado) {
        for (std::size_t i = 0; i < CantidadPuntos; ++i)
            banco.valores[i] = EvalúaPrograma(banco.contexto, programa, banco.equis[i]);
        benchmark::DoNotOptimize(banco.valores.data());
        benchmark::ClobberMemory();
    }
    Anota(estado);
}

void MuParser(benchmark::State& estado) {
    Curva banco;
    double x = 0;
    mu::Parser analizador;
    analizador.DefineVar("X", &x);
    analizador.SetExpr(FunciónDe(estado).muparser);
    for ([[maybe_unused]] auto vuelta : estado) {
        for (std::size_t i = 0; i < CantidadPuntos; ++i) {
            x = banco.equis[i];
            banco.valores[i] = analizador.Eval();
        }
        benchmark::DoNotOptimize(banco.valores.data());
        benchmark::ClobberMemory();
    }
    Anota(estado);
}

double DevRazón(const Función& función) {
    Curva banco;
    const Programa programa = banco.Compila(función.texto);
    const auto [bloque, nativa] = MideAVeces(
        400,
        [&] { EvalúaBloque(banco.contexto, programa, banco.equis, banco.valores, banco.fallos); },
        [&] { función.nativa(banco.equis, banco.valores); });
    return bloque / nativa;
}

// The time of a block run to that of the compiled function.
void BloqueEntreNativa(benchmark::State& estado) {
    for ([[maybe_unused]] auto vuelta : estado)
        estado.counters["razón"] = DevRazón(FunciónDe(estado));
    estado.SetLabel(FunciónDe(estado).texto);
}

void MediaGeométrica(benchmark::State& estado) {
    for ([[maybe_unused]] auto vuelta : estado) {
        double producto = 1;
        for (const Función& función : Funciones)
            producto *= DevRazón(función);
        estado.counters["razón"] = std::pow(producto, 1 / static_cast<double>(Funciones.size()));
    }
}

constexpr int Última = static_cast<int>(Funciones.size()) - 1;
BENCHMARK(Nativa)->DenseRange(0, Última);
BENCHMARK(Bloque)->DenseRange(0, Última);
BENCHMARK(Escalar)->DenseRange(0, Última);
BENCHMARK(MuParser)->DenseRange(0, Última);
BENCHMARK(BloqueEntreNativa)->DenseRange(0, Última)->Iterations(1);
BENCHMARK(MediaGeométrica)->Iterations(1);

} // namespace
} // namespace quiralto::bench
