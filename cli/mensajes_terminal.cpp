#include "cli/mensajes_terminal.h"

#include "commands/hoja.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <new>

namespace quiralto::cli {

std::string_view DevPalabra(Icono icono) {
    constexpr std::array<std::string_view, 3> Palabras = {"mensaje", "exclamación", "crítico"};
    return Palabras[static_cast<std::size_t>(icono)];
}

void MensajesDeTerminal::Muestra(Icono icono, std::string_view texto) {
    mostrado_ = true;
    if (guarda_) {
        try {
            guardados_.push_back({icono, ConLf(texto)});
            return;
        } catch (const std::bad_alloc&) { // what cannot be kept is told at once
        }
    }
    Escribe(icono, texto);
}

// Without the library's streams, which may not stand yet when memory runs out.
void MensajesDeTerminal::Escribe(Icono icono, std::string_view texto) {
    const auto escribe = [](std::string_view pieza) {
        std::fwrite(pieza.data(), 1, pieza.size(), stderr);
    };
    escribe(DevPalabra(icono));
    escribe(": ");
    for (std::size_t i = texto.find("\r\n"); i != std::string_view::npos; i = texto.find("\r\n")) {
        escribe(texto.substr(0, i));
        texto.remove_prefix(i + 1);
    }
    escribe(texto);
    escribe("\n");
}

Estado RechazaUso(std::string esperado) {
    const auto esDeControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    std::ranges::replace_if(esperado, esDeControl, '?');
    std::cerr << "quiralto-cli: " << esperado << " (véase --ayuda)\n";
    return MalUso;
}

} // namespace quiralto::cli
