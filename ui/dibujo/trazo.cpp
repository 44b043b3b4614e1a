#include "ui/dibujo/trazo.h"

#include <cmath>

namespace quiralto {
namespace {

// A pen wider than one pixel takes the raster engine a hundred times as long as one pixel does, so
// there the drawing is repeated, shifted, as often as the width needs.
template <typename Trazo> void TrazaConGrosor(QPainter& pintor, qreal grosor, Trazo trazo) {
    const int copias = static_cast<int>(std::lround(grosor));
    for (int dy = 0; dy < copias; ++dy)
        for (int dx = 0; dx < copias; ++dx) {
            pintor.translate(dx, dy);
            trazo();
            pintor.translate(-dx, -dy);
        }
}

// One function's points in the drawing scale, in its colour.
class Trazo {
public:
    Trazo(QPainter& pintor, const Lienzo& lienzo, const std::vector<Punto>& puntos)
        : pintor_(pintor), grosor_(lienzo.grosor) {
        lugares_.reserve(static_cast<qsizetype>(puntos.size()));
        for (const Punto& punto : puntos)
            lugares_ += lienzo.DevLugar(punto.x, punto.y);
    }

    void TipoDibujo(MétodoDibujo método, const QColor& color) {
        const auto dibuja = [&] {
            método == MétodoDibujo::Puntos ? DibujaPuntos() : DibujaLíneas();
        };
        if (EsRáster(pintor_)) {
            pintor_.setPen(QPen(color, 0));
            TrazaConGrosor(pintor_, grosor_, dibuja);
        } else {
            pintor_.setPen(QPen(color, grosor_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            dibuja();
        }
    }

private:
    void DibujaPuntos() { pintor_.drawPoints(lugares_); }

    void DibujaLíneas() {
        if (lugares_.size() == 1)
            pintor_.drawPoint(lugares_.front());
        else
            pintor_.drawPolyline(lugares_);
    }

    QPainter& pintor_;
    qreal grosor_;
    QPolygonF lugares_;
};

} // namespace

void DibujaCurva(QPainter& pintor, const Lienzo& lienzo, const std::vector<Punto>& puntos,
                 MétodoDibujo método, const QColor& color) {
    if (!puntos.empty())
        Trazo(pintor, lienzo, puntos).TipoDibujo(método, color);
}

} // namespace quiralto
