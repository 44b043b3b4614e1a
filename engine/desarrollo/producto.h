// Products of sums without quotients, collected to the letter; a quotient in them counts as a
// symbol like any other. The like terms that only their values show are for FundeSemejantes.
//
// What multiplies into a literal part stays in its form: equal bases add their exponents; SQR(u) is
// u to the one half where it meets another power of u, and what is left with a half in its exponent
// is written with SQR again, on the side on which it stands. A number or a group of one term to a
// whole power, and a group of several to a whole power from 1 up, is multiplied out.
//
// Faults: run-time error 6 for a coefficient beyond the Double range, 14 for too many terms.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// The product of two literal parts, into `producto` (not one of the two).
void MultiplicaLiterales(const TablaSímbolos& tabla, const Literal& a, const Literal& b,
                         Literal& producto);

// The literal part with its roots and the powers of their arguments joined.
void JuntaRaíces(const TablaSímbolos& tabla, Literal& literal);

// The power of a base that a root and its argument make together: the exponents of both. The root's
// is -1, 0 or 1 where it stays one.
struct ConRaíz {
    Exponente base;
    Exponente raíz;
};
ConRaíz JuntaRaíz(const Exponente& base, const Exponente& raíz);

// The sum of collected terms with what does not stay a power multiplied out.
Términos MultiplicaPotencias(TablaSímbolos& tabla, Términos suma);

// A product, term by term, each kind in the place of its first term.
Términos MultiplicaSumas(TablaSímbolos& tabla, const Términos& a, const Términos& b);

} // namespace quiralto
