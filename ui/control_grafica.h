// The handlers of the graph view: each changes the view, refreshes what shows it, and redraws.
#pragma once

#include "ui/marco_extremos.h"
#include "ui/panel_funciones.h"
#include "ui/ventana_grafica.h"
#include "ui/visor_funciones.h"

#include <QScrollBar>

namespace quiralto {

class ControlGráfica {
public:
    // What shows the view; all of it outlives the control.
    struct Partes {
        VisorFunciones& visor;
        PanelFunciones& panel;
        frmPuntosExtremos& marco;
        QScrollBar& hsx;
        QLabel& zoom;        // the window, in words
        QLabel& coordenadas; // under the pointer
    };

    ControlGráfica(Contexto& contexto, VentanaGráfica& vista, Partes partes);

    void ZoomGráfica_Click(int índice);
    void ZoomEjeX_Click(int índice);
    void ZoomEjeY_Click(int índice);
    void ZoomEjesXY_Click(int índice);
    void ValoresPorDefectoEjes_Click();
    void NúmeroPuntos_Click(int índice);
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

private:
    void PonMétodo(MétodoDibujo método);
    void PonPuntoX(double x);
    void Señala(const std::optional<QPointF>& lugar);

    void ActualizaX() { partes_.panel.ActualizaX(); }
    void ActualizaFunciones() { partes_.panel.ActualizaFunciones(); }
    void ActualizaExtremos() { partes_.marco.ActualizaExtremos(vista_.DevVentana()); }
    void ActualizaZoom();
    void ActualizaEjes();
    void DibujarActivadas();
    void Describe();
    void ActualizaTodo();
    void MensajeErrorOverflow(int número);

    // Runs a handler under the error trap: `cambia` changes the view and returns whether it has,
    // `refresca` shows the change. True where both went through.
    template <typename Cambio, typename Refresco> bool ConTrampa(Cambio cambia, Refresco refresca);

    Contexto& contexto_;
    VentanaGráfica& vista_;
    Partes partes_;
    EscenaGráfica escena_;
    std::optional<QPointF> puntero_; // over the picture
};

} // namespace quiralto
