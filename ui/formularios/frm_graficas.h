// The main form: the graph view and the worksheet. It assembles the parts, owns them, and connects
// the actions.
#pragma once

#include "ui/acciones/acciones.h"
#include "ui/formularios/control_grafica.h"
#include "ui/formularios/etiqueta_lectura.h"
#include "ui/formularios/frm_ayuda.h"
#include "ui/formularios/impresion.h"
#include "ui/formularios/marco_barra.h"
#include "ui/hoja/caja_hoja.h"
#include "ui/hoja/ejecutor.h"

#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTimer>

#include <memory>

namespace quiralto {

class FrmGráficas : public QMainWindow {
public:
    // All three outlive the form.
    FrmGráficas(Contexto& contexto, VigilanteÓrdenes& vigilante, Impresora& impresora);
    ~FrmGráficas() override;

    // The view of the start.
    void Comienza() { control_->Comienza(); }

    // What there is on the worksheet, in words, is told this long after the last key.
    static constexpr std::chrono::milliseconds Lectura{120};

protected:
    void closeEvent(QCloseEvent* suceso) override;

private:
    void CreaCuerpo();
    QWidget* CreaZonaGráfica();
    QWidget* CreaColumna();
    void CreaBarraEstado();
    void CreaMenúsYBarra();
    void CreaControl();
    void PonTamaño();
    void ConectaAccionesGráfica();
    void ConectaOtrasAcciones();
    void ConectaLectura();

    void ImprimirGráfica_Click();
    void ImprimirTexto_Click();
    void ImprimirEnfocada_Click();
    void PrevisualizarGráfica_Click();
    void PrevisualizarTexto_Click();
    void CopiarGráfica_Click();
    void CopiarTabla_Click();
    void Contenido_Click() { Muestra(ayuda_); }
    void Manual_Click() { Muestra(manual_); }
    void AcercaDe_Click() { Muestra(acercaDe_); }
    enum class Manera { Imprimir, Previsualizar };
    void ImprimeTexto(Manera manera);
    void ImprimeGráfica(Manera manera);
    void Imprime(const Documento& documento, QPrinter& impresora, Manera manera);
    template <typename Formulario> void Muestra(QPointer<Formulario>& formulario);
    void LeeHoja();
    void CopiarTodo_Click();
    void BuscarOrden_Click();
    void AlAcabarOrden();
    void ConectaEdición();

    Contexto& contexto_;
    Impresora& impresora_;
    Acciones acciones_;

    CajaHoja* txtSalida_;
    Ejecutor* ejecutor_;
    VisorFunciones* visor_;
    PanelFunciones* panel_;
    FrmPuntosExtremos* marco_;
    MarcoBarra* ejeX_;
    MarcoBarra* ejeY_;
    MarcoBarra* puntoX_;
    QSplitter* división_;
    EtiquetaLectura* lectura_;
    QLabel* zoom_;
    QLabel* coordenadas_;
    // Goes with the members, before the controls that speak to it.
    std::unique_ptr<ControlGráfica> control_;
    std::unique_ptr<class EnlaceHoja> enlace_; // and this one before that
    QMenu* menúHoja_ = nullptr;
    QMenu* menúEdición_ = nullptr;
    class BuscarOrden* buscarOrden_ = nullptr; // made on first use
    QPointer<FrmAyuda> ayuda_;
    QPointer<class FrmManual> manual_;
    QPointer<class FrmAcercaDe> acercaDe_;

    QTimer trasTeclear_; // runs out once the worksheet has been left alone
};

} // namespace quiralto
