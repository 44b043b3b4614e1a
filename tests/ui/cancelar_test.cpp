// Every command can be cancelled, at every place where it asks whether to go on, and leaves
// everything as it was.

#include "tests/ui/ventana_de_prueba.h"

#include <limits>

namespace quiralto {
namespace {

// Says no the n-th time that it is asked.
class VigilanteQueCancela : public VigilanteÓrdenes {
public:
    void Empieza() override { preguntas = 0; }
    void Acaba() override {}
    bool Continúa() override { return ++preguntas < cancela; }

    long preguntas = 0;
    long cancela = 0;
};

TEST(Cancelar, CadaUnaDeLasVeinticuatroDejaTodoComoEstaba) {
    MensajesGrabados grabados;
    VigilanteQueCancela vigilante;
    Primos tabla{};
    Contexto contexto(grabados, vigilante, tabla);
    CargaPrimos(contexto, QUIRALTO_PRIMOS);
    ImpresoraDePrueba impresora;
    FrmGráficas formulario(contexto, vigilante, impresora);
    vigilante.cancela = std::numeric_limits<long>::max();
    formulario.Comienza();
    formulario.show();
    auto& hoja = *formulario.findChild<QPlainTextEdit*>(QStringLiteral("txtSalida"));
    auto& visor = *formulario.findChild<QWidget*>(QStringLiteral("VisorFunciones"));
    // something found, for a function that is drawn
    formulario.findChild<QLineEdit*>(QStringLiteral("txtfx_0"))->setText(QStringLiteral("X^2-4"));
    formulario.findChild<QCheckBox*>(QStringLiteral("chkfx_0"))->click();
    hoja.setPlainText(QStringLiteral("X^2-4,-5,5"));
    formulario.findChild<QAction*>(QStringLiteral("HallarSoluciones"))->trigger();
    const QString descripción = visor.accessibleDescription();
    ASSERT_TRUE(descripción.contains(QStringLiteral("Marcas: Solución de f0(X) en X=-2")));

    const std::span<const Orden> órdenes = DevÓrdenes();
    ASSERT_EQ(órdenes.size(), 24U);
    auto* repetir = formulario.findChild<QAction*>(QStringLiteral("RepetirOrden"));
    for (std::size_t i = 0; i < órdenes.size(); ++i) {
        QAction* acción = nullptr;
        for (QAction* candidata : formulario.findChildren<QAction*>())
            if (candidata->text() == DevQString(órdenes[i].título) &&
                candidata->statusTip().contains(DevQString(órdenes[i].forma.texto)))
                acción = candidata;
        ASSERT_NE(acción, nullptr) << órdenes[i].texto;
        const QString datos = DevQString(ConLf(órdenes[i].ejemplo));
        int canceladas = 0;
        for (vigilante.cancela = 1;; vigilante.cancela *= 2) {
            hoja.setPlainText(datos);
            canceladas == 0 ? acción->trigger() : repetir->trigger();
            if (vigilante.preguntas < vigilante.cancela)
                break; // it went through
            ++canceladas;
            EXPECT_EQ(hoja.toPlainText(), datos) << órdenes[i].texto;
            EXPECT_EQ(visor.accessibleDescription(), descripción) << órdenes[i].texto;
        }
        EXPECT_GE(canceladas, 1) << órdenes[i].texto;
        EXPECT_NE(hoja.toPlainText(), datos) << órdenes[i].texto;
        EXPECT_EQ(contexto.PrefijoVariable, "") << órdenes[i].texto;
        // back to what was found at first
        vigilante.cancela = std::numeric_limits<long>::max();
        hoja.setPlainText(QStringLiteral("X^2-4,-5,5"));
        formulario.findChild<QAction*>(QStringLiteral("HallarSoluciones"))->trigger();
    }
    EXPECT_TRUE(grabados.mensajes.empty());
}

} // namespace
} // namespace quiralto
