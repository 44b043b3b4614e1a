#include "cli/json.h"

#include "engine/base/utf8.h"

namespace quiralto::cli {

std::string TextoJson(std::string_view texto) {
    constexpr std::string_view Hexadecimales = "0123456789abcdef";
    std::string json = "\"";
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t longitud = LongitudCarácter(texto, i);
        const auto c = static_cast<unsigned char>(texto[i]);
        if (longitud == 0) {
            json += "\xEF\xBF\xBD"; // the replacement character
        } else if (c == '\n') {
            json += "\\n";
        } else if (c == '\t') {
            json += "\\t";
        } else if (c < ' ' || c == 0x7F) {
            ((json += "\\u00") += Hexadecimales[c >> 4]) += Hexadecimales[c & 15];
        } else {
            if (c == '"' || c == '\\')
                json += '\\';
            json += texto.substr(i, longitud);
        }
        i += longitud == 0 ? 1 : longitud;
    }
    return json += '"';
}

} // namespace quiralto::cli
