// Exact division of one sum by another.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <optional>

namespace quiralto {

// The sum that times `divisor` is `dividendo`, or none: long division over the symbols, in their
// order, highest powers first, ended by the first term that no quotient can have. None also for
// coefficients that are not exact, for a division too long to be tried, and for sums that hold
// quotients.
std::optional<Términos> DivideExacta(const TablaSímbolos& tabla, const Términos& dividendo,
                                     const Términos& divisor);

// The number that a sum is times another, whatever their terms hold; none where it is not.
std::optional<Coeficiente> DevProporción(const Términos& suma, const Términos& otra);

} // namespace quiralto
