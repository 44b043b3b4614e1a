// Expansions beside GiNaC. Ours runs from the compiled formula to the text of the result; GiNaC's
// from the parsed expression to the expanded one, without writing it.

#include "bench/apoyo.h"
#include "commands/desarrollos.h"
#include "engine/compila.h"
#include "engine/deriva.h"
#include "engine/desarrollo.h"

#include <benchmark/benchmark.h>
#include <ginac/ginac.h>

#include <array>
#include <string>

namespace quiralto::bench {
namespace {

struct Caso {
    const char* texto;
    const char* ginac;
};

constexpr std::array<Caso, 5> Casos = {{
    {"(A+B+C)^8", "(A+B+C)^8"},
    {"(A+B+C+D)^10", "(A+B+C+D)^10"},
    {"(X+1)^50", "(X+1)^50"},
    {"(X+1)^20*(X-1)^20", "(X+1)^20*(X-1)^20"},
    {"(SIN(A+B)*COS(X-Y)+3*X*Y)^3", "(sin(A+B)*cos(X-Y)+3*X*Y)^3"},
}};
constexpr int Último = static_cast<int>(Casos.size()) - 1;

constexpr const char* FunciónDerivada = "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3";
constexpr const char* FunciónDerivadaGinac = "sin(cos(12*X^(X+3)-2))+11*X^(-3)*sin(X)-3";

void Desarrollo(benchmark::State& estado) {
    Banco banco;
    const Caso& caso = Casos[static_cast<std::size_t>(estado.range(0))];
    const Programa programa = CompilaExpresión(SustituyeVariables(caso.texto));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(banco.contexto, programa));
    estado.SetLabel(caso.texto);
}

void DesarrolloGinac(benchmark::State& estado) {
    GiNaC::parser lector;
    const Caso& caso = Casos[static_cast<std::size_t>(estado.range(0))];
    const GiNaC::ex expresión = lector(caso.ginac);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(expresión.expand());
    estado.SetLabel(caso.texto);
}

void SegundaDerivada(benchmark::State& estado) {
    Banco banco;
    for ([[maybe_unused]] auto vuelta : estado) {
        const std::string segunda = Deriva(banco.contexto, Deriva(banco.contexto, FunciónDerivada));
        benchmark::DoNotOptimize(DesarrollaSimplificado(banco.contexto, CompilaExpresión(segunda)));
    }
}

void SegundaDerivadaGinac(benchmark::State& estado) {
    GiNaC::parser lector;
    const GiNaC::ex expresión = lector(FunciónDerivadaGinac);
    const auto x = GiNaC::ex_to<GiNaC::symbol>(lector.get_syms().at("X"));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(expresión.diff(x, 2).expand());
}

// (A+B+C+D)^n has (n+3)(n+2)(n+1)/6 terms; the cost is measured against them.
void DesarrolloCreciente(benchmark::State& estado) {
    Banco banco;
    const std::int64_t n = estado.range(0);
    const Programa programa =
        CompilaExpresión(SustituyeVariables("(A+B+C+D)^" + std::to_string(n)));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(banco.contexto, programa));
    estado.SetComplexityN((n + 3) * (n + 2) * (n + 1) / 6);
}

BENCHMARK(Desarrollo)->DenseRange(0, Último);
BENCHMARK(DesarrolloGinac)->DenseRange(0, Último);
BENCHMARK(SegundaDerivada);
BENCHMARK(SegundaDerivadaGinac);
BENCHMARK(DesarrolloCreciente)->RangeMultiplier(2)->Range(5, 40)->Complexity(benchmark::oN);

} // namespace
} // namespace quiralto::bench
