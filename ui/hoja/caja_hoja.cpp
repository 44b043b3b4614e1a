#include "ui/hoja/caja_hoja.h"

#include "commands/hoja.h"
#include "ui/dibujo/contraste.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/hoja/edita_lineas.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>

#include <algorithm>
#include <utility>

namespace quiralto {

CajaHoja::CajaHoja(QWidget* padre, Pitido pitido)
    : QPlainTextEdit(padre), pitido_(std::move(pitido)), resaltado_(new Resaltado(document())) {
    setFont(DevFuenteFija());
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int lugar, int, int añadidos) { AlCambiar(lugar, añadidos); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { AlMoverse(); });
    setTabChangesFocus(true);
    pausa_.setSingleShot(true);
    pausa_.setInterval(Pausa);
    connect(&pausa_, &QTimer::timeout, this, [this] { Subraya(); });
    PonColores();
}

// The desktop's palette may leave the colour of the example line as it is on white paper.
void CajaHoja::PonColores() {
    const QPalette escritorio = QApplication::palette(this);
    resaltado_->PonColor(DevColorComentario(escritorio));
    Subraya();
    const QColor suave = DevTextoSuave(escritorio);
    if (suave == palette().color(QPalette::PlaceholderText))
        return;
    QPalette paleta; // but for one colour the desktop's
    paleta.setColor(QPalette::PlaceholderText, suave);
    setPalette(paleta);
}

void CajaHoja::changeEvent(QEvent* suceso) {
    QPlainTextEdit::changeEvent(suceso);
    if (suceso->type() == QEvent::PaletteChange)
        PonColores();
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

// Whether the text, written at the cursor, would become part of a comment or result that ends the
// worksheet.
bool CajaHoja::VaEnOtraLínea(const QString& texto) const {
    const QString sinBlancos = texto.trimmed();
    const QTextCursor cursor = textCursor();
    if (propia_ || cursor.hasSelection() || !cursor.atEnd() || sinBlancos.isEmpty() ||
        sinBlancos.startsWith(u'\'') || texto.startsWith(u'\n') || texto.startsWith(u'\r'))
        return false;
    const std::string última = DevUtf8(cursor.block().text());
    return ClasificaLínea(última).clase == ClaseLínea::Comentario || EsDelPrograma(última);
}

bool CajaHoja::EmpiezaComentario(const QString& texto) const {
    return texto.startsWith(u'\'') && textCursor().atEnd() &&
           ClasificaLínea(DevUtf8(textCursor().block().text())).clase == ClaseLínea::Vacía;
}

// What the user types or composes; `inserta` writes it at the cursor.
void CajaHoja::Escribe(const QString& texto, const Inserción& inserta) {
    if (VaEnOtraLínea(texto)) {
        EscribeEnOtraLínea(inserta);
        return;
    }
    const QScopedValueRollback escribiendo(escribiendo_, true);
    const bool empieza = EmpiezaComentario(texto);
    if (salto_ == Salto::Ninguno) {
        inserta();
    } else {
        QTextCursor cursor(document());
        cursor.joinPreviousEditBlock();
        inserta();
        cursor.endEditBlock();
        salto_ = Salto::Seguido;
    }
    propia_ = propia_ || empieza;
}

// One step that can be undone.
void CajaHoja::EscribeEnOtraLínea(const Inserción& inserta) {
    const QScopedValueRollback escribiendo(escribiendo_, true);
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.insertText(QStringLiteral("\n"));
    setTextCursor(cursor);
    inserta();
    cursor.endEditBlock();
    salto_ = Salto::Reciente;
}

// What was written goes back behind the comment, and what follows with it.
void CajaHoja::QuitaSalto() {
    QTextCursor cursor(document()->lastBlock());
    cursor.deletePreviousChar();
    propia_ = true;
}

void CajaHoja::AlCambiar(int lugar, int añadidos) {
    EligeCorte(lugar, añadidos);
    errónea_.reset(); // until it is read anew
    pausa_.start();
    const int anteriores = std::exchange(líneas_, document()->blockCount());
    if (anteriores != líneas_ || (añadidos > 0 && !escribiendo_))
        propia_ = false;
    if (!escribiendo_)
        salto_ = Salto::Ninguno;
}

void CajaHoja::AlMoverse() {
    if (errónea_ && pausa_.isActive())
        Subraya();
    if (escribiendo_)
        return;
    salto_ = Salto::Ninguno;
    if (textCursor().block() != document()->lastBlock())
        propia_ = false;
}

void CajaHoja::PonErrónea(std::optional<std::size_t> línea) {
    errónea_ = línea;
    Subraya();
}

void CajaHoja::Subraya() {
    const QTextBlock bloque = errónea_ ? DevLíneaDeDatos(*document(), *errónea_) : QTextBlock();
    QList<QTextEdit::ExtraSelection> subrayadas;
    if (bloque.isValid() && !(pausa_.isActive() && bloque == textCursor().block())) {
        const qsizetype apóstrofo = bloque.text().indexOf(u'\'');
        QTextCursor línea(bloque);
        línea.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor,
                           static_cast<int>(apóstrofo < 0 ? bloque.text().size() : apóstrofo));
        QTextCharFormat formato;
        formato.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        formato.setUnderlineColor(DevColorErrónea(QApplication::palette(this)));
        subrayadas.push_back({línea, formato});
    }
    setExtraSelections(subrayadas);
}

void CajaHoja::keyPressEvent(QKeyEvent* suceso) {
    if (salto_ == Salto::Reciente && suceso->key() == Qt::Key_Backspace &&
        suceso->modifiers() == Qt::NoModifier) {
        QuitaSalto();
        suceso->accept();
        return;
    }
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
        Escribe(filtrado.text(), [&] { QPlainTextEdit::keyPressEvent(&filtrado); });
    suceso->accept();
}

// The line under the pointer, or the cursor's where the menu's key was pressed. The cursor goes to
// that line, so that all of the menu is about it; unless it is a part of what is selected.
void CajaHoja::contextMenuEvent(QContextMenuEvent* suceso) {
    const bool conTecla = suceso->reason() == QContextMenuEvent::Keyboard;
    const QTextCursor lugar = conTecla ? textCursor() : cursorForPosition(suceso->pos());
    if (const QTextCursor cursor = textCursor();
        lugar.position() < cursor.selectionStart() || lugar.position() > cursor.selectionEnd())
        setTextCursor(lugar);
    QMenu* const menú = createStandardContextMenu(suceso->pos());
    menú->setObjectName(QStringLiteral("MenúContextualHoja"));
    menú->setAttribute(Qt::WA_DeleteOnClose);
    Q_EMIT menuPedido(menú, lugar.block().text());
    menú->popup(conTecla ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                         : suceso->globalPos());
}

void CajaHoja::mouseReleaseEvent(QMouseEvent* suceso) {
    QPlainTextEdit::mouseReleaseEvent(suceso);
    if (suceso->button() != Qt::LeftButton || suceso->modifiers() != Qt::ControlModifier ||
        textCursor().hasSelection())
        return;
    const QTextBlock línea = cursorForPosition(suceso->position().toPoint()).block();
    const qreal pie = blockBoundingGeometry(línea).translated(contentOffset()).bottom();
    if (suceso->position().y() < pie) // not on the empty paper below the last one
        Q_EMIT pulsadaConCtrl(línea.text());
}

void CajaHoja::inputMethodEvent(QInputMethodEvent* suceso) {
    FiltraSuceso(*suceso, pitido_);
    if (suceso->commitString().isEmpty() || suceso->replacementLength() > 0) {
        QPlainTextEdit::inputMethodEvent(suceso);
        return;
    }
    if (VaEnOtraLínea(suceso->commitString())) {
        QInputMethodEvent vacío; // what is being composed leaves the line that it does not go on
        QPlainTextEdit::inputMethodEvent(&vacío);
    }
    Escribe(suceso->commitString(), [&] { QPlainTextEdit::inputMethodEvent(suceso); });
}

void CajaHoja::insertFromMimeData(const QMimeData* origen) {
    if (isReadOnly() || !origen->hasText())
        return;
    const auto pega = [&] {
        QTextCursor cursor = textCursor();
        const QTextBlock bloque = document()->findBlock(cursor.selectionStart());
        const QString delante = bloque.text().left(cursor.selectionStart() - bloque.position());
        cursor.insertText(ConviertePegado(delante, origen->text()));
        setTextCursor(cursor);
    };
    if (VaEnOtraLínea(origen->text())) {
        EscribeEnOtraLínea(pega);
    } else {
        const bool propia = propia_ && !origen->text().contains(u'\n');
        pega();
        propia_ = propia;
    }
    ensureCursorVisible();
}

} // namespace quiralto
