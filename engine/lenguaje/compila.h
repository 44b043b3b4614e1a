// From the text of a formula to its program.
#pragma once

#include "engine/lenguaje/programa.h"

#include <string_view>

namespace quiralto {

// Compiles a text that Sintaxis has accepted (or one that the engine built in the same language);
// an empty text is taken as "0". The cost grows linearly with the text.
//
// The instructions stand in the order of the language's rewriting rules, which decides which fault
// comes first and how sums are associated. Groups are compiled innermost and leftmost first; inside
// a group, after a leading "-" has become "0-": the functions in the order of their rows in
// operaciones.h, the signs behind "^", then behind "/", then behind "*" (each as 0 minus
// the operand that follows), and then all "^", all "/", all "*", all "-" and all "+", each from
// left to right. So "2^3^2" is 64, "2*-3^2" is 18, "-3^2" is -9. A lone number or X becomes 0 plus
// itself.
//
// Faults: run-time error 6 for more than 32767 registers or instructions, or a number beyond the
// Double range; 5 for a text that is not of the language.
Programa CompilaExpresión(std::string_view texto);

} // namespace quiralto
