// Expansion of a function of X, or of a function of the letters A to Z.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"

#include <optional>
#include <string>

namespace quiralto {

// The workers of the menu commands. Each reads one line and appends its expansion; a refused line
// appends nothing.
void ResolverDesarrolloCompleto(Contexto& contexto, Hoja& hoja);
void ResolverDesarrolloSimplificado(Contexto& contexto, Hoja& hoja);
void ResolverDesarrolloCompletoMultivariable(Contexto& contexto, Hoja& hoja);
void ResolverDesarrolloSimplificadoMultivariable(Contexto& contexto, Hoja& hoja);

// Reads the single instruction line as a function of letters, as Sintaxis leaves it. None: a
// message has been shown; a line that is wrong is selected.
std::optional<std::string> CargaFunciónMultivariable(Contexto& contexto, Hoja& hoja);

} // namespace quiralto
