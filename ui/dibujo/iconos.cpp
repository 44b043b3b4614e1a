#include "ui/dibujo/iconos.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace quiralto {
namespace {

constexpr qreal Lado = 24; // of the square in which the icons are drawn

// Drawn anew for every size and palette.
class MotorIcono : public QIconEngine {
public:
    void paint(QPainter* pintor, const QRect& lugar, QIcon::Mode modo, QIcon::State) override {
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(lugar.topLeft());
        pintor->scale(lugar.width() / Lado, lugar.height() / Lado);
        pintor->setPen(QPen(DevColor(modo), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        Dibuja(*pintor);
        pintor->restore();
    }
    QPixmap pixmap(const QSize& tamaño, QIcon::Mode modo, QIcon::State estado) override {
        const QColor color = DevColor(modo);
        if (imagen_.size() != tamaño || color != color_) {
            color_ = color;
            imagen_ = QPixmap(tamaño);
            imagen_.fill(Qt::transparent);
            QPainter pintor(&imagen_);
            paint(&pintor, QRect(QPoint(0, 0), tamaño), modo, estado);
        }
        return imagen_;
    }

protected:
    virtual void Dibuja(QPainter& pintor) = 0;

private:
    static QColor DevColor(QIcon::Mode modo) {
        const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QApplication::palette().color(grupo, QPalette::ButtonText);
    }

    QPixmap imagen_; // the last one asked for, in that colour
    QColor color_;
};

// An arrow head at the origin that points to the left.
void DibujaPunta(QPainter& pintor, const QPointF& lugar, qreal ángulo) {
    pintor.save();
    pintor.translate(lugar);
    pintor.rotate(ángulo);
    pintor.drawPolyline(QPolygonF{{4, -4}, {0, 0}, {4, 4}});
    pintor.restore();
}

// Two arrows along a line of half length `mitad` through the middle, with the line's middle free.
void DibujaFlechas(QPainter& pintor, qreal ángulo, bool haciaFuera, qreal mitad) {
    constexpr qreal Hueco = 3;
    pintor.save();
    pintor.translate(12, 12);
    pintor.rotate(ángulo);
    pintor.drawLine(QPointF(-mitad, 0), QPointF(-Hueco, 0));
    pintor.drawLine(QPointF(Hueco, 0), QPointF(mitad, 0));
    if (haciaFuera) {
        DibujaPunta(pintor, {-mitad, 0}, 0);
        DibujaPunta(pintor, {mitad, 0}, 180);
    } else {
        DibujaPunta(pintor, {-Hueco, 0}, 180);
        DibujaPunta(pintor, {Hueco, 0}, 0);
    }
    pintor.restore();
}

class MotorFigura : public MotorIcono {
public:
    MotorFigura(Figura figura, bool ampliar) : figura_(figura), ampliar_(ampliar) {}
    QIconEngine* clone() const override { return new MotorFigura(figura_, ampliar_); }

protected:
    void Dibuja(QPainter& pintor) override {
        switch (figura_) {
        case Figura::EjeX:
            DibujaFlechas(pintor, 0, ampliar_, 10);
            break;
        case Figura::EjeY:
            DibujaFlechas(pintor, 90, ampliar_, 10);
            break;
        case Figura::EjesXY:
            DibujaFlechas(pintor, 45, ampliar_, 11);
            DibujaFlechas(pintor, 135, ampliar_, 11);
            break;
        case Figura::Gráfica:
            DibujaLente(pintor);
            break;
        }
    }

private:
    void DibujaLente(QPainter& pintor) const {
        pintor.drawEllipse(QPointF(10, 10), 7, 7);
        pintor.drawLine(QPointF(15.5, 15.5), QPointF(21, 21));
        pintor.drawLine(QPointF(7, 10), QPointF(13, 10));
        if (ampliar_)
            pintor.drawLine(QPointF(10, 7), QPointF(10, 13));
    }

    Figura figura_;
    bool ampliar_;
};

// The installed drawing again, in its square of 128 units; up to 24 pixels the one with fewer and
// thicker strokes, in its square of 16.
class MotorPrograma : public MotorIcono {
public:
    QIconEngine* clone() const override { return new MotorPrograma; }

protected:
    void Dibuja(QPainter& pintor) override {
        constexpr qreal Pequeño = 24;
        const QTransform& escala = pintor.worldTransform();
        const bool pequeño = escala.m11() * pintor.device()->devicePixelRatio() * Lado <= Pequeño;
        const qreal lado = pequeño ? 16 : 128;
        pintor.scale(Lado / lado, Lado / lado);
        pintor.setBrush(Qt::white);
        if (pequeño)
            DibujaPequeño(pintor);
        else
            DibujaGrande(pintor);
    }

private:
    static QPen DevLápiz(const QColor& color, qreal grosor) {
        return {color, grosor, Qt::SolidLine, Qt::RoundCap};
    }

    static void DibujaPequeño(QPainter& pintor) {
        pintor.setPen(QPen(Tinta, 1));
        pintor.drawRoundedRect(QRectF(.5, .5, 15, 15), 2, 2);
        pintor.setPen(QPen(QColor(0x8a97a5), 1, Qt::SolidLine, Qt::FlatCap));
        pintor.drawLine(QPointF(7.5, 2), QPointF(7.5, 14));
        pintor.drawLine(QPointF(2, 8.5), QPointF(14, 8.5));
        QPainterPath roja(QPointF(2.2, 13));
        roja.cubicTo(5, 13, 4.4, 3, 6.4, 3);
        roja.cubicTo(8.4, 3, 9, 13, 11, 13);
        roja.cubicTo(13, 13, 12.2, 5, 13.8, 4);
        pintor.strokePath(roja, DevLápiz(Qt::red, 1.7));
        QPainterPath azul(QPointF(2.2, 4));
        azul.cubicTo(6, 4, 9.6, 12, 13.8, 12);
        pintor.strokePath(azul, DevLápiz(Qt::blue, 1.7));
    }

    static void DibujaGrande(QPainter& pintor) {
        pintor.setPen(QPen(Tinta, 4));
        pintor.drawRoundedRect(QRectF(8, 8, 112, 112), 18, 18);
        pintor.setPen(QPen(QColor(0xd5dce3), 2, Qt::SolidLine, Qt::FlatCap));
        for (const qreal lugar : {36, 92}) {
            pintor.drawLine(QPointF(lugar, 14), QPointF(lugar, 114));
            pintor.drawLine(QPointF(14, lugar), QPointF(114, lugar));
        }
        pintor.setPen(DevLápiz(Tinta, 4));
        pintor.drawLine(QPointF(64, 16), QPointF(64, 112));
        pintor.drawLine(QPointF(16, 64), QPointF(112, 64));
        QPainterPath roja(QPointF(18, 100));
        roja.cubicTo(34, 100, 36, 24, 52, 24);
        roja.cubicTo(68, 24, 72, 104, 86, 104);
        roja.cubicTo(100, 104, 98, 40, 110, 30);
        pintor.strokePath(roja, DevLápiz(Qt::red, 6));
        QPainterPath azul(QPointF(18, 34));
        azul.cubicTo(48, 34, 80, 94, 110, 94);
        pintor.strokePath(azul, DevLápiz(Qt::blue, 6));
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(Tinta);
        pintor.drawEllipse(QPointF(64, 64), 7, 7);
    }

    static constexpr QColor Tinta{0x2d, 0x3e, 0x50};
};

} // namespace

QIcon DevIcono(Figura figura, bool ampliar) {
    return QIcon(new MotorFigura(figura, ampliar));
}

QIcon DevIconoPrograma() {
    return QIcon::fromTheme(QGuiApplication::desktopFileName(), DevIconoDibujado());
}

QIcon DevIconoDibujado() {
    return QIcon(new MotorPrograma);
}

} // namespace quiralto
