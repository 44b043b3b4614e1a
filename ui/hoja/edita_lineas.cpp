#include "ui/hoja/edita_lineas.h"

#include "commands/lineas.h"
#include "ui/dibujo/texto_qt.h"

namespace quiralto {
namespace {

ClaseLínea DevClase(const QTextBlock& bloque) {
    return ClasificaLínea(DevUtf8(bloque.text())).clase;
}

// The lines that the selection touches; not the one at whose beginning it ends.
struct Líneas {
    QTextBlock primera;
    QTextBlock tras; // the line behind the last one
};

Líneas DevElegidas(const QTextCursor& cursor) {
    const QTextDocument& documento = *cursor.document();
    const QTextBlock primera = documento.findBlock(cursor.selectionStart());
    const QTextBlock última = documento.findBlock(cursor.selectionEnd());
    const bool sobra = última != primera && última.position() == cursor.selectionEnd();
    return {primera, sobra ? última : última.next()};
}

template <typename Visita> void Recorre(const Líneas& líneas, Visita visita) {
    for (QTextBlock b = líneas.primera; b.isValid() && b != líneas.tras; b = b.next())
        visita(b);
}

void Comenta(QTextCursor& cursor, const QTextBlock& línea) {
    cursor.setPosition(línea.position());
    cursor.insertText(QStringLiteral("'"));
}

void Descomenta(QTextCursor& cursor, const QTextBlock& línea) {
    cursor.setPosition(línea.position() + static_cast<int>(línea.text().indexOf(u'\'')));
    cursor.deleteChar();
}

bool ComentaDatos(QTextCursor& cursor, const Líneas& líneas) {
    bool hay = false;
    Recorre(líneas, [&](const QTextBlock& línea) {
        if (DevClase(línea) != ClaseLínea::Datos)
            return;
        Comenta(cursor, línea);
        hay = true;
    });
    return hay;
}

} // namespace

void ComentaODescomenta(QPlainTextEdit& hoja) {
    const Líneas líneas = DevElegidas(hoja.textCursor());
    bool hayDatos = false;
    Recorre(líneas, [&](const QTextBlock& línea) {
        hayDatos = hayDatos || DevClase(línea) == ClaseLínea::Datos;
    });
    QTextCursor cursor(hoja.document());
    cursor.beginEditBlock();
    Recorre(líneas, [&](const QTextBlock& línea) {
        if (DevClase(línea) != ClaseLínea::Vacía)
            hayDatos ? Comenta(cursor, línea) : Descomenta(cursor, línea);
    });
    cursor.endEditBlock();
}

bool ComentaDatosAnteriores(QPlainTextEdit& hoja) {
    QTextCursor cursor = hoja.textCursor();
    const QTextBlock suya = hoja.document()->findBlock(cursor.selectionStart());
    cursor.beginEditBlock();
    const bool hay = ComentaDatos(cursor, {hoja.document()->begin(), suya});
    cursor.endEditBlock();
    return hay;
}

void AñadeComoÚnicosDatos(QPlainTextEdit& hoja, const QString& línea) {
    QTextCursor cursor(hoja.document());
    cursor.beginEditBlock();
    ComentaDatos(cursor, {hoja.document()->begin(), {}});
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(cursor.block().text().isEmpty() ? línea : u'\n' + línea);
    cursor.endEditBlock();
    hoja.setTextCursor(cursor);
    hoja.ensureCursorVisible();
}

QTextBlock DevLíneaDeDatos(const QTextDocument& documento, std::size_t índice) {
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next())
        if (DevClase(bloque) == ClaseLínea::Datos && índice-- == 0)
            return bloque;
    return {};
}

} // namespace quiralto
