#include "ui/control_grafica.h"

#include "engine/numero.h"
#include "ui/marcas_eje.h"
#include "ui/marco_barra.h"
#include "ui/texto_qt.h"

#include <QAccessible>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

constexpr int DécimasPorUnidad = 10;     // of the bar of the point X
constexpr double PartesDelRango = 10000; // to which the window is written in words

QString DevNúmero(double valor) {
    return DevQString(TextoNúmero(valor));
}

} // namespace

ControlGráfica::ControlGráfica(Contexto& contexto, VentanaGráfica& vista, Partes partes)
    : contexto_(contexto), vista_(vista), partes_(partes) {
    partes_.visor.deseos = {
        .fijarX = [this](double x) { PonPuntoX(x); },
        .moverX =
            [this](double pasos) {
                const double s = DevXlógico(vista_.DevVentana(), vista_.DevPuntoX());
                const double nueva = std::round(s * DécimasPorUnidad + pasos) / DécimasPorUnidad;
                PonPuntoX(
                    DevXfísico(vista_.DevVentana(), std::clamp(nueva, -MediaEscala, MediaEscala)));
            },
        .zoom =
            [this](double x, double y, double factor) {
                ConTrampa([&] { return vista_.ZoomEn(x, y, factor); }, [this] { ActualizaTodo(); });
            },
        .desplazar =
            [this](double dx, double dy) {
                ConTrampa([&] { return vista_.Desplaza(dx, dy); }, [this] { ActualizaTodo(); });
            },
        .zoomGráfica = [this](int índice) { ZoomGráfica_Click(índice); },
        .señalar = [this](const std::optional<QPointF>& lugar) { Señala(lugar); },
    };
}

template <typename Cambio, typename Refresco>
bool ControlGráfica::ConTrampa(Cambio cambia, Refresco refresca) {
    try {
        if (!cambia())
            return false;
        refresca();
        return true;
    } catch (const ErrorEjecución& error) {
        MensajeErrorOverflow(error.Número());
    }
    return false;
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
    ActualizaX();
    ActualizaExtremos();
    ActualizaFunciones();
    ActualizaZoom();
    contexto_.DígitosRedondeo = 8;
    vista_.cantidadPuntos = CantidadPuntosInicial;
    ActualizaEjes();
    DibujarActivadas();
}

// The units of the axes need no refreshing: the view derives them from its window.
void ControlGráfica::ZoomGráfica_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomGráfica(índice); },
              [this] {
                  ActualizaExtremos();
                  ActualizaEjes();
                  DibujarActivadas();
                  ActualizaZoom();
              });
}

void ControlGráfica::ZoomEjeX_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjeX(índice); }, [this] { ActualizaTodo(); });
}

void ControlGráfica::ZoomEjeY_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjeY(índice); }, [this] { ActualizaTodo(); });
}

void ControlGráfica::ZoomEjesXY_Click(int índice) {
    ConTrampa([&] { return vista_.ZoomEjesXY(índice); }, [this] { ActualizaTodo(); });
}

void ControlGráfica::ValoresPorDefectoEjes_Click() {
    ConTrampa([&] { return vista_.ValoresPorDefecto(); },
              [this] {
                  ActualizaExtremos();
                  ActualizaEjes();
                  DibujarActivadas();
                  ActualizaZoom();
              });
}

bool ControlGráfica::FijaExtremos(const Ventana& ventana) {
    return ConTrampa([&] { return vista_.FijaExtremos(ventana); },
                     [this] {
                         ActualizaExtremos();
                         ActualizaX();
                         ActualizaFunciones();
                         ActualizaZoom();
                         ActualizaEjes();
                         DibujarActivadas();
                     });
}

void ControlGráfica::NúmeroPuntos_Click(int índice) {
    const int cantidad = 150 << índice;
    if (cantidad == vista_.cantidadPuntos)
        return;
    vista_.cantidadPuntos = cantidad;
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
              [this] {
                  ActualizaX();
                  ActualizaZoom();
                  ActualizaExtremos();
                  ActualizaEjes();
                  ActualizaFunciones();
                  DibujarActivadas();
              });
}

void ControlGráfica::vsEjeY_Change(int valor) {
    ConTrampa([&] { return vista_.DesplazaY(valor); },
              [this] {
                  ActualizaZoom();
                  ActualizaExtremos();
                  ActualizaEjes();
                  DibujarActivadas();
              });
}

void ControlGráfica::hsx_Change(int valor) {
    PonPuntoX(DevXfísico(vista_.DevVentana(), static_cast<double>(valor) / DécimasPorUnidad));
}

void ControlGráfica::PonPuntoX(double x) {
    ConTrampa([&] { return vista_.PonPuntoX(x); },
              [this] {
                  ActualizaX();
                  ActualizaZoom();
                  ActualizaFunciones();
              });
}

void ControlGráfica::FuncionesCambiadas() {
    ActualizaFunciones();
    ActualizaZoom();
    DibujarActivadas();
}

void ControlGráfica::ActualizaTodo() {
    ActualizaX();
    ActualizaZoom();
    ActualizaExtremos();
    ActualizaEjes();
    ActualizaFunciones();
    DibujarActivadas();
}

// What tells where the view is: the bar and the marker of the point X, the window in words, and
// what lies under the pointer.
void ControlGráfica::ActualizaZoom() {
    const Ventana& v = vista_.DevVentana();
    escena_.puntoX = vista_.DevPuntoX();
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
        escena_.valores.at(static_cast<std::size_t>(i)) = vista_.DevValor(i);
    partes_.visor.MueveMarcador(escena_);
    const double s = DevXlógico(v, escena_.puntoX);
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
    QString texto = partes_.zoom.text() + QStringLiteral(". Punto X=") + DevNúmero(escena_.puntoX);
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
