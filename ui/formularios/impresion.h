// Printing: the choice of a printer behind one method, so that tests print into a file without the
// platform's dialog, and whether what was printed has arrived.
#pragma once

#include <QPrinter>

#include <functional>

namespace quiralto {

// Draws a document on the device; false where the device refuses it.
using Documento = std::function<bool(QPagedPaintDevice&)>;

class Impresora {
public:
    virtual ~Impresora() = default;

    // Lets the user choose where and how to print; false where the user does not want to.
    virtual bool Elige(QPrinter& impresora, QWidget* padre) = 0;

    // Shows what would be printed; true where the user then wants to print it.
    virtual bool Previsualiza(QPrinter& impresora, const Documento& documento, QWidget* padre) = 0;

protected:
    Impresora() = default;
    Impresora(const Impresora&) = default;
    Impresora& operator=(const Impresora&) = default;
};

// The part of the device's page that can be printed on, in its pixels; a painter's origin is the
// corner of it.
QRectF DevPágina(const QPagedPaintDevice& dispositivo);

// Prints on the chosen printer, or into the chosen file. False where it could not be printed or
// written, a full disk among it.
bool Imprime(QPrinter& impresora, const Documento& documento);

} // namespace quiralto
