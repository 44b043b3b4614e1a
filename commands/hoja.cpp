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
    for (;;) {
        const std::size_t fin = texto.find('\n');
        convertido += texto.substr(0, fin);
        if (fin == std::string_view::npos)
            return convertido;
        convertido += fin > 0 && texto[fin - 1] == '\r' ? "\n" : "\r\n";
        texto.remove_prefix(fin + 1);
    }
}

std::string ConLf(std::string_view texto) {
    std::string convertido;
    convertido.reserve(texto.size());
    for (;;) {
        const std::size_t fin = texto.find("\r\n");
        convertido += texto.substr(0, fin);
        if (fin == std::string_view::npos)
            return convertido;
        convertido += '\n';
        texto.remove_prefix(fin + 2);
    }
}

} // namespace quiralto
