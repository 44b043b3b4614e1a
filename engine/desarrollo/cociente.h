// Products and sums with quotients: how an open fraction becomes a sum, and a sum with quotients
// one fraction.
//
// The recursion that this floor has with itself: a quotient is closed (Cierra) by multiplying out
// its numerator, in which sums with quotients are multiplied term by term, each of them an open
// fraction that is reduced and closed. It ends because what a quotient holds is smaller than it,
// and is cut short by GuardaProfundidad (64 deep; run-time error 14).
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

namespace quiralto {

// The fraction as a sum: multiplied out where it has no denominator, otherwise one term that is a
// number times a quotient.
Términos Cierra(TablaSímbolos& tabla, const FracciónAbierta& f);

// The numerator multiplied out, with its number. Quotients in its sums are multiplied term by term.
Términos DevNumerador(TablaSímbolos& tabla, const FracciónAbierta& f);

// A product of two sums: term by term where one of several terms holds quotients.
Términos MultiplicaConCocientes(TablaSímbolos& tabla, const Términos& a, const Términos& b);

// a + b over the least product of their denominators that both divide; reduced.
FracciónAbierta SumaFracciones(TablaSímbolos& tabla, const FracciónAbierta& a,
                               const FracciónAbierta& b);

// A sum as one fraction.
FracciónAbierta SobreUnDenominador(TablaSímbolos& tabla, const Términos& suma);

// The same, but as it stands where bringing it over one denominator would take more than
// MáximosTérminosJuntados terms, and where its quotients hold others that have stayed so.
inline constexpr std::size_t MáximosTérminosJuntados = 1000;
FracciónAbierta SobreUnDenominadorSiCabe(TablaSímbolos& tabla, const Términos& suma);

} // namespace quiralto
