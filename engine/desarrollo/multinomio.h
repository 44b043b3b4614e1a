// Powers of sums by the multinomial theorem.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <optional>

namespace quiralto {

// base^n for a whole n > 1, in the order in which the repeated product would give it: one step for
// every way to share n out among the terms. None where many of these would be like terms, so that
// squaring is cheaper, and for a base of many terms or of quotients.
std::optional<Términos> ElevaPorMultinomio(const TablaSímbolos& tabla, const Términos& base,
                                           std::int64_t n);

} // namespace quiralto
