// The greatest common divisor of two Doubles, decimals included.
#pragma once

namespace quiralto {

// The greatest number of which both are whole multiples, as positive integers of the last decimal
// place that either of them is written with (DevFormaEntera): .5 and .75 give .25. Where one is 0
// the other one as it is, sign included. Euclid's algorithm on integers, exact throughout. Fault:
// run-time error 6 where the result is too small for a Double.
double DevMCDReales(double a, double b);

} // namespace quiralto
