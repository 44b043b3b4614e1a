#include "ui/formularios/impresion.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPdfWriter>

namespace quiralto {
namespace {

bool Escribe(const QString& nombre, const QByteArray& datos) {
    QFile fichero(nombre);
    const bool escrito = fichero.open(QIODevice::WriteOnly) &&
                         fichero.write(datos) == datos.size() && fichero.flush();
    fichero.close();
    if (escrito && fichero.error() == QFileDevice::NoError)
        return true;
    if (QFileInfo(nombre).isFile())
        QFile::remove(nombre); // a part of a document is none
    return false;
}

// The toolkit's printer does not tell whether its file could be written, so the document is made
// first and written then.
bool ImprimeEnFichero(const QPrinter& impresora, const Documento& documento) {
    QBuffer búfer;
    búfer.open(QIODevice::WriteOnly);
    QPdfWriter escritor(&búfer);
    escritor.setPageLayout(impresora.pageLayout());
    escritor.setResolution(impresora.resolution());
    escritor.setTitle(impresora.docName());
    return documento(escritor) && Escribe(impresora.outputFileName(), búfer.data());
}

} // namespace

QRectF DevPágina(const QPagedPaintDevice& dispositivo) {
    const QRect página = dispositivo.pageLayout().paintRectPixels(dispositivo.logicalDpiX());
    return {QPointF(0, 0), página.size()};
}

bool Imprime(QPrinter& impresora, const Documento& documento) {
    if (impresora.outputFormat() == QPrinter::PdfFormat && !impresora.outputFileName().isEmpty())
        return ImprimeEnFichero(impresora, documento);
    return documento(impresora) && impresora.printerState() != QPrinter::Error &&
           impresora.printerState() != QPrinter::Aborted;
}

} // namespace quiralto
