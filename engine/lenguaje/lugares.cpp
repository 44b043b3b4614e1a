#include "engine/lenguaje/lugares.h"

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"

#include <algorithm>
#include <iterator>

namespace quiralto {
namespace {

constexpr std::size_t MáximoLugares = 2'000'000; // bounds the memory

// A sign that belongs to an exponent or to the operand behind it separates nothing.
bool SeparaEn(std::string_view texto, std::size_t i) {
    if (!EsSigno(texto[i]) || i == 0)
        return true;
    return texto[i - 1] != 'E' && (texto[i] == '+' || !EsOperadorFuerte(texto[i - 1]));
}

std::size_t Índice(const DescripciónOperación& operador) {
    return static_cast<std::size_t>(operador.orden - 1);
}

} // namespace

Lugares::Lugares(std::string_view texto) {
    std::vector<std::size_t> abiertos(1, 0);
    grupos_.push_back({.principio = 0, .lugares = {}});
    std::size_t lugares = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        if (c == 'X' || c == 'u') {
            equis_.push_back(static_cast<std::uint32_t>(i));
        } else if (c == '(') {
            abiertos.push_back(grupos_.size());
            grupos_.push_back({.principio = i + 1, .lugares = {}});
        } else if (c == ')') {
            if (abiertos.size() == 1)
                throw ErrorEjecución(ArgumentoInválido);
            abiertos.pop_back();
        } else if (const DescripciónOperación* const operador = BuscaOperador(c);
                   operador != nullptr && SeparaEn(texto, i)) {
            grupos_[abiertos.back()].lugares[Índice(*operador)].push_back(
                static_cast<std::uint32_t>(i));
        } else {
            continue;
        }
        if (++lugares > MáximoLugares)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    }
    if (abiertos.size() != 1)
        throw ErrorEjecución(ArgumentoInválido);
}

bool Lugares::ContieneX(std::size_t principio, std::size_t fin) const {
    const auto primera = std::ranges::lower_bound(equis_, principio);
    return primera != equis_.end() && *primera < fin;
}

std::size_t Lugares::GrupoEn(std::size_t principio) const {
    const auto grupo = std::ranges::lower_bound(grupos_, principio, {}, &Grupo::principio);
    if (grupo == grupos_.end() || grupo->principio != principio)
        throw ErrorEjecución(ArgumentoInválido);
    return static_cast<std::size_t>(grupo - grupos_.begin());
}

const Lugares::Lista& Lugares::DevLista(std::size_t grupo, Operación operador) const {
    return grupos_[grupo].lugares[Índice(*BuscaOperación(operador))];
}

std::size_t Lugares::Primero(std::size_t grupo, Operación operador, std::size_t principio,
                             std::size_t fin) const {
    const Lista& lugares = DevLista(grupo, operador);
    const auto lugar = std::ranges::lower_bound(lugares, principio);
    return lugar != lugares.end() && *lugar < fin ? *lugar : fin;
}

std::size_t Lugares::Último(std::size_t grupo, Operación operador, std::size_t principio,
                            std::size_t fin) const {
    const Lista& lugares = DevLista(grupo, operador);
    const auto lugar = std::ranges::lower_bound(lugares, fin);
    return lugar != lugares.begin() && *std::prev(lugar) >= principio ? *std::prev(lugar) : fin;
}

} // namespace quiralto
