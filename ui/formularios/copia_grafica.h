// The graph on its way to the clipboard.
#pragma once

#include "ui/grafica/escena.h"

#include <QFont>
#include <QMimeData>
#include <QSize>

#include <memory>

namespace quiralto {

// The graph with its legend as an image, as the bytes of a PNG and, drawn in lines, as a PDF.
// `tamaño` is that of the graph in logical pixels, `escala` how many of the image's make one of
// them.
std::unique_ptr<QMimeData> DevCopia(const Escena& escena, const QSize& tamaño, qreal escala,
                                    const QFont& fuente);

} // namespace quiralto
