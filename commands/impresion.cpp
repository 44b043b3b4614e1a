#include "commands/impresion.h"

#include "commands/hoja.h"
#include "engine/base/utf8.h"

#include <algorithm>

namespace quiralto {
namespace {

// Bytes of the first `cantidad` characters.
std::size_t LongitudDe(std::string_view texto, std::size_t cantidad) {
    std::size_t i = 0;
    for (; cantidad > 0 && i < texto.size(); --cantidad)
        i += std::max<std::size_t>(1, LongitudCarácter(texto, i));
    return i;
}

} // namespace

std::vector<std::string> DevLíneasImpresas(std::string_view texto) {
    std::vector<std::string> impresas;
    for (std::string_view línea : CortaLíneas(texto)) {
        do {
            const std::size_t longitud = LongitudDe(línea, ColumnasImpresas);
            impresas.emplace_back(línea.substr(0, longitud));
            línea.remove_prefix(longitud);
        } while (!línea.empty());
    }
    return impresas;
}

} // namespace quiralto
