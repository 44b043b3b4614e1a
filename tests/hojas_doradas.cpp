#include "tests/hojas_doradas.h"

#include "commands/hoja.h"
#include "engine/base/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quiralto {
namespace {

[[noreturn]] void Rechaza(const std::string& motivo) {
    throw std::runtime_error("malformed golden worksheet: " + motivo);
}

// Takes the line at the front of the text, without its line break.
std::string_view TomaLínea(std::string_view& texto) {
    const std::size_t fin = texto.find('\n');
    const std::string_view línea = texto.substr(0, fin);
    texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
    return línea;
}

int LeeCifras(std::string_view valor) {
    int cifras = -1;
    const auto [fin, error] = std::from_chars(valor.data(), valor.data() + valor.size(), cifras);
    if (error != std::errc() || fin != valor.data() + valor.size() || cifras < 0 ||
        cifras > MáximoDígitosRedondeo)
        Rechaza("cifras: " + std::string(valor));
    return cifras;
}

// The lines before the first marker.
void LeeCabecera(HojaDorada& dorada, std::string_view& texto) {
    constexpr std::string_view Orden = "orden: ";
    constexpr std::string_view Cifras = "cifras: ";
    bool conCifras = false;
    while (!texto.empty() && !texto.starts_with("--- ")) {
        const std::string_view línea = TomaLínea(texto);
        if (línea.starts_with(Orden) && dorada.orden.empty())
            dorada.orden = línea.substr(Orden.size());
        else if (línea.starts_with(Cifras) && !std::exchange(conCifras, true))
            dorada.cifras = LeeCifras(línea.substr(Cifras.size()));
        else
            Rechaza("unexpected line: " + std::string(línea));
    }
    if (dorada.orden.empty())
        Rechaza("no orden");
}

// The section at the front of the text, whose marker has been read.
std::string TomaSección(std::string_view& texto) {
    std::string_view resto = texto;
    while (!resto.empty() && !resto.starts_with("--- "))
        TomaLínea(resto);
    std::string_view sección = texto.substr(0, texto.size() - resto.size());
    texto = resto;
    if (!sección.ends_with('\n'))
        Rechaza("a section without a last line break");
    sección.remove_suffix(1);
    return std::string(sección);
}

} // namespace

std::vector<std::filesystem::path> DevFicherosDeHojas(const std::filesystem::path& carpeta) {
    std::vector<std::filesystem::path> ficheros;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(carpeta))
        if (entrada.is_regular_file() && entrada.path().extension() == ".hoja")
            ficheros.push_back(entrada.path());
    std::ranges::sort(ficheros);
    return ficheros;
}

HojaDorada LeeHojaDorada(std::string_view texto) {
    if (!EsUtf8(texto))
        Rechaza("not UTF-8");
    HojaDorada dorada;
    LeeCabecera(dorada, texto);
    const std::array<std::pair<std::string_view, std::string*>, 3> secciones = {{
        {"--- hoja", &dorada.hoja},
        {"--- queda", &dorada.queda},
        {"--- mensajes", &dorada.mensajes},
    }};
    for (const auto& [marca, destino] : secciones) {
        const bool últimaQueFalta = texto.empty() && destino == &dorada.mensajes;
        if (últimaQueFalta)
            return dorada;
        if (TomaLínea(texto) != marca)
            Rechaza("expected " + std::string(marca));
        *destino = TomaSección(texto);
    }
    if (dorada.mensajes.empty())
        Rechaza("no messages in --- mensajes");
    if (!texto.empty())
        Rechaza("something behind the last section");
    return dorada;
}

HojaDorada CargaHojaDorada(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    const std::string texto{std::istreambuf_iterator<char>(entrada), {}};
    if (!entrada)
        throw std::runtime_error("cannot read " + fichero.string());
    return LeeHojaDorada(texto);
}

std::string DevMensajes(const std::vector<Mensaje>& mensajes,
                        const std::optional<std::string>& líneaSeleccionada) {
    std::string texto;
    for (const Mensaje& mensaje : mensajes) {
        switch (mensaje.icono) {
        case Icono::Ninguno:
            texto += "mensaje: ";
            break;
        case Icono::Exclamación:
            texto += "exclamación: ";
            break;
        case Icono::Crítico:
            texto += "crítico: ";
            break;
        }
        texto += ConLf(mensaje.texto) + '\n';
    }
    if (líneaSeleccionada)
        texto += "línea: " + *líneaSeleccionada + '\n';
    if (!texto.empty())
        texto.pop_back();
    return texto;
}

std::string DevNombreDePrueba(const std::filesystem::path& fichero,
                              const std::filesystem::path& carpeta) {
    std::string nombre =
        std::filesystem::path(fichero).replace_extension().lexically_relative(carpeta).string();
    const auto sobra = [](char c) {
        return !(c >= 'a' && c <= 'z') && !(c >= 'A' && c <= 'Z') && !(c >= '0' && c <= '9');
    };
    std::ranges::replace_if(nombre, sobra, '_');
    return nombre;
}

} // namespace quiralto
