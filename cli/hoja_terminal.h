// --orden: a command on a worksheet that comes from a file or from standard input.
#pragma once

#include "cli/llamada.h"
#include "cli/mensajes_terminal.h"
#include "engine/base/contexto.h"

#include <string>

namespace quiralto::cli {

// Runs the call's command. `salida` is what goes to standard output; MalUso for an unknown command
// and for a worksheet that cannot be read, which has been said then.
Estado EjecutaOrden(Contexto& contexto, MensajesDeTerminal& mensajes, const Opciones& opciones,
                    std::string& salida);

// --listar: a line a command.
std::string ListaÓrdenes(bool largo);

} // namespace quiralto::cli
