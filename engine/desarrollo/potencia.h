// Powers of sums without quotients, collected to the letter.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// base^exponente: numbers and terms are computed, also to negative exponents; a sum of several
// terms is multiplied out, to an exponent from 0 up. Faults as those of products, and 11 for 0 to a
// negative exponent.
Términos ElevaAEntero(TablaSímbolos& tabla, const Términos& base, std::int64_t exponente);

// The plain symbol of a sum as a base: itself, a number, or a group. The sum's text is final.
IdSímbolo DevBaseDe(TablaSímbolos& tabla, const Términos& suma);

// The factors that are a base to that exponent (a sum), in their order.
Literal DevPotenciaDe(TablaSímbolos& tabla, IdBase base, const Términos& exponente);

// The sum that the exponents of the factors of one base are.
Términos DevExponente(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde,
                      std::size_t fin);

} // namespace quiralto
