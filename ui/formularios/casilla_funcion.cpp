#include "ui/formularios/casilla_funcion.h"

#include "ui/dibujo/contraste.h"

#include <QPainter>

namespace quiralto {
namespace {

constexpr int Lado = 16;
constexpr int Margen = 3; // for the mark of the focus

} // namespace

QSize CasillaFunción::sizeHint() const {
    return {Lado + 2 * Margen, Lado + 2 * Margen};
}

void CasillaFunción::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QPalette& p = palette();
    QRectF marco(0, 0, Lado - 1, Lado - 1);
    marco.moveCenter(QRectF(rect()).center());
    pintor.setPen(QPen(DevLegible(p.color(QPalette::Window), p.color(QPalette::WindowText)), 1));
    pintor.setBrush(p.color(isDown() ? QPalette::Button : QPalette::Base));
    pintor.drawRoundedRect(marco, 2, 2);
    if (isChecked()) {
        pintor.setPen(QPen(p.color(QPalette::Text), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pintor.drawPolyline(QPolygonF{marco.topLeft() + QPointF(3.5, 8),
                                      marco.topLeft() + QPointF(6.5, 11),
                                      marco.topLeft() + QPointF(11.5, 4.5)});
    }
    if (hasFocus())
        DibujaFoco(pintor, QRectF(rect()), p);
}

} // namespace quiralto
