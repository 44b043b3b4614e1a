// From the values of an expansion to their text.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <string>

namespace quiralto {

// The text of a sum, coefficients and exponents rounded to DígitosRedondeo; terms that round to 0
// are left out, and "0" stands for none. Without redundant parentheses, with one exception: a
// power stands in parentheses where it is raised again, "(X^2)^.5". Fault: run-time error 14 past
// MáximoTexto.
std::string EscribeSuma(const TablaSímbolos& tabla, const Términos& suma);

// The text of a literal part; "" for none.
std::string EscribeLiteral(const TablaSímbolos& tabla, const Literal& literal);

// "numerador/denominador" for a denominator that is not 1.
std::string EscribeFracción(const TablaSímbolos& tabla, const Términos& numerador,
                            const Términos& denominador);

// An exponent as it will be written: rounded, or, in a complete expansion, left as it is where it
// is a fraction of small whole numbers, which is then written as such.
double DevExponenteFinal(const TablaSímbolos& tabla, double exponente);

} // namespace quiralto
