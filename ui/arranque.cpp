#include "ui/arranque.h"

#include "ui/frm_quiralto.h"

#include <QEventLoop>
#include <QTimer>

namespace quiralto {

void Retardo(std::chrono::milliseconds tiempo) {
    QEventLoop bucle;
    QTimer::singleShot(tiempo, &bucle, &QEventLoop::quit);
    bucle.exec();
}

void Arranca(frmGráficas& formulario, std::chrono::milliseconds retardo) {
    frmQuiralto presentación;
    presentación.show();
    Retardo(retardo);
    formulario.Comienza();
}

} // namespace quiralto
