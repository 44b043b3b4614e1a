// Long division of polynomials.
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

} // namespace quiralto
