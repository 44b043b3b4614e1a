// The key filter of the boxes that take formulas, numbers or instruction lines, as the toolkit's
// events need it.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QString>

#include <functional>

namespace quiralto {

// What is done when a typed character is swallowed: the desktop's beep, but for a test.
using Pitido = std::function<void()>;
void PitaEscritorio();

// The typed characters as FiltraTecla leaves them, with one beep where it swallowed any.
QString FiltraTecleado(const QString& texto, const Pitido& pitido);

// The text with every letter as FiltraTecla would have it, and without its blanks; nothing else is
// swallowed.
QString EnMayúsculas(QStringView texto);

// Text that comes from the clipboard or is dropped behind `delante` (the part of its line before
// the cursor): every line is upper-cased and loses its blanks up to its first apostrophe, where a
// tabulator between two columns becomes a comma; comments and the lines that the program itself has
// written stay.
QString ConviertePegado(QStringView delante, const QString& texto);

// Whether the key would write characters into a text box, rather than move, edit or command.
bool EsTecleado(const QKeyEvent& tecla);

// Whether the key is a menu's mnemonic (Alt and a character), which writes nothing where no menu
// takes it. AltGr, which some platforms report as Ctrl and Alt, is none.
bool EsMnemónico(const QKeyEvent& tecla);

// The key event with filtered text: none at all where everything was swallowed.
QKeyEvent FiltraSuceso(const QKeyEvent& tecla, const Pitido& pitido);

// Filters in place what an input method or a dead key commits.
void FiltraSuceso(QInputMethodEvent& suceso, const Pitido& pitido);

} // namespace quiralto
