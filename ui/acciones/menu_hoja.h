// The menus of the worksheet's commands, made from the table of commands.
#pragma once

#include "commands/ordenes.h"

#include <QMenu>

#include <functional>

namespace quiralto {

// Puts a submenu into `menú` for every family of commands, in the order of the program's menus,
// with an entry for every command. Names: the caption in one word (HallarPuntosInflexión).
void CreaMenúsÓrdenes(QMenu& menú, std::span<const Orden> órdenes,
                      const std::function<void(const Orden&)>& ejecuta);

} // namespace quiralto
