// Exponents, and sums as they stand inside a function, a base or an exponent: no number is rounded
// there. Where a decimal would lose digits the sum stands over one whole number, "(2*X+3)/6", as
// long as all numbers have at most 15 digits; otherwise its terms are fractions of their own.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <span>
#include <string>
#include <string_view>

namespace quiralto {

// A term of which the text of the literal part is known.
struct Sumando {
    Coeficiente coeficiente; // not 0
    std::string_view literal;
};

// Adds the sum to the text. Fault: run-time error 14 past MáximoTexto.
void EscribeSumandos(const TablaSímbolos& tabla, std::string& texto, std::vector<Sumando> suma);

// Adds what stands behind a base, "^2", "^(A+1)": nothing for 1. The factors are all those of the
// base.
void EscribeExponente(const TablaSímbolos& tabla, std::string& texto,
                      std::span<const Factor> factores);

// Adds the exponent alone.
void EscribeSumaExponente(const TablaSímbolos& tabla, std::string& texto,
                          std::span<const Factor> factores);

} // namespace quiralto
