// Common factors and products of polynomials, beside GiNaC. The two gcds of a pair do the same
// work: expanded polynomials with whole coefficients in, their gcd out.

#include "bench/apoyo.h"
#include "engine/lenguaje/compila.h"
#include "engine/polinomios/evalua_racional.h"
#include "engine/polinomios/mcd.h"

#include <benchmark/benchmark.h>
#include <ginac/ginac.h>

#include <string>
#include <vector>

namespace quiralto::bench {
namespace {

// Two products of eight factors (X-a), four of them in both.
const std::vector<int> Primero = {-9, -4, 1, 7, 2, -3, 5, 8};
const std::vector<int> Segundo = {-9, -4, 1, 7, -6, 3, 9, -1};

std::string DevProducto(const std::vector<int>& raíces) {
    std::string texto;
    for (const int a : raíces)
        texto += (texto.empty() ? "(X" : "*(X") + std::string(a < 0 ? "+" : "-") +
                 std::to_string(std::abs(a)) + ")";
    return texto;
}

Polinomio DevPolinomio(Contexto& contexto, const std::string& fórmula) {
    return CalculaRacional(contexto, CompilaExpresión(fórmula)).numerador;
}

GiNaC::ex DevGinac(const GiNaC::symbol& x, const std::vector<int>& raíces) {
    GiNaC::ex producto = 1;
    for (const int a : raíces)
        producto *= x - a;
    return producto.expand();
}

void MCDDeProductos(benchmark::State& estado) {
    Banco banco;
    const Polinomio p = DevPolinomio(banco.contexto, DevProducto(Primero));
    const Polinomio q = DevPolinomio(banco.contexto, DevProducto(Segundo));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(MCDPolinomios(banco.contexto, p, q));
}

void MCDDeProductosGinac(benchmark::State& estado) {
    const GiNaC::symbol x("x");
    const GiNaC::ex p = DevGinac(x, Primero);
    const GiNaC::ex q = DevGinac(x, Segundo);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(GiNaC::gcd(p, q));
}

// From the text of both to the text of the gcd.
void MCDDeTextos(benchmark::State& estado) {
    Banco banco;
    const auto texto = [&](const std::vector<int>& raíces) {
        return EscribePolinomio(banco.contexto, DevPolinomio(banco.contexto, DevProducto(raíces)));
    };
    const std::string p = texto(Primero);
    const std::string q = texto(Segundo);
    const auto lee = [&](const std::string& t) {
        return ReduceTérminos(banco.contexto, LeePolinomio(t));
    };
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(
            EscribePolinomio(banco.contexto, MCDPolinomios(banco.contexto, lee(p), lee(q))));
}

// Of two products of n random-looking factors, half of them in both: the cost grows with n^2.
std::vector<int> DevRaíces(std::int64_t cantidad, int desde) {
    std::vector<int> raíces;
    for (int i = 0; i < cantidad; ++i)
        raíces.push_back((i * 7 + (i * 2 < cantidad ? 0 : desde)) % 101 - 50);
    return raíces;
}

void MCDCreciente(benchmark::State& estado) {
    Banco banco;
    const Polinomio p = DevPolinomio(banco.contexto, DevProducto(DevRaíces(estado.range(0), 1)));
    const Polinomio q = DevPolinomio(banco.contexto, DevProducto(DevRaíces(estado.range(0), 2)));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(MCDPolinomios(banco.contexto, p, q));
    estado.SetComplexityN(estado.range(0));
}

void MCDCrecienteGinac(benchmark::State& estado) {
    const GiNaC::symbol x("x");
    const GiNaC::ex p = DevGinac(x, DevRaíces(estado.range(0), 1));
    const GiNaC::ex q = DevGinac(x, DevRaíces(estado.range(0), 2));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(GiNaC::gcd(p, q));
    estado.SetComplexityN(estado.range(0));
}

// A whole formula, compiled and brought to lowest terms.
void SimplificaCociente(benchmark::State& estado) {
    Banco banco;
    const std::string f = "(" + DevProducto(Primero) + ")/(" + DevProducto(Segundo) + ")";
    for ([[maybe_unused]] auto vuelta : estado) {
        const Racional r = CalculaRacional(banco.contexto, CompilaExpresión(f));
        benchmark::DoNotOptimize(
            SeparaRacional(banco.contexto, SimplificaRacional(banco.contexto, r)));
    }
}

void SimplificaCocienteGinac(benchmark::State& estado) {
    const GiNaC::symbol x("x");
    const GiNaC::ex p = DevGinac(x, Primero);
    const GiNaC::ex q = DevGinac(x, Segundo);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize((p / q).normal());
}

void Potencia(benchmark::State& estado) {
    Banco banco;
    const Programa programa = CompilaExpresión("(X+1)^" + std::to_string(estado.range(0)));
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(CalculaRacional(banco.contexto, programa));
    estado.SetComplexityN(estado.range(0));
}

// Terms of far apart exponents: sums, and products without cells for every exponent.
void SumaDispersa(benchmark::State& estado) {
    Banco banco;
    Monomios<double> términos;
    for (std::int64_t i = 0; i < estado.range(0); ++i)
        términos.push_back({static_cast<double>(i * i * 1000), static_cast<double>(i + 1)});
    const Polinomio p = ReduceTérminos(banco.contexto, términos);
    for ([[maybe_unused]] auto vuelta : estado)
        benchmark::DoNotOptimize(SumaPolinomios(p, p));
    estado.SetComplexityN(estado.range(0));
}

BENCHMARK(MCDDeProductos);
BENCHMARK(MCDDeProductosGinac);
BENCHMARK(MCDDeTextos);
BENCHMARK(SimplificaCociente);
BENCHMARK(SimplificaCocienteGinac);
BENCHMARK(MCDCreciente)->RangeMultiplier(2)->Range(4, 64)->Complexity();
BENCHMARK(MCDCrecienteGinac)->RangeMultiplier(2)->Range(4, 64)->Complexity();
BENCHMARK(Potencia)->Arg(50)->Arg(200)->Arg(800);
BENCHMARK(SumaDispersa)->RangeMultiplier(4)->Range(64, 16384)->Complexity(benchmark::oN);

} // namespace
} // namespace quiralto::bench
