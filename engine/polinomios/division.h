// Long division of polynomials.
// Tested by polinomio_test.cpp.
#pragma once

#include "engine/polinomios/polinomio.h"

#include <utility>

namespace quiralto {

// Other rounding digits for as long as it lives: for steps on the way to a result, which do not
// show.
class GuardaDígitos {
public:
    GuardaDígitos(Contexto& contexto, int dígitos)
        : contexto_(contexto), anteriores_(std::exchange(contexto.DígitosRedondeo, dígitos)) {}
    ~GuardaDígitos() { contexto_.DígitosRedondeo = anteriores_; }
    GuardaDígitos(const GuardaDígitos&) = delete;
    GuardaDígitos& operator=(const GuardaDígitos&) = delete;

private:
    Contexto& contexto_;
    int anteriores_;
};

struct División {
    Polinomio cociente;
    Polinomio resto;
};

// Long division: dividendo = divisor * cociente + resto, with a remainder whose leading exponent is
// below the divisor's. Exact for exact polynomials; for others every remainder is rounded to
// DígitosRedondeo. Fault: run-time error 11 for the divisor 0.
División DividePolinomios(Contexto& contexto, const Polinomio& dividendo, const Polinomio& divisor);

} // namespace quiralto
