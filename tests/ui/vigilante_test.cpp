// Long commands: the progress dialog, its "Cancelar", and no second command under it.

#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/programa/mensajes_ventana.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace quiralto {
namespace {

using namespace std::chrono_literals;

// Asks the watcher until it says no, or for as long as `plazo`.
bool Trabaja(VigilanteVentana& vigilante, std::chrono::milliseconds plazo) {
    QElapsedTimer reloj;
    reloj.start();
    while (std::chrono::milliseconds(reloj.elapsed()) < plazo)
        if (!vigilante.Continúa())
            return false;
    return true;
}

TEST(VigilanteVentana, UnaOrdenCortaNoMuestraNada) {
    VigilanteVentana vigilante;
    const VigilanteVentana::Guardia guardia(vigilante);
    EXPECT_TRUE(Trabaja(vigilante, 300ms));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(VigilanteVentana, FueraDeUnaOrdenNoMuestraNada) {
    VigilanteVentana vigilante(0ms);
    EXPECT_TRUE(Trabaja(vigilante, 50ms));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(VigilanteVentana, TrasUnSegundoMuestraElDiálogoYSeCancela) {
    VigilanteVentana vigilante;
    QElapsedTimer reloj;
    reloj.start();
    qint64 visto = 0;
    const int vistos = ConDiálogos(
        [&] {
            const VigilanteVentana::Guardia guardia(vigilante);
            EXPECT_FALSE(Trabaja(vigilante, 10s));
        },
        [&](QWidget& diálogo) {
            visto = reloj.elapsed();
            EXPECT_EQ(diálogo.windowTitle(), QStringLiteral("Quiralto"));
            EXPECT_TRUE(diálogo.isModal());
            auto* cancelar = diálogo.findChild<QPushButton*>();
            ASSERT_NE(cancelar, nullptr);
            EXPECT_EQ(cancelar->text(), QStringLiteral("Cancelar"));
            cancelar->click();
        });
    EXPECT_EQ(vistos, 1);
    EXPECT_GE(visto, 1000);
    EXPECT_LT(visto, 2000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(vigilante.EnMarcha());
}

// Handling events at every question would cost more than the work itself.
TEST(VigilanteVentana, NoAtiendeALaVentanaEnCadaPregunta) {
    const DiálogosPermitidos permitidos;
    VigilanteVentana vigilante(0ms);
    const VigilanteVentana::Guardia guardia(vigilante);
    int atenciones = 0;
    QTimer siempre; // comes whenever events are handled
    QObject::connect(&siempre, &QTimer::timeout, [&] { ++atenciones; });
    siempre.start(0);
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_TRUE(Trabaja(vigilante, 400ms));
    EXPECT_GE(atenciones, 2);
    EXPECT_LE(atenciones, 2 * (2 + reloj.elapsed() / 50)); // the dialog's own showing handles some
}

// The user may take any time over a message: none of it counts, and no dialog stands beside it.
TEST(VigilanteVentana, MientrasHayUnMensajeElRelojEstáParado) {
    VigilanteVentana vigilante(300ms);
    MensajesVentana mensajes(vigilante);
    std::vector<QString> vistos;
    ConDiálogos(
        [&] {
            const VigilanteVentana::Guardia guardia(vigilante);
            EXPECT_TRUE(Trabaja(vigilante, 100ms));
            mensajes.Muestra(Icono::Exclamación, "uno");
            EXPECT_TRUE(Trabaja(vigilante, 100ms));
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
            EXPECT_TRUE(Trabaja(vigilante, 300ms)); // now it is there
            EXPECT_NE(QApplication::activeModalWidget(), nullptr);
            mensajes.Muestra(Icono::Exclamación, "otro");
        },
        [&](QWidget& diálogo) {
            if (diálogo.objectName() == QStringLiteral("frmProgreso")) {
                vistos.emplace_back(QStringLiteral("progreso"));
                return;
            }
            vistos.push_back(dynamic_cast<QMessageBox&>(diálogo).text());
            for (const QWidget* ventana : QApplication::topLevelWidgets())
                EXPECT_NE(ventana->objectName(), QStringLiteral("frmProgreso"));
            QTest::qWait(500);
            Acepta(diálogo);
        });
    EXPECT_EQ(vistos, (std::vector<QString>{QStringLiteral("uno"), QStringLiteral("progreso"),
                                            QStringLiteral("otro")}));
}

// A message sink that works for a while before it records, as a long command would.
class MensajesLentos : public Mensajes {
public:
    explicit MensajesLentos(VigilanteVentana& vigilante) : vigilante_(vigilante) {}
    void Muestra(Icono, std::string_view) override {
        ++mostrados;
        if (!Trabaja(vigilante_, 2s))
            throw OrdenCancelada{};
    }
    int mostrados = 0;

private:
    VigilanteVentana& vigilante_;
};

TEST(VigilanteVentana, UnaOrdenCanceladaDejaLaHojaYNoEmpiezaOtraDebajo) {
    VigilanteVentana vigilante(50ms);
    MensajesLentos mensajes(vigilante);
    Primos tabla{};
    Contexto contexto(mensajes, vigilante, tabla);
    ImpresoraDePrueba impresora;
    FrmGráficas formulario(contexto, vigilante, impresora);
    formulario.show();
    auto* hoja = formulario.findChild<QPlainTextEdit*>(QStringLiteral("txtSalida"));
    hoja->setPlainText(QStringLiteral("X+"));
    auto* máximos = formulario.findChild<QAction*>(QStringLiteral("HallarMáximos"));
    const int vistos = ConDiálogos([&] { máximos->trigger(); },
                                   [&](QWidget& diálogo) {
                                       máximos->trigger();
                                       EXPECT_EQ(mensajes.mostrados, 1);
                                       dynamic_cast<QProgressDialog&>(diálogo).cancel();
                                   });
    EXPECT_EQ(vistos, 1);
    EXPECT_EQ(mensajes.mostrados, 1);
    EXPECT_EQ(hoja->toPlainText(), QStringLiteral("X+"));
    EXPECT_FALSE(hoja->textCursor().hasSelection());
    EXPECT_FALSE(vigilante.EnMarcha());
}

} // namespace
} // namespace quiralto
