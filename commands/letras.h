// The letters of an expression in several variables, as the engine knows them and back.
#pragma once

#include <string>
#include <string_view>

namespace quiralto {

// Every letter but X becomes "SLN(" its character code ")", a lower-case letter that of its upper
// case; function names and the exponent letters of numbers stay. SustituyeSln is its inverse.
std::string SustituyeVariables(std::string_view texto);
std::string SustituyeSln(std::string_view texto);

} // namespace quiralto
