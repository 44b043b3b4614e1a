// The same formula with less to run.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/lenguaje/programa.h"

#include <optional>

namespace quiralto {

// A program that EvalúaPrograma runs to the same bits and the same faults at every X: what does not
// depend on X is computed, equal instructions on equal operands are one, small whole powers are the
// products that their value is made of, and a step that changes nothing is left out. Its registers
// may stand as operands any number of times; that of the last instruction is the result.
//
// None where the program has to be run as it stands: it does not depend on X or is X itself, an
// instruction without X has a fault, it draws random numbers, it holds a code outside the table, or
// it would need too many registers. The cost grows linearly with the program.
std::optional<Programa> Reduce(const Programa& programa);

} // namespace quiralto
