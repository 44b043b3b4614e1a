#include "cli/hoja_terminal.h"

#include "cli/busca_orden.h"
#include "cli/json.h"
#include "commands/fichero_primos.h"
#include "engine/base/utf8.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace quiralto::cli {
namespace {

// Whatever a stream gives, up to one byte more than a worksheet may have. None: it cannot be read.
std::optional<std::string> LeeTodo(std::istream& entrada) {
    std::string texto;
    try {
        for (std::streamsize pedidos = 65536; entrada && texto.size() <= MáximoTexto;) {
            const std::size_t había = texto.size();
            texto.resize(había + static_cast<std::size_t>(pedidos));
            entrada.read(texto.data() + había, pedidos);
            texto.resize(había + static_cast<std::size_t>(entrada.gcount()));
        }
    } catch (const std::ios_base::failure&) {
        return std::nullopt;
    }
    if (entrada.bad())
        return std::nullopt;
    return texto;
}

std::optional<std::string> LeeHoja(const std::optional<std::string>& fichero) {
    if (fichero && *fichero != "-") {
        std::ifstream abierto(*fichero, std::ios::binary);
        return abierto ? LeeTodo(abierto) : std::nullopt;
    }
    if (isatty(STDIN_FILENO) != 0)
        std::cerr << "quiralto-cli: se espera la hoja por la entrada; termina con Ctrl+D\n";
    return LeeTodo(std::cin);
}

// What is wrong with the bytes of a worksheet; nothing where they may be one.
std::string_view DevDefecto(const std::string& texto) {
    if (texto.size() > MáximoTexto)
        return "se esperaba una hoja de 64 MiB a lo sumo";
    return EsUtf8(texto) ? "" : "se esperaba una hoja en UTF-8";
}

std::string EnLista(const std::vector<std::string_view>& textos) {
    std::string lista;
    for (const std::string_view texto : textos)
        lista.append(lista.empty() ? "«" : " o «").append(texto) += "»";
    return lista;
}

// Null: no command, or more than one, has that name, and this has been said.
const Orden* BuscaOrden(const std::string& nombre) {
    const std::vector<const Orden*> llamadas = DevÓrdenesLlamadas(nombre);
    if (llamadas.size() == 1)
        return llamadas.front();
    if (llamadas.empty()) {
        RechazaUso("orden desconocida: " + nombre +
                   "; se esperaba una de las que escribe --listar"
                   ", ¿" +
                   EnLista(DevNombresParecidos(nombre)) + "?");
        return nullptr;
    }
    std::vector<std::string_view> textos;
    textos.reserve(llamadas.size());
    for (const Orden* orden : llamadas)
        textos.push_back(orden->texto);
    RechazaUso("más de una orden se titula «" + nombre + "»; se esperaba " + EnLista(textos));
    return nullptr;
}

// In place, so that a worksheet that has been read is written whatever memory is left.
void PonLf(std::string& texto) {
    std::size_t escritos = 0;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (texto[i] != '\r' || i + 1 == texto.size() || texto[i + 1] != '\n')
            texto[escritos++] = texto[i];
    texto.resize(escritos);
}

// The lines that stand behind the worksheet as it was, without the empty ones in front and at the
// end and without their comment marks.
std::vector<std::string_view> DevResultado(std::string_view añadido) {
    std::vector<std::string_view> líneas = CortaLíneas(añadido);
    while (!líneas.empty() && líneas.back().empty())
        líneas.pop_back();
    const auto primera = std::ranges::find_if(líneas, [](auto línea) { return !línea.empty(); });
    líneas.erase(líneas.begin(), primera);
    for (std::string_view& línea : líneas)
        if (línea.starts_with('\''))
            línea.remove_prefix(1);
    return líneas;
}

std::string DevJson(const Orden& orden, const Hoja& hoja, std::string_view añadido,
                    const std::vector<MensajesDeTerminal::Guardado>& mensajes) {
    std::string json = "{\"orden\":" + TextoJson(orden.texto);
    json += ",\"hoja\":" + TextoJson(ConLf(hoja.texto)) + ",\"resultado\":[";
    std::string_view coma;
    for (const std::string_view línea : DevResultado(añadido)) {
        json.append(coma) += TextoJson(línea);
        coma = ",";
    }
    json += "],\"mensajes\":[";
    coma = "";
    for (const auto& mensaje : mensajes) {
        json.append(coma) += "{\"icono\":" + TextoJson(DevPalabra(mensaje.icono));
        json += ",\"texto\":" + TextoJson(mensaje.texto) + '}';
        coma = ",";
    }
    json += "],\"línea\":";
    return json += (hoja.líneaSeleccionada ? TextoJson(*hoja.líneaSeleccionada) : "null") + "}\n";
}

// The worksheet of the call. None: it cannot be read or is none, and this has been said.
std::optional<Hoja> CargaHoja(const std::optional<std::string>& fichero) {
    std::optional<std::string> texto = LeeHoja(fichero);
    if (!texto) {
        RechazaUso("no se puede leer la hoja " + fichero.value_or("-"));
        return std::nullopt;
    }
    if (const std::string_view defecto = DevDefecto(*texto); !defecto.empty()) {
        RechazaUso(std::string(defecto));
        return std::nullopt;
    }
    constexpr std::string_view MarcaDeOrden = "\xEF\xBB\xBF"; // byte order mark
    if (texto->starts_with(MarcaDeOrden))
        texto->erase(0, MarcaDeOrden.size());
    return Hoja(ConCrLf(*texto));
}

std::string EnLíneas(const std::vector<std::string_view>& líneas) {
    std::string texto;
    for (const std::string_view línea : líneas)
        (texto += línea) += '\n';
    return texto;
}

} // namespace

Estado EjecutaOrden(Contexto& contexto, MensajesDeTerminal& mensajes, const Opciones& opciones,
                    std::string& salida) {
    const Orden* orden = BuscaOrden(opciones.argumento);
    if (orden == nullptr)
        return MalUso;
    std::optional<Hoja> hoja = CargaHoja(opciones.hoja);
    if (!hoja)
        return MalUso;
    const std::size_t longitud = hoja->texto.size();
    mensajes.Guarda(opciones.json);
    // A worksheet that has been read is written, whatever becomes of the rest.
    EjecutaConTrampa(contexto, [&] {
        CargaPrimos(contexto, DevFicheroPrimos(DevCarpetaPrograma()));
        EjecutaInstrucciones(contexto, *hoja, orden->texto);
    });
    const std::string_view añadido = std::string_view(hoja->texto).substr(longitud);
    if (opciones.json) {
        mensajes.Guarda(false); // what befalls the object itself is not in it
        salida = DevJson(*orden, *hoja, añadido, mensajes.Guardados());
        return SinMensajes;
    }
    if (hoja->líneaSeleccionada)
        std::cerr << "línea: " << *hoja->líneaSeleccionada << '\n';
    if (opciones.soloResultado) {
        salida = EnLíneas(DevResultado(añadido));
    } else {
        PonLf(hoja->texto);
        salida = std::move(hoja->texto);
    }
    return SinMensajes;
}

std::string ListaÓrdenes(bool largo) {
    std::string lista;
    for (const Orden& orden : DevÓrdenes()) {
        lista += orden.texto;
        if (largo) {
            for (const std::string_view columna : {orden.título, orden.forma.texto})
                (lista += '\t') += columna;
            std::string_view separador = "\t";
            for (const std::string_view línea : CortaLíneas(orden.ejemplo)) {
                lista.append(separador) += línea;
                separador = "\\n";
            }
        }
        lista += '\n';
    }
    return lista;
}

} // namespace quiralto::cli
