// Number theory on plain numbers, and the numbers of an expression as quotients of integers.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

namespace quiralto {

// The workers of the menu commands. Each appends its result; a refused input appends nothing. Where
// an integer is needed, a number with decimals is rounded to the nearest one, a half to the even
// one.
void ResolverMcdNúmeros(Contexto& contexto, Hoja& hoja);
void ResolverMcmNúmeros(Contexto& contexto, Hoja& hoja);
void ResolverDivisoresNúmero(Contexto& contexto, Hoja& hoja);
void ResolverDescomposiciónEnFactoresPrimos(Contexto& contexto, Hoja& hoja);
void ResolverNúmerosPrimos(Contexto& contexto, Hoja& hoja);
void ResoverConvertirCoeficientesFracciónContinua(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
