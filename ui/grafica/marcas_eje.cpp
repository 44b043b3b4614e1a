#include "ui/grafica/marcas_eje.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace quiralto {
namespace {

constexpr double SeparaciónMenor = 60;
constexpr double SeparaciónMayor = 110;
constexpr double MínimoMarcas = 6;

struct Paso {
    int cifra;     // 1, 2 or 5
    int exponente; // of ten
    double Valor() const { return cifra * std::pow(10, exponente); }

    // A fourth or a fifth of it, which is such a step again.
    Paso Menor() const {
        if (cifra == 5)
            return {1, exponente};
        return {cifra == 1 ? 2 : 5, exponente - 1};
    }
};

Paso DevPaso(double ancho, double píxeles) {
    const double porPíxel = ancho / píxeles;
    const double mayor = std::min(SeparaciónMayor, píxeles / MínimoMarcas);
    const double menor = std::min(SeparaciónMenor, mayor / 2);
    // How far a step is from the wanted ones, as a factor; too wide is out of the question where
    // marks are few.
    const auto exceso = [&](const Paso& paso) {
        const double separación = paso.Valor() / porPíxel;
        const double sobra = separación / mayor;
        return std::max({1.0, menor / separación, mayor < SeparaciónMayor ? sobra * sobra : sobra});
    };
    const int exponente = static_cast<int>(std::floor(std::log10(porPíxel * menor)));
    Paso mejor{1, exponente};
    for (const Paso paso : {Paso{2, exponente}, Paso{5, exponente}, Paso{1, exponente + 1}})
        if (exceso(paso) <= exceso(mejor))
            mejor = paso;
    return mejor;
}

// n * cifra * 10^exponente, read from its digits: a product of Doubles would not always be the
// Double nearest to the decimal number that is meant.
double DevValorDecimal(long long n, const Paso& paso) {
    return Val(std::to_string(n * paso.cifra) + "E" + std::to_string(paso.exponente));
}

// Which multiple is the first one that does not lie before the range; of a quotient that rounding
// has put a hair beside a whole number, the multiples themselves tell.
long long DevPrimera(double mínimo, const Paso& paso) {
    const auto n = static_cast<long long>(std::ceil(mínimo / paso.Valor()));
    if (DevValorDecimal(n - 1, paso) >= mínimo)
        return n - 1;
    return DevValorDecimal(n, paso) < mínimo ? n + 1 : n;
}

// The number as the general form writes it, in pieces.
struct Piezas {
    bool negativo = false;
    std::string cifras; // no zeros at either end; "0" for 0
    int exponente = 0;  // of ten, of the first digit
};

Piezas DevPiezas(double valor) {
    const std::string texto = TextoNúmero(valor);
    const std::size_t e = texto.find('E');
    Piezas piezas{.negativo = texto[0] == '-', .cifras = {}, .exponente = 0};
    const std::string mantisa =
        texto.substr(piezas.negativo ? 1 : 0, e - (piezas.negativo ? 1 : 0));
    const std::size_t punto = std::min(mantisa.find('.'), mantisa.size());
    for (const char c : mantisa)
        if (c != '.')
            piezas.cifras += c;
    const std::size_t ceros = std::min(piezas.cifras.find_first_not_of('0'), piezas.cifras.size());
    piezas.exponente = static_cast<int>(punto) - 1 - static_cast<int>(ceros);
    if (e != std::string::npos)
        piezas.exponente += std::stoi(texto.substr(e + 1));
    piezas.cifras.erase(0, ceros);
    piezas.cifras.erase(piezas.cifras.find_last_not_of('0') + 1);
    return piezas.cifras.empty() ? Piezas{.negativo = false, .cifras = "0", .exponente = 0}
                                 : piezas;
}

constexpr std::string_view Menos = "\u2212";

std::string EnCifras(const Piezas& p) {
    const auto cantidad = static_cast<int>(p.cifras.size());
    const std::string signo(p.negativo ? Menos : "");
    if (p.exponente < 0)
        return signo + "0." + std::string(static_cast<std::size_t>(-p.exponente - 1), '0') +
               p.cifras;
    if (cantidad <= p.exponente + 1)
        return signo + p.cifras +
               std::string(static_cast<std::size_t>(p.exponente + 1 - cantidad), '0');
    const std::size_t enteras = static_cast<std::size_t>(p.exponente) + 1;
    return signo + p.cifras.substr(0, enteras) + '.' + p.cifras.substr(enteras);
}

std::string EnPotencia(const Piezas& p) {
    if (p.cifras == "0")
        return p.cifras;
    std::string texto(p.negativo ? Menos : "");
    texto += p.cifras[0];
    if (p.cifras.size() > 1)
        (texto += '.') += p.cifras.substr(1);
    (texto += 'E') += p.exponente < 0 ? Menos : "";
    return texto += std::to_string(std::abs(p.exponente));
}

// The same form along the axis.
void PonTextos(std::vector<Marca>& marcas) {
    constexpr std::size_t Largo = 8; // longer ones are worth shortening
    std::vector<std::string> enCifras;
    std::vector<std::string> enPotencia;
    for (const Marca& marca : marcas) {
        const Piezas piezas = DevPiezas(marca.valor);
        enCifras.push_back(EnCifras(piezas));
        enPotencia.push_back(EnPotencia(piezas));
    }
    const auto largo = [](const std::vector<std::string>& textos) {
        std::size_t mayor = 0;
        for (const std::string& texto : textos)
            mayor = std::max(mayor, texto.size());
        return mayor;
    };
    const std::size_t mayor = largo(enCifras);
    const bool potencia = mayor > Largo && largo(enPotencia) < mayor;
    for (std::size_t i = 0; i < marcas.size(); ++i)
        marcas[i].texto = std::move(potencia ? enPotencia[i] : enCifras[i]);
}

} // namespace

MarcasEje DevMarcas(double mínimo, double máximo, double píxeles) {
    const Paso paso = DevPaso(máximo - mínimo, píxeles);
    MarcasEje marcas;
    // A usable range is never so far from 0 that these would not fit.
    const auto recorre = [&](const Paso& este, auto pon) {
        const long long última = -DevPrimera(-máximo, este);
        for (long long n = DevPrimera(mínimo, este); n <= última; ++n)
            pon(n);
    };
    recorre(paso, [&](long long n) {
        marcas.mayores.push_back({DevValorDecimal(n, paso), n, {}});
    });
    const double menor = paso.Menor().Valor();
    recorre(paso.Menor(),
            [&](long long n) { marcas.menores.push_back(static_cast<double>(n) * menor); });
    PonTextos(marcas.mayores);
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
