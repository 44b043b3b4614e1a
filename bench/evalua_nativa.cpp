#include "bench/evalua_nativa.h"

#include <cmath>
#include <cstddef>

namespace quiralto::bench {
namespace {

template <typename F> void Recorre(std::span<const double> equis, std::span<double> valores, F f) {
    for (std::size_t i = 0; i < equis.size(); ++i)
        valores[i] = f(equis[i]);
}

void Parábola(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return x * x - 4; });
}

void Racional(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return (x + 1) * (x - 2) / (x * x + 1); });
}

void Quíntica(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) {
        return x * x * x * x * x - 3 * (x * x * x * x) + 2 * (x * x * x) - x * x + x - 7;
    });
}

void SenoCoseno(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return std::sin(x) * std::cos(x); });
}

void Campana(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return std::exp(-(x * x) / 2); });
}

void Mixta(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores,
            [](double x) { return (1.0 / 3) * (x * x) + std::log(x + 11) + std::cos(x + 11) - 3; });
}

void Cúbica(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return x * x * x - 3 * x; });
}

void Hipérbola(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return std::sqrt(x * x + 1); });
}

void Arcotangente(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return x * std::atan(x); });
}

void Amortiguada(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return x * std::exp(-x); });
}

void Ondas(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return std::sin(3 * x) + std::cos(5 * x) / 2; });
}

void Potencia(std::span<const double> equis, std::span<double> valores) {
    Recorre(equis, valores, [](double x) { return std::pow(x * x + 1, 1.5); });
}

} // namespace

const std::array<Función, 12> Funciones = {{
    {"X^2-4", "X^2-4", Parábola},
    {"(X+1)*(X-2)/(X^2+1)", "(X+1)*(X-2)/(X^2+1)", Racional},
    {"X^5-3*X^4+2*X^3-X^2+X-7", "X^5-3*X^4+2*X^3-X^2+X-7", Quíntica},
    {"SIN(X)*COS(X)", "sin(X)*cos(X)", SenoCoseno},
    {"EXP(-X^2/2)", "exp(-X^2/2)", Campana},
    {"(1/3)*X^2+LOG(X+11)+COS(X+11)-3", "(1/3)*X^2+ln(X+11)+cos(X+11)-3", Mixta},
    {"X^3-3*X", "X^3-3*X", Cúbica},
    {"SQR(X^2+1)", "sqrt(X^2+1)", Hipérbola},
    {"X*ATN(X)", "X*atan(X)", Arcotangente},
    {"X*EXP(-X)", "X*exp(-X)", Amortiguada},
    {"SIN(3*X)+COS(5*X)/2", "sin(3*X)+cos(5*X)/2", Ondas},
    {"(X^2+1)^1.5", "(X^2+1)^1.5", Potencia},
}};

} // namespace quiralto::bench
