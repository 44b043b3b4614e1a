// The worksheet's text box: the key filter, pasted text, the output of commands as one step of the
// undo history, and the selection of a refused line.
#pragma once

#include "ui/hoja/filtro_teclas.h"

#include <QPlainTextEdit>

#include <string>
#include <string_view>

namespace quiralto {

class CajaHoja : public QPlainTextEdit {
public:
    explicit CajaHoja(QWidget* padre = nullptr, Pitido pitido = PitaEscritorio);

    // The whole text in UTF-8, its lines separated by CR LF, every other character as it stands.
    std::string DevTexto() const;

    // Replaces the text by `texto` (the same form), as one step that can be undone. Commands only
    // append, so only what is new is written. The cursor goes behind it.
    void PonTexto(std::string_view texto);

    // Selects the first occurrence of the line and takes the focus.
    void SeleccionaLínea(std::string_view línea);

protected:
    void keyPressEvent(QKeyEvent* suceso) override;
    void inputMethodEvent(QInputMethodEvent* suceso) override;
    void insertFromMimeData(const QMimeData* origen) override;

private:
    QString DevTextoInterno() const;
    void EligeCorte(int lugar, int añadidos);

    Pitido pitido_;
};

} // namespace quiralto
