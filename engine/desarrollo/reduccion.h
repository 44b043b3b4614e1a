// The common factors of the two sides of a fraction.
//
// Cancelled are: powers of one base (also those of a root and its argument, and of EXP); a sum
// above and a group below that is it times a number; a sum that a group divides exactly, or that
// divides a group, as often as it does; powers that all terms of a sum or of a group have in common
// with the other side; functions and groups that are alike by their values. No greatest common
// divisor is sought beyond these.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

namespace quiralto {

void Reduce(TablaSímbolos& tabla, FracciónAbierta& f);

} // namespace quiralto
