#include "ui/grafica/vista.h"

#include "engine/numeros/numero.h"
#include "ui/grafica/marcas_eje.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

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

// A number no finer than a pixel.
double DevAproximado(double valor, double separación) {
    return Val(TextoCoordenada(valor, separación));
}

void RedondeaExtremos(Ventana& v, const Lugar& separación) {
    for (double* const x : {&v.XMín, &v.XMáx})
        *x = DevAproximado(*x, separación.x);
    for (double* const y : {&v.YMín, &v.YMáx})
        *y = DevAproximado(*y, separación.y);
}

// Two zooms by `primero` about a and then by `segundo` about b are one about this place.
double DevCentroComún(double a, double b, double primero, double segundo) {
    return (a * (1 - 1 / primero) / segundo + b * (1 - 1 / segundo)) /
           (1 - 1 / (primero * segundo));
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

bool Vista::Rueda(const Lugar& centro, int sentido, const Lugar& separación) {
    const auto zoom = [&](Ventana v, const Lugar& en, double factor) {
        MagnificaEn(v.XMín, v.XMáx, en.x, factor);
        MagnificaEn(v.YMín, v.YMáx, en.y, factor);
        return v;
    };
    const Lugar aquí{DevAproximado(centro.x, separación.x), DevAproximado(centro.y, separación.y)};
    const double factor = sentido > 0 ? std::numbers::sqrt2 : 1 / std::numbers::sqrt2;
    const std::optional<MediaRueda> media = std::exchange(media_, std::nullopt);
    Estado nueva = actual_;
    if (!media || media->después != actual_.ventana) {
        nueva.ventana = zoom(actual_.ventana, aquí, factor);
        RedondeaExtremos(nueva.ventana, separación);
        media_ = MediaRueda{actual_.ventana, nueva.ventana, aquí, sentido};
    } else if (media->sentido != sentido) {
        const double parte = 1 / factor - 1; // of the way between the two places
        const double dx = DevAproximado((aquí.x - media->centro.x) * parte, separación.x);
        const double dy = DevAproximado((aquí.y - media->centro.y) * parte, separación.y);
        const Ventana& v = media->antes;
        nueva.ventana = {v.XMáx - dx, v.XMín - dx, v.YMáx - dy, v.YMín - dy};
    } else {
        Lugar común = aquí;
        if (media->centro.x != aquí.x || media->centro.y != aquí.y)
            común = {DevAproximado(DevCentroComún(media->centro.x, aquí.x, factor, factor),
                                   separación.x),
                     DevAproximado(DevCentroComún(media->centro.y, aquí.y, factor, factor),
                                   separación.y)};
        nueva.ventana = zoom(media->antes, común, sentido > 0 ? 2 : 0.5);
    }
    return Cambia(nueva);
}

bool Vista::IgualaEjes(double ancho, double alto) {
    Estado nueva = actual_;
    Ventana& v = nueva.ventana;
    const double enX = (v.XMáx - v.XMín) / ancho;
    const double enY = (v.YMáx - v.YMín) / alto;
    const auto ensancha = [](double& mínimo, double& máximo, double mitad, double separación) {
        const double centro = mínimo / 2 + máximo / 2;
        mínimo = DevAproximado(centro - mitad, separación);
        máximo = DevAproximado(centro + mitad, separación);
    };
    constexpr double Partes = 100; // of a pixel, so that a second time changes nothing
    if (std::fabs(enX - enY) * Partes < std::max(enX, enY) / Partes)
        return false;
    if (enX < enY)
        ensancha(v.XMín, v.XMáx, enY * ancho / 2, enY / Partes);
    else
        ensancha(v.YMín, v.YMáx, enX * alto / 2, enX / Partes);
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
