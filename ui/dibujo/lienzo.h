// The area of a device that the graph is drawn on, and what every part of the drawing needs of it.
#pragma once

#include "engine/evaluacion/muestreo.h"

#include <QPainter>

namespace quiralto {

// Where the drawing scale lies on a device: an area in the painter's units, and how many of them
// make one line's width (on a screen its device pixel ratio, with the painter in device pixels).
struct Lienzo {
    QRectF área;
    qreal grosor = 1;

    QPointF DevLugar(double s, double t) const; // of a point of the drawing scale
    double DevS(double x) const;                // and back
    double DevT(double y) const;
};

// The font of the labels beside a text in `fuente`, a little smaller, where a logical pixel is
// `escala` of the picture's units.
QFont DevFuenteRótulos(const QFont& fuente, qreal escala);

// Places of logical coordinates.
qreal DevLugarX(const Lienzo& lienzo, const Ventana& ventana, double x);
qreal DevLugarY(const Lienzo& lienzo, const Ventana& ventana, double y);

// Where a line begins that is `grosor` wide, covers whole units and has its middle at that place,
// as near as can be.
qreal DevBorde(const Lienzo& lienzo, qreal lugar);

// A line across the whole area, over exactly `grosor` units.
void DibujaVertical(QPainter& pintor, const Lienzo& lienzo, qreal x, const QColor& color);
void DibujaHorizontal(QPainter& pintor, const Lienzo& lienzo, qreal y, const QColor& color);

// Whether the painter sets pixels, rather than write lines and texts down for a printer.
bool EsRáster(const QPainter& pintor);

} // namespace quiralto
