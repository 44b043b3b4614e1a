// The worksheet as it goes to the printer.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

inline constexpr std::size_t ColumnasImpresas = 80;

// The printed lines of a worksheet text: its lines in order, comments included, a line longer than
// ColumnasImpresas characters (not bytes) in pieces of that length.
std::vector<std::string> DevLíneasImpresas(std::string_view texto);

} // namespace quiralto
