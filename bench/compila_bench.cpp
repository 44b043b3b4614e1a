// The cost of compiling and deriving long texts: it must grow with the text, not with its square.

#include "bench/apoyo.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"

#include <benchmark/benchmark.h>

#include <string>

namespace quiralto::bench {
namespace {

std::string DevSuma(benchmark::IterationCount términos) {
    std::string suma = "X";
    for (benchmark::IterationCount i = 1; i < términos; ++i)
        suma += "+" + std::to_string(i) + "*X";
    return suma;
}

std::string DevAnidada(benchmark::IterationCount paréntesis) {
    const auto n = static_cast<std::size_t>(paréntesis);
    return std::string(n, '(') + "X" + std::string(n, ')');
}

void CompilaSuma(benchmark::State& estado) {
    const std::string suma = DevSuma(estado.range(0));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(CompilaExpresión(suma));
    estado.SetComplexityN(estado.range(0));
}

void CompilaAnidada(benchmark::State& estado) {
    const std::string anidada = DevAnidada(estado.range(0));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(CompilaExpresión(anidada));
    estado.SetComplexityN(estado.range(0));
}

void CompruebaSuma(benchmark::State& estado) {
    Banco banco;
    const std::string suma = DevSuma(estado.range(0));
    for ([[maybe_unused]] auto vuelta : estado) {
        std::string texto = suma;
        benchmark::DoNotOptimize(Sintaxis(banco.contexto, texto));
    }
    estado.SetComplexityN(estado.range(0));
}

void DerivaSuma(benchmark::State& estado) {
    Banco banco;
    const std::string suma = DevSuma(estado.range(0));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(Deriva(banco.contexto, suma));
    estado.SetComplexityN(estado.range(0));
}

BENCHMARK(CompilaSuma)->Arg(1250)->Arg(2500)->Arg(5000)->Arg(10000)->Complexity();
BENCHMARK(CompilaAnidada)->Arg(2500)->Arg(5000)->Arg(10000)->Arg(20000)->Complexity();
BENCHMARK(CompruebaSuma)->Arg(1250)->Arg(2500)->Arg(5000)->Arg(10000)->Complexity();
BENCHMARK(DerivaSuma)->Arg(1250)->Arg(2500)->Arg(5000)->Arg(10000)->Complexity();

} // namespace
} // namespace quiralto::bench
