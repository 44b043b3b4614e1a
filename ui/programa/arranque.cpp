#include "ui/programa/arranque.h"

#include "commands/fichero_primos.h"
#include "ui/formularios/frm_quiralto.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace quiralto {

void Retardo(std::chrono::nanoseconds tiempo) {
    using Reloj = std::chrono::steady_clock;
    using std::chrono::milliseconds;
    constexpr milliseconds Impuntualidad(2); // of timers, which round up
    const Reloj::time_point fin = Reloj::now() + tiempo;
    if (tiempo > Impuntualidad) {
        QEventLoop bucle;
        QTimer reloj;
        reloj.setTimerType(Qt::PreciseTimer);
        reloj.setSingleShot(true);
        QObject::connect(&reloj, &QTimer::timeout, &bucle, &QEventLoop::quit);
        reloj.start(std::chrono::floor<milliseconds>(tiempo) - Impuntualidad);
        bucle.exec();
    }
    while (Reloj::now() < fin)
        QCoreApplication::processEvents();
}

std::unique_ptr<FrmGráficas> Form_Load(Contexto& contexto, VigilanteÓrdenes& vigilante,
                                       Impresora& impresora, std::chrono::milliseconds retardo) {
    using Reloj = std::chrono::steady_clock;
    FrmQuiralto presentación;
    presentación.show();
    CargaPrimos(contexto, DevFicheroPrimos(DevCarpetaPrograma()));
    const Reloj::time_point fin = Reloj::now() + retardo;
    Retardo(retardo / 4); // by then it is painted
    auto formulario = std::make_unique<FrmGráficas>(contexto, vigilante, impresora);
    // Fonts, style, layout and the native window are made ready while nobody waits for them, and
    // as late as that can be, so that they are still at hand when the window is shown.
    constexpr std::chrono::milliseconds Antelación(50);
    Retardo(fin - Reloj::now() - Antelación);
    formulario->winId();
    formulario->grab();
    Retardo(fin - Reloj::now());
    formulario->Comienza();
    return formulario;
}

} // namespace quiralto
