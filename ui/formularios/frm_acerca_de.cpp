#include "ui/formularios/frm_acerca_de.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quiralto {

FrmAcercaDe::FrmAcercaDe(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("forAcercaDe"));
    setWindowTitle(QStringLiteral("Acerca de"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* Label1 =
        new QLabel(QStringLiteral("****************************************\n"
                                  "Quiralto\n"
                                  "****************************************\n\n"
                                  "Se agradecen los comentarios y sugerencias sobre el programa."),
                   this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setAlignment(Qt::AlignCenter);
    auto* botones = new QDialogButtonBox(this);
    botones->setCenterButtons(true);
    auto* Command1 = botones->addButton(QStringLiteral("Cerrar"), QDialogButtonBox::RejectRole);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(24, 20, 24, 16);
    columna->setSpacing(16);
    columna->addWidget(Label1);
    columna->addWidget(botones);
    connect(botones, &QDialogButtonBox::rejected, this, &FrmAcercaDe::Command1_Click);
    Command1->setFocus();
}

} // namespace quiralto
