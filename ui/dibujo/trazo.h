// The one stroke that every curve is drawn with.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/opciones.h"

#include <vector>

namespace quiralto {

// Points of the drawing scale in that colour: each of them, or the lines between them.
void DibujaCurva(QPainter& pintor, const Lienzo& lienzo, const std::vector<Punto>& puntos,
                 MétodoDibujo método, const QColor& color);

} // namespace quiralto
