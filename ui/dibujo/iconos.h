// The drawn icons of the toolbar, in the colours of the desktop's palette and sharp at any size.
#pragma once

#include <QIcon>

namespace quiralto {

enum class Figura { EjeX, EjeY, EjesXY, Gráfica };

// `ampliar`: arrows that point outwards for an axis, a lens with a plus for the graph; otherwise
// arrows that point inwards, a lens with a minus.
QIcon DevIcono(Figura figura, bool ampliar);

// The program's picture: the one that the desktop has for its identifier (desktopFileName), so that
// the window, the menu and the task bar show the same; where there is none, the same one drawn
// here.
QIcon DevIconoPrograma();

// The drawn one: axes and two curves on paper.
QIcon DevIconoDibujado();

} // namespace quiralto
