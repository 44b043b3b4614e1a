#include "ui/formularios/impresion_texto.h"

#include "commands/impresion.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/impresion.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace quiralto {
namespace {

QFont DevFuenteImpresa() {
    QFont fuente;
    // Where there is no Arial, one with the same widths.
    fuente.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                        QStringLiteral("Arimo"), QStringLiteral("Nimbus Sans")});
    fuente.setPointSize(14);
    return fuente;
}

void ImprimeLínea(QPainter& pintor, const QPointF& base, const QString& línea, qreal ancho) {
    const qreal anchoLínea = QFontMetricsF(pintor.font(), pintor.device()).horizontalAdvance(línea);
    pintor.save();
    pintor.translate(base);
    pintor.scale(std::min(1.0, ancho / std::max(1.0, anchoLínea)), 1);
    pintor.drawText(QPointF(0, 0), línea);
    pintor.restore();
}

} // namespace

bool ImprimetxtSalida(QPagedPaintDevice& impresora, std::string_view texto) {
    QPainter pintor;
    if (!pintor.begin(&impresora))
        return false;
    pintor.setFont(DevFuenteImpresa());
    const QFontMetricsF medidas(pintor.font(), &impresora);
    const QRectF página = DevPágina(impresora);
    qreal y = 0;
    for (const std::string& línea : DevLíneasImpresas(texto)) {
        if (y + medidas.height() > página.height()) {
            if (!impresora.newPage())
                return false;
            y = 0;
        }
        ImprimeLínea(pintor, {0, y + medidas.ascent()}, DevQString(línea), página.width());
        y += medidas.lineSpacing();
    }
    return pintor.end();
}

} // namespace quiralto
