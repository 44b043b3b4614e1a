// The picture box of the graph: it shows a scene and turns pointer and keys into wishes.
#pragma once

#include "ui/dibujo/grafica.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

namespace quiralto {

class VisorFunciones : public QWidget {
public:
    explicit VisorFunciones(QWidget* padre = nullptr);

    // Shows the scene as it is now.
    void Muestra(EscenaGráfica escena);
    // The same scene with the point X elsewhere, which is drawn without the curves.
    void MueveMarcador(const EscenaGráfica& escena);
    const EscenaGráfica& DevEscena() const { return escena_; }

    // The whole picture at the screen's resolution.
    QImage DevImagen() const;

    // Logical coordinates of a place on the widget, and how far apart two pixels are there.
    QPointF DevLógico(const QPointF& lugar) const;
    QPointF DevSeparación() const;

    // What the user wants; set once by whoever owns the view.
    struct Deseos {
        std::function<void(double x)> fijarX;
        std::function<void(double pasos)> moverX; // in tenths of the drawing scale
        std::function<void(double x, double y, double factor)> zoom;
        std::function<void(double dx, double dy)> desplazar;              // of the window, logical
        std::function<void(int índice)> zoomGráfica;                      // an entry of that menu
        std::function<void(const std::optional<QPointF>& lugar)> señalar; // none: pointer is away
    };
    Deseos deseos;

    QSize sizeHint() const override { return {640, 520}; }

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
    QPixmap DibujaCapa() const;

    EscenaGráfica escena_;
    QPixmap capa_; // everything but the marker; null where it has to be drawn anew
    std::optional<QPointF> pulsado_; // where the left button went down, while it is down
    bool arrastrado_ = false;
    int rueda_ = 0; // eighths of a degree that have not made a step yet
};

} // namespace quiralto
