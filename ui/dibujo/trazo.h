// The strokes of the curves.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/opciones.h"

#include <vector>

namespace quiralto {

// How wide a curve is, in the width of a line.
inline constexpr qreal GrosorCurva = 1.5;

// Where pixels are set, curves drawn as lines are gathered and painted together.
class Trazos {
public:
    // Painter and canvas outlive it.
    Trazos(QPainter& pintor, const Lienzo& lienzo) : pintor_(pintor), lienzo_(lienzo) {}

    // Points of the drawing scale from left to right, in that colour: each of them, or the lines
    // between them.
    void Traza(const std::vector<Punto>& puntos, MétodoDibujo método, const QColor& color);

    // Paints what has been gathered.
    void Pinta();

private:
    struct Línea {
        std::vector<QPointF> esquinas; // in the painter's units
        QColor color;
    };

    void TrazaPuntos(const std::vector<Punto>& puntos, const QColor& color);
    void TrazaLíneas(const std::vector<Punto>& puntos, const QColor& color);
    std::vector<QPointF> DevEsquinas(const std::vector<Punto>& puntos) const;
    void CubreFranja(class Cobertura& cobertura, const Línea& línea, const QRect& franja) const;
    QPolygonF DevLugares(const std::vector<Punto>& puntos) const;
    qreal DevGrosor() const { return GrosorCurva * lienzo_.grosor; }

    QPainter& pintor_;
    const Lienzo& lienzo_;
    std::vector<Línea> líneas_;
};

} // namespace quiralto
