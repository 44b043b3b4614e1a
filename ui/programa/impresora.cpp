#include "ui/programa/impresora.h"

#include <QPrintDialog>

namespace quiralto {

bool ImpresoraDelSistema::Elige(QPrinter& impresora, QWidget* padre) {
    QPrintDialog diálogo(&impresora, padre);
    diálogo.setWindowTitle(QStringLiteral("Imprimir"));
    return diálogo.exec() == QDialog::Accepted;
}

} // namespace quiralto
