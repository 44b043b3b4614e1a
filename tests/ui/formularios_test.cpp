// Help, About, the splash form and the start of the program.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/formularios/frm_ayuda.h"
#include "ui/formularios/frm_quiralto.h"
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

// Letter by letter, in the units that they are drawn in: 2.1 pixels each, on the line y = 0.
TEST(Presentación, TieneElNombreEntero) {
    constexpr qreal Unidad = 2.1;
    constexpr qreal Ancho = 88.5;
    const struct {
        char letra;
        std::vector<QPointF> con;
        std::vector<QPointF> sin;
    } casos[] = {
        {'Q', {{-.7, -7.5}, {7.5, -15}, {15.7, -7.5}, {7.5, 0}, {15, 1}}, {{7.5, -7.5}}},
        {'u', {{20.5, -10}, {28.9, -10}, {28.9, 0}, {24.7, 0}}, {{24.7, -10}, {28.9, 1.7}}},
        {'i', {{34.2, -10}, {34.2, 0}, {34.2, -14.6}}, {{34.2, -12.3}, {34.2, 1.7}}},
        {'r', {{39.5, -10}, {39.5, 0}, {43.5, -10}}, {{43.5, -5}, {39.5, 1.7}}},
        {'a', {{53.7, -10}, {49, -5}, {53.7, 0}, {58.6, -10}, {58.6, 0}}, {{53.7, -5}}},
        {'l', {{64, -16}, {64, 0}}, {{64, -18.3}, {64, 1.7}}},
        {'t', {{70.6, -14}, {67.6, -10}, {75, -10}, {73.5, 0}}, {{70.6, -16.3}, {73, -5}}},
        {'o', {{83.5, -10}, {78.5, -5}, {88.5, -5}, {83.5, 0}}, {{83.5, -5}}},
    };
    FrmQuiralto presentación;
    const QImage imagen = presentación.grab().toImage();
    ASSERT_EQ(imagen.size(), QSize(480, 320));
    const auto hayTinta = [&](const QPointF& lugar) {
        const QPointF origen((480 - Ancho * Unidad) / 2, 320 - 34);
        const QPointF pixel = origen + lugar * Unidad;
        return qGray(imagen.pixel(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()))) < 150;
    };
    for (const auto& caso : casos) {
        for (const QPointF& lugar : caso.con)
            EXPECT_TRUE(hayTinta(lugar)) << caso.letra << ": " << lugar.x() << ", " << lugar.y();
        for (const QPointF& lugar : caso.sin)
            EXPECT_FALSE(hayTinta(lugar)) << caso.letra << ": " << lugar.x() << ", " << lugar.y();
    }
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
