// The marker line of the point X, with a dot on each function; where it lies outside of the window,
// an arrow at that edge.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/escena.h"

namespace quiralto {

void DibujaPuntoX(QPainter& pintor, const Lienzo& lienzo, const Ventana& ventana,
                  const Marcador& marcador);

} // namespace quiralto
