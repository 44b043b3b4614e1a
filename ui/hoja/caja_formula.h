// A one-line box for a formula or a number: the key filter, upper case and no blanks in what is
// pasted, its whole text selected when it gets the focus, the names of the functions offered while
// one is typed, and the reason why a text is no formula.
#pragma once

#include "ui/hoja/filtro_teclas.h"

#include <QCompleter>
#include <QLineEdit>
#include <QMenu>

namespace quiralto {

class CajaFormula : public QLineEdit {
    Q_OBJECT

public:
    explicit CajaFormula(QWidget* padre = nullptr, Pitido pitido = PitaEscritorio);

    // Shows why the text cannot be used, or that it can where there is no reason: in the colours of
    // the box, as its tooltip, and in words for whoever does not see them.
    void PonMotivo(const QString& motivo);
    const QString& DevMotivo() const { return motivo_; }
    bool EsErrónea() const { return !motivo_.isEmpty(); }

    // Another text as one step that can be undone; it does not count as typed.
    void Reescribe(const QString& texto);

    // Selects the whole text.
    void SeleccionaTexto() { setSelection(0, static_cast<int>(text().size())); }

    // The list of names while it is offered.
    bool OfreceNombres() const;

Q_SIGNALS:
    // The box has lost the focus to another control of the window (not to a menu, a dialog or
    // another program).
    void abandonada();
    // The focus has come, or has gone wherever to.
    void enfocada(bool tiene);
    // Its context menu is about to be shown: whoever has something to offer adds it.
    void menuPedido(QMenu* menu);

protected:
    bool event(QEvent* suceso) override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void inputMethodEvent(QInputMethodEvent* suceso) override;
    void focusInEvent(QFocusEvent* suceso) override;
    void focusOutEvent(QFocusEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void contextMenuEvent(QContextMenuEvent* suceso) override;
    void changeEvent(QEvent* suceso) override;

private:
    void PonColores();
    void Ofrece();
    void Escoge(const QString& nombre);
    QString DevComienzoNombre() const;
    QRect DevLugarLista(const QString& comienzo) const;

    Pitido pitido_;
    QCompleter* nombres_ = nullptr; // made when the first one is typed
    QString motivo_;
    bool entraConRatón_ = false;
    bool poniendo_ = false; // the colours
};

} // namespace quiralto
