// The greatest common divisor and the least common multiple of several rational functions. Each
// function is brought to lowest terms first, and the result too; a number that they are multiplied
// by changes neither, so that coefficients with decimals may be scaled.
// Tested by racional_test.cpp.
#pragma once

#include "engine/polinomios/racional.h"

#include <span>

namespace quiralto {

// That of the numerators over the lcm of the denominators. An exact polynomial that rounding would
// cut short is scaled to whole coefficients without a common factor. The list is not empty.
Racional DevMCDRacionales(Contexto& contexto, std::span<const Racional> funciones);

// That of the numerators over the gcd of the denominators. Exact functions whose coefficients are
// not all whole are first scaled to whole ones without a common factor; the result has whole
// coefficients and positive leading ones, and no constant denominator. The list is not empty.
Racional DevMCMRacionales(Contexto& contexto, std::span<const Racional> funciones);

} // namespace quiralto
