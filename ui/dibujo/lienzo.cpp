#include "ui/dibujo/lienzo.h"

#include <QFontInfo>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace quiralto {

// The first and the last unit of the area are the ends of the scale, so that both can be seen.
QPointF Lienzo::DevLugar(double s, double t) const {
    constexpr double Escala = 2 * MediaEscala;
    return {área.left() + grosor / 2 + (s + MediaEscala) / Escala * (área.width() - grosor),
            área.top() + grosor / 2 + (MediaEscala - t) / Escala * (área.height() - grosor)};
}

double Lienzo::DevS(double x) const {
    return (x - área.left() - grosor / 2) / (área.width() - grosor) * 2 * MediaEscala - MediaEscala;
}

double Lienzo::DevT(double y) const {
    return MediaEscala - (y - área.top() - grosor / 2) / (área.height() - grosor) * 2 * MediaEscala;
}

QFont DevFuenteRótulos(const QFont& fuente, qreal escala) {
    QFont rótulos = fuente;
    rótulos.setPixelSize(
        std::max(1, static_cast<int>(std::lround(QFontInfo(fuente).pixelSize() * 0.9 * escala))));
    return rótulos;
}

qreal DevLugarX(const Lienzo& lienzo, const Ventana& ventana, double x) {
    return lienzo.DevLugar(DevXlógico(ventana, x), 0).x();
}

qreal DevLugarY(const Lienzo& lienzo, const Ventana& ventana, double y) {
    return lienzo.DevLugar(0, DevYlógico(ventana, y)).y();
}

qreal DevBorde(const Lienzo& lienzo, qreal lugar) {
    return std::floor(lugar - (lienzo.grosor - 1) / 2);
}

void DibujaVertical(QPainter& pintor, const Lienzo& lienzo, qreal x, const QColor& color) {
    pintor.fillRect(
        QRectF(DevBorde(lienzo, x), lienzo.área.top(), lienzo.grosor, lienzo.área.height()), color);
}

void DibujaHorizontal(QPainter& pintor, const Lienzo& lienzo, qreal y, const QColor& color) {
    pintor.fillRect(
        QRectF(lienzo.área.left(), DevBorde(lienzo, y), lienzo.área.width(), lienzo.grosor), color);
}

bool EsRáster(const QPainter& pintor) {
    return pintor.paintEngine()->type() == QPaintEngine::Raster;
}

} // namespace quiralto
