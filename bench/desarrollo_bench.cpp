// Expansion beside GiNaC. Ours goes from the compiled program to text, GiNaC's from a built
// expression to an expanded one (GiNaC's text is measured apart).

#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "tests/apoyo.h"

#include <benchmark/benchmark.h>
#include <ginac/ginac.h>

#include <array>
#include <sstream>
#include <string>

namespace {

using namespace quiralto;

const GiNaC::symbol x("X");
const GiNaC::symbol a("A");
const GiNaC::symbol b("B");
const GiNaC::symbol c("C");
const GiNaC::symbol d("D");
const GiNaC::symbol y("Y");

struct Caso {
    const char* nombre;
    const char* texto;
    GiNaC::ex (*deGinac)();
};

const std::array Casos = {
    Caso{"(A+B+C)^8", "(SLN(65)+SLN(66)+SLN(67))^8", [] { return GiNaC::pow(a + b + c, 8); }},
    Caso{"(A+B+C+D)^10", "(SLN(65)+SLN(66)+SLN(67)+SLN(68))^10",
         [] { return GiNaC::pow(a + b + c + d, 10); }},
    Caso{"(X+1)^50", "(X+1)^50", [] { return GiNaC::pow(x + 1, 50); }},
    Caso{"(X+1)^20*(X-1)^20", "(X+1)^20*(X-1)^20",
         [] { return GiNaC::pow(x + 1, 20) * GiNaC::pow(x - 1, 20); }},
    Caso{"(SIN(A+B)*COS(X-Y)+3*X*Y)^3", "(SIN(SLN(65)+SLN(66))*COS(X-SLN(89))+3*X*SLN(89))^3",
         [] { return GiNaC::pow(GiNaC::sin(a + b) * GiNaC::cos(x - y) + 3 * x * y, 3); }},
};

constexpr const char* Derivada = "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3";

void Nuestro(benchmark::State& estado, const Caso& caso, bool completo) {
    Banco pantalla;
    const Programa programa = CompilaExpresión(caso.texto);
    for (auto _ : estado)
        benchmark::DoNotOptimize(completo ? DesarrollaCompleto(pantalla.contexto, programa)
                                          : DesarrollaSimplificado(pantalla.contexto, programa));
}

void DeGinac(benchmark::State& estado, const Caso& caso, bool conTexto) {
    for (auto _ : estado) {
        // made anew: an expanded expression is remembered
        const GiNaC::ex expandida = caso.deGinac().expand();
        if (conTexto) {
            std::ostringstream texto;
            texto << expandida;
            benchmark::DoNotOptimize(texto.str());
        } else {
            benchmark::DoNotOptimize(expandida.nops());
        }
    }
}

void SegundaDerivada(benchmark::State& estado) {
    Banco pantalla;
    for (auto _ : estado) {
        const std::string derivada = Deriva(pantalla.contexto, Deriva(pantalla.contexto, Derivada));
        benchmark::DoNotOptimize(
            DesarrollaSimplificado(pantalla.contexto, CompilaExpresión(derivada)));
    }
}

void SegundaDerivadaGinac(benchmark::State& estado) {
    for (auto _ : estado) {
        const GiNaC::ex f = GiNaC::sin(GiNaC::cos(12 * GiNaC::pow(x, x + 3) - 2)) +
                            11 * GiNaC::pow(x, -3) * GiNaC::sin(x) - 3;
        benchmark::DoNotOptimize(f.diff(x, 2).expand().nops());
    }
}

// Growth with the terms of the result: (A+B+C+D)^n has (n+1)(n+2)(n+3)/6.
void Crecimiento(benchmark::State& estado) {
    Banco pantalla;
    const auto n = estado.range(0);
    const Programa programa =
        CompilaExpresión("(SLN(65)+SLN(66)+SLN(67)+SLN(68))^" + std::to_string(n));
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(pantalla.contexto, programa));
    estado.SetItemsProcessed(estado.iterations() * (n + 1) * (n + 2) * (n + 3) / 6);
}

} // namespace

int main(int argc, char** argv) {
    for (const Caso& caso : Casos) {
        const std::string nombre = caso.nombre;
        benchmark::RegisterBenchmark((nombre + " simplificado").c_str(), Nuestro, caso, false);
        benchmark::RegisterBenchmark((nombre + " completo").c_str(), Nuestro, caso, true);
        benchmark::RegisterBenchmark((nombre + " GiNaC").c_str(), DeGinac, caso, false);
        benchmark::RegisterBenchmark((nombre + " GiNaC, con texto").c_str(), DeGinac, caso, true);
    }
    benchmark::RegisterBenchmark("segunda derivada", SegundaDerivada);
    benchmark::RegisterBenchmark("segunda derivada GiNaC", SegundaDerivadaGinac);
    benchmark::RegisterBenchmark("(A+B+C+D)^n", Crecimiento)->Arg(5)->Arg(10)->Arg(20)->Arg(40);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
