#include "ui/formularios/control_grafica.h"

#include "engine/base/fallos.h"
#include "engine/numeros/numero.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/marco_barra.h"
#include "ui/grafica/marcas_eje.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

namespace quiralto {
namespace {

constexpr int DécimasPorUnidad = 10; // of the bar of the point X

using C = ControlGráfica;

void PonTexto(QLabel& etiqueta, const QString& texto) {
    if (etiqueta.text() != texto)
        etiqueta.setText(texto);
}

} // namespace

ControlGráfica::ControlGráfica(Contexto& contexto, Ejecutor& ejecutor, const Partes& partes,
                               QObject* padre)
    : QObject(padre), contexto_(contexto), ejecutor_(ejecutor), partes_(partes),
      funciones_(contexto) {
    ConectaVisor();
    connect(&partes_.panel, &PanelFunciones::escrita, this, &C::AlEscribir);
    connect(&partes_.panel, &PanelFunciones::confirmada, this, &C::AlConfirmar);
    connect(&partes_.panel, &PanelFunciones::abandonada, this, &C::AlAbandonar);
    connect(&partes_.panel, &PanelFunciones::conmutada, this, &C::AlConmutar);
    connect(&partes_.panel, &PanelFunciones::puntoEscrito, this, &C::AlPedirPuntoX);
    connect(&partes_.marco, &FrmPuntosExtremos::aceptados, this, &C::FijaExtremos);
    connect(&ejecutor_, &Ejecutor::terminada, this, &C::AlAcabarOrden);
    pausa_.setSingleShot(true);
    pausa_.setInterval(Pausa);
    connect(&pausa_, &QTimer::timeout, this, &C::AlPararse);
}

void ControlGráfica::ConectaVisor() {
    VisorFunciones* const visor = &partes_.visor;
    connect(visor, &VisorFunciones::fijaX, this, [this](double x) {
        // no finer than a pixel, as it is shown under the pointer
        PonPuntoX(Val(TextoCoordenada(x, partes_.visor.DevSeparación().x())));
    });
    connect(visor, &VisorFunciones::mueveX, this, &C::MuevePuntoX);
    connect(visor, &VisorFunciones::zoomGrafica, this, &C::ZoomGráfica_Click);
    connect(visor, &VisorFunciones::apunta, this, [this](const QPointF& lugar) { Señala(lugar); });
    connect(visor, &VisorFunciones::noApunta, this, [this] { Señala(std::nullopt); });
    ConectaGestos();
}

void ControlGráfica::ConTrampa(Cambio cambia, Pasos pasos, Luego luego) {
    ejecutor_.CuandoAcabe(
        [this, cambia = std::move(cambia), pasos = std::move(pasos), luego = std::move(luego)] {
            const bool bien = Atiende(cambia, pasos);
            if (luego)
                luego(bien);
        });
}

bool ControlGráfica::Atiende(const Cambio& cambia, const Pasos& pasos) {
    vista_.SalvaValores();
    const Vista::Estado antes = vista_.DevEstado();
    gesto_ = Gesto::Suelto;
    try {
        if (!cambia())
            return false;
        Muestra(pasos);
        historia_.Anota(antes, vista_.DevEstado(), gesto_);
        partes_.vistaAnterior.setEnabled(!historia_.EstáVacía());
        return true;
    } catch (const ErrorEjecución& error) {
        MensajeErrorOverflow(error.Número());
    } catch (const std::bad_alloc&) {
        MensajeErrorOverflow(MemoriaInsuficiente);
    }
    return false;
}

void ControlGráfica::Muestra(const Pasos& pasos) {
    escena_ = compositor_.Compone(contexto_, vista_, funciones_, hallados_, opciones_);
    Refresca(pasos);
    CopiaLoQueDifiere();
}

void ControlGráfica::Refresca(const Pasos& pasos) {
    for (const Paso paso : pasos)
        (this->*paso)();
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
    Muestra({});
}

void ControlGráfica::Comienza() {
    const auto empieza = [this] {
        vista_.ValoresPorDefecto();
        contexto_.DígitosRedondeo = DígitosRedondeoIniciales;
        opciones_ = {};
        return true;
    };
    ConTrampa(empieza,
              {&C::ActualizaX, &C::ActualizaExtremos, &C::ActualizaFunciones, &C::ActualizaZoom});
}

void ControlGráfica::ZoomGráfica_Click(int índice) {
    ConTrampa(
        [this, índice] {
            return vista_.ZoomGráfica(índice,
                                      funciones_.DevPrimeraFunciónDefinida(vista_.DevPuntoX()));
        },
        {&C::ActualizaUnidadEjesXY, &C::ActualizaExtremos, &C::ActualizaEjes,
         &C::DibujarActivadas});
}

void ControlGráfica::ZoomEjeX_Click(int índice) {
    ConTrampa([this, índice] { return vista_.ZoomEjeX(índice); }, {&C::DibujarActivadas});
}

void ControlGráfica::ZoomEjeY_Click(int índice) {
    ConTrampa([this, índice] { return vista_.ZoomEjeY(índice); }, {&C::DibujarActivadas});
}

void ControlGráfica::ZoomEjesXY_Click(int índice) {
    ConTrampa([this, índice] { return vista_.ZoomEjesXY(índice); }, {&C::DibujarActivadas});
}

void ControlGráfica::ValoresPorDefectoEjes_Click() {
    ConTrampa([this] { return vista_.ValoresPorDefecto(); },
              {&C::ActualizaExtremos, &C::ActualizaUnidadEjesXY, &C::ActualizaEjes,
               &C::DibujarActivadas});
}

void ControlGráfica::FijarPuntosExtremos_Click() {
    partes_.marco.VerMarcoConfiguraciónPuntosExtremos(escena_.textosExtremos);
}

void ControlGráfica::FijaExtremos(const Ventana& ventana) {
    ConTrampa([this, ventana] { return vista_.FijaExtremos(ventana); },
              {&C::ActualizaExtremos, &C::ActualizaUnidadEjesXY, &C::ActualizaX,
               &C::ActualizaFunciones, &C::ActualizaZoom, &C::ActualizaEjes, &C::DibujarActivadas},
              [this](bool bien) {
                  if (!bien) {
                      partes_.marco.VuelveA(0);
                      return;
                  }
                  partes_.marco.OcultarMarcoConfiguraciónPuntosExtremos();
                  CopiaExtremos();
              });
}

void ControlGráfica::NúmeroPuntos_Click(int índice) {
    constexpr int Menor = 150;
    const auto cambia = [this, cantidad = Menor << índice] {
        return std::exchange(opciones_.CantidadPuntos, cantidad) != cantidad;
    };
    ConTrampa(cambia, {&C::DibujarActivadas});
}

void ControlGráfica::RedondeoNúmeros_Click(int índice) {
    ConTrampa([this, índice] { return std::exchange(contexto_.DígitosRedondeo, índice) != índice; },
              {});
}

void ControlGráfica::PonMétodo(MétodoDibujo método) {
    ConTrampa([this, método] { return std::exchange(opciones_.método, método) != método; },
              {&C::DibujarActivadas});
}

void ControlGráfica::hsEjeX_Change(int valor) {
    ConTrampa([this, valor] { return vista_.DesplazaX(valor); },
              {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaExtremos, &C::ActualizaEjes,
               &C::ActualizaFunciones, &C::DibujarActivadas});
}

void ControlGráfica::vsEjeY_Change(int valor) {
    ConTrampa([this, valor] { return vista_.DesplazaY(valor); },
              {&C::ActualizaZoom, &C::ActualizaExtremos, &C::ActualizaEjes, &C::DibujarActivadas});
}

void ControlGráfica::hsx_Change(int valor) {
    PonPuntoX(DevXfísico(vista_.DevVentana(), static_cast<double>(valor) / DécimasPorUnidad));
}

void ControlGráfica::MuevePuntoX(double pasos) {
    const double s = DevXlógico(vista_.DevVentana(), vista_.DevPuntoX());
    const double nueva = std::round(s * DécimasPorUnidad + pasos) / DécimasPorUnidad;
    PonPuntoX(DevXfísico(vista_.DevVentana(), std::clamp(nueva, -MediaEscala, MediaEscala)));
}

void ControlGráfica::PonPuntoX(double x) {
    ConTrampa([this, x] { return vista_.PonPuntoX(x); },
              {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaFunciones});
}

// A text that could still become a formula is neither told nor announced until a pause.
void ControlGráfica::AlEscribir(int índice, const QString& texto) {
    const auto escribe = [this, índice, texto] {
        funciones_.Escribe(índice, DevUtf8(texto));
        if (funciones_[índice].estado == EstadoTexto::MediaEscrita)
            pausa_.start();
        else
            pausa_.stop();
        return true;
    };
    ConTrampa(escribe, {});
}

void ControlGráfica::AlPararse() {
    CopiaZoom();
    CopiaMotivos();
}

// Enter is the wish to see the function.
void ControlGráfica::AlConfirmar(int índice) {
    const auto confirma = [this, índice] {
        pausa_.stop();
        if (funciones_.Asienta(índice))
            funciones_.Enciende(índice);
        return true;
    };
    ConTrampa(confirma, {}, [this, índice](bool) {
        if (!funciones_[índice].encendida)
            partes_.panel.VuelveA(índice);
    });
}

// Whoever empties a box wants no function, and no message about it.
void ControlGráfica::AlAbandonar(int índice) {
    const auto deja = [this, índice] {
        const FunciónGráfica& función = funciones_[índice];
        if (!función.sinAsentar)
            return false;
        pausa_.stop();
        if (función.estado == EstadoTexto::Vacío)
            funciones_.Quita(índice);
        else if (funciones_.Asienta(índice) && !función.apagadaAquí)
            funciones_.Enciende(índice);
        return true;
    };
    ConTrampa(deja, {}, [this, índice](bool bien) {
        if (bien && funciones_[índice].rechazo)
            partes_.panel.VuelveA(índice);
    });
}

void ControlGráfica::AlConmutar(int índice, bool encendida) {
    if (encendida) {
        AlConfirmar(índice);
        return;
    }
    ConTrampa(
        [this, índice] {
            funciones_.Apaga(índice);
            return true;
        },
        {});
}

void ControlGráfica::PonFunción(int índice, const QString& texto) {
    const auto pon = [this, índice, texto] {
        pausa_.stop();
        funciones_.Escribe(índice, DevUtf8(texto));
        if (funciones_.Asienta(índice))
            funciones_.Enciende(índice);
        return true;
    };
    ConTrampa(pon, {&C::ActualizaFunciones, &C::DibujarActivadas});
}

void ControlGráfica::LlevaPuntoX(const Lugar& lugar) {
    ConTrampa([this, lugar] { return vista_.LlevaPuntoX(lugar); },
              {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaExtremos, &C::ActualizaEjes,
               &C::ActualizaFunciones, &C::DibujarActivadas});
}

// What was found before stays until something else is found.
void ControlGráfica::AlAcabarOrden() {
    if (ejecutor_.DevHallazgos().empty())
        return;
    const auto pon = [this] {
        hallados_.Pon(ejecutor_.DevHallazgos(), contexto_.DígitosRedondeo);
        return true;
    };
    ConTrampa(pon, {&C::DibujarActivadas});
}

void ControlGráfica::QuitarMarcas_Click() {
    const auto quita = [this] {
        hallados_.Quita();
        return true;
    };
    ConTrampa(quita, {&C::DibujarActivadas});
}

void ControlGráfica::CopiaX() {
    partes_.panel.ActualizaX(escena_);
}

void ControlGráfica::CopiaFunciones() {
    for (int i = 0; i < CantidadFunciones; ++i)
        partes_.panel.Copia(i, funciones_[i]);
    partes_.panel.ActualizaFunciones(escena_);
}

// What is being typed there is nobody else's.
void ControlGráfica::CopiaExtremos() {
    if (!partes_.marco.isVisible())
        partes_.marco.ActualizaExtremos(escena_.textosExtremos);
}

// Shown is what a step of the axes' bars is worth.
void ControlGráfica::CopiaUnidades() {
    const auto muestra = [](QScrollBar& barra, const std::string& unidad) {
        barra.setStatusTip(QStringLiteral("Un paso desplaza ") + DevQString(unidad));
    };
    muestra(partes_.hsEjeX, escena_.textosUnidad[0]);
    muestra(partes_.vsEjeY, escena_.textosUnidad[1]);
}

// What tells where the view is: the bar of the point X, the window in words, the picture in words,
// and what lies under the pointer.
void ControlGráfica::CopiaZoom() {
    PonBarra(partes_.hsx, escena_.barraX);
    PonTexto(partes_.zoom, DevQString(escena_.textoVentana));
    Señala(puntero_);
    if (pausa_.isActive())
        return;
    if (const QString texto = DevQString(escena_.descripción);
        texto != partes_.visor.accessibleDescription())
        partes_.visor.setAccessibleDescription(texto); // which also announces it
}

void ControlGráfica::CopiaCuadro() {
    partes_.visor.Muestra(escena_);
}

void ControlGráfica::CopiaMotivos() {
    for (int i = 0; i < CantidadFunciones; ++i) {
        const bool seCalla = pausa_.isActive() && funciones_[i].estado == EstadoTexto::MediaEscrita;
        partes_.panel.PonMotivo(
            i, seCalla ? QString() : DevQString(escena_.motivos.at(static_cast<std::size_t>(i))));
    }
}

void ControlGráfica::CopiaLoQueDifiere() {
    CopiaX();
    CopiaFunciones();
    CopiaExtremos();
    CopiaUnidades();
    CopiaCuadro();
    CopiaZoom();
    CopiaMotivos();
}

void ControlGráfica::Señala(const std::optional<QPointF>& lugar) {
    puntero_ = lugar;
    if (!lugar) {
        partes_.coordenadas.clear();
        return;
    }
    const QPointF lógico = partes_.visor.DevLógico(*lugar);
    const QPointF separación = partes_.visor.DevSeparación();
    PonTexto(partes_.coordenadas,
             QStringLiteral("X=%1  Y=%2")
                 .arg(DevQString(TextoCoordenada(lógico.x(), separación.x())),
                      DevQString(TextoCoordenada(lógico.y(), separación.y()))));
}

} // namespace quiralto
