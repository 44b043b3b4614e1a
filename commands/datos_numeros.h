// The reader of the commands that work on plain numbers.
#pragma once

#include "commands/formas.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quiralto {

// Reads every number of the instruction lines, in order, separated by commas, by lines or by both.
// `cantidad` is how many there must be; 0: any number of them, but at least one. Only the range is
// checked: a number with decimals passes for the classes of integers too. None: a message has been
// shown, and the line is selected where a field of it is not a number of the class (an empty field
// is none).
std::optional<std::vector<double>> CargaNúmeros(Contexto& contexto, Hoja& hoja, ClaseNúmeros clase,
                                                std::size_t cantidad);

} // namespace quiralto
