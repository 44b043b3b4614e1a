// What a command has found on a function, as values beside its lines on the worksheet: for whoever
// shows the places on a graph. The line is written from the values and can be read back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

enum class ClaseHallazgo { Solución, Máximo, Mínimo, Inflexión, Área };

struct Hallazgo {
    ClaseHallazgo clase;
    std::string función; // the expression text, as Sintaxis left it
    double desde = 0;    // the interval that was searched
    double hasta = 0;
    // The place, rounded as it is written; of an area nothing.
    double x = 0;
    // The value of the function there, or the area; of a solution nothing. Not rounded.
    double y = 0;
};

// The line of the worksheet without its line break: "'Solución en X= 2", "'Máximo en X=-1
// f(X)= 2" (four blanks between), "'Punto de inflexión en X=…", "'Area= 8".
std::string TextoHallazgo(const Hallazgo& hallazgo, int dígitos);

// The finding that such a line tells of, without function and interval; y as it is written. None:
// it is another line. A number beyond the Double range makes none.
std::optional<Hallazgo> LeeHallazgo(std::string_view línea);

} // namespace quiralto
