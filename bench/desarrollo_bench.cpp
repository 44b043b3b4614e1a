// Expansion beside GiNaC and FLINT. Ours and FLINT's go from text to text, GiNaC's from a built
// expression to an expanded one (GiNaC's text is measured apart).

#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "tests/apoyo.h"

#include <benchmark/benchmark.h>
#include <flint/fmpz_mpoly.h>
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
    const char* deFlint = nullptr; // a polynomial in A, B, C, D and X
};

const std::array Casos = {
    Caso{"(A+B+C)^8", "(SLN(65)+SLN(66)+SLN(67))^8", [] { return GiNaC::pow(a + b + c, 8); },
         "(A+B+C)^8"},
    Caso{"(A+B+C+D)^10", "(SLN(65)+SLN(66)+SLN(67)+SLN(68))^10",
         [] { return GiNaC::pow(a + b + c + d, 10); }, "(A+B+C+D)^10"},
    Caso{"(X+1)^50", "(X+1)^50", [] { return GiNaC::pow(x + 1, 50); }, "(X+1)^50"},
    Caso{"(X+1)^20*(X-1)^20", "(X+1)^20*(X-1)^20",
         [] { return GiNaC::pow(x + 1, 20) * GiNaC::pow(x - 1, 20); }, "(X+1)^20*(X-1)^20"},
    Caso{"(SIN(A+B)*COS(X-Y)+3*X*Y)^3", "(SIN(SLN(65)+SLN(66))*COS(X-SLN(89))+3*X*SLN(89))^3",
         [] { return GiNaC::pow(GiNaC::sin(a + b) * GiNaC::cos(x - y) + 3 * x * y, 3); }},
};

constexpr const char* Derivada = "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3";

void Nuestro(benchmark::State& estado, const Caso& caso, bool completo) {
    Banco pantalla;
    for (auto _ : estado) {
        const Programa programa = CompilaExpresión(caso.texto);
        benchmark::DoNotOptimize(completo ? DesarrollaCompleto(pantalla.contexto, programa)
                                          : DesarrollaSimplificado(pantalla.contexto, programa));
    }
}

void DeFlint(benchmark::State& estado, const Caso& caso) {
    std::array nombres = {"A", "B", "C", "D", "X"};
    fmpz_mpoly_ctx_t anillo;
    fmpz_mpoly_ctx_init(anillo, nombres.size(), ORD_LEX);
    for (auto _ : estado) {
        fmpz_mpoly_t p;
        fmpz_mpoly_init(p, anillo);
        fmpz_mpoly_set_str_pretty(p, caso.deFlint, nombres.data(), anillo);
        char* const texto = fmpz_mpoly_get_str_pretty(p, nombres.data(), anillo);
        benchmark::DoNotOptimize(texto);
        flint_free(texto);
        fmpz_mpoly_clear(p, anillo);
    }
    fmpz_mpoly_ctx_clear(anillo);
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

void Derivadas(benchmark::State& estado) {
    Banco pantalla;
    for (auto _ : estado) {
        std::string derivada = Derivada;
        for (std::int64_t i = 0; i < estado.range(0); ++i)
            derivada = Deriva(pantalla.contexto, derivada);
        benchmark::DoNotOptimize(
            DesarrollaSimplificado(pantalla.contexto, CompilaExpresión(derivada)));
    }
}

void DerivadasGinac(benchmark::State& estado) {
    for (auto _ : estado) {
        const GiNaC::ex f = GiNaC::sin(GiNaC::cos(12 * GiNaC::pow(x, x + 3) - 2)) +
                            11 * GiNaC::pow(x, -3) * GiNaC::sin(x) - 3;
        std::ostringstream texto;
        texto << f.diff(x, static_cast<unsigned>(estado.range(0))).expand();
        benchmark::DoNotOptimize(texto.str());
    }
}

std::string Anida(int veces, const std::string& antes, const std::string& detrás) {
    std::string texto = "X";
    for (int i = 0; i < veces; ++i)
        texto = antes + texto + detrás;
    return texto;
}

// 1/(1+1/(1+...X))
void CocientesAnidados(benchmark::State& estado) {
    Banco pantalla;
    const Programa programa =
        CompilaExpresión(Anida(static_cast<int>(estado.range(0)), "1/(1+", ")"));
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(pantalla.contexto, programa));
    estado.SetComplexityN(estado.range(0));
}

// u/(1+u), inside itself
void CocientesRepetidos(benchmark::State& estado) {
    Banco pantalla;
    std::string texto = "X";
    for (std::int64_t i = 0; i < estado.range(0); ++i)
        texto = "(" + texto + ")/(1+(" + texto + "))";
    for (auto _ : estado)
        benchmark::DoNotOptimize(
            DesarrollaSimplificado(pantalla.contexto, CompilaExpresión(texto)));
}

void AtnAnidadas(benchmark::State& estado) {
    Banco pantalla;
    const std::string texto = Anida(static_cast<int>(estado.range(0)), "ATN(", ")");
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(
            pantalla.contexto, CompilaExpresión(Deriva(pantalla.contexto, texto))));
}

// ((X^n-1)/(X-1))^2
void ProductoDenso(benchmark::State& estado) {
    Banco pantalla;
    const Programa programa =
        CompilaExpresión("((X^" + std::to_string(estado.range(0)) + "-1)/(X-1))^2");
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(pantalla.contexto, programa));
}

void CincoLetras(benchmark::State& estado) {
    Banco pantalla;
    const std::string suma = "(SLN(65)+SLN(66)+SLN(67)+SLN(68)+SLN(69))^27";
    const Programa programa = CompilaExpresión(suma + "*" + suma);
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesarrollaSimplificado(pantalla.contexto, programa));
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
        if (caso.deFlint != nullptr)
            benchmark::RegisterBenchmark((nombre + " FLINT").c_str(), DeFlint, caso);
    }
    benchmark::RegisterBenchmark("derivadas", Derivadas)->Arg(1)->Arg(2);
    benchmark::RegisterBenchmark("derivadas GiNaC, con texto", DerivadasGinac)->Arg(1)->Arg(2);
    benchmark::RegisterBenchmark("1/(1+1/(1+...X))", CocientesAnidados)
        ->Arg(175)
        ->Arg(350)
        ->Arg(700)
        ->Arg(1400)
        ->Complexity()
        ->Arg(7000);
    benchmark::RegisterBenchmark("u/(1+u)", CocientesRepetidos)->Arg(5);
    benchmark::RegisterBenchmark("derivada de ATN(ATN(...X))", AtnAnidadas)->Arg(18);
    benchmark::RegisterBenchmark("((X^n-1)/(X-1))^2", ProductoDenso)->Arg(4000)->Arg(65000);
    benchmark::RegisterBenchmark("(A+B+C+D+E)^27 al cuadrado", CincoLetras);
    benchmark::RegisterBenchmark("(A+B+C+D)^n", Crecimiento)->Arg(5)->Arg(10)->Arg(20)->Arg(40);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
