// Any worksheet through every command: what was typed stays, and what is added are comments, but
// for the two commands whose results are data for the next one.

#include "commands/ordenes.h"
#include "fuzz/entrada.h"

using namespace quiralto;

namespace {

bool EsResultado(std::string_view orden, std::string_view línea) {
    if (línea.empty() || línea.front() == '\'')
        return true;
    return (orden == "Simplificar función racional" && línea.starts_with("Simplificación :")) ||
           orden == "Convertir coeficientes a fracción continua";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string texto = ConCrLf(LeeEntrada(datos, longitud));
    for (const Orden& orden : DevÓrdenes()) {
        BancoDeFuzz banco(texto);
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
        Exige(hoja.texto.starts_with(texto), "commands only append", texto);
        if (hoja.líneaSeleccionada)
            Exige(texto.find(*hoja.líneaSeleccionada) != std::string::npos,
                  "a refused line stands in the worksheet", texto);
        const std::string añadido = hoja.texto.substr(texto.size());
        for (const std::string_view línea : CortaLíneas(añadido))
            Exige(EsResultado(orden.texto, línea), "results are comments", texto);
    }
    return 0;
}
