#include "ui/hoja/caja_hoja.h"

#include "commands/hoja.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"

#include <QMimeData>
#include <QTextBlock>

#include <algorithm>

namespace quiralto {

CajaHoja::CajaHoja(QWidget* padre, Pitido pitido)
    : QPlainTextEdit(padre), pitido_(std::move(pitido)) {
    setFont(DevFuenteFija());
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int lugar, int, int añadidos) { EligeCorte(lugar, añadidos); });
    setTabChangesFocus(true);
}

// Not toPlainText, which turns no-break spaces into blanks: the worksheet is taken as it stands.
QString CajaHoja::DevTextoInterno() const {
    QString texto = document()->toRawText();
    texto.replace(QChar::ParagraphSeparator, u'\n');
    return texto;
}

std::string CajaHoja::DevTexto() const {
    return ConCrLf(DevUtf8(DevTextoInterno()));
}

void CajaHoja::PonTexto(std::string_view texto) {
    const QString anterior = DevTextoInterno();
    const QString nuevo = DevQString(ConLf(texto));
    if (anterior == nuevo)
        return;
    const qsizetype igual =
        std::ranges::mismatch(anterior, nuevo).in1 - anterior.cbegin(); // all of it, as a rule
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(igual));
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.insertText(nuevo.mid(igual));
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void CajaHoja::SeleccionaLínea(std::string_view línea) {
    const QString buscada = DevQString(ConLf(línea));
    const qsizetype comienzo = DevTextoInterno().indexOf(buscada);
    if (comienzo >= 0) {
        QTextCursor cursor(document());
        cursor.setPosition(static_cast<int>(comienzo));
        cursor.setPosition(static_cast<int>(comienzo + buscada.size()), QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
    setFocus(Qt::OtherFocusReason);
}

// Looking for words to break at takes the square of the length of a line without blanks: half a
// minute for a megabyte. From the first very long line on, lines are broken anywhere. This is told
// before the new text is laid out.
void CajaHoja::EligeCorte(int lugar, int añadidos) {
    constexpr int LíneaLarga = 10'000;
    if (wordWrapMode() == QTextOption::WrapAnywhere)
        return;
    for (QTextBlock bloque = document()->findBlock(lugar);
         bloque.isValid() && bloque.position() <= lugar + añadidos; bloque = bloque.next())
        if (bloque.length() > LíneaLarga) {
            setWordWrapMode(QTextOption::WrapAnywhere);
            return;
        }
}

void CajaHoja::keyPressEvent(QKeyEvent* suceso) {
    const bool intro = suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter;
    if (intro && suceso->modifiers() != Qt::NoModifier) {
        // Shift+Enter would put in a separator that is no line break for the commands.
        QKeyEvent normal(suceso->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QPlainTextEdit::keyPressEvent(&normal);
        suceso->accept();
        return;
    }
    if (EsMnemónico(*suceso)) {
        suceso->ignore();
        return;
    }
    if (!EsTecleado(*suceso)) {
        QPlainTextEdit::keyPressEvent(suceso);
        return;
    }
    QKeyEvent filtrado = FiltraSuceso(*suceso, pitido_);
    if (!filtrado.text().isEmpty())
        QPlainTextEdit::keyPressEvent(&filtrado);
    suceso->accept();
}

void CajaHoja::inputMethodEvent(QInputMethodEvent* suceso) {
    FiltraSuceso(*suceso, pitido_);
    QPlainTextEdit::inputMethodEvent(suceso);
}

void CajaHoja::insertFromMimeData(const QMimeData* origen) {
    if (isReadOnly() || !origen->hasText())
        return;
    QTextCursor cursor = textCursor();
    const QTextBlock bloque = document()->findBlock(cursor.selectionStart());
    const QString delante = bloque.text().left(cursor.selectionStart() - bloque.position());
    cursor.insertText(ConviertePegado(delante, origen->text()));
    setTextCursor(cursor);
    ensureCursorVisible();
}

} // namespace quiralto
