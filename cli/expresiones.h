// The modes that take one expression. Each gives what goes to standard output: nothing where
// Sintaxis has refused the text, and has said why.
#pragma once

#include "cli/llamada.h"
#include "engine/base/contexto.h"

#include <string>

namespace quiralto::cli {

std::string DevSintaxis(Contexto& contexto, const Opciones& opciones);
std::string DevValores(Contexto& contexto, const Opciones& opciones);
std::string DevDerivada(Contexto& contexto, const Opciones& opciones);
std::string DevListado(Contexto& contexto, const Opciones& opciones);
std::string DevMuestras(Contexto& contexto, const Opciones& opciones);
std::string DevTabla(Contexto& contexto, const Opciones& opciones);

} // namespace quiralto::cli
