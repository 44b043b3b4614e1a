#include "ui/dibujo/grafica.h"

#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/marcas_eje.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QStaticText>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

const QColor Papel = Qt::white;
const QColor ColorRejilla(228, 228, 232);
const QColor ColorEje(120, 120, 128);
const QColor ColorTexto(70, 70, 76);
const QColor ColorMarcador(0, 130, 90);

QPen DevPluma(const QColor& color, qreal grosor) {
    QPen pluma(color, grosor);
    pluma.setCapStyle(Qt::FlatCap);
    return pluma;
}

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

bool EsRáster(const QPainter& pintor) {
    return pintor.paintEngine()->type() == QPaintEngine::Raster;
}

// One function's points in the drawing scale, in its colour.
class Curva {
public:
    Curva(QPainter& pintor, const Lienzo& lienzo, const std::vector<Punto>& puntos)
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

// A line across the whole area, over exactly `grosor` units.
void DibujaVertical(QPainter& pintor, const Lienzo& lienzo, qreal x, const QColor& color) {
    pintor.fillRect(QRectF(std::floor(x), lienzo.área.top(), lienzo.grosor, lienzo.área.height()),
                    color);
}

void DibujaHorizontal(QPainter& pintor, const Lienzo& lienzo, qreal y, const QColor& color) {
    pintor.fillRect(QRectF(lienzo.área.left(), std::floor(y), lienzo.área.width(), lienzo.grosor),
                    color);
}

qreal DevLugarX(const Lienzo& lienzo, const EscenaGráfica& escena, double x) {
    return lienzo.DevLugar(DevXlógico(escena.ventana, x), 0).x();
}

qreal DevLugarY(const Lienzo& lienzo, const EscenaGráfica& escena, double y) {
    return lienzo.DevLugar(0, DevYlógico(escena.ventana, y)).y();
}

// The label with a halo of the paper's colour, so that it can be read over curves.
void DibujaRótulo(QPainter& pintor, const Lienzo& lienzo, const QPointF& base,
                  const QString& texto) {
    const qreal g = lienzo.grosor;
    if (EsRáster(pintor)) {
        QStaticText rótulo(texto); // laid out once
        rótulo.setTextFormat(Qt::PlainText);
        const QPointF esquina = base - QPointF(0, QFontMetricsF(pintor.font()).ascent());
        pintor.setPen(Papel);
        for (const QPointF& desvío :
             {QPointF(-g, -g), QPointF(0, -g), QPointF(g, -g), QPointF(-g, 0), QPointF(g, 0),
              QPointF(-g, g), QPointF(0, g), QPointF(g, g)})
            pintor.drawStaticText(esquina + desvío, rótulo);
        pintor.setPen(ColorTexto);
        pintor.drawStaticText(esquina, rótulo);
    } else { // there the text is to stand once, for whoever searches or copies it
        QPainterPath contorno;
        contorno.addText(base, QFont(pintor.font(), pintor.device()), texto);
        pintor.strokePath(contorno, QPen(Papel, 2 * g, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pintor.setPen(ColorTexto);
        pintor.drawText(base, texto);
    }
}

// The axes with their marks and labels, in the device's units.
class Ejes {
public:
    Ejes(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena)
        : pintor_(pintor), lienzo_(lienzo), escena_(escena),
          medidas_(pintor.font(), pintor.device()),
          enX_(DevMarcas(escena.ventana.XMín, escena.ventana.XMáx,
                         lienzo.área.width() / lienzo.grosor)),
          enY_(DevMarcas(escena.ventana.YMín, escena.ventana.YMáx,
                         lienzo.área.height() / lienzo.grosor)),
          ejeX_(DevLugarY(lienzo, escena, 0)), ejeY_(DevLugarX(lienzo, escena, 0)) {}

    void DibujaRejilla() {
        for (const Marca& marca : enX_)
            DibujaVertical(pintor_, lienzo_, DevLugarX(lienzo_, escena_, marca.valor),
                           ColorRejilla);
        for (const Marca& marca : enY_)
            DibujaHorizontal(pintor_, lienzo_, DevLugarY(lienzo_, escena_, marca.valor),
                             ColorRejilla);
    }

    void Dibuja() {
        if (EstáEnVista(ejeX_, lienzo_.área.top(), lienzo_.área.bottom()))
            DibujaHorizontal(pintor_, lienzo_, ejeX_, ColorEje);
        if (EstáEnVista(ejeY_, lienzo_.área.left(), lienzo_.área.right()))
            DibujaVertical(pintor_, lienzo_, ejeY_, ColorEje);
        RotulaX();
        RotulaY();
    }

private:
    static bool EstáEnVista(qreal lugar, qreal menor, qreal mayor) {
        return lugar >= menor && lugar <= mayor;
    }

    // Long numbers do not fit beside each other at every mark: how many marks a label takes, in
    // the round numbers that marks are made of.
    std::size_t DevSalto() const {
        qreal mayor = 0;
        for (const Marca& marca : enX_)
            mayor = std::max(mayor, medidas_.horizontalAdvance(DevQString(marca.texto)));
        if (enX_.size() < 2)
            return 1;
        const qreal separación =
            DevLugarX(lienzo_, escena_, enX_[1].valor) - DevLugarX(lienzo_, escena_, enX_[0].valor);
        for (const std::size_t salto : {1U, 2U, 5U})
            if (mayor + 12 * lienzo_.grosor <= separación * static_cast<qreal>(salto))
                return salto;
        return 10;
    }

    void RotulaX() {
        const qreal g = lienzo_.grosor;
        const QRectF& área = lienzo_.área;
        const qreal alto = medidas_.height();
        // Below the axis, or at the border next to it where it is out of view or close to it.
        const qreal eje = std::clamp(ejeX_, área.top(), área.bottom() - g);
        const qreal base = eje + 6 * g + alto <= área.bottom() ? eje + 4 * g + medidas_.ascent()
                                                               : eje - 5 * g - medidas_.descent();
        const std::size_t salto = DevSalto();
        for (std::size_t i = 0; i < enX_.size(); ++i) {
            const qreal x = std::floor(DevLugarX(lienzo_, escena_, enX_[i].valor));
            pintor_.fillRect(QRectF(x, eje - 3 * g, g, 7 * g), ColorEje);
            if (i % salto != 0)
                continue;
            const QString texto = DevQString(enX_[i].texto);
            const qreal ancho = medidas_.horizontalAdvance(texto);
            // The axis itself would run through a label below it.
            const bool enElEje = std::fabs(x - ejeY_) < 1 + g;
            const qreal izquierda = enElEje ? x - ancho - 4 * g : x - ancho / 2;
            if (izquierda < área.left() || izquierda + ancho > área.right())
                continue;
            DibujaRótulo(pintor_, lienzo_, {izquierda, base}, texto);
            ocupados_.emplace_back(izquierda - 3 * g, base - medidas_.ascent(), ancho + 6 * g,
                                   alto);
        }
    }

    void RotulaY() {
        const qreal g = lienzo_.grosor;
        const QRectF& área = lienzo_.área;
        const qreal eje = std::clamp(ejeY_, área.left(), área.right() - g);
        const bool origenRotulado = EstáEnVista(ejeX_, área.top(), área.bottom()) &&
                                    EstáEnVista(ejeY_, área.left(), área.right());
        for (const Marca& marca : enY_) {
            const qreal y = std::floor(DevLugarY(lienzo_, escena_, marca.valor));
            pintor_.fillRect(QRectF(eje - 3 * g, y, 7 * g, g), ColorEje);
            if (marca.valor == 0 && origenRotulado)
                continue;
            const QString texto = DevQString(marca.texto);
            const qreal ancho = medidas_.horizontalAdvance(texto);
            const qreal junto = eje - 6 * g - ancho;
            const QPointF lugar(junto >= área.left() ? junto : eje + 7 * g,
                                y + medidas_.ascent() / 2 - g);
            const QRectF marco(lugar.x(), lugar.y() - medidas_.ascent(), ancho, medidas_.height());
            if (área.contains(marco) && std::ranges::none_of(ocupados_, [&](const QRectF& o) {
                    return o.intersects(marco);
                }))
                DibujaRótulo(pintor_, lienzo_, lugar, texto);
        }
    }

    QPainter& pintor_;
    const Lienzo& lienzo_;
    const EscenaGráfica& escena_;
    QFontMetricsF medidas_;
    std::vector<Marca> enX_;
    std::vector<Marca> enY_;
    std::vector<QRectF> ocupados_; // by the labels of the horizontal axis
    qreal ejeX_;                   // the height of the horizontal axis
    qreal ejeY_;                   // the place of the vertical one
};

} // namespace

QColor DevColor(int índice) {
    switch (índice) {
    case 1:
        return {255, 0, 255};
    case 2:
        return {255, 0, 0};
    case 3:
        return {0, 0, 255};
    default:
        return {0, 0, 0};
    }
}

QFont DevFuenteRótulos(const QFont& fuente, qreal grosor) {
    QFont rótulos = fuente;
    rótulos.setPixelSize(
        std::max(1, static_cast<int>(std::lround(QFontInfo(fuente).pixelSize() * 0.9 * grosor))));
    return rótulos;
}

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

void DibujaCurvas(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena) {
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i) {
        const std::vector<Punto>& puntos = escena.puntos.at(static_cast<std::size_t>(i));
        if (!puntos.empty())
            Curva(pintor, lienzo, puntos).TipoDibujo(escena.método, DevColor(i));
    }
}

void DibujaGráfica(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena) {
    pintor.save();
    pintor.setClipRect(lienzo.área);
    pintor.fillRect(lienzo.área, Papel);
    Ejes ejes(pintor, lienzo, escena);
    ejes.DibujaRejilla();
    DibujaCurvas(pintor, lienzo, escena);
    ejes.Dibuja();
    pintor.restore();
}

void DibujaPuntoX(QPainter& pintor, const Lienzo& lienzo, const EscenaGráfica& escena) {
    const double s = DevXlógico(escena.ventana, escena.PuntoX);
    if (!(std::fabs(s) <= MediaEscala))
        return;
    pintor.save();
    pintor.setClipRect(lienzo.área);
    const qreal x = lienzo.DevLugar(s, 0).x();
    DibujaVertical(pintor, lienzo, x, ColorMarcador);
    pintor.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i) {
        const std::optional<double> valor = escena.valores.at(static_cast<std::size_t>(i));
        const double t = valor ? DevYlógico(escena.ventana, *valor) : 2 * MediaEscala;
        if (!(std::fabs(t) <= MediaEscala))
            continue;
        pintor.setPen(DevPluma(Papel, lienzo.grosor));
        pintor.setBrush(DevColor(i));
        const qreal radio = 4.5 * lienzo.grosor;
        pintor.drawEllipse(lienzo.DevLugar(s, t), radio, radio);
    }
    pintor.restore();
}

} // namespace quiralto
