// Numbers as quotients of integers, found by their continued fractions.
#pragma once

#include "engine/base/contexto.h"

#include <string>
#include <string_view>

namespace quiralto {

// The number as the best of the convergents p/q of its continued fraction, the one with the
// smallest |x - p/q| * q^2 as Doubles reckon it, the first of them among equals, so that of all
// with the very value of x the shortest is taken: "(p/q)", or "p" where q is 1, a "-" in front for
// a negative number. The fraction is that of the number as the general form writes it, so what has
// at most 15 digits comes back with its own value. A number of more than 15 decimals is its digits
// over a power of ten, and one too small for that power to be a Double stays as it is. Fault:
// run-time error 5 or 6 for what is not finite.
std::string DevFracciónContinua(double x);

// An expression that Sintaxis has accepted with every number in it, exponent included, replaced by
// its DevFracciónContinua; Sintaxis accepts the result. Faults: run-time error 6 for a number
// beyond the Double range, 14 for a result past MáximoTexto.
std::string ConvFrCont(Contexto& contexto, std::string_view expresión);

} // namespace quiralto
