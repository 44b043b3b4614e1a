#include "ui/formularios/copia_grafica.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/figura.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

QImage DevImagen(const Escena& escena, const QSize& tamaño, qreal escala, const QFont& fuente) {
    const qreal grosor = std::max(1.0, std::round(escala));
    const QFont rótulos = DevFuenteRótulos(fuente, escala);
    const QRectF área(0, 0, std::round(tamaño.width() * escala),
                      std::round(tamaño.height() * escala));
    QImage medida(1, 1, QImage::Format_RGB32);
    QPainter medidor(&medida);
    medidor.setFont(rótulos);
    const int debajo =
        static_cast<int>(std::ceil(DevAltoBajoGráfica(medidor, grosor, área.width(), escena)));
    medidor.end();
    QImage imagen(área.size().toSize() + QSize(0, debajo), QImage::Format_RGB32);
    imagen.fill(Papel);
    QPainter pintor(&imagen);
    pintor.setFont(rótulos);
    DibujaFigura(pintor, {área, grosor}, QSizeF(área.width(), debajo), escena);
    return imagen;
}

QByteArray DevPng(const QImage& imagen) {
    QBuffer búfer;
    búfer.open(QIODevice::WriteOnly);
    imagen.save(&búfer, "PNG");
    return búfer.data();
}

// As large as the image is on the screen, whose pixels are taken for 96 to the inch.
QByteArray DevPdf(const Escena& escena, const QSize& tamaño, int altoDebajo, const QFont& fuente) {
    constexpr int PíxelesPorPulgada = 96;
    constexpr int Finura = 12;
    constexpr qreal PuntosPorPíxel = 72.0 / PíxelesPorPulgada;
    QBuffer búfer;
    búfer.open(QIODevice::WriteOnly);
    QPdfWriter escritor(&búfer);
    escritor.setResolution(PíxelesPorPulgada * Finura);
    escritor.setPageSize(QPageSize(QSizeF(tamaño + QSize(0, altoDebajo)) * PuntosPorPíxel,
                                   QPageSize::Point, QString(), QPageSize::ExactMatch));
    escritor.setPageMargins({});
    QPainter pintor(&escritor);
    pintor.setFont(DevFuenteRótulos(fuente, Finura));
    const Lienzo lienzo{QRectF(QPointF(0, 0), QSizeF(tamaño) * Finura), Finura};
    DibujaFigura(pintor, lienzo, QSizeF(tamaño.width(), altoDebajo) * Finura, escena);
    pintor.end();
    return búfer.data();
}

} // namespace

std::unique_ptr<QMimeData> DevCopia(const Escena& escena, const QSize& tamaño, qreal escala,
                                    const QFont& fuente) {
    auto copia = std::make_unique<QMimeData>();
    const QImage imagen = DevImagen(escena, tamaño, escala, fuente);
    copia->setImageData(imagen);
    copia->setData(QStringLiteral("image/png"), DevPng(imagen));
    const int debajo = static_cast<int>(std::ceil(imagen.height() / escala)) - tamaño.height();
    copia->setData(QStringLiteral("application/pdf"), DevPdf(escena, tamaño, debajo, fuente));
    return copia;
}

} // namespace quiralto
