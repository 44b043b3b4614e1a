// The worksheet's text box: the key filter, pasted text, what is written behind a result, the
// output of commands as one step of the undo history, and the selection of a refused line.
#pragma once

#include "ui/hoja/filtro_teclas.h"
#include "ui/hoja/resaltado.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

// What was written at the end behind a comment or a result went on a line of its own.
enum class Salto {
    Ninguno,
    Reciente, // just now: Backspace takes back the line break alone
    Seguido,  // and more has been written behind it, which is part of the same undo step
};

class CajaHoja : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit CajaHoja(QWidget* padre = nullptr, Pitido pitido = PitaEscritorio);

    // The whole text in UTF-8, its lines separated by CR LF, every other character as it stands.
    std::string DevTexto() const;

    // Replaces the text by `texto` (the same form), as one step that can be undone. Commands only
    // append, so only what is new is written. The cursor goes behind it.
    void PonTexto(std::string_view texto);

    // Selects the first occurrence of the line and takes the focus.
    void SeleccionaLínea(std::string_view línea);

    // Underlines that line of data, counted from 0, as no command would read it; the one that is
    // being written, only after a pause.
    void PonErrónea(std::optional<std::size_t> línea);
    static constexpr std::chrono::milliseconds Pausa = std::chrono::seconds(1);

Q_SIGNALS:
    // The context menu of a line is about to be shown: whoever has something to offer for it adds
    // it.
    void menuPedido(QMenu* menu, const QString& linea);
    void pulsadaConCtrl(const QString& linea);

protected:
    void contextMenuEvent(QContextMenuEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void inputMethodEvent(QInputMethodEvent* suceso) override;
    void insertFromMimeData(const QMimeData* origen) override;
    void changeEvent(QEvent* suceso) override;

private:
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
    void Subraya();

    Pitido pitido_;
    Resaltado* resaltado_;
    Salto salto_ = Salto::Ninguno;
    // The comment at the end is being written by the user, who has typed its apostrophe or taken
    // back the line break: what follows belongs to it, until the cursor leaves the line.
    bool propia_ = false;
    bool escribiendo_ = false; // what changes is what the user writes
    int líneas_ = 1;
    std::optional<std::size_t> errónea_;
    QTimer pausa_; // runs while something is being written
};

} // namespace quiralto
