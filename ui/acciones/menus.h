// The menu bar, made of the window's actions.
#pragma once

#include "ui/acciones/acciones.h"

#include <QMenu>
#include <QMenuBar>

#include <span>
#include <string_view>

namespace quiralto {

// The titles of the commands' menus, in the order in which they stand.
std::span<const std::string_view> DevFamilias();

// Those of the menus whose opening is waited for.
struct Menús {
    QMenu& edición;
    QMenu& hoja; // the worksheet's commands: a submenu for every family, in the program's order
};

// Fills the bar.
Menús CreaMenús(QMenuBar& barra, const Acciones& acciones);

} // namespace quiralto
