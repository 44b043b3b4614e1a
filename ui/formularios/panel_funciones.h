// The four functions laid out: their boxes, check boxes and values at the point X. What stands in
// them belongs to the model; here it is only shown and asked for.
#pragma once

#include "ui/grafica/escena.h"
#include "ui/hoja/caja_formula.h"

#include <QCheckBox>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

namespace quiralto {

class PanelFunciones : public QWidget {
    Q_OBJECT

public:
    explicit PanelFunciones(QWidget* padre = nullptr);

    void ActualizaX(const Escena& escena);
    void ActualizaFunciones(const Escena& escena);

    // The text of a function's box and its check box, as they are.
    void Copia(int índice, const FunciónGráfica& función);

    // Why the text of a box is no formula; no reason where there is none to be told.
    void PonMotivo(int índice, const QString& motivo);

    // Back to a box whose text has been refused.
    void VuelveA(int índice);
    void VuelveAlPuntoX();

    // The text of the point X as it was shown, whatever has been typed over it.
    void RestauraPuntoX();

    // From here on no box is left any more: the program ends.
    void Cierra() { cerrado_ = true; }

Q_SIGNALS:
    void escrita(int indice, const QString& texto);
    void confirmada(int indice); // with Enter
    void abandonada(int indice); // the focus has gone to another control
    void conmutada(int indice, bool encendida);
    void puntoEscrito(const QString& texto); // with Enter, or left
    // Why the text of the box with the focus is no formula; empty where nothing is to be said.
    void motivoCambiado(const QString& motivo);
    // A function's menu is about to be shown: whoever has something to offer adds it.
    void menuPedido(int indice, QMenu* menu);

private:
    struct Fila {
        CajaFormula* txtfx;
        QCheckBox* chkfx;
        QLineEdit* txtFxValor;
        QToolButton* cmdMenúfx;
        bool dejada = false; // the box has lost the focus, which has not been told yet
    };

    void CreaFila(int índice);
    void CreaBotónMenú(int índice);
    void CreaPuntoX();
    void ConectaFila(int índice);
    Fila& DevFila(int índice) { return filas_.at(static_cast<std::size_t>(índice)); }
    void DiLasDejadas();
    void DiElPunto();

    PorFunción<Fila> filas_{};
    QTimer trasSalir_; // runs out once a box has lost the focus
    CajaFormula* txtPuntoX_ = nullptr;
    QString puntoX_;           // as it was last shown
    QString puntoRechazado_;   // what has been typed over it and refused
    bool puntoDejado_ = false; // its box has lost the focus, which has not been told yet
    bool cerrado_ = false;
};

} // namespace quiralto
