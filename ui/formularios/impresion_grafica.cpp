#include "ui/formularios/impresion_grafica.h"

#include "ui/dibujo/texto_qt.h"

#include <QFontMetricsF>

namespace quiralto {
namespace {

constexpr qreal PuntosPorPulgada = 72;

QString DevTexto(int índice, const std::string& función) {
    return QStringLiteral("f%1(X)=").arg(índice) + DevQString(función);
}

// Below each other, a long one over as many lines as it needs. Returns the height.
qreal ImprimeTextos(QPainter& pintor, const QRectF& lugar,
                    const std::array<std::string, VentanaGráfica::CantidadFunciones>& textos,
                    bool sóloMide) {
    constexpr int Modo = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;
    qreal y = lugar.top();
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i) {
        const std::string& función = textos.at(static_cast<std::size_t>(i));
        if (función.empty())
            continue;
        const QRectF resto(lugar.left(), y, lugar.width(), lugar.height());
        const QString texto = DevTexto(i, función);
        QRectF ocupado = pintor.boundingRect(resto, Modo, texto);
        if (!sóloMide) {
            pintor.setPen(DevColor(i));
            pintor.drawText(resto, Modo, texto);
        }
        y += ocupado.height();
    }
    return y - lugar.top();
}

} // namespace

bool ImprimeGráficas(QPrinter& impresora, const EscenaGráfica& escena, const QSizeF& proporciones,
                     const std::array<std::string, VentanaGráfica::CantidadFunciones>& textos) {
    QPainter pintor;
    if (!pintor.begin(&impresora))
        return false;
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSize(9);
    pintor.setFont(fuente);
    const qreal punto = impresora.logicalDpiX() / PuntosPorPulgada;
    const QRectF página(QPointF(0, 0), impresora.pageRect(QPrinter::DevicePixel).size());
    const qreal separación = 8 * punto;
    // However long the functions are, half the page is the graph's.
    const qreal altoTextos =
        std::min(ImprimeTextos(pintor, página, textos, true), página.height() / 2);
    const QSizeF tamaño = proporciones.scaled(
        página.width(), página.height() - altoTextos - separación, Qt::KeepAspectRatio);
    const Lienzo lienzo{QRectF(página.topLeft(), tamaño), punto};
    DibujaGráfica(pintor, lienzo, escena);
    DibujaPuntoX(pintor, lienzo, escena);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(Qt::gray, punto / 2));
    pintor.drawRect(lienzo.área);
    const QRectF debajo(página.left(), lienzo.área.bottom() + separación, página.width(),
                        altoTextos);
    pintor.setClipRect(debajo);
    ImprimeTextos(pintor, debajo, textos, false);
    return pintor.end();
}

} // namespace quiralto
