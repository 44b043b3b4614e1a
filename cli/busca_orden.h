// Which command a text of the command line names.
#pragma once

#include "commands/ordenes.h"

#include <string>
#include <string_view>
#include <vector>

namespace quiralto::cli {

// The command with exactly that text, or else every command with that menu caption.
std::vector<const Orden*> DevÓrdenesLlamadas(std::string_view nombre);

// For a name that no command has: the texts or captions to be proposed, each of which names one
// command. Small and capital letters, and accents, count as the same; what was left out counts
// less than what is wrong.
std::vector<std::string_view> DevNombresParecidos(std::string_view nombre);

} // namespace quiralto::cli
