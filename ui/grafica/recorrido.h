// The switched-on functions sampled over a window with their values as they are, not in the drawing
// scale: as a table, and for a height that holds them.
#pragma once

#include "ui/grafica/funciones.h"

namespace quiralto {

// A line of captions ("X", "f0(X)=X^2"...) and one of numbers for each place from XMín to XMáx, in
// `cantidadPuntos` steps; columns separated by a tabulator, lines ended by LF, numbers in the
// general form with all their digits, nothing where a function has no value. Empty where none is
// switched on. The values are those at just the X that is written.
std::string DevTabla(FuncionesGráficas& funciones, const Ventana& ventana, int cantidadPuntos);

// The same window with a height that holds the curves, with a little air and round ends. Where a
// few values reach far beyond the others, as beside a pole, they are left out. None where there is
// no value.
std::optional<Ventana> DevAjustada(FuncionesGráficas& funciones, const Ventana& ventana,
                                   int cantidadPuntos);

} // namespace quiralto
