// The menus and the toolbar of the graph view.
#pragma once

#include "ui/formularios/control_grafica.h"

#include <QMenu>
#include <QToolBar>

namespace quiralto {

// Puts the menus of zoom, drawing and rounding into `menú`. `fijarExtremos` opens the frame of the
// extremes.
void CreaMenúsGráfica(QMenu& menú, ControlGráfica& control,
                      const std::function<void()>& fijarExtremos);

// The toolbar's eleven entries; the third, the sixth and the ninth are separators.
void CreaBarraHerramientas(QToolBar& barra, ControlGráfica& control);

} // namespace quiralto
