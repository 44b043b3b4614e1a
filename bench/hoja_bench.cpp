// A worksheet of many comment lines and one command: what it costs must grow with its lines.

#include "bench/apoyo.h"
#include "commands/ordenes.h"

#include <benchmark/benchmark.h>

#include <string>

namespace quiralto::bench {
namespace {

void Comentarios(benchmark::State& estado) {
    Banco banco;
    std::string texto;
    for (auto i = estado.range(0); i > 0; --i)
        texto += "'Solución en X=" + std::to_string(i) + "\r\n";
    texto += "X^2-4,-5,5";
    for ([[maybe_unused]] auto vuelta : estado) {
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, "Hallar soluciones ecuación");
        benchmark::DoNotOptimize(hoja.texto.data());
    }
    estado.SetComplexityN(estado.range(0));
}

BENCHMARK(Comentarios)
    ->RangeMultiplier(2)
    ->Range(12500, 200000)
    ->Complexity([](benchmark::IterationCount n) { return static_cast<double>(n); });

} // namespace
} // namespace quiralto::bench
