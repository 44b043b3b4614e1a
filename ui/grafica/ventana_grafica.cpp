#include "ui/grafica/ventana_grafica.h"

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"

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

} // namespace

double VentanaGráfica::UnidadX() const {
    return (vista_.ventana.XMáx - vista_.ventana.XMín) / (2 * MediaEscala);
}

double VentanaGráfica::UnidadY() const {
    return (vista_.ventana.YMáx - vista_.ventana.YMín) / (2 * MediaEscala);
}

bool VentanaGráfica::Cambia(const Vista& nueva) {
    SalvaValores();
    vista_ = nueva;
    const Ventana& v = vista_.ventana;
    if (EsUtilizable(v.XMín, v.XMáx) && EsUtilizable(v.YMín, v.YMáx) &&
        std::isfinite(vista_.PuntoX))
        return true;
    RecuperaValores();
    return false;
}

bool VentanaGráfica::ZoomGráfica(int índice) {
    const PrimeraFunción primera = DevPrimeraFunciónDefinida();
    const Ventana& v = vista_.ventana;
    const bool hay = primera.índice < CantidadFunciones;
    return ZoomEn(hay ? vista_.PuntoX : v.XMín / 2 + v.XMáx / 2,
                  hay ? primera.valor : v.YMín / 2 + v.YMáx / 2,
                  std::ldexp(1, DevExponente(índice)));
}

bool VentanaGráfica::ZoomEjeX(int índice) {
    Vista nueva = vista_;
    const double factor = std::ldexp(1, DevExponente(índice));
    Escala(nueva.ventana.XMín, nueva.ventana.XMáx, factor);
    nueva.PuntoX *= factor;
    return Cambia(nueva);
}

bool VentanaGráfica::ZoomEjeY(int índice) {
    Vista nueva = vista_;
    Escala(nueva.ventana.YMín, nueva.ventana.YMáx, std::ldexp(1, DevExponente(índice)));
    return Cambia(nueva);
}

bool VentanaGráfica::ZoomEjesXY(int índice) {
    Vista nueva = vista_;
    const double factor = std::ldexp(1, DevExponente(índice));
    Escala(nueva.ventana.XMín, nueva.ventana.XMáx, factor);
    Escala(nueva.ventana.YMín, nueva.ventana.YMáx, factor);
    nueva.PuntoX *= factor;
    return Cambia(nueva);
}

bool VentanaGráfica::ValoresPorDefecto() {
    return FijaExtremos(Ventana{});
}

bool VentanaGráfica::FijaExtremos(const Ventana& ventana) {
    return Cambia({ventana, vista_.PuntoX});
}

bool VentanaGráfica::DesplazaX(int v) {
    Vista nueva = vista_;
    const double distancia = v * UnidadX();
    nueva.ventana.XMáx -= distancia;
    nueva.ventana.XMín -= distancia;
    nueva.PuntoX -= distancia;
    return Cambia(nueva);
}

bool VentanaGráfica::DesplazaY(int v) {
    return Desplaza(0, v * UnidadY());
}

bool VentanaGráfica::Desplaza(double dx, double dy) {
    Vista nueva = vista_;
    nueva.ventana.XMáx += dx;
    nueva.ventana.XMín += dx;
    nueva.ventana.YMáx += dy;
    nueva.ventana.YMín += dy;
    return Cambia(nueva);
}

bool VentanaGráfica::ZoomEn(double x, double y, double factor) {
    Vista nueva = vista_;
    MagnificaEn(nueva.ventana.XMín, nueva.ventana.XMáx, x, factor);
    MagnificaEn(nueva.ventana.YMín, nueva.ventana.YMáx, y, factor);
    return Cambia(nueva);
}

bool VentanaGráfica::PonPuntoX(double x) {
    Vista nueva = vista_;
    nueva.PuntoX = x;
    return Cambia(nueva);
}

bool VentanaGráfica::DefineFunción(int índice, std::string& texto) {
    FunciónGráfica& función = Función(índice);
    función = FunciónGráfica{.texto = {}, .programa = {}, .activa = función.activa};
    if (!Sintaxis(contexto_, texto)) {
        función.activa = false;
        return false;
    }
    función.programa = CompilaExpresión(texto);
    función.texto = texto;
    return true;
}

void VentanaGráfica::QuitaFunción(int índice) {
    Función(índice) = {};
}

void VentanaGráfica::Activa(int índice, bool activa) {
    Función(índice).activa = activa;
}

std::optional<double> VentanaGráfica::DevValor(int índice) {
    if (!EstáActiva(índice))
        return std::nullopt;
    contexto_.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto_, *Función(índice).programa, vista_.PuntoX);
    if (std::exchange(contexto_.ErrorCódigo, SinFallo) != SinFallo)
        return std::nullopt;
    return valor;
}

VentanaGráfica::PrimeraFunción VentanaGráfica::DevPrimeraFunciónDefinida() {
    for (int i = 0; i < CantidadFunciones; ++i)
        if (const std::optional<double> valor = DevValor(i))
            return {i, *valor};
    return {};
}

std::vector<Punto> VentanaGráfica::CargaPuntos(int índice) const {
    return quiralto::CargaPuntos(contexto_, *Función(índice).programa, vista_.ventana,
                                 CantidadPuntos);
}

} // namespace quiralto
