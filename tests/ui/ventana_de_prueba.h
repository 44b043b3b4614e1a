// The main form as the tests use it: shown, with recorded messages and a printer that writes a
// file.
#pragma once

#include "tests/apoyo.h"
#include "ui/frm_graficas.h"
#include "ui/texto_qt.h"

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

namespace quiralto {

// Prints into fichero, or does as if the user had cancelled the dialog where it has no name.
class ImpresoraDePrueba : public Impresora {
public:
    bool Elige(QPrinter& impresora, QWidget*) override {
        impresora.setOutputFormat(QPrinter::PdfFormat);
        impresora.setOutputFileName(fichero);
        return !fichero.isEmpty();
    }
    QString fichero;
};

class VentanaDePrueba : public testing::Test {
protected:
    VentanaDePrueba() {
        formulario.show();
        formulario.activateWindow();
        QApplication::setActiveWindow(&formulario);
        txtSalida.setFocus();
    }

    // A control by its name, which must exist.
    template <typename Control> Control& Busca(const char* nombre) {
        auto* control = formulario.findChild<Control*>(QString::fromUtf8(nombre));
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + nombre);
        return *control;
    }

    void Pulsa(const char* acción) { Busca<QAction>(acción).trigger(); }

    // Runs a command on a worksheet (lines ended by LF) and returns what it leaves.
    std::string Resuelve(const QString& hoja, const char* acción) {
        txtSalida.setPlainText(hoja);
        Pulsa(acción);
        return DevTexto();
    }
    std::string DevTexto() { return ConLf(dynamic_cast<CajaHoja&>(txtSalida).DevTexto()); }

    MensajesGrabados grabados;
    VigilanteVentana vigilante;
    Contexto contexto{grabados, vigilante};
    ImpresoraDePrueba impresora;
    frmGráficas formulario{contexto, vigilante, impresora};
    QPlainTextEdit& txtSalida = Busca<QPlainTextEdit>("txtSalida");
};

} // namespace quiralto
