// Sums as their texts will read.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// The sum with its coefficients rounded to what a text says of them and with its exponents settled:
// an exponent that is an expression is rounded like a sum of its own (in a complete expansion it is
// brought over one denominator instead, exactly).
Términos DevFormaFinal(TablaSímbolos& tabla, Términos suma);

// The sum with its exponents settled and its own coefficients as they are.
Términos DevAsentada(TablaSímbolos& tabla, Términos suma);

} // namespace quiralto
