// Expansion: a formula as a sum of terms, and the splitting of such sums.
//
// The form of every expansion, which expanding it again does not change:
// - A term is its coefficient and its factors, joined by "*": no "1*", and "-" alone for -1. Each
//   base stands once; variables come first, in alphabetical order (unknowns SLN(i) by i), then
//   numbers that are raised, groups and functions by their texts. A base is followed by "^" and
//   its exponent, unless that is 1. Numbers are rounded to DígitosRedondeo.
// - Products and powers from 0 up of sums are multiplied out, term by term, each kind of term in
//   the place of its first. A sum A + B has first the terms that met a like one, in the order of
//   B, then the others of A, then those of B. semejantes.h says which terms are alike.
// - Whole powers of numbers are computed; other powers stay. Exponents and the arguments of
//   functions are expanded in the same way, exponents with their number last.
// - Complete: one fraction over one denominator, both expanded, whole numbers in it as they are,
//   negative whole exponents below it. Simplified: a sum of terms, in which a quotient by a number
//   has become coefficients, and any other quotient stays, both sides expanded; negative exponents
//   stay.
// - A quotient in a sum has its sign in front where its numerator, of several terms, begins with a
//   negative one; numerator and denominator are scaled to whole coefficients where decimals would
//   cut one of them short (1/(X/7+1) is 7/(X+7)).
// - Common factors of numerator and denominator are cancelled: powers, functions and groups,
//   whole numbers, one side that divides the other, and groups that were factors of both.
// - Parentheses only where the language needs them, and around a power that is raised again.
#pragma once

#include "engine/base/contexto.h"
#include "engine/desarrollo/simbolos.h"
#include "engine/lenguaje/programa.h"

#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

// The expansion of a compiled formula. The watcher is asked. Faults: run-time error 6 for a number
// beyond the Double range, 11 for a division by zero, 14 for a result past MáximoTexto or too many
// terms on the way.
std::string DesarrollaCompleto(Contexto& contexto, const Programa& programa);
std::string DesarrollaSimplificado(Contexto& contexto, const Programa& programa);

// The simplified expansion as a value of the table (of that class), its numbers not yet rounded.
Términos DesarrollaEnTérminos(TablaSímbolos& tabla, const Programa& programa);

// The sum of two expanded texts, like terms collected.
std::string SumaDesarrollo(Contexto& contexto, std::string_view a, std::string_view b);

// Whether two texts of the language agree, rounded to DígitosRedondeo, at ten random values of X
// in [-10, 11). A point where neither has a value says nothing; with no other point only equal
// texts are the same.
bool MismaExpresión(Contexto& contexto, const std::string& p, const std::string& q);

} // namespace quiralto
