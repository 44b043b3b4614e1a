// How a program is run over many values of X at once: which steps it takes, and in which rows of
// values they work. plan.h makes the plan, nucleos.h has the loops of its steps, bloque.h runs it;
// evalua.h is what others use.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/lenguaje/programa.h"

#include <array>
#include <cstddef>
#include <vector>

namespace quiralto {

// No operation: its left operand as it is.
inline constexpr Operación Nada{};

constexpr bool EsAritmética(Operación código) {
    return código == Operación::Suma || código == Operación::Resta ||
           código == Operación::Producto || código == Operación::Cociente;
}

// (a interna[0] b) código (c interna[1] d) over whole rows, with what is read once only on its way;
// a function takes (a interna[0] b). The operands are numbers of rows, or of constants; the
// destination is none of them.
struct Paso {
    Operación código;
    std::array<Operación, 2> internas{Nada, Nada};
    std::array<std::size_t, 4> operandos{};
    std::size_t destino = 0;
    // Some reader of the row, or the end of the run, could hide that a value is not finite.
    bool vigilado = false;
    // Of a sine whose cosine is wanted too: where that goes, both from one call; otherwise 0.
    std::size_t destinoCoseno = 0;
};

// Row 0 is X, the constants follow, and behind them the rows, which are used again once their last
// reader has run. The last step writes the result.
struct Plan {
    std::vector<Paso> pasos;
    std::vector<double> constantes;
    std::size_t filas = 0;
};

// True and the plan, or false where there would be too many rows. The program is one that Reduce
// gives; the plan gives its bits.
bool PlaneaBloque(const Programa& reducido, Plan& plan);

} // namespace quiralto
