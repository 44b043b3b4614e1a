// From the values of an expansion to their text.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <string>

namespace quiralto {

// The text of a sum whose coefficients are final (forma_final.h): one that is no decimal number
// stands as a fraction, "X/10000000000". Without redundant parentheses, with one exception: a power
// stands in parentheses where it is raised again, "(X^2)^.5". Fault: run-time error 14 past
// MáximoTexto.
std::string EscribeSuma(const TablaSímbolos& tabla, const Términos& suma);

// The same inside a function or a base, where fractions stand over one number (escribe_dentro.h).
std::string EscribeDentro(const TablaSímbolos& tabla, const Términos& suma);

// The text of a literal part; "" for none.
std::string EscribeLiteral(const TablaSímbolos& tabla, const Literal& literal);

// "numerador/denominador" for a denominator that is not 1.
std::string EscribeFracción(const TablaSímbolos& tabla, const Términos& numerador,
                            const Términos& denominador);

// The coefficient of a term as its text will say it: a decimal number, or a fraction where the term
// is a quotient and where the decimal would be 0.
Coeficiente DevCoeficienteEscrito(const TablaSímbolos& tabla, const Término& término);

} // namespace quiralto
