// How well one colour is read on another, and texts that are quieter than the others and still read
// in every palette.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>

namespace quiralto {

// What a text needs against its paper to be read.
inline constexpr double ContrasteDeTexto = 4.5;

// The ratio of their luminances, from 1 to 21, as the web's guidelines for accessibility define it.
double DevContraste(const QColor& uno, const QColor& otro);

// The quieter text of a box: between its text and its paper.
QColor DevTextoSuave(const QPalette& paleta);

// The colour nearest to the paper, on the way from it to `hacia`, that can be read on it; `hacia`
// itself where none can.
QColor DevLegible(const QColor& papel, const QColor& hacia);

// The mark of the focus, along the border of a control, on the ground of the window.
void DibujaFoco(QPainter& pintor, const QRectF& marco, const QPalette& paleta);

} // namespace quiralto
