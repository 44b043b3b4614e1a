// What the tests of the expansion share.
#pragma once

#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/compila.h"

#include <string>
#include <string_view>

namespace quiralto {

enum class Clase { Completo, Simplificado };

inline std::string Desarrolla(Contexto& contexto, Clase clase, const std::string& texto) {
    const Programa programa = CompilaExpresión(texto);
    return clase == Clase::Completo ? DesarrollaCompleto(contexto, programa)
                                    : DesarrollaSimplificado(contexto, programa);
}

// In the tests' tables the letters A and B stand for SLN(65) and SLN(66), and so on.
inline std::string ConSln(std::string_view texto) {
    std::string sustituido;
    const auto esLetra = [&](std::size_t i) {
        return i < texto.size() && texto[i] >= 'A' && texto[i] <= 'Z';
    };
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (const char c = texto[i]; c >= 'A' && c <= 'D' && !esLetra(i - 1) && !esLetra(i + 1))
            sustituido += "SLN(" + std::to_string(static_cast<int>(c)) + ")";
        else
            sustituido += texto[i];
    return sustituido;
}

} // namespace quiralto
