#include "ui/dibujo/punto_x.h"

#include "ui/dibujo/colores.h"

#include <cmath>

namespace quiralto {

void DibujaPuntoX(QPainter& pintor, const Lienzo& lienzo, const Ventana& ventana,
                  const Marcador& marcador) {
    const double s = DevXlógico(ventana, marcador.PuntoX);
    if (!(std::fabs(s) <= MediaEscala))
        return;
    pintor.save();
    pintor.setClipRect(lienzo.área);
    const qreal x = lienzo.DevLugar(s, 0).x();
    DibujaVertical(pintor, lienzo, x, ColorMarcador);
    pintor.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < CantidadFunciones; ++i) {
        const std::optional<double> valor = marcador.valores.at(static_cast<std::size_t>(i));
        const double t = valor ? DevYlógico(ventana, *valor) : 2 * MediaEscala;
        if (!(std::fabs(t) <= MediaEscala))
            continue;
        pintor.setPen(QPen(Papel, lienzo.grosor));
        pintor.setBrush(DevColor(i));
        const qreal radio = 4.5 * lienzo.grosor;
        pintor.drawEllipse(lienzo.DevLugar(s, t), radio, radio);
    }
    pintor.restore();
}

} // namespace quiralto
