// What can be seen: contrasts in every palette, the mark of the focus, the size of the window.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"
#include "ui/dibujo/contraste.h"

#include <QScreen>

namespace quiralto {
namespace {

QPalette DevOscura() {
    QPalette paleta;
    const QColor fondo(45, 45, 48);
    const QColor texto(230, 230, 230);
    for (const auto papel : {QPalette::Window, QPalette::Button, QPalette::ToolTipBase})
        paleta.setColor(papel, fondo);
    for (const auto papel : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text,
                             QPalette::BrightText, QPalette::ToolTipText})
        paleta.setColor(papel, texto);
    paleta.setColor(QPalette::Base, QColor(30, 30, 32));
    paleta.setColor(QPalette::PlaceholderText, QColor(90, 90, 90));
    paleta.setColor(QPalette::Highlight, QColor(42, 110, 180));
    return paleta;
}

class Aspecto : public VentanaDePrueba {
protected:
    ~Aspecto() override { QApplication::setPalette(clara); }

    // The greatest contrast of a pixel of the control with the ground.
    static qreal DevMayorContraste(QWidget& control, const QColor& fondo) {
        const QImage imagen = control.grab().toImage();
        qreal mayor = 1;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                mayor = std::max(mayor, DevContraste(imagen.pixelColor(x, y), fondo));
        return mayor;
    }
    static void Pon(const QPalette& paleta) {
        QApplication::setPalette(paleta);
        QApplication::processEvents();
    }

    QPalette clara = QApplication::palette();
};

TEST(Contraste, VaDeUnoAVeintiuno) {
    EXPECT_NEAR(DevContraste(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(DevContraste(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_EQ(DevContraste(Qt::red, Qt::red), 1);
    EXPECT_NEAR(DevContraste(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
}

TEST(Contraste, LoLegibleSeLeeSobreCualquierFondo) {
    for (int tono = 0; tono < 256; tono += 5) {
        const QColor fondo(tono, tono / 2, 255 - tono);
        for (const QColor hacia : {QColor(Qt::black), QColor(Qt::white)}) {
            const QColor legible = DevLegible(fondo, hacia);
            EXPECT_TRUE(DevContraste(legible, fondo) >= ContrasteDeTexto || legible == hacia);
        }
    }
    for (const QColor& color : {ColorTexto, ColorEje, ColorMarcador})
        EXPECT_GE(DevContraste(color, Papel), ContrasteDeTexto);
}

TEST_F(Aspecto, SeLeeTodoEnUnaPaletaClaraYEnUnaOscura) {
    for (const QPalette& paleta : {clara, DevOscura()}) {
        Pon(paleta);
        const QPalette puesta = QApplication::palette();
        for (QWidget* caja : {&Busca<QWidget>("txtfx_0"), &Busca<QWidget>("txtSalida")})
            EXPECT_GE(DevContraste(caja->palette().color(QPalette::PlaceholderText),
                                   caja->palette().color(QPalette::Base)),
                      ContrasteDeTexto)
                << caja->objectName().toStdString();
        auto& casilla = Busca<QCheckBox>("chkfx_2");
        EXPECT_GE(DevMayorContraste(casilla, puesta.color(QPalette::Window)), ContrasteDeTexto);
        EXPECT_GE(DevMayorContraste(Busca<QWidget>("Toolbar1_1"), puesta.color(QPalette::Window)),
                  ContrasteDeTexto);
    }
}

TEST_F(Aspecto, UnaCajaErróneaSigueOscuraEnUnaPaletaOscura) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    caja.setText(QStringLiteral("2X"));
    EXPECT_GT(caja.palette().color(QPalette::Base).lightness(), 200);
    Pon(DevOscura());
    const QColor fondo = caja.palette().color(QPalette::Base);
    EXPECT_LT(fondo.lightness(), 100);
    EXPECT_NE(fondo, DevOscura().color(QPalette::Base));
    EXPECT_GE(DevContraste(caja.palette().color(QPalette::Text), fondo), ContrasteDeTexto);
    Pon(clara);
    EXPECT_GT(caja.palette().color(QPalette::Base).lightness(), 200);
    caja.setText(QStringLiteral("2*X"));
    EXPECT_EQ(caja.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST_F(Aspecto, LosIconosTomanLosColoresDeLaPaletaNueva) {
    auto& botón = Busca<QWidget>("Toolbar1_1");
    const QImage antes = botón.grab().toImage();
    Pon(DevOscura());
    EXPECT_NE(botón.grab().toImage(), antes);
    EXPECT_GE(DevMayorContraste(botón, DevOscura().color(QPalette::Window)), ContrasteDeTexto);
}

TEST_F(Aspecto, ElPapelEsBlancoEnUnaPaletaOscura) {
    Define(3, "9");
    auto& visor = Busca<QWidget>("VisorFunciones");
    const auto papel = [&] {
        const QImage imagen = visor.grab().toImage().convertToFormat(QImage::Format_RGB32);
        int blancos = 0;
        for (int x = 1; x < imagen.width() - 1; ++x)
            blancos += imagen.pixelColor(x, 33) == Papel ? 1 : 0;
        return blancos;
    };
    const int antes = papel();
    EXPECT_GT(antes, visor.width() / 2);
    Pon(DevOscura());
    EXPECT_EQ(papel(), antes);
}

// With Tab through every control of the window: what has the focus looks different for it.
TEST_F(Aspecto, ElFocoSeVeEnTodosLosControles) {
    Define(0, "X");
    std::set<QString> vistos;
    for (const QPalette& paleta : {clara, DevOscura()}) {
        Pon(paleta);
        Busca<QWidget>("txtfx_0").setFocus();
        for (int i = 0; i < 40; ++i) {
            QWidget* const control = QApplication::focusWidget();
            ASSERT_NE(control, nullptr);
            vistos.insert(control->objectName());
            if (control == &txtSalida) { // there Tab is a character's place
                Busca<QWidget>("VisorFunciones").setFocus(Qt::TabFocusReason);
                continue;
            }
            QWidget& zona = control->inherits("QScrollBar") ? *control->parentWidget() : *control;
            const QImage con = zona.grab().toImage();
            control->clearFocus();
            const QImage sin = zona.grab().toImage();
            int distintos = 0;
            for (int y = 0; y < con.height(); ++y)
                for (int x = 0; x < con.width(); ++x)
                    distintos += con.pixel(x, y) != sin.pixel(x, y) ? 1 : 0;
            EXPECT_GT(distintos, 20) << control->objectName().toStdString();
            control->setFocus(Qt::TabFocusReason);
            QTest::keyClick(control, Qt::Key_Tab);
        }
    }
    for (const char* nombre : {"txtfx_2", "chkfx_2", "txtFxValor_2", "txtPuntoX", "hsx", "hsEjeX",
                               "vsEjeY", "VisorFunciones"})
        EXPECT_EQ(vistos.count(QString::fromUtf8(nombre)), 1U) << nombre;
}

TEST_F(Aspecto, UnClicSeleccionaTodoElTextoSóloAlEntrar) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    caja.setText(QStringLiteral("X^2-4"));
    QTest::mouseClick(&caja, Qt::LeftButton, Qt::NoModifier, QPoint(20, caja.height() / 2));
    EXPECT_EQ(caja.selectedText(), QStringLiteral("X^2-4"));
    QTest::mouseClick(&caja, Qt::LeftButton, Qt::NoModifier, QPoint(20, caja.height() / 2));
    EXPECT_EQ(caja.selectedText(), QString()); // the second one places the cursor
}

TEST_F(Aspecto, LaVentanaCabeEnLaPantallaYNoEsMayorQueLaSuya) {
    const QSize pantalla = QGuiApplication::primaryScreen()->availableSize();
    EXPECT_EQ(formulario.size(), QSize(1240, 780)
                                     .boundedTo(pantalla - QSize(16, 48))
                                     .expandedTo(formulario.minimumSizeHint()));
    EXPECT_GT(Busca<QWidget>("VisorFunciones").width(), txtSalida.width());
    EXPECT_LE(txtSalida.width(), 400);
    EXPECT_NEAR(txtSalida.parentWidget()->width(), std::min(400, formulario.width() * 36 / 100), 8);
}

TEST_F(Aspecto, LasCasillasDicenQuéDibujan) {
    for (int i = 0; i < 4; ++i) {
        auto& casilla = Busca<QCheckBox>(("chkfx_" + std::to_string(i)).c_str());
        EXPECT_EQ(casilla.toolTip(), QStringLiteral("Dibujar f%1(X)").arg(i));
        EXPECT_EQ(casilla.accessibleName(), casilla.toolTip());
    }
    EXPECT_FALSE(Busca<QScrollBar>("hsx").parentWidget()->toolTip().isEmpty());
}

} // namespace
} // namespace quiralto
