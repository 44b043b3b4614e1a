// Symbolic calculus of a function of X: its derivative, its tangent and its secant.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

namespace quiralto {

// The workers of the menu commands. A refused line appends nothing to the worksheet but the two
// line breaks that the tangent and the secant write first.
void ResolverDerivada(Contexto& contexto, Hoja& hoja);
void ResolverTangente(Contexto& contexto, Hoja& hoja);
void ResolverSecante(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
