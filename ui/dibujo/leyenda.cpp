#include "ui/dibujo/leyenda.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/texto_qt.h"

namespace quiralto {
namespace {

constexpr int Modo = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;

template <typename Dibuja>
qreal Recorre(QPainter& pintor, const QRectF& lugar, const std::vector<EntradaLeyenda>& leyenda,
              Dibuja dibuja) {
    qreal y = lugar.top();
    for (const EntradaLeyenda& entrada : leyenda) {
        const QRectF resto(lugar.left(), y, lugar.width(), lugar.height());
        const QString texto = DevQString(entrada.texto);
        const qreal alto = pintor.boundingRect(resto, Modo, texto).height();
        dibuja(resto, texto, entrada.índice);
        y += alto;
    }
    return y - lugar.top();
}

} // namespace

qreal DibujaLeyenda(QPainter& pintor, const QRectF& lugar,
                    const std::vector<EntradaLeyenda>& leyenda) {
    return Recorre(pintor, lugar, leyenda,
                   [&](const QRectF& resto, const QString& texto, int índice) {
                       pintor.setPen(DevColor(índice));
                       pintor.drawText(resto, Modo, texto);
                   });
}

qreal DevAltoLeyenda(QPainter& pintor, const QRectF& lugar,
                     const std::vector<EntradaLeyenda>& leyenda) {
    return Recorre(pintor, lugar, leyenda, [](const QRectF&, const QString&, int) {});
}

} // namespace quiralto
