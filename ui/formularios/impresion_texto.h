// The worksheet on paper.
#pragma once

#include <QPagedPaintDevice>

#include <string_view>

namespace quiralto {

// Prints a worksheet text (UTF-8, lines separated by CR LF) in Arial 14 over as many pages as it
// needs, a line longer than 80 characters in pieces of 80; a piece wider than the page is narrowed
// to it. False where the printer cannot be written to.
bool ImprimetxtSalida(QPagedPaintDevice& impresora, std::string_view texto);

} // namespace quiralto
