// The axes of the graph: grid, axis lines, unit marks and their labels.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/marcas_eje.h"

#include <QFontMetricsF>

#include <vector>

namespace quiralto {

// In the device's units. The grid lies below the curves, the rest above them. Painter, canvas and
// window outlive the axes.
class Ejes {
public:
    Ejes(QPainter& pintor, const Lienzo& lienzo, const Ventana& ventana);

    void DibujaRejilla();
    void Dibuja();

private:
    std::size_t DevSalto() const;
    void RotulaX();
    void RotulaY();

    QPainter& pintor_;
    const Lienzo& lienzo_;
    const Ventana& ventana_;
    QFontMetricsF medidas_;
    std::vector<Marca> enX_;
    std::vector<Marca> enY_;
    std::vector<QRectF> ocupados_; // by the labels of the horizontal axis
    qreal ejeX_;                   // the height of the horizontal axis
    qreal ejeY_;                   // the place of the vertical one
};

} // namespace quiralto
