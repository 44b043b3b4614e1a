// The picture of the graph: paper, grid, curves, axes with their unit marks. With no widget in it:
// the same drawing goes to the screen, the clipboard, the printer and the tests.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/escena.h"

namespace quiralto {

// Paper, grid, curves in the order of the functions, axes, marks and labels.
void DibujaGráfica(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro);

// The curves alone, in the order of the functions.
void DibujaCurvas(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro);

} // namespace quiralto
