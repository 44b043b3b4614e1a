#include "ui/dibujo/iconos.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace quiralto {
namespace {

// Drawn anew for every size and palette, in a square of 24 units.
class MotorIcono : public QIconEngine {
public:
    void paint(QPainter* pintor, const QRect& lugar, QIcon::Mode modo, QIcon::State) override {
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(lugar.topLeft());
        pintor->scale(lugar.width() / 24.0, lugar.height() / 24.0);
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

class MotorPrograma : public MotorIcono {
public:
    QIconEngine* clone() const override { return new MotorPrograma; }

protected:
    void Dibuja(QPainter& pintor) override {
        pintor.setPen(QPen(QColor(90, 90, 100), 1));
        pintor.setBrush(Qt::white);
        pintor.drawRoundedRect(QRectF(1.5, 1.5, 21, 21), 3, 3);
        pintor.drawLine(QPointF(4, 14), QPointF(20, 14));
        pintor.drawLine(QPointF(9, 4), QPointF(9, 20));
        QPainterPath curva(QPointF(4, 18));
        curva.cubicTo(8, -2, 14, 26, 20, 5);
        pintor.setBrush(Qt::NoBrush);
        pintor.setPen(QPen(QColor(0, 0, 255), 1.8, Qt::SolidLine, Qt::RoundCap));
        pintor.drawPath(curva);
    }
};

} // namespace

QIcon DevIcono(Figura figura, bool ampliar) {
    return QIcon(new MotorFigura(figura, ampliar));
}

QIcon DevIconoPrograma() {
    return QIcon(new MotorPrograma);
}

} // namespace quiralto
