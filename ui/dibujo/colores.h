// The colours of the graph. It stands on paper: they are the same in every palette.
#pragma once

#include <QColor>

namespace quiralto {

inline constexpr QColor Papel(255, 255, 255);
inline constexpr QColor ColorRejilla(222, 222, 228);
inline constexpr QColor ColorRejillaMenor(242, 242, 245);
inline constexpr QColor ColorEje(112, 112, 120);
inline constexpr QColor ColorTexto(70, 70, 76);
inline constexpr QColor ColorMarcador(0, 130, 90);

// The colour of a function's curve; black for any other index.
QColor DevColor(int índice);

// The colour of a curve that stays while its text is being typed.
QColor DevColorAtenuado(int índice);

} // namespace quiralto
