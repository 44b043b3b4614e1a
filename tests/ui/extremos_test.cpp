// The extremes' dialog says why a text cannot be used, without a box, after a pause.

#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"

#include <QDialogButtonBox>
#include <QLabel>

namespace quiralto {
namespace {

class Extremos : public VentanaDePrueba {
protected:
    Extremos() { Pulsa("FijarPuntosExtremos"); }
    ~Extremos() override { marco.reject(); }

    void Escribe(int caja, const char* texto) {
        auto& línea = DevCaja(caja);
        línea.selectAll();
        QTest::keyClicks(&línea, QString::fromUtf8(texto));
    }
    CajaFormula& DevCaja(int caja) {
        return dynamic_cast<CajaFormula&>(
            Busca<QLineEdit>(("txtPuntosExtremos_" + std::to_string(caja)).c_str()));
    }
    QString TrasPausa() {
        QTest::qWait(static_cast<int>(FrmPuntosExtremos::Pausa.count()) + 100);
        return DevMotivo();
    }
    // What stands below the boxes; there is nothing before the first reason.
    QString DevMotivo() {
        const auto* motivo = formulario.findChild<QLabel*>(QStringLiteral("motivoExtremos"));
        return motivo == nullptr ? QString() : motivo->text();
    }

    const DiálogosPermitidos permitido;
    QDialog& marco = Busca<QDialog>("frmPuntosExtremos");
};

TEST_F(Extremos, UnDatoSinValorDicePorQuéTrasUnaPausa) {
    Escribe(0, "1/0");
    EXPECT_EQ(DevMotivo(), QString());
    const QString esperado =
        QStringLiteral("El argumento dado a la función está fuera de rango, pruebe otro valor");
    EXPECT_EQ(TrasPausa(), esperado);
    EXPECT_EQ(DevCaja(0).toolTip(), esperado);
    EXPECT_EQ(DevCaja(0).accessibleDescription(), esperado);
    EXPECT_FALSE(DevCaja(1).EsErrónea());
    const auto* motivo = formulario.findChild<QLabel*>(QStringLiteral("motivoExtremos"));
    EXPECT_GT(motivo->y(), DevCaja(3).geometry().bottom());
    EXPECT_LT(motivo->geometry().bottom(), marco.findChild<QDialogButtonBox*>()->y());
    QTest::keyClick(&DevCaja(0), Qt::Key_Backspace);
    QTest::keyClicks(&DevCaja(0), QStringLiteral("1"));
    EXPECT_EQ(DevMotivo(), QString()); // at once
    EXPECT_FALSE(DevCaja(0).EsErrónea());
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Extremos, CadaFaltaTieneSuMotivo) {
    const struct {
        int caja;
        const char* texto;
        const char* motivo;
    } casos[] = {
        {2, "X+1", "Este dato no admite la variable X"},
        {2, "2,5", "Error de sintáxis: ',' · el decimal es el punto"},
        {3, "12", "El primer número debe ser mayor que el segundo"},
    };
    for (const auto& caso : casos) {
        Escribe(caso.caja, caso.texto);
        EXPECT_EQ(TrasPausa(), QString::fromUtf8(caso.motivo)) << caso.texto;
        Escribe(caso.caja, caso.caja == 2 ? "10" : "-10");
        EXPECT_EQ(TrasPausa(), QString());
    }
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Extremos, AlVolverAAbrirloNoQuedaNada) {
    Escribe(0, "1/0");
    TrasPausa();
    marco.reject();
    Pulsa("FijarPuntosExtremos");
    EXPECT_EQ(DevMotivo(), QString());
    EXPECT_FALSE(DevCaja(0).EsErrónea());
}

} // namespace
} // namespace quiralto
