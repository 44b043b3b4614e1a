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

std::unique_ptr<frmGráficas> Form_Load(Contexto& contexto, VigilanteVentana& vigilante,
                                       Impresora& impresora, std::chrono::milliseconds retardo) {
    using Reloj = std::chrono::steady_clock;
    frmQuiralto presentación;
    presentación.show();
    CargaPrimos(contexto, DevFicheroPrimos(DevCarpetaPrograma()));
    const Reloj::time_point fin = Reloj::now() + retardo;
    Retardo(retardo / 4); // by then it is painted
    auto formulario = std::make_unique<frmGráficas>(contexto, vigilante, impresora);
    const auto resto = std::chrono::ceil<std::chrono::milliseconds>(fin - Reloj::now());
    Retardo(std::max(resto, std::chrono::milliseconds(0)));
    formulario->Comienza();
    return formulario;
}

} // namespace quiralto
