// The menu bar, made of the window's actions.
#pragma once

#include "ui/acciones/acciones.h"

#include <QMenu>
#include <QMenuBar>

namespace quiralto {

// Fills the bar and returns the menu of the worksheet's commands: a submenu for every family, in
// the order of the program's menus.
QMenu& CreaMenús(QMenuBar& barra, const Acciones& acciones);

} // namespace quiralto
