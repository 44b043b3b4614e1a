// Any worksheet through every command: what was typed stays, and what is added are comments.

#include "commands/ordenes.h"
#include "fuzz/entrada.h"

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string texto = ConCrLf(LeeEntrada(datos, longitud));
    for (const Orden& orden : DevÓrdenes()) {
        BancoDeFuzz banco;
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
        Exige(hoja.texto.starts_with(texto), "commands only append", texto);
        if (hoja.líneaSeleccionada)
            Exige(texto.find(*hoja.líneaSeleccionada) != std::string::npos,
                  "a refused line stands in the worksheet", texto);
        const std::string añadido = hoja.texto.substr(texto.size());
        for (const std::string_view línea : CortaLíneas(añadido))
            Exige(línea.empty() || línea.front() == '\'', "results are comments", texto);
    }
    return 0;
}
