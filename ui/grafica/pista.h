// A hint for a text that is no formula, where one of the usual slips is seen in it.
#pragma once

#include <string>
#include <string_view>

namespace quiralto {

// "seno es SIN", "el decimal es el punto", "falta * entre 2 y X"...; empty where no slip is known.
std::string DevPista(std::string_view texto);

} // namespace quiralto
