// The axes of the graph: a grid of two finenesses, axis lines with their arrow heads and names,
// unit marks and their labels.
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
    void DibujaPuntas();
    void DibujaMarcas();

    QPainter& pintor_;
    const Lienzo& lienzo_;
    const Ventana& ventana_;
    QFontMetricsF medidas_;
    MarcasEje enX_;
    MarcasEje enY_;
    qreal ejeX_; // the height of the horizontal axis
    qreal ejeY_; // the place of the vertical one
};

} // namespace quiralto
