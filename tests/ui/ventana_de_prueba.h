// The main form as the tests use it: shown, with recorded messages and a printer that writes a
// file.
#pragma once

#include "commands/fichero_primos.h"
#include "tests/apoyo.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/frm_graficas.h"
#include "ui/programa/vigilante_ventana.h"

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QToolButton>
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
    // Prints what is to be seen into the file, and then wants to print it or not.
    bool Previsualiza(QPrinter& impresora, const Documento& documento, QWidget* padre) override {
        vista = Elige(impresora, padre) && documento(impresora);
        orientación = impresora.pageLayout().orientation();
        return imprimeTrasVer;
    }
    QString fichero;
    bool vista = false; // a preview
    bool imprimeTrasVer = false;
    QPageLayout::Orientation orientación{};
};

class VentanaDePrueba : public testing::Test {
protected:
    VentanaDePrueba() {
        CargaPrimos(contexto, QUIRALTO_PRIMOS);
        formulario.Comienza();
        formulario.show();
        formulario.activateWindow();
        (void)QTest::qWaitForWindowActive(&formulario);
        txtSalida.setFocus();
    }

    // A control by its name, which must exist.
    template <typename Control> Control& Busca(const char* nombre) {
        auto* control = formulario.findChild<Control*>(QString::fromUtf8(nombre));
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + nombre);
        return *control;
    }

    // Triggers an action, or clicks the toolbar's button of that name.
    void Pulsa(const char* nombre) {
        if (auto* botón = formulario.findChild<QToolButton*>(QString::fromUtf8(nombre)))
            botón->click();
        else
            Busca<QAction>(nombre).trigger();
    }

    QString DevTexto(const char* caja) { return Busca<QLineEdit>(caja).text(); }

    // Types a function and switches it on with Enter.
    void Define(int índice, const char* función) {
        auto& caja = Busca<QLineEdit>(("txtfx_" + std::to_string(índice)).c_str());
        caja.setFocus();
        QTest::keyClick(&caja, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&caja, QString::fromLatin1(función));
        QTest::keyClick(&caja, Qt::Key_Return);
    }

    // The extremes as their boxes show them: right, left, upper, lower.
    std::vector<std::string> DevExtremos() {
        std::vector<std::string> extremos;
        extremos.reserve(4);
        for (int i = 0; i < 4; ++i)
            extremos.push_back(
                DevTexto(("txtPuntosExtremos_" + std::to_string(i)).c_str()).toStdString());
        return extremos;
    }

    // Runs a command on a worksheet (lines ended by LF) and returns what it leaves.
    std::string Resuelve(const QString& hoja, const char* acción) {
        txtSalida.setPlainText(hoja);
        Pulsa(acción);
        return DevTexto();
    }
    std::string DevTexto() { return ConLf(dynamic_cast<CajaHoja&>(txtSalida).DevTexto()); }

    MensajesGrabados grabados;
    // No dialog however slow the machine is; its own tests make theirs.
    VigilanteVentana vigilante{std::chrono::hours(1)};
    Primos tabla{};
    Contexto contexto{grabados, vigilante, tabla};
    ImpresoraDePrueba impresora;
    FrmGráficas formulario{contexto, vigilante, impresora};
    QPlainTextEdit& txtSalida = Busca<QPlainTextEdit>("txtSalida");
};

} // namespace quiralto
