// Help, About, the splash form and the start of the program.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/formularios/frm_ayuda.h"
#include "ui/programa/arranque.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

namespace quiralto {
namespace {

class Formularios : public VentanaDePrueba {};

TEST_F(Formularios, LaAyudaMuestraSuTextoUnaSolaVez) {
    Pulsa("Contenido");
    auto& ayuda = Busca<QWidget>("formAyuda");
    EXPECT_TRUE(ayuda.isVisible());
    EXPECT_EQ(ayuda.windowTitle(), QStringLiteral("Temas de ayuda"));
    EXPECT_EQ(ayuda.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
              QStringLiteral("SELECCIONE UN TEMA DE AYUDA"));
    auto& tema = Busca<QPushButton>("cmdAyuda");
    EXPECT_EQ(tema.text(), QStringLiteral("TIPO DE NOTACIÓN ACEPTADA POR EL PROGRAMA"));
    auto& texto = Busca<QPlainTextEdit>("txtAyuda");
    EXPECT_TRUE(texto.isReadOnly());
    EXPECT_EQ(texto.toPlainText(), QString());
    tema.click();
    tema.click();
    const QStringList líneas = texto.toPlainText().split(u'\n');
    ASSERT_EQ(líneas.size(), 28 + 1 + 1 + 26);
    EXPECT_EQ(líneas[0],
              QStringLiteral("EL PROGRAMA RECONOCE COMO OPERADORES MATEMATICOS LOS SIGUIENTES: "));
    EXPECT_EQ(líneas[1], QString());
    EXPECT_EQ(líneas[3], QStringLiteral("- (RESTA) "));
    EXPECT_EQ(líneas[4], QStringLiteral("* (MULTIPLICACIÓN) "));
    EXPECT_EQ(líneas.last(), QStringLiteral("(SIN(A+B)*COS(X-Y)+3*X*Y)^3 <--EXPRESION SOLO VALIDA "
                                            "EN DESARROLLO MULTIVARIABLE"));
    EXPECT_TRUE(líneas.contains(QStringLiteral("VARIABLES Y CONSTANTES PERMITIDAS :")));
    EXPECT_TRUE(
        líneas.contains(QStringLiteral("'A' HASTA 'Z', ESTAS VARIABLES SOLO SE PERMITEN EL EL ")));
}

TEST_F(Formularios, LosSaltosDeLaAyudaSonCrLf) {
    const QString texto = DevTextoAyuda();
    EXPECT_EQ(texto.count(QStringLiteral("\r\n")), texto.count(u'\n'));
    EXPECT_TRUE(texto.contains(QStringLiteral(":\r\n\r\nSON NUMEROS")));
}

TEST_F(Formularios, ElManualSeAbreDesdeLaAyuda) {
    QStringList títulos;
    for (const QAction* acción : Busca<QMenu>("MenúAyuda").actions())
        títulos += acción->text();
    EXPECT_EQ(títulos, (QStringList{QStringLiteral("&Contenido"), QStringLiteral("&Manual"),
                                    QStringLiteral("Acerca de")}));
    Pulsa("Manual");
    EXPECT_TRUE(Busca<QWidget>("txtManual").window()->isVisible());
}

TEST_F(Formularios, AcercaDeNombraElProgramaYSeCierra) {
    EXPECT_EQ(Busca<QAction>("AcercaDe").text(), QStringLiteral("Acerca de"));
    Pulsa("AcercaDe");
    auto& acerca = Busca<QWidget>("forAcercaDe");
    EXPECT_TRUE(acerca.isVisible());
    const auto* etiqueta = acerca.findChild<QLabel*>(QStringLiteral("Label1"));
    const QString texto = etiqueta->text();
    EXPECT_TRUE(texto.contains(QStringLiteral("Quiralto")));
    EXPECT_TRUE(texto.contains(QStringLiteral("comentarios y sugerencias")));
    auto* cerrar = acerca.findChild<QPushButton*>(QStringLiteral("Command1"));
    ASSERT_NE(cerrar, nullptr);
    EXPECT_EQ(cerrar->text(), QStringLiteral("Cerrar"));
    EXPECT_GE(etiqueta->height(), etiqueta->sizeHint().height());
    EXPECT_GE(etiqueta->width(), etiqueta->sizeHint().width());
    EXPECT_LT(etiqueta->geometry().bottom(), acerca.findChild<QDialogButtonBox*>()->y());
    const QPointer<QWidget> vigilada(&acerca);
    cerrar->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(vigilada, nullptr); // unloaded
    Pulsa("AcercaDe");
    auto& otra = Busca<QWidget>("forAcercaDe");
    EXPECT_TRUE(otra.isVisible());
    QTest::keyClick(&otra, Qt::Key_Escape);
    EXPECT_FALSE(otra.isVisible());
}

TEST_F(Formularios, SalirCierraTodosLosFormularios) {
    Pulsa("Contenido");
    Pulsa("AcercaDe");
    const QPointer<QWidget> acerca(&Busca<QWidget>("forAcercaDe"));
    Pulsa("Salir");
    EXPECT_FALSE(Busca<QWidget>("formAyuda").isVisible());
    EXPECT_TRUE(acerca == nullptr || !acerca->isVisible());
    EXPECT_FALSE(formulario.isVisible());
}

QWidget* DevPresentación() {
    for (QWidget* ventana : QApplication::topLevelWidgets())
        if (ventana->objectName() == QStringLiteral("frmQuiralto"))
            return ventana;
    return nullptr;
}

TEST(Arranque, MuestraLaPresentaciónYDejaLaVistaInicial) {
    MensajesGrabados grabados;
    VigilanteVentana vigilante;
    Primos tabla{};
    Contexto contexto(grabados, vigilante, tabla);
    contexto.DígitosRedondeo = 3;
    ImpresoraDePrueba impresora;
    bool vista = false;
    QTimer mirada;
    mirada.setSingleShot(true);
    QObject::connect(&mirada, &QTimer::timeout, [&] {
        vista = DevPresentación() != nullptr && DevPresentación()->isVisible();
        for (const QWidget* ventana : QApplication::topLevelWidgets())
            EXPECT_TRUE(ventana == DevPresentación() || !ventana->isVisible());
        contexto.DígitosRedondeo = 5; // not yet the view of the start
    });
    mirada.start(200);
    QElapsedTimer reloj;
    reloj.start();
    const auto formulario =
        Form_Load(contexto, vigilante, impresora, std::chrono::milliseconds(300));
    EXPECT_GE(reloj.elapsed(), 300);
    EXPECT_TRUE(vista);
    EXPECT_EQ(DevPresentación(), nullptr);
    EXPECT_FALSE(formulario->isVisible());
    EXPECT_EQ(formulario->findChild<QLineEdit*>(QStringLiteral("txtPuntosExtremos_0"))->text(),
              QStringLiteral("10"));
    EXPECT_EQ(formulario->findChild<QLineEdit*>(QStringLiteral("txtPuntoX"))->text(),
              QStringLiteral("0"));
    EXPECT_EQ(contexto.DígitosRedondeo, 8);
    EXPECT_EQ(RetardoInicial, std::chrono::seconds(2));
}

} // namespace
} // namespace quiralto
