#include "ui/frm_quiralto.h"

#include "ui/dibujo_grafica.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace quiralto {
namespace {

EscenaGráfica DevEscenaDeMuestra() {
    EscenaGráfica escena;
    constexpr int Pasos = 400;
    for (int i = 0; i <= Pasos; ++i) {
        const double x = -MediaEscala + 2 * MediaEscala * i / Pasos;
        const auto punto = [&](double y) {
            return Punto{static_cast<float>(x), static_cast<float>(y)};
        };
        escena.puntos[1].push_back(punto(x * x / 5 - 8));
        escena.puntos[2].push_back(punto(7 * std::sin(x) / std::sqrt(1 + x * x / 8)));
        escena.puntos[3].push_back(punto(x * x * x / 60 - x / 2));
    }
    return escena;
}

} // namespace

frmQuiralto::frmQuiralto()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    setObjectName(QStringLiteral("frmQuiralto"));
    setWindowTitle(QStringLiteral("Quiralto"));
    setFixedSize(480, 320);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void frmQuiralto::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    const qreal dpr = devicePixelRatioF();
    pintor.save();
    pintor.scale(1 / dpr, 1 / dpr);
    pintor.setFont(DevFuenteRótulos(font(), dpr)); // the main form's, which is read but once
    const QRectF dibujo(24 * dpr, 24 * dpr, (width() - 48) * dpr, (height() - 110) * dpr);
    DibujaGráfica(pintor, {dibujo, std::max(1.0, std::round(dpr))}, DevEscenaDeMuestra());
    pintor.restore();
    QFont grande = font();
    grande.setPixelSize(40);
    grande.setBold(true);
    pintor.setFont(grande);
    pintor.setPen(QColor(40, 40, 60));
    pintor.drawText(QRect(24, height() - 80, width() - 48, 60), Qt::AlignCenter,
                    QStringLiteral("Quiralto"));
    pintor.setPen(Qt::gray);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace quiralto
