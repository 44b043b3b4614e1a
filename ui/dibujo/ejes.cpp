#include "ui/dibujo/ejes.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/rotulos.h"
#include "ui/dibujo/texto_qt.h"

#include <QPainterPath>
#include <QStaticText>

#include <algorithm>

namespace quiralto {
namespace {

// The label with a halo of the paper's colour, so that it can be read over curves.
void DibujaRótulo(QPainter& pintor, const Lienzo& lienzo, const QPointF& base,
                  const QString& texto) {
    const qreal g = lienzo.grosor;
    if (EsRáster(pintor)) {
        QStaticText rótulo(texto); // laid out once
        rótulo.setTextFormat(Qt::PlainText);
        const QPointF esquina = base - QPointF(0, QFontMetricsF(pintor.font()).ascent());
        pintor.setPen(Papel);
        for (const QPointF& desvío :
             {QPointF(-g, -g), QPointF(0, -g), QPointF(g, -g), QPointF(-g, 0), QPointF(g, 0),
              QPointF(-g, g), QPointF(0, g), QPointF(g, g)})
            pintor.drawStaticText(esquina + desvío, rótulo);
        pintor.setPen(ColorTexto);
        pintor.drawStaticText(esquina, rótulo);
    } else { // there the text is to stand once, for whoever searches or copies it
        QPainterPath contorno;
        contorno.addText(base, QFont(pintor.font(), pintor.device()), texto);
        pintor.strokePath(contorno, QPen(Papel, 2 * g, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pintor.setPen(ColorTexto);
        pintor.drawText(base, texto);
    }
}

bool EstáEnVista(qreal lugar, qreal menor, qreal mayor) {
    return lugar >= menor && lugar <= mayor;
}

} // namespace

Ejes::Ejes(QPainter& pintor, const Lienzo& lienzo, const Ventana& ventana)
    : pintor_(pintor), lienzo_(lienzo), ventana_(ventana), medidas_(pintor.font(), pintor.device()),
      enX_(DevMarcas(ventana.XMín, ventana.XMáx, lienzo.área.width() / lienzo.grosor)),
      enY_(DevMarcas(ventana.YMín, ventana.YMáx, lienzo.área.height() / lienzo.grosor)),
      ejeX_(DevLugarY(lienzo, ventana, 0)), ejeY_(DevLugarX(lienzo, ventana, 0)) {
}

void Ejes::DibujaRejilla() {
    for (const double x : enX_.menores)
        DibujaVertical(pintor_, lienzo_, DevLugarX(lienzo_, ventana_, x), ColorRejillaMenor);
    for (const double y : enY_.menores)
        DibujaHorizontal(pintor_, lienzo_, DevLugarY(lienzo_, ventana_, y), ColorRejillaMenor);
    for (const Marca& marca : enX_.mayores)
        DibujaVertical(pintor_, lienzo_, DevLugarX(lienzo_, ventana_, marca.valor), ColorRejilla);
    for (const Marca& marca : enY_.mayores)
        DibujaHorizontal(pintor_, lienzo_, DevLugarY(lienzo_, ventana_, marca.valor), ColorRejilla);
}

void Ejes::Dibuja() {
    DibujaPuntas();
    DibujaMarcas();
    const Rótulos rótulos = DevRótulos(medidas_, lienzo_, ventana_, enX_.mayores, enY_.mayores);
    for (const auto* lista : {&rótulos.enX, &rótulos.enY})
        for (const Rótulo& rótulo : *lista)
            DibujaRótulo(pintor_, lienzo_, rótulo.base, rótulo.texto);
    for (const Rótulo& nombre : {rótulos.nombreX, rótulos.nombreY})
        DibujaRótulo(pintor_, lienzo_, nombre.base, nombre.texto);
}

// The axes that are in view, with an arrow head where they go on upwards.
void Ejes::DibujaPuntas() {
    const qreal g = lienzo_.grosor;
    const qreal largo = 9 * g;
    const qreal mitad = 3.5 * g;
    const QRectF& área = lienzo_.área;
    pintor_.save();
    pintor_.setRenderHint(QPainter::Antialiasing);
    pintor_.setPen(Qt::NoPen);
    pintor_.setBrush(ColorEje);
    if (EstáEnVista(ejeX_, área.top(), área.bottom())) {
        DibujaHorizontal(pintor_, lienzo_, ejeX_, ColorEje);
        const qreal y = DevBorde(lienzo_, ejeX_) + g / 2;
        pintor_.drawPolygon(QPolygonF{{área.right(), y},
                                      {área.right() - largo, y - mitad},
                                      {área.right() - largo, y + mitad}});
    }
    if (EstáEnVista(ejeY_, área.left(), área.right())) {
        DibujaVertical(pintor_, lienzo_, ejeY_, ColorEje);
        const qreal x = DevBorde(lienzo_, ejeY_) + g / 2;
        pintor_.drawPolygon(QPolygonF{
            {x, área.top()}, {x - mitad, área.top() + largo}, {x + mitad, área.top() + largo}});
    }
    pintor_.restore();
}

// At the axis, or at the border next to it.
void Ejes::DibujaMarcas() {
    const qreal g = lienzo_.grosor;
    const QRectF& área = lienzo_.área;
    const qreal alto = std::clamp(DevBorde(lienzo_, ejeX_), área.top(), área.bottom() - g);
    const qreal largo = std::clamp(DevBorde(lienzo_, ejeY_), área.left(), área.right() - g);
    for (const Marca& marca : enX_.mayores) {
        const qreal x = DevBorde(lienzo_, DevLugarX(lienzo_, ventana_, marca.valor));
        pintor_.fillRect(QRectF(x, alto - 3 * g, g, 7 * g), ColorEje);
    }
    for (const Marca& marca : enY_.mayores) {
        const qreal y = DevBorde(lienzo_, DevLugarY(lienzo_, ventana_, marca.valor));
        pintor_.fillRect(QRectF(largo - 3 * g, y, 7 * g, g), ColorEje);
    }
}

} // namespace quiralto
