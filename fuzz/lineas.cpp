// The edges of text: UTF-8, CR LF and the cutting of lines.

#include "engine/base/utf8.h"
#include "fuzz/oraculos.h"

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string entrada = LeeEntrada(datos, longitud);
    std::size_t i = 0;
    while (i < entrada.size()) {
        const std::size_t bytes = LongitudCarácter(entrada, i);
        Exige(bytes <= 4 && i + bytes <= entrada.size(), "a character ends in the text", entrada);
        if (bytes == 0)
            break;
        i += bytes;
    }
    Exige(EsUtf8(entrada) == (i == entrada.size()), "a text is its characters", entrada);
    const std::string dentro = ConCrLf(entrada);
    // A CR that stands before a line end would come back as a part of it.
    if (dentro.find("\r\r\n") == std::string::npos)
        Exige(ConCrLf(ConLf(dentro)) == dentro, "line ends go out and come back", entrada);
    std::string juntas;
    for (const std::string_view línea : CortaLíneas(dentro)) {
        Exige(línea.find("\r\n") == std::string_view::npos, "a line holds no line end", entrada);
        juntas += std::string(línea) + "\r\n";
    }
    Exige(juntas == dentro + "\r\n", "lines make up the text", entrada);
    for (const std::string& línea : LeeTextBox(dentro))
        Exige(línea.find('\'') == std::string::npos, "data hold no comment", entrada);
    return 0;
}
