// How a simplified expansion computes: every value is a sum, or a product of powers of sums with a
// denominator that is not multiplied out before it must be.
//
// Its forms:
// - Products and powers from 0 up of sums are multiplied out when they are summed, wrapped or
//   written. u^a*u^b of whole powers of one sum is u^(a+b) before that.
// - A quotient by a number becomes coefficients. Any other quotient is a term: its numerator is
//   multiplied out, its denominator keeps the factors that it was made of; common factors are
//   cancelled (reduccion.h). The numbers of both sides are one fraction in lowest terms, a lone
//   group below takes its number in; no sign is pulled out of a numerator, and one below stays.
// - Sums of quotients stay sums, but no quotient stands inside a numerator or a denominator: they
//   are brought over one denominator first, up to a budget (cociente.h).
// - A sum without quotients times a quotient is one quotient; one with quotients is multiplied term
//   by term.
// - Negative powers stay; SQR, EXP and exponents: see producto.h, simbolos.h, escribe.h.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/acumulada.h"
#include "engine/desarrollo/fraccion_abierta.h"

#include <optional>
#include <string>

namespace quiralto {

class ReglasSimplificado {
public:
    struct Valor {
        Acumulada suma;
        std::optional<FracciónAbierta> producto; // instead of the sum, while it is one
    };

    explicit ReglasSimplificado(TablaSímbolos& tabla) : tabla_(tabla) {}

    Valor Suma(Valor a, Valor b, int signo);
    Valor Producto(Valor& a, Valor& b);
    Valor Cociente(Valor& a, Valor& b);
    Valor Potencia(Valor& a, Valor& b);
    Valor Llamada(const DescripciónOperación& función, Valor& argumento);
    std::string Escribe(Valor valor);
    Términos ComoSuma(Valor& valor);

private:
    void Cierra(Valor& valor);
    FracciónAbierta ComoProducto(Valor& valor);
    FracciónAbierta ComoFracción(Valor& valor);
    bool EsSumaConCocientes(Valor& valor);

    TablaSímbolos& tabla_;
};

} // namespace quiralto
