// Everything that a part of the window says, as an outline that a test can spell out: whoever
// changes a letter anywhere changes the outline.
#pragma once

#include <QMenu>
#include <QWidget>

#include <string>

namespace quiralto {

// The entries of a menu, a line each: caption, keys in brackets, "(x)" if it is the chosen one of
// several and "(off)" if it cannot be chosen, and indented below it its tip and its entries, if it
// has any. "---" is a separator.
std::string DevEsquema(const QMenu& menú);
// The same of all that a bar or another control has.
std::string DevEsquemaMenús(const QWidget& control);

// What a form and the controls in it say, in the order in which they were made: of each one that
// says anything its class and its texts, all but the caption with their names.
std::string DevEsquema(const QWidget& formulario);

} // namespace quiralto
