#include "commands/hoja.h"

namespace quiralto {

std::vector<std::string> LeeTextBox(std::string_view texto) {
    std::vector<std::string> instrucciones;
    RecorreLíneas(texto, [&](std::string_view línea) {
        if (const Línea leída = ClasificaLínea(línea); leída.clase == ClaseLínea::Datos)
            instrucciones.emplace_back(leída.datos);
    });
    return instrucciones;
}

void SeleccionaLínea(Hoja& hoja, std::string_view línea) {
    hoja.líneaSeleccionada = línea;
}

void AñadeHallazgo(Hoja& hoja, Hallazgo hallazgo, int dígitos) {
    hoja.texto += TextoHallazgo(hallazgo, dígitos);
    hoja.hallazgos.push_back(std::move(hallazgo));
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
