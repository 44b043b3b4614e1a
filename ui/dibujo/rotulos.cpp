#include "ui/dibujo/rotulos.h"

#include "ui/dibujo/texto_qt.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

constexpr std::size_t Mínimo = 4; // labels on an axis

// How the labels of the horizontal axis are spread: every so many marks one, in so many rows.
struct Reparto {
    long long salto;
    int filas;
};

bool EstáEnVista(qreal lugar, qreal menor, qreal mayor) {
    return lugar >= menor && lugar <= mayor;
}

class Colocador {
public:
    Colocador(const QFontMetricsF& medidas, const Lienzo& lienzo, const Ventana& ventana)
        : medidas_(medidas), lienzo_(lienzo), ventana_(ventana), área_(lienzo.área),
          g_(lienzo.grosor), ejeX_(DevLugarY(lienzo, ventana, 0)),
          ejeY_(DevLugarX(lienzo, ventana, 0)),
          bordeX_(std::clamp(ejeX_, área_.top(), área_.bottom() - g_)),
          bordeY_(std::clamp(ejeY_, área_.left(), área_.right() - g_)) {}

    Rótulos Coloca(const std::vector<Marca>& enX, const std::vector<Marca>& enY) {
        Rótulos rótulos;
        rótulos.enX = DevEnX(enX);
        rótulos.nombreX = DevNombreX(rótulos.enX);
        rótulos.nombreY = DevNombreY(enY, rótulos);
        for (const Rótulo& rótulo : rótulos.enX)
            Ocupa(rótulo);
        Ocupa(rótulos.nombreX);
        Ocupa(rótulos.nombreY);
        rótulos.enY = DevEnY(enY);
        return rótulos;
    }

private:
    Rótulo DevRótulo(const QString& texto, const QPointF& base) const {
        return {texto, base,
                QRectF(base.x(), base.y() - medidas_.ascent(), DevAncho(texto), medidas_.height())};
    }
    qreal DevAncho(const QString& texto) const { return medidas_.horizontalAdvance(texto); }
    void Ocupa(const Rótulo& rótulo) {
        ocupados_.push_back(rótulo.marco.adjusted(-3 * g_, 0, 3 * g_, 0));
    }

    // Below the axis, or at the border next to it where it is out of view or close to it.
    bool VanDebajo(int filas) const {
        return bordeX_ + 5 * g_ + filas * (medidas_.height() + g_) <= área_.bottom();
    }
    qreal DevBase(const Reparto& reparto, long long número) const {
        const auto filas = static_cast<long long>(reparto.filas);
        const long long fila = ((número / reparto.salto) % filas + filas) % filas;
        const qreal desvío = static_cast<qreal>(fila) * (medidas_.height() + g_);
        return VanDebajo(reparto.filas) ? bordeX_ + 4 * g_ + medidas_.ascent() + desvío
                                        : bordeX_ - 5 * g_ - medidas_.descent() - desvío;
    }

    // The axis itself would run through a label below it.
    qreal DevIzquierda(qreal x, qreal ancho) const {
        const bool enElEje = std::fabs(x - ejeY_) < 1 + g_;
        return std::clamp(enElEje ? x - ancho - 4 * g_ : x - ancho / 2, área_.left() + g_,
                          std::max(área_.left() + g_, área_.right() - ancho - g_));
    }

    std::vector<Rótulo> DevEnX(const std::vector<Marca>& marcas, const Reparto& reparto) const {
        std::vector<Rótulo> rótulos;
        for (const Marca& marca : marcas) {
            if (marca.número % reparto.salto != 0)
                continue;
            const QString texto = DevQString(marca.texto);
            const qreal x = std::floor(DevLugarX(lienzo_, ventana_, marca.valor));
            rótulos.push_back(DevRótulo(
                texto, {DevIzquierda(x, DevAncho(texto)), DevBase(reparto, marca.número)}));
        }
        return rótulos;
    }

    bool Caben(const std::vector<Rótulo>& rótulos) const {
        constexpr qreal Aire = 12;
        for (auto uno = rótulos.begin(); uno != rótulos.end(); ++uno)
            for (auto otro = rótulos.begin(); otro != uno; ++otro)
                if (uno->marco.adjusted(-Aire * g_, 0, 0, 0).intersects(otro->marco))
                    return false;
        return true;
    }

    // In round numbers, as marks are; rather fewer than in two rows.
    std::vector<Rótulo> DevEnX(const std::vector<Marca>& marcas) const {
        std::vector<Rótulo> rótulos;
        for (const Reparto reparto :
             {Reparto{1, 1}, {2, 1}, {5, 1}, {1, 2}, {2, 2}, {1, 3}, {2, 3}, {1, 4}, {2, 4}}) {
            rótulos = DevEnX(marcas, reparto);
            if (rótulos.size() >= std::min(Mínimo, marcas.size()) && Caben(rótulos))
                break;
        }
        return rótulos;
    }

    // Over the axis, and over labels that stand there.
    Rótulo DevNombreX(const std::vector<Rótulo>& enX) const {
        const QString texto = QStringLiteral("X");
        qreal base = bordeX_ - 6 * g_ - medidas_.descent();
        for (const Rótulo& rótulo : enX)
            base = std::min(
                base, rótulo.base.y() > bordeX_ ? base : rótulo.base.y() - medidas_.height() - g_);
        if (base < área_.top() + medidas_.ascent()) // the axis runs along the upper border
            base = enX.empty() ? bordeX_ + 4 * g_ + medidas_.ascent()
                               : std::ranges::max(
                                     enX, {},
                                     [](const Rótulo& r) {
                                         return r.base.y();
                                     }).base.y() +
                                     medidas_.height() + g_;
        return DevRótulo(texto, {área_.right() - DevAncho(texto) - 4 * g_, base});
    }

    // On the other side of the axis than its labels, or behind them, and below those of the other
    // axis.
    Rótulo DevNombreY(const std::vector<Marca>& enY, const Rótulos& puestos) const {
        const QString texto = QStringLiteral("Y");
        qreal izquierda = bordeY_ + 8 * g_;
        for (const Marca& marca : enY)
            if (const qreal ancho = DevAncho(DevQString(marca.texto)); !VanAIzquierda(ancho))
                izquierda = std::max(izquierda, bordeY_ + 13 * g_ + ancho);
        if (izquierda + DevAncho(texto) > área_.right())
            izquierda = bordeY_ - 8 * g_ - DevAncho(texto) - DevMayorAncho(enY);
        Rótulo nombre = DevRótulo(texto, {izquierda, área_.top() + medidas_.ascent() + 2 * g_});
        std::vector<Rótulo> otros = puestos.enX;
        otros.push_back(puestos.nombreX);
        std::ranges::sort(otros, {}, [](const Rótulo& r) { return r.marco.top(); });
        for (const Rótulo& otro : otros)
            if (otro.marco.adjusted(-3 * g_, 0, 3 * g_, 0).intersects(nombre.marco))
                nombre =
                    DevRótulo(texto, {izquierda, otro.marco.bottom() + medidas_.ascent() + g_});
        return nombre;
    }

    bool VanAIzquierda(qreal ancho) const { return bordeY_ - 6 * g_ - ancho >= área_.left(); }
    qreal DevMayorAncho(const std::vector<Marca>& marcas) const {
        qreal mayor = 0;
        for (const Marca& marca : marcas)
            mayor = std::max(mayor, DevAncho(DevQString(marca.texto)));
        return mayor;
    }

    std::vector<Rótulo> DevEnY(const std::vector<Marca>& marcas) const {
        std::vector<Rótulo> rótulos;
        const bool origenRotulado = EstáEnVista(ejeX_, área_.top(), área_.bottom()) &&
                                    EstáEnVista(ejeY_, área_.left(), área_.right());
        for (const Marca& marca : marcas) {
            if (marca.valor == 0 && origenRotulado)
                continue;
            const qreal y = std::floor(DevLugarY(lienzo_, ventana_, marca.valor));
            const QString texto = DevQString(marca.texto);
            const qreal ancho = DevAncho(texto);
            const qreal base =
                std::clamp(y + medidas_.ascent() / 2 - g_, área_.top() + medidas_.ascent() + g_,
                           área_.bottom() - medidas_.descent() - g_);
            const Rótulo rótulo = DevRótulo(
                texto, {VanAIzquierda(ancho) ? bordeY_ - 6 * g_ - ancho : bordeY_ + 7 * g_, base});
            const bool libre = std::ranges::none_of(
                ocupados_, [&](const QRectF& o) { return o.intersects(rótulo.marco); });
            if (libre && (rótulos.empty() || !rótulos.back().marco.intersects(rótulo.marco)))
                rótulos.push_back(rótulo);
        }
        return rótulos;
    }

    const QFontMetricsF& medidas_;
    const Lienzo& lienzo_;
    const Ventana& ventana_;
    QRectF área_;
    qreal g_;
    qreal ejeX_;   // the height of the horizontal axis
    qreal ejeY_;   // the place of the vertical one
    qreal bordeX_; // and where they are, or the borders next to them
    qreal bordeY_;
    std::vector<QRectF> ocupados_;
};

} // namespace

Rótulos DevRótulos(const QFontMetricsF& medidas, const Lienzo& lienzo, const Ventana& ventana,
                   const std::vector<Marca>& enX, const std::vector<Marca>& enY) {
    return Colocador(medidas, lienzo, ventana).Coloca(enX, enY);
}

} // namespace quiralto
