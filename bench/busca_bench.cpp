// Looking for solutions, extremes and inflection points: whole commands on a line each.

#include "bench/apoyo.h"
#include "commands/ordenes.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string>

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

BENCHMARK(Soluciones)->DenseRange(0, 4);
BENCHMARK(Máximos)->DenseRange(0, 3);
BENCHMARK(Inflexiones)->DenseRange(0, 3);

} // namespace
} // namespace quiralto::bench
