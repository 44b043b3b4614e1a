#include "engine/lenguaje/termino_texto.h"

#include "engine/base/caracteres.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace quiralto {
namespace {

// A sign behind one of these belongs to what follows it.
bool AtaElSigno(char c) {
    return EsOperadorFuerte(c) || c == 'E' || c == 'D';
}

} // namespace

void EscribeNúmero(std::string& texto, double valor) {
    constexpr double MáximoLlano = 1e15; // the general form has as many digits
    if (!(std::fabs(valor) < MáximoLlano) || valor != std::trunc(valor)) {
        texto += TextoNúmero(valor);
        return;
    }
    std::array<char, 24> búfer{};
    const auto fin =
        std::to_chars(búfer.data(), búfer.data() + búfer.size(), static_cast<std::int64_t>(valor));
    texto.append(búfer.data(), fin.ptr);
}

void EscribeTérmino(std::string& texto, double coeficiente, std::string_view literal,
                    std::size_t principio) {
    if (coeficiente == 0)
        return;
    if (coeficiente > 0 && texto.size() > principio)
        texto += '+';
    if (literal.empty())
        return EscribeNúmero(texto, coeficiente);
    if (std::fabs(coeficiente) == 1) {
        if (coeficiente < 0)
            texto += '-';
    } else {
        EscribeNúmero(texto, coeficiente);
        if (literal.starts_with("1/"))
            literal.remove_prefix(1);
        else
            texto += '*';
    }
    texto += literal;
}

std::size_t FinDeTérmino(std::string_view suma, std::size_t principio) {
    std::size_t abiertos = 0;
    for (std::size_t i = principio; i < suma.size(); ++i) {
        if (suma[i] == '(')
            ++abiertos;
        else if (suma[i] == ')')
            abiertos -= abiertos > 0 ? 1 : 0;
        else if (abiertos == 0 && EsSigno(suma[i]) && i > principio && !AtaElSigno(suma[i - 1]))
            return i;
    }
    return suma.size();
}

TérminoLeído LeeTérmino(std::string_view término) {
    const double signo = término.starts_with('-') ? -1 : 1;
    if (!término.empty() && EsSigno(término.front()))
        término.remove_prefix(1);
    const bool otroSigno = !término.empty() && EsSigno(término.front());
    const NúmeroLeído número = otroSigno ? NúmeroLeído{} : LeeNúmero(término);
    const std::string_view resto = término.substr(número.longitud);
    if (número.longitud == 0 || resto.starts_with('^'))
        return {signo, std::string(término)};
    const double valor = Val(término);
    if (resto.starts_with('/'))
        return {signo * valor, '1' + std::string(resto)};
    if (resto.empty())
        return {signo * valor, {}};
    const std::size_t literal = TextoNúmero(valor).size() + 1;
    return {signo * valor, std::string(término.substr(std::min(término.size(), literal)))};
}

} // namespace quiralto
