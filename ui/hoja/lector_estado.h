// The worksheet's data in words, as a command would read them: for whoever types them. And the
// commands that would take them. Nothing is shown, and nothing read behind the first 64 KiB.
#pragma once

#include "engine/base/contexto.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

struct LecturaHoja {
    // "f(X)=X^2-4 · extremo 1: -5 · extremo 2: 5", "4 números: 0 · 5 · 0 · 75", "3 ecuaciones, 3
    // incógnitas", "2 líneas de datos", "Sin datos"; and why a line is refused.
    std::string texto;
    // The line of data, counted from 0, that no command reads as what it looks like.
    std::optional<std::size_t> errónea;
};

// Lines end in CR LF.
LecturaHoja LeeHoja(Contexto& contexto, std::string_view hoja);

// The commands whose form the data have, by their places in the table; none for a worksheet that is
// not read to its end, or not at all.
std::vector<std::size_t> DevÓrdenesPosibles(Contexto& contexto, std::string_view hoja);

} // namespace quiralto
