// The graph on paper.
#pragma once

#include "ui/grafica/escena.h"

#include <QPagedPaintDevice>
#include <QSizeF>

namespace quiralto {

// Prints the scene on one page, in the given proportions (those of the picture on the screen) and
// as large as the page allows, with its legend below it; what is being typed is left out. False
// where the printer cannot be written to.
bool ImprimeGráficas(QPagedPaintDevice& impresora, const Escena& escena,
                     const QSizeF& proporciones);

// The orientation of a page in which that graph can be larger.
QPageLayout::Orientation DevOrientación(const QPageLayout& página, const Escena& escena,
                                        const QSizeF& proporciones);

} // namespace quiralto
