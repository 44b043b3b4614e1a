#include "cli/mensajes_terminal.h"

#include "commands/hoja.h"

#include <algorithm>
#include <array>
#include <iostream>

namespace quiralto::cli {

std::string_view DevPalabra(Icono icono) {
    constexpr std::array<std::string_view, 3> Palabras = {"mensaje", "exclamación", "crítico"};
    return Palabras[static_cast<std::size_t>(icono)];
}

void MensajesDeTerminal::Muestra(Icono icono, std::string_view texto) {
    mostrado_ = true;
    if (guarda_)
        guardados_.push_back({icono, ConLf(texto)});
    else
        std::cerr << DevPalabra(icono) << ": " << ConLf(texto) << '\n';
}

Estado RechazaUso(std::string esperado) {
    const auto esDeControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    std::ranges::replace_if(esperado, esDeControl, '?');
    std::cerr << "quiralto-cli: " << esperado << " (véase --ayuda)\n";
    return MalUso;
}

} // namespace quiralto::cli
