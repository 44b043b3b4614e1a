// The worksheet's text box: the key filter, pasted text, what is written behind a result, the
// output of commands as one step of the undo history, and the selection of a refused line.
#pragma once

#include "ui/hoja/filtro_teclas.h"

#include <QPlainTextEdit>

#include <functional>
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
    void changeEvent(QEvent* suceso) override;

private:
    // What was written at the end behind a comment or a result went on a line of its own.
    enum class Salto {
        Ninguno,
        Recién,    // just now: Backspace takes back the line break alone
        Siguiendo, // and more has been written behind it, which is part of the same undo step
    };
    using Inserción = std::function<void()>;

    QString DevTextoInterno() const;
    bool VaEnOtraLínea(const QString& texto) const;
    bool EmpiezaComentario(const QString& texto) const;
    void Escribe(const QString& texto, const Inserción& inserta);
    void EscribeEnOtraLínea(const Inserción& inserta);
    void QuitaSalto();
    void AlCambiar(int lugar, int añadidos);
    void AlMoverse();
    void EligeCorte(int lugar, int añadidos);
    void PonColores();

    Pitido pitido_;
    Salto salto_ = Salto::Ninguno;
    // The comment at the end is being written by the user, who has typed its apostrophe or taken
    // back the line break: what follows belongs to it, until the cursor leaves the line.
    bool propia_ = false;
    bool escribiendo_ = false; // what changes is what the user writes
    int líneas_ = 1;
};

} // namespace quiralto
