#include "ui/dibujo/contraste.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

double DevLuminancia(const QColor& color) {
    const auto lineal = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) +
           0.0722 * lineal(color.blueF());
}

QColor Mezcla(const QColor& uno, const QColor& otro, double parte) {
    const auto canal = [parte](float a, float b) {
        return static_cast<float>(a * parte + b * (1 - parte));
    };
    return QColor::fromRgbF(canal(uno.redF(), otro.redF()), canal(uno.greenF(), otro.greenF()),
                            canal(uno.blueF(), otro.blueF()));
}

} // namespace

double DevContraste(const QColor& uno, const QColor& otro) {
    const auto [menor, mayor] = std::minmax({DevLuminancia(uno), DevLuminancia(otro)});
    return (mayor + 0.05) / (menor + 0.05);
}

QColor DevTextoSuave(const QPalette& paleta) {
    constexpr double Parte = 0.65;
    const QColor papel = paleta.color(QPalette::Base);
    const QColor texto = paleta.color(QPalette::Text);
    const QColor suave = Mezcla(texto, papel, Parte);
    return DevContraste(suave, papel) >= ContrasteDeTexto ? suave : texto;
}

QColor DevLegible(const QColor& papel, const QColor& hacia) {
    constexpr int Pasos = 64;
    for (int i = 1; i < Pasos; ++i)
        if (const QColor color = Mezcla(hacia, papel, static_cast<double>(i) / Pasos);
            DevContraste(color, papel) >= ContrasteDeTexto)
            return color;
    return hacia;
}

void DibujaFoco(QPainter& pintor, const QRectF& marco, const QPalette& paleta) {
    const QColor fondo = paleta.color(QPalette::Window);
    const QColor color = paleta.color(QPalette::Highlight);
    const bool oscurece = DevLuminancia(color) < DevLuminancia(fondo);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(DevLegible(fondo, oscurece ? color.darker() : color.lighter()), 2));
    pintor.drawRoundedRect(marco.adjusted(1, 1, -1, -1), 2, 2);
}

} // namespace quiralto
