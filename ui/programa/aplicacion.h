// What the program needs of the application object before its first window.
#pragma once

#include <QApplication>

namespace quiralto {

// Names the application, turns the toolkit's own texts (standard buttons, dialogs, context menus)
// to Spanish and puts the C library's number format back to the point. False where the Spanish
// texts are not installed; everything else is done nevertheless.
bool PreparaAplicación(QApplication& aplicación);

} // namespace quiralto
