// The graph on paper.
#pragma once

#include "ui/dibujo/grafica.h"

#include <QPrinter>

#include <string>

namespace quiralto {

// Prints the scene on one page, in the given proportions (those of the picture on the screen) and
// as large as the page allows, with the functions' texts in their colours below it; an empty text
// stands for a function that is off. False where the printer cannot be written to.
bool ImprimeGráficas(QPrinter& impresora, const EscenaGráfica& escena, const QSizeF& proporciones,
                     const std::array<std::string, VentanaGráfica::CantidadFunciones>& textos);

} // namespace quiralto
