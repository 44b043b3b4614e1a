// Any words behind quiralto-cli: a call or one line that says what was expected.

#include "cli/opciones.h"
#include "fuzz/entrada.h"

#include <algorithm>

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string entrada = LeeEntrada(datos, longitud);
    std::vector<std::string> palabras;
    for (std::size_t i = 0; i <= entrada.size();) {
        const std::size_t fin = std::min(entrada.find('\n', i), entrada.size());
        palabras.push_back(entrada.substr(i, fin - i));
        i = fin + 1;
    }
    std::string error;
    const auto opciones = cli::LeeOpciones(palabras, error);
    Exige(opciones.has_value() == error.empty(), "a refused call says why", entrada);
    if (opciones)
        Exige(opciones->cifras >= 0 && opciones->cifras <= 15 && opciones->puntos > 0,
              "what was read is in its range", entrada);
    return 0;
}
