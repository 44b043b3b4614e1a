// The drawn icons of the toolbar, in the colours of the desktop's palette and sharp at any size.
#pragma once

#include <QIcon>

namespace quiralto {

enum class Figura { EjeX, EjeY, EjesXY, Gráfica };

// `ampliar`: arrows that point outwards for an axis, a lens with a plus for the graph; otherwise
// arrows that point inwards, a lens with a minus.
QIcon DevIcono(Figura figura, bool ampliar);

// The program's own picture: axes and a curve on paper.
QIcon DevIconoPrograma();

} // namespace quiralto
