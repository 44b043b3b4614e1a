// How a program is run over many values of X at once: which instructions are left once those that
// do not depend on X are done, and in which rows of values they work. plan.h makes the plan,
// bloque.h runs it; evalua.h is what others use.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/lenguaje/programa.h"

#include <cstddef>
#include <vector>

namespace quiralto {

// A row of values (its number; row 0 is X), or one value for all of them.
struct Operando {
    bool esFila = false;
    std::size_t fila = 0;
    double valor = 0;
};

// One instruction over whole rows. The destination is never a row of an operand.
struct Paso {
    Operación código;
    Operando izquierdo;
    Operando derecho;
    std::size_t destino;
    // Some reader of the row, or the end of the run, could hide that a value is not finite.
    bool vigilado = false;
    // Of a sine whose cosine is wanted too: where that goes, both from one call; otherwise 0.
    std::size_t destinoCoseno = 0;
};

struct Plan {
    std::vector<Paso> pasos;
    std::size_t filas = 1; // a row is used again once its last reader has run
    std::size_t resultado = 0;
};

// True and the plan, or false where the program is to be run value by value: it does not depend on
// X, a constant instruction of it has a fault, it draws random numbers, it holds a code outside the
// table, or it would need too many rows. Equal instructions on equal operands are planned once; all
// else gives the bits of the program as it stands.
bool PlaneaBloque(const Programa& programa, Plan& plan);

} // namespace quiralto
