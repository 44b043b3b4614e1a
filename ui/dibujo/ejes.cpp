#include "ui/dibujo/ejes.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/texto_qt.h"

#include <QPainterPath>
#include <QStaticText>

#include <algorithm>
#include <cmath>

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
    for (const Marca& marca : enX_)
        DibujaVertical(pintor_, lienzo_, DevLugarX(lienzo_, ventana_, marca.valor), ColorRejilla);
    for (const Marca& marca : enY_)
        DibujaHorizontal(pintor_, lienzo_, DevLugarY(lienzo_, ventana_, marca.valor), ColorRejilla);
}

void Ejes::Dibuja() {
    if (EstáEnVista(ejeX_, lienzo_.área.top(), lienzo_.área.bottom()))
        DibujaHorizontal(pintor_, lienzo_, ejeX_, ColorEje);
    if (EstáEnVista(ejeY_, lienzo_.área.left(), lienzo_.área.right()))
        DibujaVertical(pintor_, lienzo_, ejeY_, ColorEje);
    RotulaX();
    RotulaY();
}

// Long numbers do not fit beside each other at every mark: how many marks a label takes, in
// the round numbers that marks are made of.
std::size_t Ejes::DevSalto() const {
    qreal mayor = 0;
    for (const Marca& marca : enX_)
        mayor = std::max(mayor, medidas_.horizontalAdvance(DevQString(marca.texto)));
    if (enX_.size() < 2)
        return 1;
    const qreal separación =
        DevLugarX(lienzo_, ventana_, enX_[1].valor) - DevLugarX(lienzo_, ventana_, enX_[0].valor);
    for (const std::size_t salto : {1U, 2U, 5U})
        if (mayor + 12 * lienzo_.grosor <= separación * static_cast<qreal>(salto))
            return salto;
    return 10;
}

void Ejes::RotulaX() {
    const qreal g = lienzo_.grosor;
    const QRectF& área = lienzo_.área;
    const qreal alto = medidas_.height();
    // Below the axis, or at the border next to it where it is out of view or close to it.
    const qreal eje = std::clamp(ejeX_, área.top(), área.bottom() - g);
    const qreal base = eje + 6 * g + alto <= área.bottom() ? eje + 4 * g + medidas_.ascent()
                                                           : eje - 5 * g - medidas_.descent();
    const std::size_t salto = DevSalto();
    for (std::size_t i = 0; i < enX_.size(); ++i) {
        const qreal x = std::floor(DevLugarX(lienzo_, ventana_, enX_[i].valor));
        pintor_.fillRect(QRectF(x, eje - 3 * g, g, 7 * g), ColorEje);
        if (i % salto != 0)
            continue;
        const QString texto = DevQString(enX_[i].texto);
        const qreal ancho = medidas_.horizontalAdvance(texto);
        // The axis itself would run through a label below it.
        const bool enElEje = std::fabs(x - ejeY_) < 1 + g;
        const qreal izquierda = enElEje ? x - ancho - 4 * g : x - ancho / 2;
        if (izquierda < área.left() || izquierda + ancho > área.right())
            continue;
        DibujaRótulo(pintor_, lienzo_, {izquierda, base}, texto);
        ocupados_.emplace_back(izquierda - 3 * g, base - medidas_.ascent(), ancho + 6 * g, alto);
    }
}

void Ejes::RotulaY() {
    const qreal g = lienzo_.grosor;
    const QRectF& área = lienzo_.área;
    const qreal eje = std::clamp(ejeY_, área.left(), área.right() - g);
    const bool origenRotulado = EstáEnVista(ejeX_, área.top(), área.bottom()) &&
                                EstáEnVista(ejeY_, área.left(), área.right());
    for (const Marca& marca : enY_) {
        const qreal y = std::floor(DevLugarY(lienzo_, ventana_, marca.valor));
        pintor_.fillRect(QRectF(eje - 3 * g, y, 7 * g, g), ColorEje);
        if (marca.valor == 0 && origenRotulado)
            continue;
        const QString texto = DevQString(marca.texto);
        const qreal ancho = medidas_.horizontalAdvance(texto);
        const qreal junto = eje - 6 * g - ancho;
        const QPointF lugar(junto >= área.left() ? junto : eje + 7 * g,
                            y + medidas_.ascent() / 2 - g);
        const QRectF marco(lugar.x(), lugar.y() - medidas_.ascent(), ancho, medidas_.height());
        if (área.contains(marco) &&
            std::ranges::none_of(ocupados_, [&](const QRectF& o) { return o.intersects(marco); }))
            DibujaRótulo(pintor_, lienzo_, lugar, texto);
    }
}

} // namespace quiralto
