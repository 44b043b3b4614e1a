#include "ui/dibujo/punto_x.h"

#include "ui/dibujo/colores.h"

#include <cmath>

namespace quiralto {
namespace {

// An arrow head at the edge beyond which the point lies, on a ground of paper.
void DibujaSeñal(QPainter& pintor, const Lienzo& lienzo, bool aLaDerecha) {
    const qreal g = lienzo.grosor;
    const qreal sentido = aLaDerecha ? 1 : -1;
    const QPointF punta(aLaDerecha ? lienzo.área.right() - 3 * g : lienzo.área.left() + 3 * g,
                        lienzo.área.top() + lienzo.área.height() / 4);
    const QPointF atrás = punta - QPointF(sentido * 12 * g, 0);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(Papel, 2 * g));
    pintor.setBrush(ColorMarcador);
    pintor.drawPolygon(QPolygonF{punta, atrás - QPointF(0, 8 * g), atrás + QPointF(0, 8 * g)});
}

} // namespace

void DibujaPuntoX(QPainter& pintor, const Lienzo& lienzo, const Ventana& ventana,
                  const Marcador& marcador) {
    const double s = DevXlógico(ventana, marcador.PuntoX);
    pintor.save();
    pintor.setClipRect(lienzo.área);
    if (!(std::fabs(s) <= MediaEscala)) {
        DibujaSeñal(pintor, lienzo, s > 0);
        pintor.restore();
        return;
    }
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
