// The handlers of the graph view: each changes the view, refreshes what shows it, and redraws.
#pragma once

#include "ui/formularios/frm_puntos_extremos.h"
#include "ui/formularios/panel_funciones.h"
#include "ui/formularios/visor_funciones.h"
#include "ui/grafica/ventana_grafica.h"

#include <QScrollBar>

#include <initializer_list>

namespace quiralto {

inline constexpr int DígitosRedondeoIniciales = 8;

class ControlGráfica {
public:
    // What shows the view; all of it outlives the control.
    struct Partes {
        VisorFunciones& visor;
        PanelFunciones& panel;
        frmPuntosExtremos& marco;
        QScrollBar& hsEjeX;
        QScrollBar& vsEjeY;
        QScrollBar& hsx;
        QLabel& zoom;        // the window, in words
        QLabel& coordenadas; // under the pointer
    };

    ControlGráfica(Contexto& contexto, VentanaGráfica& vista, Partes partes);
    virtual ~ControlGráfica() = default;
    ControlGráfica(const ControlGráfica&) = delete;
    ControlGráfica& operator=(const ControlGráfica&) = delete;

    void ZoomGráfica_Click(int índice);
    void ZoomEjeX_Click(int índice);
    void ZoomEjeY_Click(int índice);
    void ZoomEjesXY_Click(int índice);
    void ValoresPorDefectoEjes_Click();
    void NúmeroPuntos_Click(int índice);
    void RedondeoNúmeros_Click(int índice) { contexto_.DígitosRedondeo = índice; }
    void OrdenMenúPuntos_Click() { PonMétodo(MétodoDibujo::Puntos); }
    void OrdenMenúLíneas_Click() { PonMétodo(MétodoDibujo::Líneas); }
    void hsEjeX_Change(int valor);
    void vsEjeY_Change(int valor);
    void hsx_Change(int valor);
    bool FijaExtremos(const Ventana& ventana);
    void FuncionesCambiadas();

    // The window of the start, and everything brought up to date with it.
    void Comienza();

    // The scene as it is shown.
    const EscenaGráfica& DevEscena() const { return partes_.visor.DevEscena(); }

protected:
    // The refreshers: each shows a part of the view as it is now.
    virtual void ActualizaX();
    virtual void ActualizaFunciones();
    virtual void ActualizaExtremos();
    virtual void ActualizaUnidadEjesXY();
    virtual void ActualizaZoom();
    virtual void ActualizaEjes();
    virtual void DibujarActivadas();

    // The end of the error trap: an overflow is undone silently, any other fault is told.
    void MensajeErrorOverflow(int número);

private:
    using Pasos = std::initializer_list<void (ControlGráfica::*)()>;

    void PonMétodo(MétodoDibujo método);
    void PonPuntoX(double x);
    void Señala(const std::optional<QPointF>& lugar);
    void Describe();
    void Refresca(Pasos pasos);
    void ActualizaTodo();

    // Runs a handler under the error trap: `cambia` changes the view and returns whether it has,
    // then the refreshers show the change, in the order given. True where all went through.
    template <typename Cambio> bool ConTrampa(Cambio cambia, Pasos pasos);

    Contexto& contexto_;
    VentanaGráfica& vista_;
    Partes partes_;
    EscenaGráfica escena_;
    std::optional<QPointF> puntero_; // over the picture
};

} // namespace quiralto
