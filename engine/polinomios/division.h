// Long division of polynomials.
// Tested by polinomio_test.cpp.
#pragma once

#include "engine/polinomios/polinomio.h"

namespace quiralto {

struct División {
    Polinomio cociente;
    Polinomio resto;
};

// Long division: dividendo = divisor * cociente + resto, with a remainder whose leading exponent is
// below the divisor's. Exact for exact polynomials; for others every remainder is rounded to
// DígitosRedondeo. Fault: run-time error 11 for the divisor 0.
División DividePolinomios(Contexto& contexto, const Polinomio& dividendo, const Polinomio& divisor);

// The same for steps on the way to a result, whatever the size of the numbers: nothing is rounded,
// and what cancels but for the rounding of Doubles is 0.
División DivideSinRedondear(Contexto& contexto, const Polinomio& dividendo,
                            const Polinomio& divisor);

} // namespace quiralto
