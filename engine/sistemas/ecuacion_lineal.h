// A linear equation in the unknowns SLN(1) to SLN(256), read from its text.
#pragma once

#include "engine/base/contexto.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quiralto {

inline constexpr int MáximoÍndiceSln = 256;

// coeficiente * SLN(índice)
struct TérminoSln {
    int índice; // 1 to MáximoÍndiceSln
    double coeficiente;
};

// The sum of the terms (each unknown once, none 0) is `independiente`.
struct EcuaciónLineal {
    std::vector<TérminoSln> términos;
    double independiente = 0;
};

// The equation expresión = 0, for a text that Sintaxis has accepted while it accepts "SLN(". Every
// term of its expansion is a number, and constant functions to the first power, times at most one
// unknown; at least one term has an unknown. Numbers are not rounded, but for the sums of like
// terms. None: a message has been shown. Faults: those of the expansion.
std::optional<EcuaciónLineal> LeeEcuaciónLineal(Contexto& contexto, std::string_view expresión);

} // namespace quiralto
