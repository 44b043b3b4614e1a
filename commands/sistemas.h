// Systems of linear equations in the unknowns X(1) to X(256), one equation a line.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"
#include "engine/sistemas/sistema_lineal.h"

#include <span>
#include <string>

namespace quiralto {

// The worker of the menu command: appends every unknown, the highest first, as an expression in
// the free ones, which are written SLN(i). A refused line is selected and nothing is appended.
void ResolverSistemaLineal1(Contexto& contexto, Hoja& hoja);

// The system of the equations, which are to outlive it.
SistemaLineal ResolverSistemaLineal2(Contexto& contexto,
                                     std::span<const EcuaciónLineal> ecuaciones);

// Eliminates the system and appends its solutions, or which equation makes it incompatible.
void ResolverSistemaLineal3(Contexto& contexto, Hoja& hoja, SistemaLineal& sistema);

// The output for an eliminated system that is compatible: every unknown, the highest first, and
// what SLN(i) means where one is free. The watcher is asked.
std::string ResolverSistemaLineal4(Contexto& contexto, const SistemaLineal& sistema);

} // namespace quiralto
