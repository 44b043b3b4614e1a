// One instruction on two values, for the scalar runs and for the plan's constants.
#pragma once

#include "engine/lenguaje/operaciones.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace quiralto {

// Written out row by row, so that the compiler sees each value's own code and makes one switch of
// the comparisons.
template <typename Acción, std::size_t... Fila>
inline void ConFilaEntre(std::index_sequence<Fila...>, Operación código, Acción acción) {
    static_cast<void>(((código == TablaOperaciones[Fila].código &&
                        (acción(std::integral_constant<std::size_t, Fila>{}), true)) ||
                       ...));
}

// Calls `acción` with the number of the code's row, a constant; not where there is none.
template <typename Acción> inline void ConFila(Operación código, Acción acción) {
    ConFilaEntre(std::make_index_sequence<TablaOperaciones.size()>{}, código, acción);
}

// A code outside the table gives `actual`.
inline double Opera(Operación código, double izquierdo, double derecho, double actual, Azar* azar) {
    double resultado = actual;
    ConFila(código,
            [&](auto fila) { resultado = TablaOperaciones[fila].valor(izquierdo, derecho, azar); });
    return resultado;
}

} // namespace quiralto
