// Common factors of polynomials. Where both polynomials are exact and their exponents are whole
// numbers from 0 up, nothing here rounds: the greatest common divisor is found modulo primes, put
// together by the Chinese remainder theorem and confirmed by exact division (von zur Gathen and
// Gerhard, Modern Computer Algebra, 6.7). Elsewhere MCDPolinomios is the last divisor of the chain
// of divisions in which every intermediate polynomial is rounded to DígitosRedondeo, and
// MCDPrimitivo that of a chain in which only what the rounding of Doubles explains counts as
// nothing.
#pragma once

#include "engine/polinomios/polinomio.h"

#include <optional>

namespace quiralto {

// The last divisor other than 0 of the chain of divisions that begins with the polynomial of
// higher degree (with p where they are equal). An exact one whose coefficients are not all decimals
// of at most DígitosRedondeo places and 15 digits is scaled to whole coefficients without a common
// factor and a positive leading one. The other polynomial where one is 0. A constant says that
// there is no common factor.
// Fault: run-time error 14 where both have a degree past MáximoTérminosPolinomio.
Polinomio MCDPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q);

// The greatest common divisor to divide both by, neither of them 0: for exact polynomials with
// whole coefficients, no common factor in them, the leading one positive; for others the leading
// coefficient 1, and a remainder that rounding explains. The constant 1 where there is none.
Polinomio MCDPrimitivo(Contexto& contexto, const Polinomio& p, const Polinomio& q);

// The quotient where the divisor (not 0) leaves no remainder; otherwise none. On exact data it is
// exact, and found out before any coefficient grows.
// Fault: run-time error 14 for a quotient that could pass MáximoTérminosPolinomio.
std::optional<Polinomio> DivideSiExacta(Contexto& contexto, const Polinomio& dividendo,
                                        const Polinomio& divisor);

} // namespace quiralto
