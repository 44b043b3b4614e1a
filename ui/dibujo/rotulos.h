// Where the labels of the axes stand: worked out before anything is drawn, so that none covers
// another.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/marcas_eje.h"

#include <QFontMetricsF>

#include <vector>

namespace quiralto {

struct Rótulo {
    QString texto;
    QPointF base; // where its first letter stands
    QRectF marco;
};

struct Rótulos {
    std::vector<Rótulo> enX;
    std::vector<Rótulo> enY;
    Rótulo nombreX; // at the ends of the axes
    Rótulo nombreY;
};

// In the device's units. More than three on each axis, in several rows below the horizontal one
// where they are too long to stand beside each other.
Rótulos DevRótulos(const QFontMetricsF& medidas, const Lienzo& lienzo, const Ventana& ventana,
                   const std::vector<Marca>& enX, const std::vector<Marca>& enY);

} // namespace quiralto
