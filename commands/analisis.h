// Numeric analysis of a function of X on an interval: solutions, extremes, inflection points, area.
// Every command divides its interval into 1000 steps and steps over points without a value.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

namespace quiralto {

// The workers of the menu commands. Each reads one line f(x),extremo1,extremo2 and appends its
// results; a refused line appends nothing.
void ResolverSolucionesEcuación(Contexto& contexto, Hoja& hoja);
void ResolverMáximosEcuación(Contexto& contexto, Hoja& hoja);
void ResolverMínimosEcuación(Contexto& contexto, Hoja& hoja);
void ResolverPuntosInflexión(Contexto& contexto, Hoja& hoja);
void ResolverArea(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
