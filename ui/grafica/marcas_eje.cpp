#include "ui/grafica/marcas_eje.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quiralto {
namespace {

constexpr double SeparaciónMenor = 60;
constexpr double SeparaciónMayor = 110;

// How far a distance in pixels is from the wanted ones, as a factor.
double DevExceso(double separación) {
    return std::max({1.0, SeparaciónMenor / separación, separación / SeparaciónMayor});
}

struct Paso {
    int cifra;     // 1, 2 or 5
    int exponente; // of ten
    double Valor() const { return cifra * std::pow(10, exponente); }
};

Paso DevPaso(double ancho, double píxeles) {
    const double porPíxel = ancho / píxeles;
    const int exponente = static_cast<int>(std::floor(std::log10(porPíxel * SeparaciónMenor)));
    Paso mejor{1, exponente};
    for (const Paso paso : {Paso{2, exponente}, Paso{5, exponente}, Paso{1, exponente + 1}})
        if (DevExceso(paso.Valor() / porPíxel) < DevExceso(mejor.Valor() / porPíxel))
            mejor = paso;
    return mejor;
}

// n * cifra * 10^exponente, read from its digits: a product of Doubles would not always be the
// Double nearest to the decimal number that is meant.
double DevValorDecimal(long long n, const Paso& paso) {
    return Val(std::to_string(n * paso.cifra) + "E" + std::to_string(paso.exponente));
}

} // namespace

std::vector<Marca> DevMarcas(double mínimo, double máximo, double píxeles) {
    const Paso paso = DevPaso(máximo - mínimo, píxeles);
    const double valor = paso.Valor();
    std::vector<Marca> marcas;
    // A usable range is never so far from 0 that these would not fit.
    const auto primera = static_cast<long long>(std::ceil(mínimo / valor));
    const auto última = static_cast<long long>(std::floor(máximo / valor));
    for (long long n = primera; n <= última; ++n) {
        const double v = DevValorDecimal(n, paso);
        marcas.push_back({v, TextoNúmero(v)});
    }
    return marcas;
}

std::string TextoCoordenada(double valor, double separación) {
    constexpr int MáximoCifras = 15;
    const double última = std::floor(std::log10(separación));
    if (std::fabs(valor) < std::pow(10, última) / 2)
        return TextoNúmero(0);
    const int cifras = static_cast<int>(std::clamp(
        std::floor(std::log10(std::fabs(valor))) - última + 1, 1.0, double{MáximoCifras}));
    std::array<char, 32> búfer{};
    const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(), valor,
                                   std::chars_format::scientific, cifras - 1);
    return TextoNúmero(Val({búfer.data(), static_cast<std::size_t>(fin.ptr - búfer.data())}));
}

std::string TextoEnRango(double valor, double ancho) {
    constexpr double Partes = 1e12;
    return TextoCoordenada(valor, ancho / Partes);
}

} // namespace quiralto
