// From the start of a process to its window painted: the program, without the splash form's two
// seconds, beside an empty window of the toolkit. The process runs itself, as often as it measures.

#include "ui/aplicacion.h"
#include "ui/arranque.h"
#include "ui/mensajes_ventana.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace quiralto {
namespace {

// Ends the program once the window has been painted.
void AcabaTrasPintar(QWidget& ventana) {
    ventana.show();
    while (!ventana.testAttribute(Qt::WA_WState_Visible))
        QApplication::processEvents();
    ventana.repaint();
}

int AbreVacía(int argc, char** argv) {
    const QApplication aplicación(argc, argv);
    QWidget ventana;
    ventana.resize(1240, 780);
    AcabaTrasPintar(ventana);
    return 0;
}

int AbreQuiralto(int argc, char** argv) {
    QApplication aplicación(argc, argv);
    PreparaAplicación(aplicación);
    MensajesVentana mensajes;
    VigilanteVentana vigilante;
    Contexto contexto(mensajes, vigilante);
    ImpresoraDelSistema impresora;
    frmGráficas formulario(contexto, vigilante, impresora);
    Arranca(contexto, formulario, std::chrono::milliseconds(0));
    AcabaTrasPintar(formulario);
    return 0;
}

void Abre(benchmark::State& estado, const QString& programa, const QString& cuál) {
    for (auto _ : estado) {
        QElapsedTimer reloj;
        reloj.start();
        if (QProcess::execute(programa, {QStringLiteral("--abre"), cuál}) != 0) {
            estado.SkipWithError("the process failed");
            return;
        }
        estado.SetIterationTime(static_cast<double>(reloj.nsecsElapsed()) * 1e-9);
    }
}

} // namespace
} // namespace quiralto

int main(int argc, char** argv) {
    using namespace quiralto;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QByteArray modo(argc > 2 ? argv[2] : "");
    if (modo == "ventana-vacia")
        return AbreVacía(argc, argv);
    if (modo == "quiralto")
        return AbreQuiralto(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QString programa = QString::fromLocal8Bit(argv[0]);
    for (const char* cuál : {"ventana-vacia", "quiralto"})
        benchmark::RegisterBenchmark(cuál,
                                     [programa, cuál](benchmark::State& estado) {
                                         Abre(estado, programa, QString::fromLatin1(cuál));
                                     })
            ->UseManualTime()
            ->Iterations(20)
            ->Repetitions(3)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
}
