#include "ui/programa/impresora.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace quiralto {

bool ImpresoraDelSistema::Elige(QPrinter& impresora, QWidget* padre) {
    QPrintDialog diálogo(&impresora, padre);
    diálogo.setWindowTitle(QStringLiteral("Imprimir"));
    return diálogo.exec() == QDialog::Accepted;
}

bool ImpresoraDelSistema::Previsualiza(QPrinter& impresora, const Documento& documento,
                                       QWidget* padre) {
    QDialog diálogo(padre);
    diálogo.setObjectName(QStringLiteral("vistaPrevia"));
    diálogo.setWindowTitle(QStringLiteral("Vista previa"));
    auto* páginas = new QPrintPreviewWidget(&impresora, &diálogo);
    páginas->setAccessibleName(QStringLiteral("Páginas"));
    QObject::connect(páginas, &QPrintPreviewWidget::paintRequested, páginas,
                     [&](QPrinter* dispositivo) { documento(*dispositivo); });
    auto* botones = new QDialogButtonBox(&diálogo);
    auto* imprimir = botones->addButton(QStringLiteral("&Imprimir…"), QDialogButtonBox::AcceptRole);
    imprimir->setDefault(true);
    botones->addButton(QStringLiteral("Cerrar"), QDialogButtonBox::RejectRole);
    QObject::connect(botones, &QDialogButtonBox::accepted, &diálogo, &QDialog::accept);
    QObject::connect(botones, &QDialogButtonBox::rejected, &diálogo, &QDialog::reject);
    auto* columna = new QVBoxLayout(&diálogo);
    columna->addWidget(páginas, 1);
    columna->addWidget(botones);
    constexpr QSize Tamaño(720, 760);
    diálogo.resize(padre == nullptr ? Tamaño : Tamaño.boundedTo(padre->size()));
    imprimir->setFocus();
    páginas->fitInView();
    return diálogo.exec() == QDialog::Accepted;
}

} // namespace quiralto
