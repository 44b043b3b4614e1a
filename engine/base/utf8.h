// The little that the program needs to know of UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace quiralto {

// Bytes of the character that begins at texto[i] (1 to 4); 0 where no valid character begins.
std::size_t LongitudCarácter(std::string_view texto, std::size_t i);

// Whether the whole text is valid UTF-8 (no surrogates, no overlong forms, nothing past U+10FFFF).
bool EsUtf8(std::string_view texto);

} // namespace quiralto
