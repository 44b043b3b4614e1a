// The nearest Double to a decimal number's text, whatever the locale.
#pragma once

#include <string>

namespace quiralto {

// Reads the whole text: digits with at most one point, and an exponent behind "e" (nothing else is
// asked for). False, and `valor` left alone, beyond the range of a Double and below it.
bool LeeDouble(const std::string& texto, double& valor);

// The same through the C library with a locale of its own, for standard libraries that do not read
// a Double themselves.
bool LeeDoubleConLocaleC(const std::string& texto, double& valor);

} // namespace quiralto
