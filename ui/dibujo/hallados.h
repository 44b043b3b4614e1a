// What the last command has found, on the picture.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/escena.h"

namespace quiralto {

// The areas between curve and axis, shaded in the curve's colour; below the curves.
void DibujaÁreas(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro);

// The places as hollow dots in the curve's colour; above everything else.
void DibujaLugares(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro);

// Whether a place of the drawing scale lies in a shaded area.
bool EstáEnÁrea(const Cuadro& cuadro, const ÁreaHallada& área, double s, double t);

} // namespace quiralto
