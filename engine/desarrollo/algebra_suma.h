// Products, powers and quotients of the sums that an expansion computes with.
//
// Every result is collected to the letter; the like terms that only their values show are the
// caller's to join (FundeSemejantes). Faults: run-time error 6 for a coefficient beyond the Double
// range, 11 for a division by zero, 14 for a result of too many terms or quotients nested too deep.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <span>

namespace quiralto {

// A product, term by term, each kind in the place of its first term.
Términos MultiplicaSumas(TablaSímbolos& tabla, const Términos& a, const Términos& b);

// base^exponente. Whole powers of numbers and terms are computed, those of sums from 0 up are
// products. Other powers stay powers: of the base itself, or of a group.
Términos ElevaSuma(TablaSímbolos& tabla, const Términos& base, const Términos& exponente);
Términos ElevaAEntero(TablaSímbolos& tabla, const Términos& base, double exponente);

// The factors that are a base to that exponent, in their order.
Literal DevPotenciaDe(TablaSímbolos& tabla, IdBase base, const Términos& exponente);

struct Fracción {
    Términos numerador;
    Términos denominador = SumaNúmero(1);
};

// numerador/denominador without common factors: powers, functions and groups that all terms
// share, whole numbers, and the whole of one side where it divides the other; also those of
// `divisores` that divide both. A denominator of one term has a positive whole coefficient
// wherever its coefficient is a decimal.
Fracción ReduceFracción(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                        std::span<const Términos> divisores = {});

// A sum, quotients in it brought over one denominator, as a fraction.
Fracción DevFracción(TablaSímbolos& tabla, const Términos& suma);

// A fraction as a sum: divided out where the denominator is a number, otherwise one term that is a
// number times a quotient.
Términos DevCociente(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                     std::span<const Términos> divisores = {});

// Whether a term, if it is a quotient, is as it would be with the coefficient drawn into it.
bool EstáReducido(const TablaSímbolos& tabla, double coeficiente, const Literal& literal);

bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma);

// Fault: run-time error 6.
void EscalaSuma(Términos& suma, double factor);

// The sum with its exponents as each of them would be expanded by itself: quotients reduced, and in
// a complete expansion over one denominator.
Términos AsientaSuma(TablaSímbolos& tabla, Términos suma);

// The sum as its text will read: numbers rounded to DígitosRedondeo, what rounds to 0 left out,
// factors drawn into their quotients, like terms joined.
Términos RedondeaSuma(TablaSímbolos& tabla, Términos suma);
bool EstáRedondeada(const TablaSímbolos& tabla, const Términos& suma);

} // namespace quiralto
