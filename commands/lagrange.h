// The polynomial through given points.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

namespace quiralto {

// The worker of the menu command: reads x1,y1,x2,y2,... and appends the interpolating polynomial; a
// refused input appends nothing. Faults: those of DevPolinomioPorPuntos.
void ResolverPolinomioLagrange(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
