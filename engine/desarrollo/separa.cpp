#include "engine/desarrollo/separa.h"

#include "engine/base/caracteres.h"
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
    std::vector<std::size_t> cortes;
    RecorreFuera(texto, [&](std::size_t i) {
        if (i > 0 && EsSigno(texto[i]) && !EsOperadorFuerte(texto[i - 1]) && texto[i - 1] != 'D' &&
            texto[i - 1] != 'E')
            cortes.push_back(i);
    });
    return texto.empty() ? std::vector<std::string>{} : Corta(texto, cortes, 0);
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
    const bool conSigno = !término.empty() && EsSigno(término.front());
    const std::string_view sinSigno = término.substr(conSigno ? 1 : 0);
    const std::string signo = término.starts_with('-') ? "-" : "";
    const NúmeroLeído número =
        EsSigno(sinSigno.empty() ? '\0' : sinSigno.front()) ? NúmeroLeído{} : LeeNúmero(sinSigno);
    if (número.longitud == 0)
        return {signo + "1", std::string(sinSigno)};
    const std::string_view resto = sinSigno.substr(número.longitud);
    if (resto.starts_with('^'))
        return {signo + "1", std::string(sinSigno)};
    const std::string coeficiente = TextoNúmero(Val(sinSigno));
    if (resto.starts_with('/'))
        return {signo + coeficiente, "1" + std::string(resto)};
    return {signo + coeficiente,
            std::string(sinSigno.substr(std::min(sinSigno.size(), coeficiente.size() + 1)))};
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
