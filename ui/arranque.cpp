#include "ui/arranque.h"

#include "commands/fichero_primos.h"
#include "ui/frm_quiralto.h"

#include <QEventLoop>
#include <QTimer>

namespace quiralto {

void Retardo(std::chrono::milliseconds tiempo) {
    QEventLoop bucle;
    QTimer reloj;
    reloj.setTimerType(Qt::PreciseTimer); // others may run out earlier
    reloj.setSingleShot(true);
    QObject::connect(&reloj, &QTimer::timeout, &bucle, &QEventLoop::quit);
    reloj.start(tiempo);
    bucle.exec();
}

void Arranca(Contexto& contexto, frmGráficas& formulario, std::chrono::milliseconds retardo) {
    frmQuiralto presentación;
    presentación.show();
    CargaPrimos(contexto, DevFicheroPrimos(DevCarpetaPrograma()));
    Retardo(retardo);
    formulario.Comienza();
}

} // namespace quiralto
