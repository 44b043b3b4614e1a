#include "commands/hoja.h"

namespace quiralto {

std::vector<std::string_view> CortaLíneas(std::string_view texto) {
    std::vector<std::string_view> líneas;
    for (;;) {
        const std::size_t fin = texto.find("\r\n");
        líneas.push_back(texto.substr(0, fin));
        if (fin == std::string_view::npos)
            return líneas;
        texto.remove_prefix(fin + 2);
    }
}

std::vector<std::string> LeeTextBox(std::string_view texto) {
    std::vector<std::string> instrucciones;
    for (const std::string_view línea : CortaLíneas(texto)) {
        const std::size_t primero = línea.find_first_not_of(' ');
        if (primero == std::string_view::npos || línea[primero] == '\'')
            continue;
        instrucciones.emplace_back(línea.substr(0, línea.find('\'')));
    }
    return instrucciones;
}

void SeleccionaLínea(Hoja& hoja, std::string_view línea) {
    hoja.líneaSeleccionada = línea;
}

std::string ConCrLf(std::string_view texto) {
    std::string convertido;
    convertido.reserve(texto.size() + texto.size() / 16);
    char anterior = '\0';
    for (const char c : texto) {
        if (c == '\n' && anterior != '\r')
            convertido += '\r';
        convertido += c;
        anterior = c;
    }
    return convertido;
}

std::string ConLf(std::string_view texto) {
    std::string convertido;
    convertido.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (texto.substr(i, 2) != "\r\n")
            convertido += texto[i];
    return convertido;
}

} // namespace quiralto
