// Sums as their texts will read.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// The sum as a text says it: its coefficients rounded to DígitosRedondeo, its exponents settled. An
// exponent that is an expression keeps its numbers; in a complete expansion it is brought over one
// denominator.
Términos DevFormaFinal(TablaSímbolos& tabla, Términos suma);

// The same inside a function, a base, an exponent or a quotient: no coefficient is rounded that a
// fraction can keep, and a number of a linear system as it is.
Términos DevFormaInterior(TablaSímbolos& tabla, Términos suma);

// The sum with its exponents settled and its own coefficients as they are.
Términos DevAsentada(TablaSímbolos& tabla, Términos suma);

// A numerator is written with the numerator of its coefficient multiplied in. Where the text would
// cut a number of that, both become what it says, the numerator without a common factor: as often
// as what is left is cut again; the numbers become less each time. Whether there was one.
bool CortaNumerador(const TablaSímbolos& tabla, Coeficiente& coeficiente, Términos& numerador);

} // namespace quiralto
