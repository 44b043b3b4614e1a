#include "engine/base/utf8.h"

#include <cstdint>

namespace quiralto {

std::size_t LongitudCarácter(std::string_view texto, std::size_t i) {
    const auto octeto = [&](std::size_t k) { return static_cast<std::uint8_t>(texto[k]); };
    if (i >= texto.size())
        return 0;
    const std::uint8_t primero = octeto(i);
    if (primero < 0x80)
        return 1;
    const std::size_t longitud = primero >= 0xF0   ? 4
                                 : primero >= 0xE0 ? 3
                                 : primero >= 0xC2 ? 2
                                                   : 0;
    if (longitud == 0 || primero > 0xF4 || i + longitud > texto.size())
        return 0;
    for (std::size_t k = 1; k < longitud; ++k)
        if ((octeto(i + k) & 0xC0) != 0x80)
            return 0;
    // The second byte tells overlong forms, surrogates and what lies past U+10FFFF.
    const std::uint8_t segundo = octeto(i + 1);
    const bool válido =
        !((primero == 0xE0 && segundo < 0xA0) || (primero == 0xED && segundo > 0x9F) ||
          (primero == 0xF0 && segundo < 0x90) || (primero == 0xF4 && segundo > 0x8F));
    return válido ? longitud : 0;
}

bool EsUtf8(std::string_view texto) {
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t longitud = LongitudCarácter(texto, i);
        if (longitud == 0)
            return false;
        i += longitud;
    }
    return true;
}

} // namespace quiralto
