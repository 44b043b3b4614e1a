// A product with a denominator, not yet multiplied out: what a register holds while factors meet,
// so that equal ones add their exponents and common ones cancel before a sum is made of them.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// A sum of several terms to an exponent from 1 up.
struct Potencia {
    Términos suma;
    std::int64_t exponente = 1;
};

// coeficiente * arriba * sumas / abajo, and the opposite of that where signoAbajo.
struct FracciónAbierta {
    Coeficiente coeficiente = 1;
    Literal arriba = {};
    std::vector<Potencia> sumas =
        {};             // in the order in which they were multiplied; no two proportional
    Literal abajo = {}; // exponents above 0, or of more than a number
    bool signoAbajo = false;
};

// What a sum is, as a product: the factors of its one term, or itself. A quotient is opened.
FracciónAbierta Abre(TablaSímbolos& tabla, Términos suma);

// The product, its common factors cancelled (reduccion.h). Powers of one sum are one power.
FracciónAbierta Multiplica(TablaSímbolos& tabla, FracciónAbierta a, FracciónAbierta b);

// 1/f: its sums become groups, in lowest terms as to their numbers. Fault: run-time error 11 for 0.
FracciónAbierta DevInversa(TablaSímbolos& tabla, const FracciónAbierta& f);

// f^n. A negative power of a sum without a denominator stays one, above.
FracciónAbierta Eleva(TablaSímbolos& tabla, FracciónAbierta f, std::int64_t n);

// The sum as a group: its primitive part, as its text will say it, and the number that this leaves.
struct ConNúmero {
    IdSímbolo grupo;
    Coeficiente número;
};
ConNúmero DevGrupo(TablaSímbolos& tabla, const Términos& suma);

// Puts a sum among the powers of a fraction: joined to the power of a proportional one, or last.
void PonPotencia(FracciónAbierta& f, Términos suma, std::int64_t exponente);

// What groups with a whole exponent above 0 hold, moved from the literal part to the sums; powers
// of these groups below 0 join them too.
void AbreGrupos(TablaSímbolos& tabla, FracciónAbierta& f);

} // namespace quiralto
