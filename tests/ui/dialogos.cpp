#include "tests/ui/dialogos.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

#include <gtest/gtest.h>
#include <utility>

namespace quiralto {
namespace {

int esperando = 0; // how many expect a dialog just now

} // namespace

int ConDiálogos(const std::function<void()>& acción,
                const std::function<void(QWidget&)>& respuesta) {
    int vistos = 0;
    QTimer reloj;
    QPointer<QWidget> último;
    QObject::connect(&reloj, &QTimer::timeout, [&] {
        QWidget* const diálogo = QApplication::activeModalWidget();
        if (diálogo == nullptr || diálogo == último)
            return;
        último = diálogo;
        ++vistos;
        respuesta(*diálogo);
    });
    reloj.start(1);
    ++esperando;
    acción();
    --esperando;
    return vistos;
}

DiálogosPermitidos::DiálogosPermitidos() {
    ++esperando;
}

DiálogosPermitidos::~DiálogosPermitidos() {
    --esperando;
}

void Acepta(QWidget& diálogo) {
    auto* caja = dynamic_cast<QMessageBox*>(&diálogo);
    ASSERT_NE(caja, nullptr) << "no message box";
    ASSERT_FALSE(caja->buttons().isEmpty());
    caja->buttons().front()->click();
}

VigíaDeDiálogos::VigíaDeDiálogos() {
    QObject::connect(&reloj_, &QTimer::timeout, [anterior = QPointer<QWidget>()]() mutable {
        QWidget* const diálogo = QApplication::activeModalWidget();
        if (esperando > 0 || diálogo == nullptr || diálogo != std::exchange(anterior, diálogo))
            return;
        ADD_FAILURE() << "an unexpected dialog: " << diálogo->windowTitle().toStdString();
        diálogo->close();
    });
    reloj_.start(500);
}

} // namespace quiralto
