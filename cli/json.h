// A text as JSON writes it.
#pragma once

#include <string>
#include <string_view>

namespace quiralto::cli {

// In quotes; quotes, backslashes and control characters escaped. The text is UTF-8 and stays so.
std::string TextoJson(std::string_view texto);

} // namespace quiralto::cli
