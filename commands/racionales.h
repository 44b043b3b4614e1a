// The commands on rational functions of X.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

namespace quiralto {

// The workers of the menu commands. Each appends one line; a refused input, or a formula that
// EvalúaRacional refuses, appends nothing. The line of a function that simplifies to a polynomial
// has no apostrophe and is thus an instruction line for the next command.
void ResolverSimplificarFunciónRacional(Contexto& contexto, Hoja& hoja);
// Numerator and denominator each by itself, not reduced to lowest terms first.
void ResolverFactorizarFunciónRacional(Contexto& contexto, Hoja& hoja);
void ResolverMáximoComúnDivisorFunciónRacional(Contexto& contexto, Hoja& hoja);
void ResolverMínimoComúnMúltiploFunciónRacional(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
