// Dense linear systems: reading, elimination and the whole command, beside Eigen's LU on the
// numbers alone.

#include "commands/ecuaciones.h"
#include "commands/ordenes.h"
#include "commands/sistemas.h"
#include "engine/sistemas/ecuacion_lineal.h"
#include "engine/sistemas/ecuacion_llana.h"
#include "engine/sistemas/sistema_lineal.h"
#include "tests/apoyo.h"

#include <Eigen/LU>
#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

namespace {

using namespace quiralto;

struct Sistema {
    Eigen::MatrixXd matriz;
    Eigen::VectorXd constantes;
    std::vector<std::string> ecuaciones; // expresión = 0, in SLN
    std::string hoja;
};

// Whole coefficients, or coefficients of two decimals.
Sistema Sortea(int n, bool decimales = false) {
    std::mt19937 azar(99);
    const auto texto = [decimales](int centésimas) {
        const std::string cifras = std::to_string(100 + centésimas % 100);
        return std::to_string(centésimas / 100) + (decimales ? '.' + cifras.substr(1) : "");
    };
    const auto fracción = [&] { return decimales ? static_cast<int>(azar() % 100) : 0; };
    Sistema sistema{Eigen::MatrixXd(n, n), Eigen::VectorXd(n), {}, {}};
    for (int i = 0; i < n; ++i) {
        std::string lado;
        for (int j = 0; j < n; ++j) {
            const int coeficiente =
                100 * (static_cast<int>(azar() % 19) - 9 + (i == j ? 40 : 0)) + fracción();
            sistema.matriz(i, j) = coeficiente / 100.0;
            lado += (coeficiente < 0 ? "-" : "+") + texto(std::abs(coeficiente)) + "*X(" +
                    std::to_string(j + 1) + ")";
        }
        const int constante = 100 * (static_cast<int>(azar() % 199) - 99) + fracción();
        sistema.constantes(i) = constante / 100.0;
        lado.erase(0, lado.front() == '+' ? 1 : 0);
        sistema.ecuaciones.push_back(
            Sustituye1(lado + (constante < 0 ? "+" : "-") + texto(std::abs(constante))));
        sistema.hoja += (i == 0 ? "" : "\r\n") + lado + "=" + (constante < 0 ? "-" : "") +
                        texto(std::abs(constante));
    }
    return sistema;
}

void Orden_(benchmark::State& estado, bool decimales) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)), decimales);
    Banco pantalla;
    for (auto _ : estado) {
        Hoja hoja(sistema.hoja);
        EjecutaInstrucciones(pantalla.contexto, hoja, "Resolver sistema lineal");
        benchmark::DoNotOptimize(hoja.texto.data());
    }
}

std::vector<EcuaciónLineal> Lee(Contexto& contexto, const Sistema& sistema) {
    std::vector<EcuaciónLineal> ecuaciones;
    for (const std::string& texto : sistema.ecuaciones)
        ecuaciones.push_back(*LeeEcuaciónLineal(contexto, texto));
    return ecuaciones;
}

void Lectura(benchmark::State& estado) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)));
    Banco pantalla;
    for (auto _ : estado)
        benchmark::DoNotOptimize(Lee(pantalla.contexto, sistema));
}

void LecturaLlana(benchmark::State& estado) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)));
    Banco pantalla;
    for (auto _ : estado)
        for (const std::string_view línea : CortaLíneas(sistema.hoja))
            benchmark::DoNotOptimize(LeeEcuaciónLlana(pantalla.contexto, línea));
}

void Eliminación(benchmark::State& estado) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)));
    Banco pantalla;
    const std::vector<EcuaciónLineal> ecuaciones = Lee(pantalla.contexto, sistema);
    for (auto _ : estado) {
        SistemaLineal lineal(pantalla.contexto, ecuaciones);
        lineal.Elimina();
        benchmark::DoNotOptimize(lineal.EsLiderSln(0));
    }
}

void Escritura(benchmark::State& estado) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)));
    Banco pantalla;
    const std::vector<EcuaciónLineal> ecuaciones = Lee(pantalla.contexto, sistema);
    SistemaLineal lineal(pantalla.contexto, ecuaciones);
    lineal.Elimina();
    for (auto _ : estado)
        benchmark::DoNotOptimize(ResolverSistemaLineal4(pantalla.contexto, lineal));
}

void LuDeEigen(benchmark::State& estado) {
    const Sistema sistema = Sortea(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        const Eigen::VectorXd solución = sistema.matriz.partialPivLu().solve(sistema.constantes);
        benchmark::DoNotOptimize(solución.data());
    }
}

BENCHMARK_CAPTURE(Orden_, enteros, false)
    ->Name("la orden entera")
    ->RangeMultiplier(2)
    ->Range(32, 256);
BENCHMARK_CAPTURE(Orden_, decimales, true)
    ->Name("la orden entera, decimales")
    ->RangeMultiplier(2)
    ->Range(32, 256);
BENCHMARK(Lectura)->Name("lectura y desarrollo")->RangeMultiplier(2)->Range(32, 256);
BENCHMARK(LecturaLlana)->Name("lectura llana")->RangeMultiplier(2)->Range(32, 256);
BENCHMARK(Eliminación)->Name("eliminación")->RangeMultiplier(2)->Range(32, 256);
BENCHMARK(Escritura)->Name("escritura")->RangeMultiplier(2)->Range(32, 256);
BENCHMARK(LuDeEigen)->Name("LU de Eigen, solo números")->RangeMultiplier(2)->Range(32, 256);

} // namespace

BENCHMARK_MAIN();
