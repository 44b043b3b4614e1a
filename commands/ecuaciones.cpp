#include "commands/ecuaciones.h"

namespace quiralto {

std::string Sustituye1(std::string_view texto) {
    std::string sustituido;
    sustituido.reserve(texto.size() + texto.size() / 2);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool incógnita =
            (texto[i] == 'X' || texto[i] == 'x') && i + 1 < texto.size() && texto[i + 1] == '(';
        if (incógnita)
            sustituido += "SLN";
        else
            sustituido += texto[i];
    }
    return sustituido;
}

std::string SinBlancos(std::string_view línea) {
    std::string limpia(línea);
    std::erase_if(limpia, [](char c) { return c == ' ' || c == '\t'; });
    return limpia;
}

std::optional<Rechazo> CompruebaIgualdad(std::string_view texto) {
    const std::size_t igual = texto.find('=');
    const std::size_t otro = igual == texto.npos ? igual : texto.find('=', igual + 1);
    if (texto.starts_with('=') || texto.ends_with('='))
        return Rechazo{.motivo = Motivo::IgualEnUnExtremo,
                       .lugar = texto.starts_with('=') ? 0 : texto.size() - 1};
    if (igual == texto.npos)
        return Rechazo{.motivo = Motivo::SinIgualdad};
    if (otro != texto.npos)
        return Rechazo{.motivo = Motivo::VariasIgualdades, .lugar = otro};
    return std::nullopt;
}

bool IgualdadCorrecta(Contexto& contexto, std::string_view texto) {
    return Acepta(contexto, CompruebaIgualdad(texto));
}

} // namespace quiralto
