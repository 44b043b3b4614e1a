// Exact division of one sum by another.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <optional>

namespace quiralto {

// The sum that times `divisor` is `dividendo`, or none: long division over the symbols, in their
// order, highest powers first, ended by the first term that no quotient can have. Coefficients
// that are all whole are divided as whole numbers (so the divisor should have no whole factor of
// its own); others to 11 digits. None also for a division too long to be tried, and for sums that
// hold quotients.
std::optional<Términos> DivideExacta(const TablaSímbolos& tabla, const Términos& dividendo,
                                     const Términos& divisor);

// The greatest whole number that divides all coefficients; 0 where they are not all whole numbers
// that a Double holds exactly.
double DevFactorEntero(const Términos& suma);
double DevMcd(double a, double b);

} // namespace quiralto
