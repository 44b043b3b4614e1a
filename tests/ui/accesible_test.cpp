// What assistive technology is told of the picture.

#include "tests/ui/ventana_de_prueba.h"

#include <QAccessible>

#include <cstdlib>

namespace quiralto {
namespace {

class Accesible : public VentanaDePrueba {
protected:
    QWidget& visor = Busca<QWidget>("VisorFunciones");
};

TEST_F(Accesible, LaImagenEsUnaGráficaConNombreYDescripción) {
    QAccessibleInterface* const interfaz = QAccessible::queryAccessibleInterface(&visor);
    ASSERT_NE(interfaz, nullptr);
    EXPECT_EQ(interfaz->role(), QAccessible::Chart);
    EXPECT_EQ(interfaz->text(QAccessible::Name), QStringLiteral("Gráfica"));
    EXPECT_EQ(interfaz->text(QAccessible::Description),
              QStringLiteral("X de -10 a 10 · Y de -10 a 10. Punto X=0"));
    EXPECT_TRUE(interfaz->state().focusable);
}

// What is announced is only seen where the platform has someone to announce it to.
class Anuncios : public Accesible {
protected:
    Anuncios() { anuncios = {}; }
    ~Anuncios() override { QAccessible::installUpdateHandler(nullptr); }

    void SetUp() override {
        if (!QTest::qWaitFor([] { return QAccessible::isActive(); },
                             std::getenv("QUIRALTO_CON_PANTALLA") == nullptr ? 0 : 10000))
            GTEST_SKIP() << "no accessibility bus";
        QAccessible::installUpdateHandler([](QAccessibleEvent* suceso) {
            if (suceso->type() == QAccessible::DescriptionChanged &&
                suceso->object()->objectName() == QStringLiteral("VisorFunciones"))
                anuncios += suceso->accessibleInterface()->text(QAccessible::Description);
        });
    }

    static std::string Toma() { return std::exchange(anuncios, {}).join(u'\n').toStdString(); }

private:
    static QStringList anuncios; // the handler is a plain function
};

QStringList Anuncios::anuncios;

TEST_F(Anuncios, CadaCambioDeLaImagenSeDiceUnaVez) {
    Define(0, "X^2");
    EXPECT_EQ(Toma(), "X de -10 a 10 · Y de -10 a 10. Punto X=0. f0(X)=X^2, en X vale 0");
    QTest::keyClick(&visor, Qt::Key_Right);
    EXPECT_EQ(Toma(), "X de -10 a 10 · Y de -10 a 10. Punto X=.1. f0(X)=X^2, en X vale .01");
    Pulsa("ZoomEjeY_0");
    EXPECT_EQ(Toma(), "X de -10 a 10 · Y de -20 a 20. Punto X=.1. f0(X)=X^2, en X vale .01");
    Busca<QScrollBar>("vsEjeY").setValue(1);
    EXPECT_EQ(Toma(), "X de -10 a 10 · Y de -18 a 22. Punto X=.1. f0(X)=X^2, en X vale .01");
    Busca<QCheckBox>("chkfx_0").click();
    EXPECT_EQ(Toma(), "X de -10 a 10 · Y de -18 a 22. Punto X=.1");
}

TEST_F(Anuncios, LoQueNoCambiaNoSeDice) {
    Pulsa("ValoresPorDefectoEjes");
    Pulsa("NúmeroPuntos_5");
    Pulsa("OrdenMenúPuntos");
    EXPECT_EQ(Toma(), "");
}

} // namespace
} // namespace quiralto
