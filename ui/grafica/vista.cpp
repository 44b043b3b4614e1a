#include "ui/grafica/vista.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

constexpr int CantidadPuntosMayor = 4800;

// Whether a range can be drawn and sampled with any number of points: its ends are apart by enough
// for every step to reach another Double, and no transform overflows.
bool EsUtilizable(double mínimo, double máximo) {
    const double ancho = máximo - mínimo;
    if (!(ancho > 0) || !std::isfinite(2 * MediaEscala * ancho))
        return false;
    const double mayor = std::max(std::fabs(mínimo), std::fabs(máximo));
    const double separación =
        std::nextafter(mayor, std::numeric_limits<double>::infinity()) - mayor;
    const double paso = ancho / CantidadPuntosMayor;
    return paso >= separación && paso >= std::numeric_limits<double>::min();
}

// The factor of a zoom entry as a power of two: 1, 2, 3 for X2, X4, X8 and -1, -2, -3 for /2...
int DevExponente(int índice) {
    return índice < 3 ? índice + 1 : 2 - índice;
}

void Escala(double& mínimo, double& máximo, double factor) {
    mínimo *= factor;
    máximo *= factor;
}

void MagnificaEn(double& mínimo, double& máximo, double centro, double factor) {
    mínimo = centro - (centro - mínimo) / factor;
    máximo = centro + (máximo - centro) / factor;
}

// The range with v in its middle, unless it holds v as it is.
void LlevaA(double& mínimo, double& máximo, double v) {
    if (v >= mínimo && v <= máximo)
        return;
    const double distancia = v - (mínimo / 2 + máximo / 2);
    mínimo += distancia;
    máximo += distancia;
}

} // namespace

double Vista::UnidadX() const {
    return (actual_.ventana.XMáx - actual_.ventana.XMín) / (2 * MediaEscala);
}

double Vista::UnidadY() const {
    return (actual_.ventana.YMáx - actual_.ventana.YMín) / (2 * MediaEscala);
}

bool Vista::Cambia(const Estado& nueva) {
    SalvaValores();
    actual_ = nueva;
    const Ventana& v = actual_.ventana;
    if (EsUtilizable(v.XMín, v.XMáx) && EsUtilizable(v.YMín, v.YMáx) &&
        std::isfinite(actual_.PuntoX))
        return true;
    RecuperaValores();
    return false;
}

bool Vista::ZoomGráfica(int índice, const std::optional<Lugar>& centro) {
    const Ventana& v = actual_.ventana;
    return ZoomEn(centro.value_or(Lugar{v.XMín / 2 + v.XMáx / 2, v.YMín / 2 + v.YMáx / 2}),
                  std::ldexp(1, DevExponente(índice)));
}

bool Vista::ZoomEjeX(int índice) {
    Estado nueva = actual_;
    const double factor = std::ldexp(1, DevExponente(índice));
    Escala(nueva.ventana.XMín, nueva.ventana.XMáx, factor);
    nueva.PuntoX *= factor;
    return Cambia(nueva);
}

bool Vista::ZoomEjeY(int índice) {
    Estado nueva = actual_;
    Escala(nueva.ventana.YMín, nueva.ventana.YMáx, std::ldexp(1, DevExponente(índice)));
    return Cambia(nueva);
}

bool Vista::ZoomEjesXY(int índice) {
    Estado nueva = actual_;
    const double factor = std::ldexp(1, DevExponente(índice));
    Escala(nueva.ventana.XMín, nueva.ventana.XMáx, factor);
    Escala(nueva.ventana.YMín, nueva.ventana.YMáx, factor);
    nueva.PuntoX *= factor;
    return Cambia(nueva);
}

bool Vista::ValoresPorDefecto() {
    return FijaExtremos(Ventana{});
}

bool Vista::FijaExtremos(const Ventana& ventana) {
    return Cambia({ventana, actual_.PuntoX});
}

bool Vista::DesplazaX(int v) {
    Estado nueva = actual_;
    const double distancia = v * UnidadX();
    nueva.ventana.XMáx -= distancia;
    nueva.ventana.XMín -= distancia;
    nueva.PuntoX -= distancia;
    return Cambia(nueva);
}

bool Vista::DesplazaY(int v) {
    return Desplaza(0, v * UnidadY());
}

bool Vista::Desplaza(double dx, double dy) {
    Estado nueva = actual_;
    nueva.ventana.XMáx += dx;
    nueva.ventana.XMín += dx;
    nueva.ventana.YMáx += dy;
    nueva.ventana.YMín += dy;
    return Cambia(nueva);
}

bool Vista::ZoomEn(const Lugar& centro, double factor) {
    Estado nueva = actual_;
    MagnificaEn(nueva.ventana.XMín, nueva.ventana.XMáx, centro.x, factor);
    MagnificaEn(nueva.ventana.YMín, nueva.ventana.YMáx, centro.y, factor);
    return Cambia(nueva);
}

bool Vista::PonPuntoX(double x) {
    Estado nueva = actual_;
    nueva.PuntoX = x;
    return Cambia(nueva);
}

bool Vista::LlevaPuntoX(const Lugar& lugar) {
    Estado nueva = actual_;
    nueva.PuntoX = lugar.x;
    LlevaA(nueva.ventana.XMín, nueva.ventana.XMáx, lugar.x);
    Estado entera = nueva;
    LlevaA(entera.ventana.YMín, entera.ventana.YMáx, lugar.y);
    return Cambia(entera) || Cambia(nueva) || PonPuntoX(lugar.x);
}

} // namespace quiralto
