#include "ui/formularios/control_grafica.h"

#include "engine/numeros/numero.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/marco_barra.h"
#include "ui/grafica/marcas_eje.h"

#include <QAccessible>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

constexpr int DécimasPorUnidad = 10;     // of the bar of the point X
constexpr double PartesDelRango = 10000; // to which the window is written in words
constexpr double PasosPorUnidad = 1000;  // likewise a unit of the axes

using C = ControlGráfica;

QString DevNúmero(double valor) {
    return DevQString(TextoNúmero(valor));
}

} // namespace

ControlGráfica::ControlGráfica(Contexto& contexto, VentanaGráfica& vista, Partes partes)
    : contexto_(contexto), vista_(vista), partes_(partes) {
    partes_.visor.deseos = {
        .fijarX =
            [this](double x) { // no finer than a pixel, as it is shown under the pointer
                PonPuntoX(Val(TextoCoordenada(x, partes_.visor.DevSeparación().x())));
            },
        .moverX =
            [this](double pasos) {
                const double s = DevXlógico(vista_.DevVentana(), vista_.DevPuntoX());
                const double nueva = std::round(s * DécimasPorUnidad + pasos) / DécimasPorUnidad;
                PonPuntoX(
                    DevXfísico(vista_.DevVentana(), std::clamp(nueva, -MediaEscala, MediaEscala)));
            },
        .zoom =
            [this](double x, double y, double factor) {
                ConTrampa([&] { return vista_.ZoomEn(x, y, factor); }, {&C::ActualizaTodo});
            },
        .desplazar =
            [this](double dx, double dy) {
                ConTrampa([&] { return vista_.Desplaza(dx, dy); }, {&C::ActualizaTodo});
            },
        .zoomGráfica = [this](int índice) { ZoomGráfica_Click(índice); },
        .señalar = [this](const std::optional<QPointF>& lugar) { Señala(lugar); },
    };
}

template <typename Cambio> bool ControlGráfica::ConTrampa(Cambio cambia, Pasos pasos) {
    try {
        if (!cambia())
            return false;
        Refresca(pasos);
        return true;
    } catch (const ErrorEjecución& error) {
        MensajeErrorOverflow(error.Número());
    }
    return false;
}

void ControlGráfica::Refresca(Pasos pasos) {
    for (const auto paso : pasos)
        (this->*paso)();
}

void ControlGráfica::ActualizaTodo() {
    Refresca({&C::ActualizaX, &C::ActualizaUnidadEjesXY, &C::ActualizaZoom, &C::ActualizaExtremos,
              &C::ActualizaEjes, &C::ActualizaFunciones, &C::DibujarActivadas});
}

void ControlGráfica::MensajeErrorOverflow(int número) {
    if (número != Desbordamiento) {
        std::string texto = "Error inesperado número :" + std::to_string(número);
        (texto += ".Descripción del error :") += DescripciónError(número);
        texto += ".Contacte con el proveedor del programa Gracias.";
        contexto_.mensajes.Muestra(Icono::Crítico, texto);
        return;
    }
    vista_.RecuperaValores();
    ActualizaTodo();
}

void ControlGráfica::Comienza() {
    vista_.ValoresPorDefecto();
    Refresca({&C::ActualizaX, &C::ActualizaExtremos, &C::ActualizaFunciones, &C::ActualizaZoom});
    contexto_.DígitosRedondeo = DígitosRedondeoIniciales;
    vista_.CantidadPuntos = CantidadPuntosInicial;
    Refresca({&C::ActualizaUnidadEjesXY, &C::ActualizaEjes, &C::DibujarActivadas});
}

void ControlGráfica::ZoomGráfica_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomGráfica(índice); },
              {&C::ActualizaUnidadEjesXY, &C::ActualizaExtremos, &C::ActualizaEjes,
               &C::DibujarActivadas, &C::ActualizaZoom});
}

void ControlGráfica::ZoomEjeX_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjeX(índice); }, {&C::ActualizaTodo});
}

void ControlGráfica::ZoomEjeY_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjeY(índice); }, {&C::ActualizaTodo});
}

void ControlGráfica::ZoomEjesXY_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjesXY(índice); }, {&C::ActualizaTodo});
}

void ControlGráfica::ValoresPorDefectoEjes_Click() {
    ConTrampa([&] { return vista_.ValoresPorDefecto(); },
              {&C::ActualizaExtremos, &C::ActualizaUnidadEjesXY, &C::ActualizaEjes,
               &C::DibujarActivadas, &C::ActualizaZoom});
}

bool ControlGráfica::FijaExtremos(const Ventana& ventana) {
    return ConTrampa([&] { return vista_.FijaExtremos(ventana); },
                     {&C::ActualizaExtremos, &C::ActualizaUnidadEjesXY, &C::ActualizaX,
                      &C::ActualizaFunciones, &C::ActualizaZoom, &C::ActualizaEjes,
                      &C::DibujarActivadas});
}

void ControlGráfica::NúmeroPuntos_Click(int índice) {
    const int cantidad = 150 << índice;
    if (cantidad == vista_.CantidadPuntos)
        return;
    vista_.CantidadPuntos = cantidad;
    DibujarActivadas();
}

void ControlGráfica::PonMétodo(MétodoDibujo método) {
    if (método == vista_.método)
        return;
    vista_.método = método;
    DibujarActivadas();
}

void ControlGráfica::hsEjeX_Change(int valor) {
    ConTrampa([&] { return vista_.DesplazaX(valor); },
              {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaExtremos, &C::ActualizaEjes,
               &C::ActualizaFunciones, &C::DibujarActivadas});
}

void ControlGráfica::vsEjeY_Change(int valor) {
    ConTrampa([&] { return vista_.DesplazaY(valor); },
              {&C::ActualizaZoom, &C::ActualizaExtremos, &C::ActualizaEjes, &C::DibujarActivadas});
}

void ControlGráfica::hsx_Change(int valor) {
    PonPuntoX(DevXfísico(vista_.DevVentana(), static_cast<double>(valor) / DécimasPorUnidad));
}

void ControlGráfica::PonPuntoX(double x) {
    ConTrampa([&] { return vista_.PonPuntoX(x); },
              {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaFunciones});
}

void ControlGráfica::FuncionesCambiadas() {
    Refresca({&C::ActualizaFunciones, &C::ActualizaZoom, &C::DibujarActivadas});
}

void ControlGráfica::ActualizaX() {
    partes_.panel.ActualizaX();
}

void ControlGráfica::ActualizaFunciones() {
    partes_.panel.ActualizaFunciones();
}

void ControlGráfica::ActualizaExtremos() {
    partes_.marco.ActualizaExtremos(vista_.DevVentana());
}

// The view derives the units from its window; shown is what a step of the axes' bars is worth.
void ControlGráfica::ActualizaUnidadEjesXY() {
    const auto muestra = [](QScrollBar& barra, double unidad) {
        barra.setStatusTip(QStringLiteral("Un paso desplaza ") +
                           DevQString(TextoCoordenada(unidad, unidad / PasosPorUnidad)));
    };
    muestra(partes_.hsEjeX, vista_.UnidadX());
    muestra(partes_.vsEjeY, vista_.UnidadY());
}

// What tells where the view is: the bar and the marker of the point X, the window in words, and
// what lies under the pointer.
void ControlGráfica::ActualizaZoom() {
    const Ventana& v = vista_.DevVentana();
    escena_.PuntoX = vista_.DevPuntoX();
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
        escena_.valores.at(static_cast<std::size_t>(i)) = vista_.DevValor(i);
    partes_.visor.MueveMarcador(escena_);
    const double s = DevXlógico(v, escena_.PuntoX);
    PonBarra(partes_.hsx, static_cast<int>(std::lround(std::clamp(s, -MediaEscala, MediaEscala) *
                                                       DécimasPorUnidad)));
    const double porX = (v.XMáx - v.XMín) / PartesDelRango;
    const double porY = (v.YMáx - v.YMín) / PartesDelRango;
    const auto texto = [](double valor, double separación) {
        return DevQString(TextoCoordenada(valor, separación));
    };
    partes_.zoom.setText(QStringLiteral("X de %1 a %2 · Y de %3 a %4")
                             .arg(texto(v.XMín, porX), texto(v.XMáx, porX), texto(v.YMín, porY),
                                  texto(v.YMáx, porY)));
    Describe();
}

void ControlGráfica::ActualizaEjes() {
    escena_.ventana = vista_.DevVentana();
}

void ControlGráfica::DibujarActivadas() {
    escena_.método = vista_.método;
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
        escena_.puntos.at(static_cast<std::size_t>(i)) =
            vista_.EstáActiva(i) ? vista_.CargaPuntos(i) : std::vector<Punto>{};
    partes_.visor.Muestra(escena_);
    Señala(puntero_);
}

// The picture in words, for whoever does not see it.
void ControlGráfica::Describe() {
    QString texto = partes_.zoom.text() + QStringLiteral(". Punto X=") +
                    DevQString(TextoEnRango(escena_.PuntoX, vista_.DevAncho()));
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i) {
        if (!vista_.EstáActiva(i))
            continue;
        const std::optional<double> valor = escena_.valores.at(static_cast<std::size_t>(i));
        texto += QStringLiteral(". f%1(X)=%2, ").arg(i).arg(DevQString(vista_.DevTexto(i)));
        texto += valor ? QStringLiteral("en X vale ") +
                             DevNúmero(Redondea(*valor, contexto_.DígitosRedondeo))
                       : QStringLiteral("sin valor en X");
    }
    if (texto == partes_.visor.accessibleDescription())
        return;
    partes_.visor.setAccessibleDescription(texto); // which also announces it
}

void ControlGráfica::Señala(const std::optional<QPointF>& lugar) {
    puntero_ = lugar;
    if (!lugar) {
        partes_.coordenadas.clear();
        return;
    }
    const QPointF lógico = partes_.visor.DevLógico(*lugar);
    const QPointF separación = partes_.visor.DevSeparación();
    partes_.coordenadas.setText(QStringLiteral("X=%1  Y=%2")
                                    .arg(DevQString(TextoCoordenada(lógico.x(), separación.x())),
                                         DevQString(TextoCoordenada(lógico.y(), separación.y()))));
}

} // namespace quiralto
