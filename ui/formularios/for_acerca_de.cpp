#include "ui/formularios/for_acerca_de.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace quiralto {

forAcercaDe::forAcercaDe(QWidget* padre) : QWidget(padre, Qt::Dialog) {
    setObjectName(QStringLiteral("forAcercaDe"));
    setWindowTitle(QStringLiteral("Acerca de"));
    auto* Label1 =
        new QLabel(QStringLiteral("****************************************\n"
                                  "Quiralto\n"
                                  "****************************************\n\n"
                                  "Se agradecen los comentarios y sugerencias sobre el programa."),
                   this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setAlignment(Qt::AlignCenter);
    auto* Command1 = new QPushButton(QStringLiteral("Cerrar"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(24, 20, 24, 16);
    columna->setSpacing(16);
    columna->addWidget(Label1);
    columna->addWidget(Command1, 0, Qt::AlignHCenter);
    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
            &QWidget::close);
    connect(new QShortcut(QKeySequence(Qt::Key_Return), this), &QShortcut::activated, this,
            &QWidget::close);
    Command1->setFocus();
}

} // namespace quiralto
