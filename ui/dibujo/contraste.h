// How well one colour is read on another, and texts that are quieter than the others and still read
// in every palette.
#pragma once

#include <QColor>
#include <QPalette>

namespace quiralto {

// What a text needs against its paper to be read.
inline constexpr double ContrasteDeTexto = 4.5;

// The ratio of their luminances, from 1 to 21, as the web's guidelines for accessibility define it.
double DevContraste(const QColor& uno, const QColor& otro);

// The quieter text of a box: between its text and its paper.
QColor DevTextoSuave(const QPalette& paleta);

} // namespace quiralto
