// The picture of the graph: paper, grid, curves, axes with their unit marks, and the marker of the
// point X. With no widget in it: the same drawing goes to the screen, the clipboard, the printer
// and the tests.
#pragma once

#include "ui/grafica/ventana_grafica.h"

#include <QColor>
#include <QPainter>

#include <array>
#include <optional>
#include <vector>

namespace quiralto {

// The colour of a function's curve; black for any other index.
QColor DevColor(int índice);

// All that is to be seen. The points come from VentanaGráfica::CargaPuntos; a function that is off
// has none.
struct EscenaGráfica {
    Ventana ventana;
    double PuntoX = 0;
    MétodoDibujo método = MétodoDibujo::Líneas;
    std::array<std::vector<Punto>, VentanaGráfica::CantidadFunciones> puntos;
    std::array<std::optional<double>, VentanaGráfica::CantidadFunciones> valores; // at PuntoX

    bool operator==(const EscenaGráfica&) const = default;
};

// Where the drawing scale lies on a device: an area in the painter's units, and how many of them
// make one line's width (on a screen its device pixel ratio, with the painter in device pixels).
struct Lienzo {
    QRectF área;
    qreal grosor = 1;

    QPointF DevLugar(double s, double t) const; // of a point of the drawing scale
    double DevS(double x) const;                // and back
    double DevT(double y) const;
};

// The font of the labels beside a text in `fuente`, a little smaller, where lines are `grosor`
// wide.
QFont DevFuenteRótulos(const QFont& fuente, qreal grosor);

// Everything but the marker, which moves without the rest: paper, grid, curves in the order of the
// functions, axes, marks and labels.
void DibujaGráfica(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena);

// The curves alone, in the order of the functions.
void DibujaCurvas(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena);

// The marker line of the point X, with a dot on each function.
void DibujaPuntoX(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena);

} // namespace quiralto
