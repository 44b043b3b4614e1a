// Cancelling between the sums of a numerator and the groups of a denominator: a sum that is a group
// times a number, that a group divides, or that divides a group.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

namespace quiralto {

// Cancels the first such pair, as often as both are there. Whether there was one.
bool CancelaSumas(TablaSímbolos& tabla, FracciónAbierta& f);

// Takes out of the first sum above, or group below, of which all terms share powers with the other
// side, these powers. Whether there was one.
bool SacaComunes(TablaSímbolos& tabla, FracciónAbierta& f);

} // namespace quiralto
