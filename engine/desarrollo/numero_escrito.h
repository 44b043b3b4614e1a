// What the texts of an expansion can say of a number: decimals up to DígitosRedondeo, and whole
// numbers of 15 digits, by themselves or on both sides of a fraction bar.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// Whether a number stays what it is when it is written as a decimal number.
bool EsDecimal(const TablaSímbolos& tabla, const Coeficiente& valor);

// The number as the two sides of a fraction bar can say it without a loss: within 15 digits each,
// or else a number of 15 digits or its inverse.
Coeficiente DevFracciónEscrita(const Coeficiente& valor);

// The number as it stands inside a function, a base, an exponent or a quotient, where none is
// rounded: as a decimal or as a fraction, whichever keeps it.
Coeficiente DevEscritoDentro(const TablaSímbolos& tabla, const Coeficiente& valor);

// a*b/gcd(a, b) of two whole numbers above 0.
Coeficiente DevMcm(const Coeficiente& a, const Coeficiente& b);

// Whether the text of a whole number is exact: that of 15 digits, 8E+21.
bool SeEscribeEntero(const Entero& valor);

} // namespace quiralto
