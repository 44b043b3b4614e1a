// The command line of quiralto-cli, read.
#pragma once

#include "cli/llamada.h"

#include <optional>
#include <string>
#include <vector>

namespace quiralto::cli {

// Reads the words behind the program's name. None: they are not a valid call, and `error` says in
// one line what was expected.
std::optional<Opciones> LeeOpciones(const std::vector<std::string>& palabras, std::string& error);

// What --ayuda prints.
std::string TextoAyuda();

} // namespace quiralto::cli
