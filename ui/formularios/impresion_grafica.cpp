#include "ui/formularios/impresion_grafica.h"

#include "ui/dibujo/figura.h"
#include "ui/formularios/impresion.h"

#include <algorithm>

namespace quiralto {
namespace {

constexpr qreal PuntosPorPulgada = 72;
constexpr int TamañoLetra = 9;

// As large as the proportions allow.
QSizeF DevTamaño(const QSizeF& página, qreal debajo, const QSizeF& proporciones) {
    return proporciones.scaled(página.width(), página.height() - debajo, Qt::KeepAspectRatio);
}

} // namespace

bool ImprimeGráficas(QPagedPaintDevice& impresora, const Escena& escena,
                     const QSizeF& proporciones) {
    QPainter pintor;
    if (!pintor.begin(&impresora))
        return false;
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSize(TamañoLetra);
    pintor.setFont(fuente);
    const qreal punto = impresora.logicalDpiX() / PuntosPorPulgada;
    const QRectF página = DevPágina(impresora);
    // However long the functions are, half the page is the graph's.
    const qreal debajo =
        std::min(DevAltoBajoGráfica(pintor, punto, página.width(), escena), página.height() / 2);
    const QSizeF tamaño = DevTamaño(página.size(), debajo, proporciones);
    DibujaFigura(pintor, {QRectF(página.topLeft(), tamaño), punto}, QSizeF(página.width(), debajo),
                 escena);
    return pintor.end();
}

QPageLayout::Orientation DevOrientación(const QPageLayout& página, const Escena& escena,
                                        const QSizeF& proporciones) {
    // a line of the legend for each function, which is near enough
    const qreal debajo = TamañoLetra * (1 + 1.2 * static_cast<qreal>(escena.leyenda.size()));
    const auto ancho = [&](QPageLayout::Orientation orientación) {
        QPageLayout otra = página;
        otra.setOrientation(orientación);
        return DevTamaño(otra.paintRectPoints().size(), debajo, proporciones).width();
    };
    return ancho(QPageLayout::Landscape) > ancho(QPageLayout::Portrait) ? QPageLayout::Landscape
                                                                        : QPageLayout::Portrait;
}

} // namespace quiralto
