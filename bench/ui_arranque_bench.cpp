// From the start of a process to its window painted for the first time:
//   ventana-vacia       an empty window of the toolkit
//   ventana-menus       the same with the program's actions, menus and toolbar
//   quiralto            the program as main runs it, less the splash form's two seconds
//   quiralto-sin-pausa  the program without that wait, so that all of its work counts
// Both windows are as large, on the same platform plugin (offscreen, unless the environment says
// otherwise). The process runs itself, as often as it measures; the child tells how long it was
// since its parent's clock, so neither its end nor the pipe between them is measured.

#include "ui/acciones/barra.h"
#include "ui/acciones/menus.h"
#include "ui/programa/aplicacion.h"
#include "ui/programa/arranque.h"
#include "ui/programa/impresora.h"
#include "ui/programa/mensajes_ventana.h"

#include <QMainWindow>
#include <QProcess>
#include <QScreen>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>

namespace quiralto {
namespace {

using Reloj = std::chrono::steady_clock; // one for all processes

class VeElPintado : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* suceso) override {
        pintado = pintado || suceso->type() == QEvent::Paint;
        return false;
    }
    bool pintado = false;
};

// Shows the window and prints how long after `comienzo` it has been painted, in nanoseconds.
void MuestraYMide(QWidget& ventana, Reloj::rep comienzo) {
    VeElPintado vigía;
    ventana.installEventFilter(&vigía);
    ventana.show();
    while (!vigía.pintado) // its children are painted with it, before the loop goes on
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%lld\n",
                static_cast<long long>(Reloj::now().time_since_epoch().count() - comienzo));
}

void AbreVacía(int argc, char** argv, Reloj::rep comienzo) {
    const QApplication aplicación(argc, argv);
    QWidget ventana;
    // as large as the program's
    ventana.resize(QSize(1240, 780).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    MuestraYMide(ventana, comienzo);
}

void AbreMenús(int argc, char** argv, Reloj::rep comienzo) {
    const QApplication aplicación(argc, argv);
    QMainWindow ventana;
    const Acciones acciones = CreaAcciones(ventana);
    CreaMenús(*ventana.menuBar(), acciones);
    CreaBarraHerramientas(*ventana.addToolBar(QString()), acciones);
    ventana.resize(QSize(1240, 780).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    MuestraYMide(ventana, comienzo);
}

void AbreQuiralto(int argc, char** argv, Reloj::rep comienzo, std::chrono::milliseconds retardo) {
    QApplication aplicación(argc, argv);
    PreparaAplicación(aplicación);
    VigilanteVentana vigilante;
    MensajesVentana mensajes(vigilante);
    Primos tabla{};
    Contexto contexto(mensajes, vigilante, tabla);
    ImpresoraDelSistema impresora;
    const auto formulario = Form_Load(contexto, vigilante, impresora, retardo);
    MuestraYMide(*formulario, comienzo);
}

void Abre(benchmark::State& estado, const QString& programa, const QString& cuál,
          std::chrono::nanoseconds sinContar) {
    for (auto _ : estado) {
        QProcess proceso;
        proceso.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        proceso.start(programa, {QStringLiteral("--abre"), cuál,
                                 QString::number(Reloj::now().time_since_epoch().count())});
        bool leído = false;
        if (proceso.waitForFinished())
            estado.SetIterationTime(
                static_cast<double>(proceso.readAllStandardOutput().trimmed().toLongLong(&leído) -
                                    sinContar.count()) *
                1e-9);
        if (!leído) {
            estado.SkipWithError("the process failed");
            return;
        }
    }
}

} // namespace
} // namespace quiralto

int main(int argc, char** argv) {
    using namespace quiralto;
    using std::chrono::milliseconds;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 4 && QByteArray(argv[1]) == "--abre") {
        const QByteArray modo(argv[2]);
        const Reloj::rep comienzo = QByteArray(argv[3]).toLongLong();
        if (modo == "ventana-vacia")
            AbreVacía(argc, argv, comienzo);
        else if (modo == "ventana-menus")
            AbreMenús(argc, argv, comienzo);
        else
            AbreQuiralto(argc, argv, comienzo,
                         modo == "quiralto" ? RetardoInicial : milliseconds(0));
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    const QString programa = QString::fromLocal8Bit(argv[0]);
    const struct {
        const char* nombre;
        milliseconds sinContar;
        int veces;
    } casos[] = {
        {"ventana-vacia", milliseconds(0), 20},
        {"ventana-menus", milliseconds(0), 20},
        {"quiralto", RetardoInicial, 5},
        {"quiralto-sin-pausa", milliseconds(0), 20},
    };
    for (const auto& caso : casos)
        benchmark::RegisterBenchmark(caso.nombre,
                                     [programa, caso](benchmark::State& estado) {
                                         Abre(estado, programa, QString::fromLatin1(caso.nombre),
                                              caso.sinContar);
                                     })
            ->UseManualTime()
            ->Iterations(caso.veces)
            ->Repetitions(5)
            ->ReportAggregatesOnly()
            ->ComputeStatistics("min",
                                [](const std::vector<double>& v) { return std::ranges::min(v); })
            ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
}
