// What a line of the worksheet holds that the graph can show.
#pragma once

#include "engine/base/contexto.h"

#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

// The function of a line of data, or of a result or comment (what stands behind its last colon,
// equals sign or apostrophe), up to the first comma: a formula with an X, as Sintaxis leaves it, in
// small letters or capitals.
// Shows nothing.
std::optional<std::string> DevFunciónDeLínea(const Contexto& contexto, std::string_view línea);

} // namespace quiralto
