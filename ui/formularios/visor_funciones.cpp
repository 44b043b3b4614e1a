#include "ui/formularios/visor_funciones.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/grafica.h"
#include "ui/dibujo/hallados.h"
#include "ui/dibujo/punto_x.h"
#include "ui/dibujo/texto_qt.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// Assistive technology takes the picture for a chart, not for one more box of controls.
QAccessibleInterface* DevInterfazAccesible(const QString&, QObject* objeto) {
    auto* visor = dynamic_cast<VisorFunciones*>(objeto);
    return visor == nullptr ? nullptr : new QAccessibleWidget(visor, QAccessible::Chart);
}

} // namespace

VisorFunciones::VisorFunciones(QWidget* padre) : QWidget(padre) {
    QAccessible::installFactory(DevInterfazAccesible); // once, however often it is asked for
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setMinimumSize(280, 200);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void VisorFunciones::Muestra(const Escena& escena) {
    if (std::exchange(vacía_, escena.vacía) != escena.vacía)
        update();
    if (escena.cuadro != cuadro_) {
        cuadro_ = escena.cuadro;
        capa_ = {};
    } else if (escena.marcador == marcador_) {
        return;
    }
    marcador_ = escena.marcador;
    update();
}

Lienzo VisorFunciones::DevLienzo() const {
    const qreal dpr = devicePixelRatioF();
    return {QRectF(0, 0, std::round(width() * dpr), std::round(height() * dpr)),
            std::max(1.0, std::round(dpr))};
}

QPixmap VisorFunciones::DibujaCapa(const Cuadro& cuadro) const {
    const Lienzo lienzo = DevLienzo();
    QPixmap capa(lienzo.área.size().toSize());
    QPainter pintor(&capa);
    pintor.setFont(DevFuenteRótulos(font(), devicePixelRatioF()));
    DibujaGráfica(pintor, lienzo, cuadro);
    pintor.end();
    capa.setDevicePixelRatio(devicePixelRatioF());
    return capa;
}

void VisorFunciones::paintEvent(QPaintEvent*) {
    const Lienzo lienzo = DevLienzo();
    if (capa_.size() != lienzo.área.size().toSize() ||
        capa_.devicePixelRatio() != devicePixelRatioF())
        capa_ = DibujaCapa(cuadro_);
    QPainter pintor(this);
    pintor.drawPixmap(0, 0, capa_);
    pintor.save();
    pintor.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    DibujaPuntoX(pintor, lienzo, cuadro_.ventana, marcador_);
    pintor.restore();
    if (vacía_)
        DibujaInvitación(pintor);
    DibujaEncuadre(pintor);
    if (hasFocus()) {
        // not the style's, which may tint the paper
        pintor.setPen(palette().color(QPalette::Highlight));
        pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// What to do first, in the middle of the empty picture, over the axis.
void VisorFunciones::DibujaInvitación(QPainter& pintor) const {
    const QString texto = QStringLiteral("Escriba una función en f0(X), por ejemplo SIN(X)");
    constexpr int Modo = Qt::AlignCenter | Qt::TextWordWrap;
    constexpr int Margen = 12;
    const QRect lugar = rect().adjusted(4 * Margen, 0, -4 * Margen, -height() / 8);
    const QRect marco = pintor.boundingRect(lugar, Modo, texto);
    pintor.fillRect(marco.adjusted(-Margen, -Margen / 2, Margen, Margen / 2), Papel);
    pintor.setPen(ColorTexto);
    pintor.drawText(lugar, Modo, texto);
}

// What is seen of it: no more can be chosen than there is on the picture.
std::optional<QRectF> VisorFunciones::DevEncuadre() const {
    if (!encuadre_)
        return std::nullopt;
    return encuadre_->normalized().intersected(QRectF(0, 0, width() - 1, height() - 1));
}

void VisorFunciones::DibujaEncuadre(QPainter& pintor) const {
    const std::optional<QRectF> marco = DevEncuadre();
    if (!marco)
        return;
    pintor.setPen(QPen(ColorTexto, 1, Qt::DashLine));
    pintor.setBrush(QColor(ColorTexto.red(), ColorTexto.green(), ColorTexto.blue(), 24));
    pintor.drawRect(*marco);
    pintor.setBrush(Qt::NoBrush);
}

QPointF VisorFunciones::DevLógico(const QPointF& lugar) const {
    const Lienzo lienzo = DevLienzo();
    const qreal dpr = devicePixelRatioF();
    const Ventana& v = cuadro_.ventana;
    const double t = lienzo.DevT(lugar.y() * dpr + lienzo.grosor / 2);
    return {DevXfísico(v, lienzo.DevS(lugar.x() * dpr + lienzo.grosor / 2)),
            (v.YMáx - v.YMín) * (t + MediaEscala) / (2 * MediaEscala) + v.YMín};
}

QPointF VisorFunciones::DevSeparación() const {
    const Ventana& v = cuadro_.ventana;
    return {(v.XMáx - v.XMín) / std::max(1, width()), (v.YMáx - v.YMín) / std::max(1, height())};
}

// Of what a command has found there.
QString VisorFunciones::DevTextoEn(const QPointF& lugar) const {
    if (cuadro_.marcas == nullptr)
        return {};
    const QPointF lógico = DevLógico(lugar);
    const QPointF separación = DevSeparación();
    std::string texto =
        DevTextoLugar(*cuadro_.marcas, {lógico.x(), lógico.y()}, separación.x(), separación.y());
    for (const ÁreaHallada& área : cuadro_.marcas->áreas)
        if (texto.empty() && EstáEnÁrea(cuadro_, área, DevXlógico(cuadro_.ventana, lógico.x()),
                                        DevYlógico(cuadro_.ventana, lógico.y())))
            texto = área.texto;
    return DevQString(texto);
}

bool VisorFunciones::event(QEvent* suceso) {
    switch (suceso->type()) {
    case QEvent::Leave:
        Q_EMIT noApunta();
        Q_EMIT gestoAcabado();
        break;
    case QEvent::ToolTip: {
        const auto& ayuda = dynamic_cast<const QHelpEvent&>(*suceso);
        QToolTip::showText(ayuda.globalPos(), DevTextoEn(ayuda.pos()), this);
        return true;
    }
    case QEvent::FontChange:
    case QEvent::StyleChange:
        capa_ = {};
        break;
    default:
        break;
    }
    return QWidget::event(suceso);
}

void VisorFunciones::keyPressEvent(QKeyEvent* suceso) {
    const double pasos = suceso->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    switch (suceso->key()) {
    case Qt::Key_Left:
        Q_EMIT mueveX(-pasos);
        break;
    case Qt::Key_Right:
        Q_EMIT mueveX(pasos);
        break;
    case Qt::Key_Plus:
        Q_EMIT zoomGrafica(0);
        break;
    case Qt::Key_Minus:
        Q_EMIT zoomGrafica(3);
        break;
    case Qt::Key_Escape:
        if (encuadre_)
            Suelta();
        else
            QWidget::keyPressEvent(suceso);
        break;
    default:
        QWidget::keyPressEvent(suceso);
    }
}

void VisorFunciones::mousePressEvent(QMouseEvent* suceso) {
    if (suceso->button() != Qt::LeftButton)
        return;
    pulsado_ = suceso->position();
    arrastrado_ = false;
    if (suceso->modifiers().testFlag(Qt::ShiftModifier))
        encuadre_ = QRectF(*pulsado_, *pulsado_);
}

// Whatever the button was doing is over.
void VisorFunciones::Suelta() {
    pulsado_.reset();
    encuadre_.reset();
    setCursor(Qt::CrossCursor);
    update();
}

void VisorFunciones::mouseMoveEvent(QMouseEvent* suceso) {
    const QPointF lugar = suceso->position();
    if (pulsado_ && !suceso->buttons().testFlag(Qt::LeftButton)) { // it has gone up over a menu
        Suelta();
        Q_EMIT gestoAcabado();
    }
    if (pulsado_) {
        const QPointF desvío = lugar - *pulsado_;
        arrastrado_ = arrastrado_ || desvío.manhattanLength() >= QApplication::startDragDistance();
        if (encuadre_) {
            encuadre_->setBottomRight(lugar);
            update();
        } else if (arrastrado_) {
            setCursor(Qt::ClosedHandCursor);
            pulsado_ = lugar;
            const QPointF separación = DevSeparación();
            Q_EMIT desplaza({-desvío.x() * separación.x(), desvío.y() * separación.y()});
        }
    }
    Q_EMIT apunta(lugar);
}

void VisorFunciones::mouseReleaseEvent(QMouseEvent* suceso) {
    if (suceso->button() != Qt::LeftButton || !pulsado_)
        return;
    const std::optional<QRectF> marco = DevEncuadre();
    Suelta();
    if (marco)
        Encuadra(*marco);
    else if (!arrastrado_)
        Q_EMIT fijaX(DevLógico(suceso->position()).x());
    Q_EMIT gestoAcabado();
}

// Too small a rectangle was no more than a click that went astray.
void VisorFunciones::Encuadra(const QRectF& marco) {
    constexpr qreal Menor = 5;
    if (marco.width() >= Menor && marco.height() >= Menor)
        Q_EMIT encuadra(DevLógico(marco.topLeft()), DevLógico(marco.bottomRight()));
}

void VisorFunciones::wheelEvent(QWheelEvent* suceso) {
    constexpr int Paso = QWheelEvent::DefaultDeltasPerStep;
    rueda_ += suceso->angleDelta().y();
    const QPointF lógico = DevLógico(suceso->position());
    for (; rueda_ >= Paso; rueda_ -= Paso)
        Q_EMIT rueda(lógico, 1);
    for (; rueda_ <= -Paso; rueda_ += Paso)
        Q_EMIT rueda(lógico, -1);
    Q_EMIT apunta(suceso->position());
    suceso->accept();
}

} // namespace quiralto
