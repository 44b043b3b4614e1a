// The picture as it is copied and printed: the graph in a frame, what is being typed left out, and
// its legend below it.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/escena.h"

namespace quiralto {

// What the legend adds to the height of a graph, with the space between them, where it may be so
// wide.
qreal DevAltoBajoGráfica(QPainter& pintor, qreal grosor, qreal ancho, const Escena& escena);

// Draws the graph on the canvas and the legend below it, in that width and cut off at that height
// (as reckoned above). The painter's font is that of the labels and of the legend.
void DibujaFigura(QPainter& pintor, const Lienzo& lienzo, const QSizeF& debajo,
                  const Escena& escena);

} // namespace quiralto
