// The four functions: their boxes, check boxes and values at the point X, and when a typed text
// becomes a formula.
#pragma once

#include "ui/grafica/ventana_grafica.h"
#include "ui/hoja/caja_formula.h"

#include <QCheckBox>
#include <QLabel>
#include <QTimer>

#include <array>
#include <functional>

namespace quiralto {

class PanelFunciones : public QWidget {
public:
    // `alCambiar` is called after a function has changed, or was switched on or off.
    PanelFunciones(Contexto& contexto, VentanaGráfica& vista, std::function<void()> alCambiar,
                   QWidget* padre = nullptr);

    void ActualizaX();
    void ActualizaFunciones();

    // From here on no text is checked any more: the program ends.
    void Cierra() { cerrado_ = true; }

private:
    struct Fila {
        CajaFórmula* txtfx;
        QCheckBox* chkfx;
        QLineEdit* txtFxValor;
        bool sinComprobar = false; // the text has changed since it was last checked
    };

    void CreaFila(int índice);
    Fila& DevFila(int índice) { return filas_.at(static_cast<std::size_t>(índice)); }
    bool Comprueba(int índice);
    void Rechaza(int índice);
    void AlEscribir(int índice);
    void AlPulsarIntro(int índice);
    void AlSalir(int índice);
    void AlConmutar(int índice, bool activa);

    Contexto& contexto_;
    VentanaGráfica& vista_;
    std::function<void()> alCambiar_;
    std::array<Fila, VentanaGráfica::CantidadFunciones> filas_{};
    QTimer trasSalir_; // runs out once a box has lost the focus
    QLineEdit* txtPuntoX_;
    bool cerrado_ = false;
};

} // namespace quiralto
