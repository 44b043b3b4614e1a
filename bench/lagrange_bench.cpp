// The polynomial through given points, text to text, beside PARI's, which is exact: whole numbers,
// and numbers of two decimals.

#include "bench/apoyo.h"
#include "commands/ordenes.h"

#include <benchmark/benchmark.h>
#include <pari/pari.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace quiralto::bench {
namespace {

constexpr unsigned Semilla = 60;

// Hundredths, the values of X one behind the other.
struct Puntos {
    std::vector<int> equis;
    std::vector<int> alturas;
};

Puntos Sortea(int cantidad, bool decimales) {
    std::mt19937 azar(Semilla);
    const auto centésimas = [&](int entero) {
        return 100 * entero + (decimales ? static_cast<int>(azar() % 100) : 0);
    };
    Puntos puntos;
    for (int i = 0; i < cantidad; ++i) {
        puntos.equis.push_back(centésimas(i - cantidad / 2));
        puntos.alturas.push_back(centésimas(static_cast<int>(azar() % 200) - 100));
    }
    return puntos;
}

std::string DevLínea(const Puntos& puntos) {
    const auto texto = [](int centésimas) {
        std::string cifras = std::to_string(std::abs(centésimas) + 1000);
        cifras =
            std::to_string(std::abs(centésimas) / 100) + '.' + cifras.substr(cifras.size() - 2);
        return (centésimas < 0 ? "-" : "") + cifras;
    };
    std::string línea;
    for (std::size_t i = 0; i < puntos.equis.size(); ++i)
        línea += (i == 0 ? "" : ",") + texto(puntos.equis[i]) + ',' + texto(puntos.alturas[i]);
    return línea;
}

std::size_t ConQuiralto(Contexto& contexto, const std::string& línea) {
    Hoja hoja(línea);
    EjecutaInstrucciones(contexto, hoja, "Hallar polinomio de Lagrange");
    return hoja.texto.size() - línea.size();
}

GEN DevVector(const std::vector<int>& centésimas) {
    GEN vector = cgetg(static_cast<long>(centésimas.size()) + 1, t_VEC);
    for (std::size_t i = 0; i < centésimas.size(); ++i)
        gel(vector, static_cast<long>(i) + 1) = gdivgs(stoi(centésimas[i]), 100);
    return vector;
}

std::size_t ConPari(const Puntos& puntos) {
    const pari_sp pila = avma;
    char* const texto =
        GENtostr(polint(DevVector(puntos.equis), DevVector(puntos.alturas), pol_x(0), nullptr));
    const std::size_t longitud = std::string_view(texto).size();
    pari_free(texto);
    set_avma(pila);
    return longitud;
}

void Anota(benchmark::State& estado, std::size_t letras) {
    estado.counters["letras"] = static_cast<double>(letras); // 0 where there is no polynomial
    estado.SetLabel(estado.range(1) != 0 ? "decimales" : "enteros");
}

void LagrangeYPari(benchmark::State& estado) {
    Banco banco;
    const Puntos puntos = Sortea(static_cast<int>(estado.range(0)), estado.range(1) != 0);
    const std::string línea = DevLínea(puntos);
    std::size_t letras = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        const auto [suyo, pari] = MideAVeces(
            12, [&] { letras = ConQuiralto(banco.contexto, línea); },
            [&] { benchmark::DoNotOptimize(ConPari(puntos)); });
        estado.counters["orden_ms"] = suyo * 1e3;
        estado.counters["pari_ms"] = pari * 1e3;
        estado.counters["razón"] = suyo / pari;
    }
    Anota(estado, letras);
}

void Lagrange(benchmark::State& estado) {
    Banco banco;
    const std::string línea =
        DevLínea(Sortea(static_cast<int>(estado.range(0)), estado.range(1) != 0));
    std::size_t letras = 0;
    for ([[maybe_unused]] auto vuelta : estado)
        letras = ConQuiralto(banco.contexto, línea);
    Anota(estado, letras);
}

BENCHMARK(LagrangeYPari)->ArgsProduct({{15, 30, 60, 120}, {0, 1}})->Iterations(1);
BENCHMARK(Lagrange)->ArgsProduct({{60, 125, 250, 500}, {0, 1}})->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quiralto::bench

int main(int argc, char** argv) {
    pari_init(std::size_t{512} << 20U, 2);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
