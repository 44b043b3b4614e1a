// The main form.
#pragma once

#include "commands/ordenes.h"
#include "ui/caja_hoja.h"
#include "ui/impresora.h"
#include "ui/vigilante_ventana.h"

#include <QMainWindow>

namespace quiralto {

class frmGráficas : public QMainWindow {
public:
    // All three outlive the form.
    frmGráficas(Contexto& contexto, VigilanteVentana& vigilante, Impresora& impresora);

    // Runs the command with that text on the worksheet. Nothing happens while one is running.
    void EjecutaOrden(std::string_view orden);

private:
    void CreaMenús();
    void ImprimirTexto_Click();

    Contexto& contexto_;
    VigilanteVentana& vigilante_;
    Impresora& impresora_;
    CajaHoja* txtSalida_;
};

} // namespace quiralto
