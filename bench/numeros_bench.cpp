// Number theory: a range of primes beside libprimesieve, divisors and factors of the hardest
// numbers.

#include "engine/numeros/primos.h"

#include <benchmark/benchmark.h>
#include <primesieve.hpp>

namespace quiralto {
namespace {

constexpr std::int32_t Desde = 2147458647; // the last range that the command takes
constexpr std::int32_t Hasta = 2147483647;

Primos DevTabla() {
    std::vector<std::int32_t> primos;
    primesieve::generate_n_primes(CantidadPrimos, &primos);
    Primos tabla{};
    std::ranges::copy(primos, tabla.begin());
    return tabla;
}

void PrimosDelÚltimoTramo(benchmark::State& estado) {
    const Primos tabla = DevTabla();
    for (auto _ : estado)
        benchmark::DoNotOptimize(DevPrimosEntre(tabla, Desde, Hasta));
}
BENCHMARK(PrimosDelÚltimoTramo);

void PrimosDelÚltimoTramoConPrimesieve(benchmark::State& estado) {
    for (auto _ : estado) {
        std::vector<std::int32_t> primos;
        primesieve::generate_primes(Desde, Hasta, &primos);
        benchmark::DoNotOptimize(primos);
    }
}
BENCHMARK(PrimosDelÚltimoTramoConPrimesieve);

void PrimosDelÚltimoTramoUnoAUno(benchmark::State& estado) {
    const Primos tabla = DevTabla();
    for (auto _ : estado)
        for (std::uint32_t n = Desde; n <= Hasta; ++n)
            benchmark::DoNotOptimize(EsPrimoTabla(tabla, static_cast<std::int32_t>(n)));
}
BENCHMARK(PrimosDelÚltimoTramoUnoAUno)->Unit(benchmark::kMillisecond);

void PrimosDelPrimerTramo(benchmark::State& estado) {
    const Primos tabla = DevTabla();
    for (auto _ : estado)
        benchmark::DoNotOptimize(DevPrimosEntre(tabla, 2, 25002));
}
BENCHMARK(PrimosDelPrimerTramo);

void PrimosDelPrimerTramoConPrimesieve(benchmark::State& estado) {
    for (auto _ : estado) {
        std::vector<std::int32_t> primos;
        primesieve::generate_primes(2, 25002, &primos);
        benchmark::DoNotOptimize(primos);
    }
}
BENCHMARK(PrimosDelPrimerTramoConPrimesieve);

void DivisoresDelQueTieneMás(benchmark::State& estado) {
    const Primos tabla = DevTabla();
    for (auto _ : estado)
        benchmark::DoNotOptimize(DevDivisores(tabla, 2095133040));
}
BENCHMARK(DivisoresDelQueTieneMás);

void FactoresDelMayorPrimo(benchmark::State& estado) {
    const Primos tabla = DevTabla();
    for (auto _ : estado)
        benchmark::DoNotOptimize(FactorizaConTabla(tabla, 2147483647));
}
BENCHMARK(FactoresDelMayorPrimo);

} // namespace
} // namespace quiralto
