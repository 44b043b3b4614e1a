// The worksheet's data in words, as a command would read them: for whoever types them.
#pragma once

#include "engine/base/contexto.h"

#include <string>
#include <string_view>

namespace quiralto {

// "f(X)=X^2-4 · extremo 1: -5 · extremo 2: 5", "4 números: 0 · 5 · 0 · 75", "3 ecuaciones, 3
// incógnitas", "2 líneas de datos", "Sin datos"; and why a line is refused. Lines end in CR LF.
// Shows nothing, and reads no further than 64 KiB.
std::string DevLectura(Contexto& contexto, std::string_view hoja);

} // namespace quiralto
