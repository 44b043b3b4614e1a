// A linear equation in the unknowns SLN(1) to SLN(256), read from its text.
#pragma once

#include "engine/base/contexto.h"
#include "engine/numeros/coeficiente.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quiralto {

inline constexpr int MáximoÍndiceSln = 256;

// coeficiente * SLN(índice)
struct TérminoSln {
    int índice; // 1 to MáximoÍndiceSln
    Coeficiente coeficiente;
};

// The sum of the terms (each unknown once, in ascending order) is `independiente`.
struct EcuaciónLineal {
    std::vector<TérminoSln> términos;
    Coeficiente independiente;
    bool redondeada = false; // some number of it is a Double that stands for another, as SQR(2)
};

// The equation expresión = 0, for a text that Sintaxis has accepted while it accepts "SLN(". Every
// term of its expansion is a number, and constant functions to the first power, times at most one
// unknown; at least one term has an unknown. Decimal numbers and their quotients stay exact. None:
// a message has been shown. Faults: those of the expansion.
std::optional<EcuaciónLineal> LeeEcuaciónLineal(Contexto& contexto, std::string_view expresión);

} // namespace quiralto
