// The main form: the graph view and the worksheet.
#pragma once

#include "commands/ordenes.h"
#include "ui/formularios/control_grafica.h"
#include "ui/hoja/caja_hoja.h"
#include "ui/programa/impresora.h"
#include "ui/programa/vigilante_ventana.h"

#include <QMainWindow>
#include <QSplitter>

#include <memory>

namespace quiralto {

class frmGráficas : public QMainWindow {
public:
    // All three outlive the form.
    frmGráficas(Contexto& contexto, VigilanteVentana& vigilante, Impresora& impresora);

    ~frmGráficas() override;

    // Runs the command with that text on the worksheet. Nothing happens while one is running.
    void EjecutaOrden(std::string_view orden);

    // The view of the start.
    void Comienza() { control_->Comienza(); }

protected:
    void closeEvent(QCloseEvent* suceso) override;

private:
    QWidget* CreaZonaGráfica();
    QWidget* CreaColumna();
    void CreaBarraEstado();
    void CreaMenús();
    void CreaMenúArchivo();
    void CreaMenúAyuda();

    void FijarPuntosExtremos_Click();
    template <typename Imprime> void ConImpresora(Imprime imprime);
    void ImprimirGráfica_Click();
    void ImprimirTexto_Click();
    void CopiarImagen_Click();
    void Contenido_Click() { Muestra(ayuda_); }
    void AcercaDe_Click() { Muestra(acercaDe_); }
    template <typename Formulario> void Muestra(Formulario*& formulario);

    Contexto& contexto_;
    VigilanteVentana& vigilante_;
    Impresora& impresora_;
    VentanaGráfica vista_;
    std::unique_ptr<ControlGráfica> control_;

    CajaHoja* txtSalida_;
    VisorFunciones* visor_;
    PanelFunciones* panel_;
    frmPuntosExtremos* marco_;
    QLabel* zoom_;
    QLabel* coordenadas_;
    class formAyuda* ayuda_ = nullptr;
    class forAcercaDe* acercaDe_ = nullptr;
};

} // namespace quiralto
