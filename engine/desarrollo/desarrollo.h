// Expansion: a formula as a sum of terms.
//
// The form of every expansion, which expanding it again does not change:
// - A term is its coefficient and its factors, joined by "*": no "1*", and "-" alone for -1. Each
//   base stands once; variables come first, in alphabetical order (unknowns SLN(i) by i), then
//   numbers that are raised, groups and functions by their texts. A base is followed by "^" and
//   its exponent, unless that is 1.
// - Numbers are exact while they are computed with (coeficiente.h). The coefficients of the sum
// that
//   is emitted are rounded to DígitosRedondeo; one that is not 0 is never written as 0, but as a
//   fraction. Inside functions, bases, exponents and quotients nothing is rounded: what a decimal
//   would cut stands as a fraction, as far as 15 digits go (escribe_dentro.h).
// - Products and powers from 0 up of sums are multiplied out, term by term, each kind of term in
//   the place of its first. A sum A + B has first the terms that met a like one, in the order of
//   B, then the others of A, then those of B. semejantes.h says which terms are alike.
// - Whole powers of numbers are computed; other powers stay. Exponents and the arguments of
//   functions are expanded in the same way, exponents with their number last. An exponent that is a
//   fraction whose decimals would lose digits is written as one.
// - SQR(u) is u to the one half where it meets other powers of u, and what is left with a half in
//   its exponent is written with SQR; a power typed as u^.5 stays. u is a whole base: no exponent
//   is multiplied through a power that is not whole. EXP(u)*EXP(v) is EXP(u+v).
// - Quotients: reglas_simplificado.h and reglas_completo.h, each for its kind.
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

// The simplified expansion as a value of the table (of that class, or of that of linear equations),
// its numbers not yet rounded.
Términos DesarrollaEnTérminos(TablaSímbolos& tabla, const Programa& programa);

// The sum of two expanded texts, like terms collected.
std::string SumaDesarrollo(Contexto& contexto, std::string_view a, std::string_view b);

// Whether two texts of the language are alike as terms are (semejantes.h).
bool MismaExpresión(Contexto& contexto, const std::string& p, const std::string& q);

} // namespace quiralto
