// The legend: the switched-on functions in their colours, below each other.
#pragma once

#include "ui/grafica/escena.h"

#include <QPainter>

namespace quiralto {

// Draws the entries into the place, a long one over as many lines as it needs. Returns the height,
// which may be more than the place has.
qreal DibujaLeyenda(QPainter& pintor, const QRectF& lugar,
                    const std::vector<EntradaLeyenda>& leyenda);

// The height alone.
qreal DevAltoLeyenda(QPainter& pintor, const QRectF& lugar,
                     const std::vector<EntradaLeyenda>& leyenda);

} // namespace quiralto
