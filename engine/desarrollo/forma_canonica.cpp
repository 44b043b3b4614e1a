#include "engine/desarrollo/forma_canonica.h"

#include "engine/desarrollo/recolector.h"

#include <algorithm>

namespace quiralto {

bool EsCanónica(const TablaSímbolos& tabla, const Términos& suma) {
    constexpr std::size_t MáximosMirados = 1000;
    const std::size_t mirados = std::min(suma.size(), MáximosMirados);
    ÍndiceHash índice;
    for (std::uint32_t i = 0; i < mirados; ++i) {
        const Literal& literal = suma[i].literal; // no binding: clang 14 captures none
        const bool enOrden = std::ranges::is_sorted(literal, [&](const Factor& a, const Factor& b) {
            return tabla.Precede(a.símbolo, b.símbolo);
        });
        const bool hayCero = std::ranges::any_of(
            literal, [](const Factor& factor) { return factor.exponente.Signo() == 0; });
        const std::uint64_t hash = DevHash(literal);
        const bool repetido = índice.Busca(hash, [&](std::uint32_t k) {
            return suma[k].literal == literal;
        }) != ÍndiceHash::Ninguno;
        if (suma[i].coeficiente.EsCero() || !enOrden || hayCero || repetido)
            return false;
        índice.Añade(hash, i);
    }
    return true;
}

} // namespace quiralto
