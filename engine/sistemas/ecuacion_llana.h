// The short way to a linear equation that is plainly written.
#pragma once

#include "engine/sistemas/ecuacion_lineal.h"

#include <optional>
#include <string_view>

namespace quiralto {

// Reads a line of the worksheet that is two sums around one "=", of terms c*X(i), X(i) and c with
// at most one sign in front: c in digits with at most one point, not the last, i in digits from 1
// to 256; blanks, tabs and small letters count for nothing. Typed numbers are rounded as Sintaxis
// rounds them. None: the line is not so plain, or nothing is left of its unknowns; it is then for
// LeeEcuaciónLineal, which gives the same equation for every line that is read here.
std::optional<EcuaciónLineal> LeeEcuaciónLlana(const Contexto& contexto, std::string_view línea);

} // namespace quiralto
