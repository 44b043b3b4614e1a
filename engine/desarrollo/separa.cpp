#include "engine/desarrollo/separa.h"

#include "engine/base/caracteres.h"
#include "engine/lenguaje/termino_texto.h"
#include "engine/numeros/numero.h"

#include <algorithm>

namespace quiralto {
namespace {

// Calls f with the position of every character outside parentheses; a parenthesis is not outside.
template <typename F> void RecorreFuera(std::string_view texto, F f) {
    long abiertos = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '(')
            ++abiertos;
        else if (texto[i] == ')')
            --abiertos;
        else if (abiertos == 0)
            f(i);
    }
}

// The pieces between the cuts; a piece begins at its cut or `salto` characters behind it.
std::vector<std::string> Corta(std::string_view texto, const std::vector<std::size_t>& cortes,
                               std::size_t salto) {
    std::vector<std::string> trozos;
    std::size_t principio = 0;
    for (const std::size_t corte : cortes) {
        trozos.emplace_back(texto.substr(principio, corte - principio));
        principio = corte + salto;
    }
    trozos.emplace_back(texto.substr(principio));
    return trozos;
}

} // namespace

std::vector<std::string> SeparaTérminos(std::string_view texto) {
    std::vector<std::string> términos;
    RecorreTérminos(texto, [&](std::string_view término) { términos.emplace_back(término); });
    return términos;
}

std::vector<std::string> SeparaFactores(std::string_view término) {
    if (término.starts_with('+'))
        término.remove_prefix(1);
    const bool menosUno = término.starts_with('-') && LeeNúmero(término).longitud == 0;
    if (menosUno)
        término.remove_prefix(1);
    std::vector<std::size_t> cortes;
    RecorreFuera(término, [&](std::size_t i) {
        if (término[i] == '*')
            cortes.push_back(i);
    });
    std::vector<std::string> factores = Corta(término, cortes, 1);
    if (menosUno)
        factores.insert(factores.begin(), "-1");
    return factores;
}

TérminoSeparado SeparaCoeficiente(std::string_view término) {
    TérminoLeído leído = LeeTérmino(término);
    return {TextoNúmero(leído.coeficiente), std::move(leído.literal)};
}

FactorSeparado SeparaPotencia(std::string_view factor) {
    if (SeparaTérminos(factor).size() == 1 && SeparaFactores(factor).size() == 1) {
        std::size_t potencia = factor.size();
        RecorreFuera(factor, [&](std::size_t i) {
            if (factor[i] == '^')
                potencia = std::min(potencia, i);
        });
        if (potencia < factor.size())
            return {std::string(factor.substr(0, potencia)),
                    std::string(factor.substr(potencia + 1))};
    }
    return {std::string(factor), "1"};
}

} // namespace quiralto
