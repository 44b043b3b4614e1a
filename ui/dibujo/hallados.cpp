#include "ui/dibujo/hallados.h"

#include "ui/dibujo/colores.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

// A piece of a curve between two samples, cut to the area's interval.
struct Tramo {
    QPointF primero;
    QPointF segundo;
};

double DevAltura(const Punto& p, const Punto& q, double s) {
    const double parte = (s - p.x) / (static_cast<double>(q.x) - p.x);
    return p.y + parte * (static_cast<double>(q.y) - p.y);
}

// The pieces of the curve within the interval. Where a sample is missing the function has no value:
// there is no area.
template <typename Visita>
void RecorreTramos(const Cuadro& cuadro, const ÁreaHallada& área, Visita visita) {
    const std::shared_ptr<const ListaPuntos>& puntos =
        cuadro.curvas.at(static_cast<std::size_t>(área.índice)).puntos;
    if (puntos == nullptr)
        return;
    const double desde = DevXlógico(cuadro.ventana, área.desde);
    const double hasta = DevXlógico(cuadro.ventana, área.hasta);
    double paso = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < puntos->size(); ++i)
        paso = std::min(paso, static_cast<double>((*puntos)[i].x) - (*puntos)[i - 1].x);
    for (std::size_t i = 1; i < puntos->size(); ++i) {
        const Punto& p = (*puntos)[i - 1];
        const Punto& q = (*puntos)[i];
        const double a = std::max<double>(p.x, desde);
        const double b = std::min<double>(q.x, hasta);
        if (a < b && q.x - p.x < 1.5 * paso)
            visita(Tramo{{a, DevAltura(p, q, a)}, {b, DevAltura(p, q, b)}});
    }
}

double DevAlturaEje(const Cuadro& cuadro) {
    constexpr double Fuera = MediaEscala + 1;
    return std::clamp(DevYlógico(cuadro.ventana, 0), -Fuera, Fuera);
}

void DibujaÁrea(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro,
                const ÁreaHallada& área) {
    constexpr int Opacidad = 48;
    QColor color = DevColor(área.índice);
    color.setAlpha(Opacidad);
    pintor.setBrush(color);
    const double eje = DevAlturaEje(cuadro);
    QPolygonF contorno; // of the pieces that hang together
    const auto cierra = [&] {
        if (contorno.isEmpty())
            return;
        const qreal y = lienzo.DevLugar(0, eje).y();
        contorno << QPointF(contorno.back().x(), y) << QPointF(contorno.front().x(), y);
        pintor.drawPolygon(contorno, Qt::WindingFill);
        contorno.clear();
    };
    double fin = 0;
    RecorreTramos(cuadro, área, [&](const Tramo& tramo) {
        if (tramo.primero.x() != fin)
            cierra();
        if (contorno.isEmpty())
            contorno << lienzo.DevLugar(tramo.primero.x(), tramo.primero.y());
        contorno << lienzo.DevLugar(tramo.segundo.x(), tramo.segundo.y());
        fin = tramo.segundo.x();
    });
    cierra();
}

} // namespace

void DibujaÁreas(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro) {
    if (cuadro.marcas == nullptr || cuadro.marcas->áreas.empty())
        return;
    pintor.save();
    pintor.setPen(Qt::NoPen);
    pintor.setRenderHint(QPainter::Antialiasing);
    for (const ÁreaHallada& área : cuadro.marcas->áreas)
        DibujaÁrea(pintor, lienzo, cuadro, área);
    pintor.restore();
}

void DibujaLugares(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro) {
    if (cuadro.marcas == nullptr)
        return;
    constexpr qreal Radio = 6.5; // so that the dot of the point X leaves its ring
    constexpr qreal Trazo = 2;
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setBrush(Papel);
    for (const LugarHallado& hallado : cuadro.marcas->lugares) {
        const double s = DevXlógico(cuadro.ventana, hallado.lugar.x);
        const double t = DevYlógico(cuadro.ventana, hallado.lugar.y);
        if (!(std::fabs(s) <= MediaEscala) || !(std::fabs(t) <= MediaEscala))
            continue;
        pintor.setPen(QPen(DevColor(hallado.índice), Trazo * lienzo.grosor));
        pintor.drawEllipse(lienzo.DevLugar(s, t), Radio * lienzo.grosor, Radio * lienzo.grosor);
    }
    pintor.restore();
}

bool EstáEnÁrea(const Cuadro& cuadro, const ÁreaHallada& área, double s, double t) {
    const double eje = DevAlturaEje(cuadro);
    bool dentro = false;
    RecorreTramos(cuadro, área, [&](const Tramo& tramo) {
        if (s < tramo.primero.x() || s > tramo.segundo.x())
            return;
        const double altura = (tramo.primero.y() + tramo.segundo.y()) / 2;
        dentro = dentro || (t >= std::min(eje, altura) && t <= std::max(eje, altura));
    });
    return dentro;
}

} // namespace quiralto
