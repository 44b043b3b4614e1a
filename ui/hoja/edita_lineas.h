// What is done to whole lines of the worksheet, each as one step that can be undone.
#pragma once

#include <QPlainTextEdit>
#include <QTextBlock>

namespace quiralto {

// The lines of the selection, or the cursor's: where there are data among them every line gets one
// apostrophe more, otherwise every line has one less, so that twice is as it was. Empty lines stay.
void ComentaODescomenta(QPlainTextEdit& hoja);

// The lines of data above the cursor's line become comments. False where there are none.
bool ComentaDatosAnteriores(QPlainTextEdit& hoja);

// A line of data at the end, and the only one: the older ones become comments. The cursor goes
// behind it.
void AñadeComoÚnicosDatos(QPlainTextEdit& hoja, const QString& línea);

// The lines of data, from 0; an invalid block where there are not so many.
QTextBlock DevLíneaDeDatos(const QTextDocument& documento, std::size_t índice);

} // namespace quiralto
