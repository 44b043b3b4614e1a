// The toolbar.
#pragma once

#include "ui/acciones/acciones.h"

#include <QToolBar>

namespace quiralto {

// Its eleven entries: of each zoom menu "X2" and "/2", with separators as the third, the sixth and
// the ninth. The buttons are named Toolbar1_1 to Toolbar1_11.
void CreaBarraHerramientas(QToolBar& barra, const Acciones& acciones);

} // namespace quiralto
