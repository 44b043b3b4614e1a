// One instruction on two values, for the scalar run and for the plan's constants.
#pragma once

#include "engine/lenguaje/operaciones.h"

#include <cstddef>
#include <utility>

namespace quiralto {

// Written out row by row, so that the compiler sees each value's own code and makes one switch of
// the comparisons. A code outside the table gives `actual`.
template <std::size_t... Fila>
inline double OperaEntre(std::index_sequence<Fila...>, Operación código, double izquierdo,
                         double derecho, double actual, Azar* azar) {
    double resultado = actual;
    static_cast<void>(
        ((código == TablaOperaciones[Fila].código &&
          (resultado = TablaOperaciones[Fila].valor(izquierdo, derecho, azar), true)) ||
         ...));
    return resultado;
}

inline double Opera(Operación código, double izquierdo, double derecho, double actual, Azar* azar) {
    return OperaEntre(std::make_index_sequence<TablaOperaciones.size()>{}, código, izquierdo,
                      derecho, actual, azar);
}

} // namespace quiralto
