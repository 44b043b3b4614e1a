// The recursion of the expansion: what a lower floor calls of a higher one, and why that ends.
//
// - A product multiplies out the power of a group that has become whole (ElevaAEntero): a group's
//   content is final and holds no such power.
// - An open fraction is reduced and its groups get their final text (Reduce, DevFormaInterior).
//   Groups with quotients that have become whole powers of it, and exponents as they get their
//   final text, are brought over one denominator (SobreUnDenominadorSiCabe, DevUnCociente): what is
//   inside a quotient, a group or an exponent is smaller than it.
// Each level holds a GuardaProfundidad, which ends the work with run-time error 14 at 64 of them.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

struct FracciónAbierta;

// NOLINTBEGIN(readability-redundant-declaration): each has a header of its own, on a higher floor
Términos ElevaAEntero(TablaSímbolos& tabla, const Términos& base, std::int64_t exponente);
void Reduce(TablaSímbolos& tabla, FracciónAbierta& f);
Términos DevFormaInterior(TablaSímbolos& tabla, Términos suma);
FracciónAbierta SobreUnDenominadorSiCabe(TablaSímbolos& tabla, const Términos& suma);
Términos DevUnCociente(TablaSímbolos& tabla, const Términos& suma);
// NOLINTEND(readability-redundant-declaration)

} // namespace quiralto
