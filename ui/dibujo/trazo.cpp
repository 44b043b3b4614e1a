#include "ui/dibujo/trazo.h"

#include "ui/dibujo/cobertura.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

// The slopes of the lines from a corner that pass every place on their right closely enough.
class Cono {
public:
    Cono(const QPointF& vértice, qreal grosor) : vértice_(vértice), tolerancia_(grosor / 20) {}

    bool Tiene(const QPointF& lugar) const {
        const qreal p = DevPendiente(lugar);
        return lugar == vértice_ || (p >= menor_ && p <= mayor_);
    }

    void Estrecha(const QPointF& lugar) {
        if (lugar == vértice_)
            return;
        const qreal p = DevPendiente(lugar);
        const qreal margen = tolerancia_ * std::sqrt(1 + p * p) / (lugar.x() - vértice_.x());
        menor_ = std::max(menor_, p - margen);
        mayor_ = std::min(mayor_, p + margen);
    }

private:
    qreal DevPendiente(const QPointF& lugar) const {
        return (lugar.y() - vértice_.y()) / (lugar.x() - vértice_.x());
    }

    QPointF vértice_;
    qreal tolerancia_;
    qreal menor_ = -std::numeric_limits<qreal>::infinity();
    qreal mayor_ = std::numeric_limits<qreal>::infinity();
};

} // namespace

QPolygonF Trazos::DevLugares(const std::vector<Punto>& puntos) const {
    QPolygonF lugares;
    lugares.reserve(static_cast<qsizetype>(puntos.size()));
    for (const Punto& punto : puntos)
        lugares += lienzo_.DevLugar(punto.x, punto.y);
    return lugares;
}

void Trazos::Traza(const std::vector<Punto>& puntos, MétodoDibujo método, const QColor& color) {
    if (puntos.empty())
        return;
    if (método == MétodoDibujo::Puntos)
        TrazaPuntos(puntos, color);
    else if (EsRáster(pintor_))
        líneas_.push_back({DevEsquinas(puntos), color});
    else
        TrazaLíneas(puntos, color);
}

// Single pixels, logical ones on a screen.
void Trazos::TrazaPuntos(const std::vector<Punto>& puntos, const QColor& color) {
    const QPolygonF lugares = DevLugares(puntos);
    if (!EsRáster(pintor_)) {
        pintor_.setPen(QPen(color, lienzo_.grosor, Qt::SolidLine, Qt::RoundCap));
        pintor_.drawPoints(lugares);
        return;
    }
    const int lado = static_cast<int>(std::lround(lienzo_.grosor));
    const qreal mitad = (lado - 1) / 2.0;
    for (const QPointF& lugar : lugares)
        pintor_.fillRect(QRect(static_cast<int>(std::floor(lugar.x() - mitad)),
                               static_cast<int>(std::floor(lugar.y() - mitad)), lado, lado),
                         color);
}

void Trazos::TrazaLíneas(const std::vector<Punto>& puntos, const QColor& color) {
    const QPolygonF lugares = DevLugares(puntos);
    pintor_.setPen(QPen(color, DevGrosor(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (lugares.size() == 1)
        pintor_.drawPoint(lugares.front());
    else
        pintor_.drawPolyline(lugares);
}

// The places, but for those that the eye could not tell from the straight line that is left.
std::vector<QPointF> Trazos::DevEsquinas(const std::vector<Punto>& puntos) const {
    const auto lugar = [&](const Punto& punto) { return lienzo_.DevLugar(punto.x, punto.y); };
    std::vector<QPointF> esquinas = {lugar(puntos.front())};
    Cono cono(esquinas.back(), lienzo_.grosor);
    QPointF último = esquinas.back();
    for (const Punto& punto : puntos) {
        const QPointF este = lugar(punto);
        if (!cono.Tiene(este)) {
            esquinas.push_back(último);
            cono = Cono(último, lienzo_.grosor);
        }
        cono.Estrecha(este);
        último = este;
    }
    esquinas.push_back(último);
    return esquinas;
}

void Trazos::CubreFranja(Cobertura& cobertura, const Línea& línea, const QRect& franja) const {
    const auto& esquinas = línea.esquinas;
    const QPointF origen = franja.topLeft();
    auto este = std::ranges::lower_bound(esquinas, franja.left() - DevGrosor(), {}, &QPointF::x);
    if (este == esquinas.end())
        return;
    auto anterior = este == esquinas.begin() ? este++ : este - 1;
    for (; este != esquinas.end() && anterior->x() < franja.right() + 1 + DevGrosor();
         anterior = este++)
        cobertura.Traza({*anterior - origen, *este - origen}, DevGrosor());
}

// In upright strips, so that one of them and all that is done to it stays close at hand.
void Trazos::Pinta() {
    constexpr int Ancho = 128;
    if (líneas_.empty())
        return;
    const QRect área = lienzo_.área.toAlignedRect();
    const QSize tamaño(std::min(Ancho, área.width()), área.height());
    Cobertura cobertura(tamaño);
    QImage capa(tamaño, QImage::Format_ARGB32_Premultiplied);
    for (int x = área.left(); x <= área.right(); x += Ancho) {
        const QRect franja(QPoint(x, área.top()), tamaño);
        capa.fill(Qt::transparent);
        for (const Línea& línea : líneas_) {
            CubreFranja(cobertura, línea, franja);
            cobertura.Vierte(capa, línea.color);
        }
        pintor_.drawImage(franja.intersected(área).topLeft(), capa,
                          QRect(QPoint(0, 0), franja.intersected(área).size()));
    }
    líneas_.clear();
}

} // namespace quiralto
