// A one-line box for a formula or a number: the key filter, upper case for what is pasted, and its
// whole text selected when it gets the focus.
#pragma once

#include "ui/hoja/filtro_teclas.h"

#include <QLineEdit>

namespace quiralto {

class CajaFórmula : public QLineEdit {
public:
    explicit CajaFórmula(QWidget* padre = nullptr, Pitido pitido = PitaEscritorio);

    // Shows whether the text is a formula that can be used: in the colours of the box, and in words
    // for whoever does not see them.
    void MarcaErrónea(bool errónea);
    bool EsErrónea() const { return errónea_; }

    // Selects the whole text.
    void SeleccionaTexto() { setSelection(0, static_cast<int>(text().size())); }

    // Called when the box loses the focus to another control of the window (not to a menu, a dialog
    // or another program).
    std::function<void()> alSalir = [] {};

protected:
    void keyPressEvent(QKeyEvent* suceso) override;
    void inputMethodEvent(QInputMethodEvent* suceso) override;
    void focusInEvent(QFocusEvent* suceso) override;
    void focusOutEvent(QFocusEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void changeEvent(QEvent* suceso) override;

private:
    void PonColores();

    Pitido pitido_;
    bool entraConRatón_ = false;
    bool errónea_ = false;
};

} // namespace quiralto
