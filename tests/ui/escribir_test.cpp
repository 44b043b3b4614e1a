// Typing a function: what is drawn is what stands in the boxes, why a text is no formula, and the
// names that are offered.

#include "tests/ui/dialogos.h"
#include "tests/ui/paletas.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/contraste.h"

#include <QAbstractItemView>
#include <QClipboard>

namespace quiralto {
namespace {

class Escribir : public VentanaDePrueba {
protected:
    ~Escribir() override {
        if (QWidget* lista = QApplication::activePopupWidget())
            lista->close();
    }

    CajaFormula& Caja(int índice) {
        return Busca<CajaFormula>(("txtfx_" + std::to_string(índice)).c_str());
    }
    QCheckBox& Casilla(int índice) {
        return Busca<QCheckBox>(("chkfx_" + std::to_string(índice)).c_str());
    }
    // Types into the box over what is there.
    void Teclea(int índice, const char* texto) {
        Caja(índice).setFocus();
        Caja(índice).selectAll();
        QTest::keyClicks(&Caja(índice), QString::fromLatin1(texto));
    }
    QString DevValor(int índice) {
        return DevTexto(("txtFxValor_" + std::to_string(índice)).c_str());
    }
    QString DevDescripción() { return Busca<QWidget>("VisorFunciones").accessibleDescription(); }
    // Lets what was put off until after the events happen.
    static void Espera() { QTest::qWait(5); }
    static void EsperaLaPausa() {
        QTest::qWait(static_cast<int>(ControlGráfica::Pausa.count()) + 100);
    }
    const Cuadro& DevCuadro() { return Busca<VisorFunciones>("VisorFunciones").DevCuadro(); }
    bool SeDibuja(std::size_t índice) { return DevCuadro().curvas.at(índice).puntos != nullptr; }
    bool SeAtenúa(std::size_t índice) { return DevCuadro().curvas.at(índice).atenuada; }
    std::vector<Mensaje> TomaMensajes() { return std::exchange(grabados.mensajes, {}); }
    static Mensaje Aviso(const char* texto) { return {Icono::Exclamación, texto}; }
    QAbstractItemView* DevLista() {
        return dynamic_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    }
    QStringList DevOfrecidos() {
        QStringList nombres;
        if (const QAbstractItemView* lista = DevLista())
            for (int i = 0; i < lista->model()->rowCount(); ++i)
                nombres += lista->model()->index(i, 0).data().toString();
        return nombres;
    }
};

TEST_F(Escribir, LoTecleadoValeEnCuantoEsFórmula) {
    Define(0, "X^2");
    Busca<QScrollBar>("hsx").setValue(20);
    EXPECT_EQ(DevValor(0), QStringLiteral("4"));
    Teclea(0, "-6");
    EXPECT_EQ(DevValor(0), QStringLiteral("-6"));
    EXPECT_TRUE(DevDescripción().endsWith(QStringLiteral("f0(X)=-6, en X vale -6")));
    Pulsa("ZoomEjeX_0");
    EXPECT_FLOAT_EQ(DevCuadro().curvas[0].puntos->front().y, -6);
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Escribir, LoMediaEscritoSeAtenúaYCallaHastaLaPausa) {
    Define(0, "X^2");
    Teclea(0, "X^2+");
    EXPECT_TRUE(SeAtenúa(0));
    EXPECT_EQ(DevValor(0), QString());
    EXPECT_FALSE(Caja(0).EsErrónea());
    EXPECT_EQ(Caja(0).toolTip(), QString());
    const QString descripción = DevDescripción();
    EXPECT_FALSE(descripción.contains(QStringLiteral("X^2+")));
    EsperaLaPausa();
    EXPECT_TRUE(Caja(0).EsErrónea());
    EXPECT_EQ(Caja(0).toolTip(), QStringLiteral("No está permitido terminar con: +"));
    EXPECT_EQ(Caja(0).accessibleDescription(), Caja(0).toolTip());
    EXPECT_FALSE(DevDescripción().contains(QStringLiteral("f0")));
    EXPECT_TRUE(SeAtenúa(0));
    QTest::keyClicks(&Caja(0), QStringLiteral("1"));
    EXPECT_FALSE(Caja(0).EsErrónea());
    EXPECT_FALSE(SeAtenúa(0));
    EXPECT_TRUE(SeDibuja(0));
    EXPECT_EQ(DevValor(0), QStringLiteral("1"));
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Escribir, LoMediaEscritoNoSeCopia) {
    Define(3, "X");
    const auto azules = [&] {
        Pulsa("CopiarGráfica");
        const QImage imagen = QApplication::clipboard()->image();
        int cuenta = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x) {
                const QColor color = imagen.pixelColor(x, y);
                cuenta +=
                    color.blue() > color.red() + 30 && color.blue() > color.green() + 30 ? 1 : 0;
            }
        return cuenta;
    };
    EXPECT_GT(azules(), 100);
    Teclea(3, "X+");
    EXPECT_TRUE(SeAtenúa(3));
    EXPECT_EQ(azules(), 0);
}

TEST_F(Escribir, LoQueNoPuedeSerFórmulaSeBorraYDicePorQué) {
    Define(0, "X");
    Teclea(0, "SEN(");
    EXPECT_FALSE(SeDibuja(0));
    EXPECT_TRUE(Caja(0).EsErrónea());
    EXPECT_TRUE(Caja(0).toolTip().endsWith(QStringLiteral("seno es SIN")));
    EXPECT_EQ(Busca<QLabel>("lectura").toolTip(), Caja(0).toolTip());
    EXPECT_EQ(Caja(0).accessibleDescription(), Caja(0).toolTip());
    EXPECT_TRUE(TomaMensajes().empty());
    Teclea(0, "2,5");
    EXPECT_TRUE(Caja(0).toolTip().endsWith(QStringLiteral("el decimal es el punto")));
    Teclea(0, "2X");
    EXPECT_TRUE(Caja(0).toolTip().endsWith(QStringLiteral("falta * entre 2 y X")));
    Teclea(0, "2*X");
    EXPECT_EQ(Caja(0).toolTip(), QString());
    EXPECT_NE(Busca<QLabel>("lectura").toolTip(), Caja(0).toolTip());
    EXPECT_TRUE(SeDibuja(0));
    EXPECT_TRUE(Casilla(0).isChecked());
}

TEST_F(Escribir, LaCajaSóloSeReescribeConIntroYAlSalir) {
    Teclea(0, "x--2");
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X--2"));
    QTest::keyClick(&Caja(0), Qt::Key_Return);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+2"));
    QTest::keyClick(&Caja(0), Qt::Key_End);
    QTest::keyClicks(&Caja(0), QStringLiteral("--3"));
    EXPECT_TRUE(DevDescripción().contains(QStringLiteral("f0(X)=X+2--3, en X vale 5")));
    QTest::keyClick(&Caja(0), Qt::Key_Tab);
    Espera();
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+2+3"));
    EXPECT_TRUE(DevDescripción().contains(QStringLiteral("f0(X)=X+2+3, en X vale 5")));
}

TEST_F(Escribir, SalirDeLaCajaEnciendeLoNuevo) {
    Teclea(1, "x^2");
    EXPECT_FALSE(Casilla(1).isChecked());
    QTest::keyClick(&Caja(1), Qt::Key_Tab);
    Espera();
    EXPECT_TRUE(Casilla(1).isChecked());
    EXPECT_TRUE(SeDibuja(1));
    Teclea(2, "x");
    QTest::mouseClick(txtSalida.viewport(), Qt::LeftButton);
    Espera();
    EXPECT_TRUE(Casilla(2).isChecked());
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Escribir, LoQueElUsuarioApagóSigueApagadoHastaIntro) {
    Define(0, "X");
    Casilla(0).click();
    Caja(0).setFocus();
    txtSalida.setFocus();
    Espera();
    EXPECT_FALSE(Casilla(0).isChecked());
    Teclea(0, "X"); // the very same text again
    txtSalida.setFocus();
    Espera();
    EXPECT_FALSE(Casilla(0).isChecked());
    Caja(0).setFocus();
    QTest::keyClick(&Caja(0), Qt::Key_Return);
    EXPECT_TRUE(Casilla(0).isChecked());
    Casilla(0).click();
    Teclea(0, "X+1"); // another one
    txtSalida.setFocus();
    Espera();
    EXPECT_TRUE(Casilla(0).isChecked());
}

// However long the button is held: the focus goes when it goes down, the box is ticked when it goes
// up.
TEST_F(Escribir, ElClicEnSuPropiaCasillaDecideSolo) {
    Teclea(0, "x^2");
    QTest::mousePress(&Casilla(0), Qt::LeftButton, Qt::NoModifier, Casilla(0).rect().center());
    QTest::qWait(50);
    EXPECT_FALSE(Casilla(0).isChecked());
    QTest::mouseRelease(&Casilla(0), Qt::LeftButton, Qt::NoModifier, Casilla(0).rect().center());
    Espera();
    EXPECT_TRUE(Casilla(0).isChecked());
    EXPECT_TRUE(SeDibuja(0));

    Teclea(1, "x+");
    QTest::mousePress(&Casilla(1), Qt::LeftButton, Qt::NoModifier, Casilla(1).rect().center());
    QTest::qWait(50);
    EXPECT_TRUE(TomaMensajes().empty());
    QTest::mouseRelease(&Casilla(1), Qt::LeftButton, Qt::NoModifier, Casilla(1).rect().center());
    Espera();
    EXPECT_EQ(TomaMensajes(), std::vector{Aviso("No está permitido terminar con: +")});
    EXPECT_FALSE(Casilla(1).isChecked());
}

TEST_F(Escribir, SeOfrecenLosNombresMientrasSeTecleaUno) {
    Teclea(0, "x+si");
    EXPECT_EQ(DevOfrecidos(), QStringList{QStringLiteral("SIN(")});
    Teclea(0, "co");
    EXPECT_EQ(DevOfrecidos(), (QStringList{QStringLiteral("COS("), QStringLiteral("COSEC(")}));
    QTest::keyClicks(&Caja(0), QStringLiteral("s("));
    EXPECT_EQ(DevLista(), nullptr);
    Teclea(0, "1e");
    EXPECT_EQ(DevLista(), nullptr); // an exponent
    Teclea(0, "x");
    EXPECT_EQ(DevLista(), nullptr);
}

TEST_F(Escribir, LaListaEstáDebajoDelComienzoDelNombre) {
    const auto lugar = [this](const char* texto) {
        Teclea(0, texto);
        return DevLista() == nullptr ? QPoint() : Caja(0).mapFromGlobal(DevLista()->pos());
    };
    const QPoint uno = lugar("s");
    const QPoint dos = lugar("si");
    const QPoint otro = lugar("x^2+si");
    EXPECT_EQ(uno, dos);
    EXPECT_NEAR(uno.y(), Caja(0).height(), 2);
    EXPECT_NEAR(otro.x() - uno.x(), Caja(0).fontMetrics().horizontalAdvance(QStringLiteral("X^2+")),
                4);
}

TEST_F(Escribir, ElNombreEscogidoSeCompletaYSeSigueEscribiendo) {
    Teclea(0, "x+si");
    ASSERT_NE(DevLista(), nullptr);
    QTest::keyClick(DevLista(), Qt::Key_Down);
    QTest::keyClick(DevLista(), Qt::Key_Return);
    EXPECT_EQ(DevLista(), nullptr);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+SIN("));
    EXPECT_FALSE(Caja(0).hasSelectedText());
    QTest::keyClicks(&Caja(0), QStringLiteral("x)"));
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+SIN(X)"));
    EXPECT_FALSE(Casilla(0).isChecked()); // Enter was the list's
}

// Closing the list gives the box the focus back; that is no reason to select its text.
TEST_F(Escribir, CerrarLaListaNoSeleccionaLaFórmula) {
    Teclea(0, "x+s");
    ASSERT_NE(DevLista(), nullptr);
    QTest::keyClick(DevLista(), Qt::Key_Escape);
    EXPECT_EQ(DevLista(), nullptr);
    QTest::keyClicks(&Caja(0), QStringLiteral("q"));
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+SQ"));
}

TEST_F(Escribir, IntroSinNombreEscogidoEsIntro) {
    Teclea(0, "x+si");
    ASSERT_NE(DevLista(), nullptr);
    QTest::keyClick(DevLista(), Qt::Key_Return);
    EXPECT_EQ(DevLista(), nullptr);
    EXPECT_EQ(TomaMensajes().size(), 1U);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+SI"));
}

// In a dialog it is the default button's.
TEST_F(Escribir, IntroConLaListaAbiertaAceptaElDiálogo) {
    Pulsa("FijarPuntosExtremos");
    auto& caja = Busca<CajaFormula>("txtPuntosExtremos_0");
    auto& marco = Busca<QWidget>("frmPuntosExtremos");
    ASSERT_TRUE(QTest::qWaitFor([&] { return caja.hasFocus(); }));
    QTest::keyClicks(&caja, QStringLiteral("s"));
    ASSERT_NE(DevLista(), nullptr);
    QTest::keyClick(DevLista(), Qt::Key_Return);
    EXPECT_EQ(TomaMensajes().size(), 1U);
    EXPECT_TRUE(marco.isVisible());
    QTest::keyClicks(&caja, QStringLiteral("sqr(16)"));
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_FALSE(marco.isVisible());
    EXPECT_EQ(DevExtremos()[0], "4");
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Escribir, AltConUnaLetraNoEscribe) {
    Define(0, "X");
    Caja(0).SeleccionaTexto();
    QTest::keyClick(&Caja(0), Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X"));
}

TEST_F(Escribir, LoPegadoPierdeSusBlancos) {
    QApplication::clipboard()->setText(QStringLiteral(" x^2 - 4*x\t+ 1 "));
    Caja(0).setFocus();
    QTest::keyClick(&Caja(0), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X^2-4*X+1"));
    EXPECT_EQ(Caja(0).cursorPosition(), 9);
}

TEST_F(Escribir, LosTítulosSonLosSuyosYNadaMás) {
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), QString());
}

TEST_F(Escribir, UnaCajaErróneaSeLeeEnTodaPaleta) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    const QColor papel = caja.palette().color(QPalette::Base);
    const auto mira = [&](const char* cuándo) {
        const QPalette paleta = caja.palette();
        EXPECT_GE(DevContraste(paleta.color(QPalette::Text), paleta.color(QPalette::Base)),
                  ContrasteDeTexto)
            << cuándo;
        return paleta.color(QPalette::Base);
    };
    caja.setFocus();
    QTest::keyClicks(&caja, QStringLiteral("2X"));
    EXPECT_NE(mira("clara"), papel);
    {
        const ConPaleta oscura(DevPaletaOscura());
        const QColor errónea = mira("oscura");
        EXPECT_LT(errónea.lightness(), 128);
        EXPECT_NE(errónea, DevPaletaOscura().color(QPalette::Base));
        QTest::keyClick(&caja, Qt::Key_Backspace);
        EXPECT_EQ(mira("oscura y buena"), DevPaletaOscura().color(QPalette::Base));
    }
    EXPECT_EQ(mira("clara otra vez"), papel);
}

} // namespace
} // namespace quiralto
