#include "ui/dibujo/figura.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/grafica.h"
#include "ui/dibujo/leyenda.h"
#include "ui/dibujo/punto_x.h"

namespace quiralto {
namespace {

constexpr qreal Separación = 8; // of graph and legend, in the width of a line

} // namespace

qreal DevAltoBajoGráfica(QPainter& pintor, qreal grosor, qreal ancho, const Escena& escena) {
    if (escena.leyenda.empty())
        return 0;
    return Separación * grosor + DevAltoLeyenda(pintor, QRectF(0, 0, ancho, 1), escena.leyenda);
}

void DibujaFigura(QPainter& pintor, const Lienzo& lienzo, const QSizeF& debajo,
                  const Escena& escena) {
    DibujaGráfica(pintor, lienzo, SinAtenuadas(escena.cuadro));
    DibujaPuntoX(pintor, lienzo, escena.cuadro.ventana, escena.marcador);
    const qreal g = lienzo.grosor;
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(ColorEje, g / 2));
    pintor.drawRect(lienzo.área.adjusted(g / 4, g / 4, -g / 4, -g / 4));
    const QRectF lugar(lienzo.área.left(), lienzo.área.bottom() + Separación * g, debajo.width(),
                       debajo.height() - Separación * g);
    pintor.setClipRect(lugar);
    DibujaLeyenda(pintor, lugar, escena.leyenda);
}

} // namespace quiralto
