// The greatest common divisor and the least common multiple of numbers, decimals included.
#pragma once

#include "engine/numeros/entero.h"

namespace quiralto {

// The greatest number of which both are whole multiples, as positive integers of the last decimal
// place that either of them is written with (DevFormaEntera): .5 and .75 give .25. Where one is 0
// the other one as it is, sign included. Euclid's algorithm on integers, exact throughout. Fault:
// run-time error 6 where the result is too small for a Double.
double DevMCDReales(double a, double b);

// A number of any length: mantisa * 10^exponente.
struct Decimal {
    Entero mantisa;
    int exponente = 0;

    // What the number is written with: DevFormaEntera and the sign.
    static Decimal DesdeDouble(double valor);
    // The nearest one. Fault: run-time error 6 beyond the Double range.
    double ADouble() const;
};

// a * b over their greatest common divisor, exact, with the sign of the product; 0 where one of
// them is 0. Faults: run-time error 11 where both are 0, 6 beyond the Double range.
Decimal DevMCMReales(const Decimal& a, const Decimal& b);

} // namespace quiralto
