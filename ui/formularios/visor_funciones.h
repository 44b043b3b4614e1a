// The picture box of the graph: it shows a scene and turns pointer and keys into wishes.
#pragma once

#include "ui/dibujo/lienzo.h"
#include "ui/grafica/escena.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace quiralto {

class VisorFunciones : public QWidget {
    Q_OBJECT

public:
    explicit VisorFunciones(QWidget* padre = nullptr);

    // Shows the scene's paper and marker. Where only the marker has moved, the paper stays.
    void Muestra(const Escena& escena);
    const Cuadro& DevCuadro() const { return cuadro_; }

    // Logical coordinates of a place on the widget, and how far apart two pixels are there.
    QPointF DevLógico(const QPointF& lugar) const;
    QPointF DevSeparación() const;

    // What there is at a place of the widget, in words; empty where there is nothing.
    QString DevTextoEn(const QPointF& lugar) const;

    QSize sizeHint() const override { return {640, 520}; }

Q_SIGNALS:
    // What the user wants.
    void fijaX(double x);
    void mueveX(double pasos);                      // in tenths of the drawing scale
    void rueda(const QPointF& centro, int sentido); // a notch, 1 towards what is nearer
    void encuadra(const QPointF& unaEsquina, const QPointF& laOtra); // logical
    void desplaza(const QPointF& distancia);                         // of the window, logical
    void zoomGrafica(int indice);                                    // an entry of that menu
    void gestoAcabado(); // the button has gone up, or the pointer has left
    // The pointer is over the picture, or away.
    void apunta(const QPointF& lugar);
    void noApunta();

protected:
    bool event(QEvent* suceso) override;
    void paintEvent(QPaintEvent* suceso) override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseMoveEvent(QMouseEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;
    void wheelEvent(QWheelEvent* suceso) override;

private:
    Lienzo DevLienzo() const; // in device pixels
    QPixmap DibujaCapa(const Cuadro& cuadro) const;
    void DibujaInvitación(QPainter& pintor) const;
    void DibujaEncuadre(QPainter& pintor) const;
    std::optional<QRectF> DevEncuadre() const;
    void Encuadra(const QRectF& marco);
    void Suelta();

    Cuadro cuadro_;
    Marcador marcador_;
    QPixmap capa_; // everything but the marker; null where it has to be drawn anew
    std::optional<QPointF> pulsado_; // where the left button went down, while it is down
    bool arrastrado_ = false;
    std::optional<QRectF> encuadre_; // while one is dragged with Mayús, from where to where
    bool vacía_ = true;              // no function has been written
    int rueda_ = 0;                  // eighths of a degree that have not made a step yet
};

} // namespace quiralto
