// The reader of the commands that work on one function of X.
#pragma once

#include "commands/formas.h"

#include <optional>

namespace quiralto {

// The forms of the line: f(x) · f(x),punto · f(x),extremo1,extremo2
enum class TipoDatos { Función = 1, FunciónYPunto = 2, FunciónYExtremos = 3 };

// Reads the single instruction line of the worksheet. None: a message has been shown, and the line
// is selected where it is the line that is wrong, not the number of lines or fields.
std::optional<DatosFunción> CargaDatosFunción(Contexto& contexto, Hoja& hoja, TipoDatos tipo);

} // namespace quiralto
