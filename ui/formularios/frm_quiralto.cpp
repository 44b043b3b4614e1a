#include "ui/formularios/frm_quiralto.h"

#include "ui/dibujo/grafica.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QScreen>

#include <cmath>
#include <utility>

namespace quiralto {
namespace {

Cuadro DevCuadroDeMuestra() {
    PorFunción<ListaPuntos> puntos;
    constexpr int Pasos = 400;
    for (int i = 0; i <= Pasos; ++i) {
        const double x = -MediaEscala + 2 * MediaEscala * i / Pasos;
        const auto punto = [&](double y) {
            return Punto{static_cast<float>(x), static_cast<float>(y)};
        };
        puntos[1].push_back(punto(x * x / 5 - 8));
        puntos[2].push_back(punto(7 * std::sin(x) / std::sqrt(1 + x * x / 8)));
        puntos[3].push_back(punto(x * x * x / 60 - x / 2));
    }
    Cuadro cuadro;
    for (std::size_t i = 0; i < puntos.size(); ++i)
        cuadro.curvas.at(i).puntos = std::make_shared<const ListaPuntos>(std::move(puntos.at(i)));
    return cuadro;
}

// The program's name in strokes: a font would be read before anything is to be seen. The small
// letters are 10 units high, on the line y = 0.
QPainterPath DevNombre() {
    QPainterPath q;
    q.addEllipse(0, -15, 15, 15);
    q.moveTo(9.5, -5);
    q.lineTo(15, 1);
    q.moveTo(20.5, -10); // u
    q.lineTo(20.5, -4.2);
    q.arcTo(20.5, -8.4, 8.4, 8.4, 180, 180);
    q.moveTo(28.9, -10);
    q.lineTo(28.9, 0);
    q.moveTo(34.2, -10); // i
    q.lineTo(34.2, 0);
    q.moveTo(34.2, -14.6);
    q.lineTo(34.3, -14.6);
    q.moveTo(39.5, -10); // r
    q.lineTo(39.5, 0);
    q.moveTo(39.5, -5.5);
    q.arcTo(39.5, -10, 8, 9, 180, -125);
    q.addEllipse(49, -10, 9.4, 10); // a
    q.moveTo(58.6, -10);
    q.lineTo(58.6, 0);
    q.moveTo(64, -16); // l
    q.lineTo(64, 0);
    q.moveTo(70.6, -14); // t
    q.lineTo(70.6, -3.2);
    q.arcTo(70.6, -6.4, 6.4, 6.4, 180, 95);
    q.moveTo(67.6, -10);
    q.lineTo(75, -10);
    q.addEllipse(78.5, -10, 10, 10); // o
    return q;
}

void DibujaMuestra(QPainter& pintor, const Lienzo& lienzo) {
    const QRectF& área = lienzo.área;
    constexpr int Divisiones = 10;
    for (int i = 0; i <= Divisiones; ++i) {
        const double s = -MediaEscala + 2 * MediaEscala * i / Divisiones;
        const QPointF lugar = lienzo.DevLugar(s, s);
        const bool eje = 2 * i == Divisiones;
        pintor.setPen(QPen(eje ? QColor(96, 96, 96) : QColor(228, 228, 234), lienzo.grosor));
        pintor.drawLine(QLineF(lugar.x(), área.top(), lugar.x(), área.bottom()));
        pintor.drawLine(QLineF(área.left(), lugar.y(), área.right(), lugar.y()));
    }
    pintor.setClipRect(área);
    DibujaCurvas(pintor, lienzo, DevCuadroDeMuestra());
}

} // namespace

FrmQuiralto::FrmQuiralto()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    setObjectName(QStringLiteral("frmQuiralto"));
    setWindowTitle(QStringLiteral("Quiralto"));
    setFixedSize(480, 320);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void FrmQuiralto::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    const qreal dpr = devicePixelRatioF();
    pintor.save();
    pintor.scale(1 / dpr, 1 / dpr);
    const QRectF dibujo(24 * dpr, 24 * dpr, (width() - 48) * dpr, (height() - 110) * dpr);
    DibujaMuestra(pintor, {dibujo, std::max(1.0, std::round(dpr))});
    pintor.restore();
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    const QPainterPath nombre = DevNombre();
    constexpr qreal Aumento = 2.1;
    pintor.translate((width() - nombre.boundingRect().width() * Aumento) / 2, height() - 34);
    pintor.scale(Aumento, Aumento);
    pintor.setPen(QPen(QColor(40, 40, 60), 2.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.drawPath(nombre);
    pintor.restore();
    pintor.setPen(Qt::gray);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace quiralto
