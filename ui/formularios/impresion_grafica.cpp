#include "ui/formularios/impresion_grafica.h"

#include "ui/dibujo/grafica.h"
#include "ui/dibujo/leyenda.h"
#include "ui/dibujo/punto_x.h"
#include "ui/formularios/impresion.h"

#include <algorithm>

namespace quiralto {
namespace {

constexpr qreal PuntosPorPulgada = 72;

} // namespace

bool ImprimeGráficas(QPagedPaintDevice& impresora, const Escena& escena,
                     const QSizeF& proporciones) {
    QPainter pintor;
    if (!pintor.begin(&impresora))
        return false;
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSize(9);
    pintor.setFont(fuente);
    const qreal punto = impresora.logicalDpiX() / PuntosPorPulgada;
    const QRectF página = DevPágina(impresora);
    const qreal separación = 8 * punto;
    // However long the functions are, half the page is the graph's.
    const qreal altoTextos =
        std::min(DevAltoLeyenda(pintor, página, escena.leyenda), página.height() / 2);
    const QSizeF tamaño = proporciones.scaled(
        página.width(), página.height() - altoTextos - separación, Qt::KeepAspectRatio);
    const Lienzo lienzo{QRectF(página.topLeft(), tamaño), punto};
    DibujaGráfica(pintor, lienzo, SinAtenuadas(escena.cuadro));
    DibujaPuntoX(pintor, lienzo, escena.cuadro.ventana, escena.marcador);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(Qt::gray, punto / 2));
    pintor.drawRect(lienzo.área);
    const QRectF debajo(página.left(), lienzo.área.bottom() + separación, página.width(),
                        altoTextos);
    pintor.setClipRect(debajo);
    DibujaLeyenda(pintor, debajo, escena.leyenda);
    return pintor.end();
}

} // namespace quiralto
