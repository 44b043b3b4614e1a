#include "engine/numeros/numero.h"

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"
#include "engine/numeros/enteros_en_double.h"
#include "engine/numeros/texto_a_double.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

constexpr int DígitosSignificativos = 15;

// The value as 15 significant digits: .d1d2d3... times 10^(exponente + 1), trailing zeros dropped.
struct FormaDecimal {
    std::array<char, DígitosSignificativos> dígitos{};
    int cantidad = 0;
    int exponente = 0; // of the first digit

    int Decimales() const { return std::max(0, cantidad - 1 - exponente); }
    bool EsLlana() const {
        return exponente < DígitosSignificativos && Decimales() <= DígitosSignificativos;
    }
};

FormaDecimal DevFormaDecimal(double absoluto) {
    std::array<char, 32> búfer{};
    const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(), absoluto,
                                   std::chars_format::scientific, DígitosSignificativos - 1)
                         .ptr;
    // "d.ddddddddddddddE±dd"
    FormaDecimal forma;
    forma.dígitos[0] = búfer[0];
    std::copy_n(búfer.data() + 2, DígitosSignificativos - 1, forma.dígitos.data() + 1);
    forma.cantidad = DígitosSignificativos;
    while (forma.cantidad > 1 && forma.dígitos[static_cast<std::size_t>(forma.cantidad - 1)] == '0')
        --forma.cantidad;
    const char* exponente = búfer.data() + DígitosSignificativos + 2;
    if (*exponente == '+')
        ++exponente;
    std::from_chars(exponente, fin, forma.exponente);
    return forma;
}

std::string TextoExponente(int exponente) {
    std::string texto = exponente < 0 ? "E-" : "E+";
    const std::string cifras = std::to_string(std::abs(exponente));
    if (cifras.size() < 2)
        texto += '0';
    return texto + cifras;
}

// Position behind the run of digits that begins at i.
std::size_t SaltaDígitos(std::string_view texto, std::size_t i) {
    while (i < texto.size() && EsDígito(texto[i]))
        ++i;
    return i;
}

// Whether a number that no Double can hold (a mantissa of digits with at most one point, and an
// exponent) is too large rather than too small: by the place of its first digit that is not 0.
bool EsDemasiadoGrande(std::string_view mantisa, std::string_view exponente) {
    long valorExponente = 0;
    if (!exponente.empty()) {
        const bool negativo = exponente.front() == '-';
        if (exponente.front() == '+' || negativo)
            exponente.remove_prefix(1);
        const auto leído =
            std::from_chars(exponente.data(), exponente.data() + exponente.size(), valorExponente);
        if (leído.ec != std::errc{})
            return !negativo; // an exponent past every mantissa
        if (negativo)
            valorExponente = -valorExponente;
    }
    const std::size_t punto = std::min(mantisa.find('.'), mantisa.size());
    const std::size_t primera = mantisa.find_first_not_of("0.");
    const long lugar =
        primera < punto ? static_cast<long>(punto - primera) : -static_cast<long>(primera - punto);
    return lugar + valorExponente > 0;
}

// 10^0 to 10^15 and 10^0 to 10^-15, each the nearest Double.
constexpr std::array<double, 16> Potencias = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr std::array<double, 16> Inversas = {1e0,  1e-1, 1e-2,  1e-3,  1e-4,  1e-5,  1e-6,  1e-7,
                                             1e-8, 1e-9, 1e-10, 1e-11, 1e-12, 1e-13, 1e-14, 1e-15};

} // namespace

std::string TextoNúmero(double valor) {
    CompruebaFinito(valor);
    if (valor == 0)
        return "0";
    const FormaDecimal forma = DevFormaDecimal(std::fabs(valor));
    const std::string_view dígitos(forma.dígitos.data(), static_cast<std::size_t>(forma.cantidad));
    std::string texto;
    if (valor < 0)
        texto += '-';
    if (!forma.EsLlana()) {
        texto += dígitos[0];
        if (dígitos.size() > 1)
            (texto += '.') += dígitos.substr(1);
        return texto + TextoExponente(forma.exponente);
    }
    if (forma.exponente < 0) {
        texto += '.';
        texto.append(static_cast<std::size_t>(-1 - forma.exponente), '0');
        return texto.append(dígitos);
    }
    const auto enteros = static_cast<std::size_t>(forma.exponente) + 1;
    texto += dígitos.substr(0, enteros);
    if (dígitos.size() <= enteros)
        return texto.append(enteros - dígitos.size(), '0');
    return (texto += '.').append(dígitos.substr(enteros));
}

std::string TextoNúmeroConBlanco(double valor) {
    std::string texto = TextoNúmero(valor);
    return texto.front() == '-' ? texto : ' ' + texto;
}

NúmeroLeído LeeNúmero(std::string_view texto) {
    std::size_t i = 0;
    const bool negativo = !texto.empty() && texto[0] == '-';
    if (!texto.empty() && (texto[0] == '-' || texto[0] == '+'))
        ++i;
    const std::size_t principio = i;
    std::size_t dígitos = i;
    i = SaltaDígitos(texto, i);
    dígitos = i - dígitos;
    if (i < texto.size() && texto[i] == '.') {
        const std::size_t decimales = i + 1;
        i = SaltaDígitos(texto, decimales);
        dígitos += i - decimales;
    }
    if (dígitos == 0)
        return {};
    const std::string_view mantisa = texto.substr(principio, i - principio);
    std::string_view exponente;
    if (i < texto.size() && std::string_view("EeDd").find(texto[i]) != std::string_view::npos) {
        std::size_t j = i + 1;
        if (j < texto.size() && (texto[j] == '+' || texto[j] == '-'))
            ++j;
        const std::size_t fin = SaltaDígitos(texto, j);
        if (fin > j) {
            exponente = texto.substr(i + 1, fin - i - 1);
            i = fin;
        }
    }
    NúmeroLeído leído;
    leído.longitud = i;
    std::string limpio(mantisa); // from_chars knows neither the marker D nor a sign "+"
    if (!exponente.empty())
        (limpio += 'e').append(exponente);
    if (!LeeDouble(limpio, leído.valor)) {
        leído.desborda = EsDemasiadoGrande(mantisa, exponente);
        leído.valor = leído.desborda ? std::numeric_limits<double>::infinity() : 0;
    }
    if (negativo)
        leído.valor = -leído.valor;
    return leído;
}

double Val(std::string_view texto) {
    texto.remove_prefix(std::min(texto.find_first_not_of(' '), texto.size()));
    const NúmeroLeído leído = LeeNúmero(texto);
    if (leído.desborda)
        throw ErrorEjecución(Desbordamiento);
    return leído.valor;
}

int DecimalesNúmero(double valor) {
    CompruebaFinito(valor);
    return valor == 0 ? 0 : DevFormaDecimal(std::fabs(valor)).Decimales();
}

FormaEntera DevFormaEntera(double valor) {
    const double absoluto = std::fabs(CompruebaFinito(valor));
    if (EsEnteroExacto(absoluto))
        return {static_cast<std::int64_t>(absoluto), 0};
    const FormaDecimal decimal = DevFormaDecimal(absoluto);
    FormaEntera forma{0, decimal.exponente - (decimal.cantidad - 1)};
    std::from_chars(decimal.dígitos.data(), decimal.dígitos.data() + decimal.cantidad,
                    forma.mantisa);
    return forma;
}

double DevDoble(const FormaEntera& forma) {
    return Val(std::to_string(forma.mantisa) + 'E' + std::to_string(forma.exponente));
}

double Redondea(double valor, int dígitos) {
    if (valor - std::trunc(valor) == 0)
        return valor;
    const auto d = static_cast<std::size_t>(dígitos);
    const double escalado = valor * Potencias[d];
    const double entero = std::trunc(escalado);
    const double fracción = escalado - entero;
    if (fracción >= 0.5)
        return (entero + 1) * Inversas[d];
    if (fracción <= -0.5)
        return (entero - 1) * Inversas[d];
    return entero * Inversas[d];
}

std::string TextoResultado(double valor, int dígitos) {
    return TextoNúmeroConBlanco(Redondea(valor, dígitos));
}

} // namespace quiralto
