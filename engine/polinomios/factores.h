// Factors of polynomials from their numeric roots.
#pragma once

#include "engine/base/contexto.h"
#include "engine/polinomios/polinomio.h"

#include <string>

namespace quiralto {

// The polynomial, without leading terms that rounding leaves nothing of, as a product: a factor "X"
// or "(X-r)" for each root that BuscaSolución finds from a on, in steps of h > 0, up to b, each
// root once whatever its multiplicity; then "*(" quotient ")" where these are fewer than the
// degree, otherwise the leading coefficient in front of them. Of an exact polynomial up to
// MáximoGradoExacto (without the powers of X that all its terms share) the texts round the exact
// roots, and the quotient is that by the exact roots; of others by roots with all the digits of a
// Double. Without a root, or with an exponent that is negative or not whole, the polynomial as it
// stands.
//
// Leaves ErrorCódigo clear. Fault: run-time error 6 for a polynomial of more terms than a program
// has instructions, 14 for a quotient past MáximoTérminosPolinomio.
std::string FactorizaPolinomio(Contexto& contexto, const Polinomio& polinomio, double a, double b,
                               double h);

} // namespace quiralto
