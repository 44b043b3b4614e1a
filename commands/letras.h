// The letters of an expression in several variables, as the engine knows them and back.
#pragma once

#include <string>
#include <string_view>

namespace quiralto {

// Every letter but X becomes "SLN(" its character code ")", so that "a" and "A" are two and "x" is
// not the variable X; function names and the exponent letters of numbers, in either case, are
// written in upper case. SustituyeSln turns the letters back as they were typed.
std::string SustituyeVariables(std::string_view texto);
std::string SustituyeSln(std::string_view texto);

} // namespace quiralto
