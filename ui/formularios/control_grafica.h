// The graph view: its model and the handlers that change it. Each change is composed into one
// scene, and the refreshers copy from that.
#pragma once

#include "ui/formularios/frm_puntos_extremos.h"
#include "ui/formularios/panel_funciones.h"
#include "ui/formularios/visor_funciones.h"
#include "ui/grafica/historia.h"
#include "ui/hoja/ejecutor.h"

#include <QAction>
#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace quiralto {

class ControlGráfica : public QObject {
public:
    // What shows the view; all of it outlives the control.
    struct Partes {
        VisorFunciones& visor;
        PanelFunciones& panel;
        FrmPuntosExtremos& marco;
        QScrollBar& hsEjeX;
        QScrollBar& vsEjeY;
        QScrollBar& hsx;
        QLabel& zoom;        // the window, in words
        QLabel& coordenadas; // under the pointer
        QAction& vistaAnterior;
        QStatusBar& avisos; // of what cannot be done
    };

    // Context and executor outlive the control. A change that comes while a command runs waits
    // until it has ended.
    ControlGráfica(Contexto& contexto, Ejecutor& ejecutor, const Partes& partes,
                   QObject* padre = nullptr);

    void ZoomGráfica_Click(int índice);
    void ZoomEjeX_Click(int índice);
    void ZoomEjeY_Click(int índice);
    void ZoomEjesXY_Click(int índice);
    void ValoresPorDefectoEjes_Click();
    void FijarPuntosExtremos_Click();
    void NúmeroPuntos_Click(int índice);
    void RedondeoNúmeros_Click(int índice);
    void OrdenMenúPuntos_Click() { PonMétodo(MétodoDibujo::Puntos); }
    void OrdenMenúLíneas_Click() { PonMétodo(MétodoDibujo::Líneas); }
    void hsEjeX_Change(int valor);
    void vsEjeY_Change(int valor);
    void hsx_Change(int valor);
    void FijaExtremos(const Ventana& ventana);
    void AjustarEjeY_Click();
    void EjesIguales_Click();
    void VistaAnterior_Click();
    void AlPedirPuntoX(const QString& texto);

    // The functions over the window as text, a column of each; given to `luego` once nothing runs.
    // Empty where none is switched on.
    void DevTablaValores(const std::function<void(const QString&)>& luego);

    // The functions' boxes.
    void AlEscribir(int índice, const QString& texto);
    void AlConfirmar(int índice);
    void AlAbandonar(int índice);
    void AlConmutar(int índice, bool encendida);

    // A formula for a box, switched on.
    void PonFunción(int índice, const QString& texto);
    // The point X to a place, and the window where the place lies outside.
    void LlevaPuntoX(const Lugar& lugar);

    void QuitarMarcas_Click();

    // The window of the start, and everything brought up to date with it.
    void Comienza();

    // The scene as it is shown, and what it was composed from.
    const Escena& DevEscena() const { return escena_; }
    const FuncionesGráficas& DevFunciones() const { return funciones_; }
    const Opciones& DevOpciones() const { return opciones_; }
    const Hallados& DevHallados() const { return hallados_; }

    // How long a text may stay half-written before it is told why it is no formula.
    static constexpr std::chrono::milliseconds Pausa = std::chrono::seconds(1);

protected:
    // The refreshers: each copies a part of the scene to where it is shown.
    virtual void ActualizaX() { CopiaX(); }
    virtual void ActualizaFunciones() { CopiaFunciones(); }
    virtual void ActualizaExtremos() { CopiaExtremos(); }
    virtual void ActualizaUnidadEjesXY() { CopiaUnidades(); }
    virtual void ActualizaZoom() { CopiaZoom(); }
    virtual void ActualizaEjes() { CopiaCuadro(); }
    virtual void DibujarActivadas() { CopiaCuadro(); }

    // The end of the error trap: an overflow is undone silently, any other fault is told.
    void MensajeErrorOverflow(int número);

    using Paso = void (ControlGráfica::*)();
    using Pasos = std::vector<Paso>;
    // Runs the refreshers in the order given.
    virtual void Refresca(const Pasos& pasos);

    // Every handler comes through here: `cambia` changes the model and returns whether it has; the
    // refreshers show the change in the order given, and what they leave is copied behind them.
    // Once nothing else runs, `luego` is called with whether all went through.
    using Cambio = std::function<bool()>;
    using Luego = std::function<void(bool)>;
    void ConTrampa(Cambio cambia, Pasos pasos, Luego luego = {});

private:
    void ConectaVisor();
    void ConectaGestos();
    Lugar DevSeparación() const;
    bool Atiende(const Cambio& cambia, const Pasos& pasos);
    void Muestra(const Pasos& pasos);
    void PonMétodo(MétodoDibujo método);
    void PonPuntoX(double x);
    void MuevePuntoX(double pasos);
    void Señala(const std::optional<QPointF>& lugar);
    void AlPararse();
    void AlAcabarOrden();

    void CopiaX();
    void CopiaFunciones();
    void CopiaExtremos();
    void CopiaUnidades();
    void CopiaZoom();
    void CopiaCuadro();
    void CopiaMotivos();
    void CopiaLoQueDifiere();

    Contexto& contexto_;
    Ejecutor& ejecutor_;
    Partes partes_;
    Vista vista_;
    FuncionesGráficas funciones_;
    Hallados hallados_;
    Opciones opciones_;
    Historia historia_;
    Gesto gesto_ = Gesto::Suelto; // of the change that is being made
    Compositor compositor_;
    Escena escena_;
    std::optional<QPointF> puntero_; // over the picture
    QTimer pausa_;                   // runs while a text is being typed
};

} // namespace quiralto
