// Polynomials with whole coefficients and whole exponents from 0 up, as lists that the search for
// common factors works on.
// Tested by mcd_test.cpp.
#pragma once

#include "engine/polinomios/polinomio.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quiralto {

using MonomioNatural = Monomio<Entero, std::uint64_t>;
using Disperso = std::vector<MonomioNatural>; // highest exponent first, never empty
using Denso = std::vector<Entero>;            // coefficient i is that of X^i; the last one is not 0

// Two exact polynomials p and q in the variable Y = X^paso, without the powers of X that they
// share: p = X^bajo * p(Y) / denominador.
struct Pareja {
    Disperso p;
    Disperso q;
    double bajo = 0;
    double paso = 1;
};

// Neither polynomial is 0; their exponents are natural and at most MáximoEnteroExacto.
Pareja DevPareja(const PolinomioExacto& p, const PolinomioExacto& q);

// Fault: run-time error 14 for a degree past MáximoTérminosPolinomio.
Denso DevDenso(const Disperso& p);

// X^bajo * p(X^paso) / denominador
Polinomio DevPolinomio(Denso denso, double bajo, double paso, Entero denominador);

// Leaves no common factor in the coefficients and the leading one positive; what it has divided by.
Entero DividePorContenido(Denso& p);

// The quotient where every step of the division is exact and nothing is left.
std::optional<Denso> DivideDensos(Contexto& contexto, Denso resto, const Denso& divisor);

} // namespace quiralto
