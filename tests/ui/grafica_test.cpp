// The graph view through its controls: menus, toolbar, scroll bars, extremes and function boxes.

#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace quiralto {
namespace {

using Extremos = std::vector<std::string>;

class Gráfica : public VentanaDePrueba {
protected:
    // Titles of a menu's entries; separators are empty.
    QStringList DevTítulos(const char* menú) {
        QStringList títulos;
        for (const QAction* acción : Busca<QMenu>(menú).actions())
            títulos += acción->text();
        return títulos;
    }
    std::vector<Mensaje> TomaMensajes() { return std::exchange(grabados.mensajes, {}); }
    static Mensaje Aviso(const char* texto) { return {Icono::Exclamación, texto}; }
    bool EstáActiva(int índice) {
        return Busca<QCheckBox>(("chkfx_" + std::to_string(índice)).c_str()).isChecked();
    }
    void Teclea(const char* caja, const char* texto) {
        auto& control = Busca<QLineEdit>(caja);
        control.setFocus();
        QTest::keyClicks(&control, QString::fromLatin1(texto));
    }
    // Lets what was put off until after the events happen.
    static void Espera() { QTest::qWait(1); }
};

const QStringList Zooms = {QStringLiteral("X2"), QStringLiteral("X4"), QStringLiteral("X8"),
                           QStringLiteral("/2"), QStringLiteral("/4"), QStringLiteral("/8")};

TEST_F(Gráfica, LosMenúsTienenSusTítulos) {
    for (const char* menú : {"ZoomGráfica", "ZoomEjeX", "ZoomEjeY", "ZoomEjesXY"})
        EXPECT_EQ(DevTítulos(menú), Zooms) << menú;
    EXPECT_EQ(Busca<QMenu>("ZoomGráfica").title(), QStringLiteral("&Zoom Gráfica"));
    EXPECT_EQ(Busca<QMenu>("ZoomEjes").title(), QStringLiteral("Z&oom Ejes"));
    EXPECT_EQ(DevTítulos("ZoomEjes"), (QStringList{QStringLiteral("Eje X"), QStringLiteral("Eje Y"),
                                                   QStringLiteral("Ejes X e Y"), QString(),
                                                   QStringLiteral("&Valores por defecto")}));
    EXPECT_EQ(Busca<QMenu>("MétodoDibujo").title(), QStringLiteral("&Método de Dibujo"));
    EXPECT_EQ(DevTítulos("MétodoDibujo"),
              (QStringList{QStringLiteral("&Puntos"), QStringLiteral("&Líneas")}));
    EXPECT_EQ(Busca<QMenu>("NúmeroPuntos").title(), QStringLiteral("&Número de puntos a trazar"));
    EXPECT_EQ(
        DevTítulos("NúmeroPuntos"),
        (QStringList{QStringLiteral("150"), QStringLiteral("300"), QStringLiteral("600"),
                     QStringLiteral("1200"), QStringLiteral("2400"), QStringLiteral("4800")}));
    EXPECT_EQ(Busca<QMenu>("RedondeoNúmeros").title(),
              QStringLiteral("&Cifras redondeo en números"));
    EXPECT_EQ(DevTítulos("RedondeoNúmeros").size(), 16);
    EXPECT_EQ(Busca<QAction>("FijarPuntosExtremos").text(),
              QStringLiteral("&Fijar puntos extremos manualmente"));
}

struct CasoZoom {
    const char* acción;
    Extremos quedan;
};

const CasoZoom CasosZoom[] = {
    {"ZoomGráfica_0", {"5", "-5", "5", "-5"}},
    {"ZoomGráfica_1", {"2.5", "-2.5", "2.5", "-2.5"}},
    {"ZoomGráfica_2", {"1.25", "-1.25", "1.25", "-1.25"}},
    {"ZoomGráfica_3", {"20", "-20", "20", "-20"}},
    {"ZoomGráfica_4", {"40", "-40", "40", "-40"}},
    {"ZoomGráfica_5", {"80", "-80", "80", "-80"}},
    {"ZoomEjeX_0", {"20", "-20", "10", "-10"}},
    {"ZoomEjeX_1", {"40", "-40", "10", "-10"}},
    {"ZoomEjeX_2", {"80", "-80", "10", "-10"}},
    {"ZoomEjeX_3", {"5", "-5", "10", "-10"}},
    {"ZoomEjeX_4", {"2.5", "-2.5", "10", "-10"}},
    {"ZoomEjeX_5", {"1.25", "-1.25", "10", "-10"}},
    {"ZoomEjeY_0", {"10", "-10", "20", "-20"}},
    {"ZoomEjeY_1", {"10", "-10", "40", "-40"}},
    {"ZoomEjeY_2", {"10", "-10", "80", "-80"}},
    {"ZoomEjeY_3", {"10", "-10", "5", "-5"}},
    {"ZoomEjeY_4", {"10", "-10", "2.5", "-2.5"}},
    {"ZoomEjeY_5", {"10", "-10", "1.25", "-1.25"}},
    {"ZoomEjesXY_0", {"20", "-20", "20", "-20"}},
    {"ZoomEjesXY_1", {"40", "-40", "40", "-40"}},
    {"ZoomEjesXY_2", {"80", "-80", "80", "-80"}},
    {"ZoomEjesXY_3", {"5", "-5", "5", "-5"}},
    {"ZoomEjesXY_4", {"2.5", "-2.5", "2.5", "-2.5"}},
    {"ZoomEjesXY_5", {"1.25", "-1.25", "1.25", "-1.25"}},
    {"Toolbar1_1", {"20", "-20", "10", "-10"}},
    {"Toolbar1_2", {"5", "-5", "10", "-10"}},
    {"Toolbar1_4", {"10", "-10", "20", "-20"}},
    {"Toolbar1_5", {"10", "-10", "5", "-5"}},
    {"Toolbar1_7", {"20", "-20", "20", "-20"}},
    {"Toolbar1_8", {"5", "-5", "5", "-5"}},
    {"Toolbar1_10", {"5", "-5", "5", "-5"}},
    {"Toolbar1_11", {"20", "-20", "20", "-20"}},
};

TEST_F(Gráfica, CadaZoomCambiaLaVentana) {
    Define(0, "X");
    for (const CasoZoom& caso : CasosZoom) {
        Pulsa(caso.acción);
        EXPECT_EQ(DevExtremos(), caso.quedan) << caso.acción;
        Pulsa("ValoresPorDefectoEjes");
        EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    }
}

TEST_F(Gráfica, LaBarraTieneOnceEntradasConIconoYTresSeparadores) {
    const QList<QAction*> entradas = Busca<QToolBar>("Toolbar1").actions();
    ASSERT_EQ(entradas.size(), 11);
    for (int i = 1; i <= 11; ++i) {
        const QAction& entrada = *entradas[i - 1];
        EXPECT_EQ(entrada.isSeparator(), i == 3 || i == 6 || i == 9) << i;
        if (entrada.isSeparator())
            continue;
        auto& botón = Busca<QToolButton>(("Toolbar1_" + std::to_string(i)).c_str());
        EXPECT_EQ(botón.defaultAction(), &entrada) << i;
        EXPECT_EQ(botón.text(), entrada.iconText()) << i; // the full caption, as its name too
        EXPECT_TRUE(entrada.toolTip().startsWith(entrada.iconText() + QStringLiteral(": "))) << i;
        EXPECT_EQ(botón.toolTip(), entrada.toolTip()) << i;
        EXPECT_FALSE(entrada.icon().pixmap(24).isNull()) << i;
    }
}

TEST_F(Gráfica, LosRótulosDeLaBarraDicenLoQueOcurre) {
    const struct {
        const char* acción;
        const char* dice;
    } casos[] = {
        {"ZoomEjeX_0", "Eje X X2: el eje abarca el doble"},
        {"ZoomEjeY_3", "Eje Y /2: el eje abarca la mitad"},
        {"ZoomEjesXY_5", "Ejes X e Y /8: los ejes abarcan la octava parte"},
        {"ZoomGráfica_0", "Zoom Gráfica X2: el dibujo, en torno al punto X, se amplía al doble"},
        {"ZoomGráfica_3", "Zoom Gráfica /2: el dibujo, en torno al punto X, se reduce a la mitad"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(Busca<QAction>(caso.acción).toolTip(), QString::fromUtf8(caso.dice));
        EXPECT_EQ(Busca<QAction>(caso.acción).statusTip(), QString::fromUtf8(caso.dice));
    }
}

TEST_F(Gráfica, UnDesbordamientoSeDeshaceCallando) {
    for (int i = 0; i < 500; ++i)
        Pulsa("ZoomEjeX_2");
    const Extremos extremos = DevExtremos();
    EXPECT_GT(extremos[0].size(), 10U);
    EXPECT_EQ(extremos[2], "10");
    EXPECT_TRUE(TomaMensajes().empty());
    for (int i = 0; i < 1000; ++i)
        Pulsa("ZoomEjeX_5");
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_GT(DevExtremos()[0], DevExtremos()[1]);
}

TEST_F(Gráfica, LasBarrasDesplazanYVuelvenACero) {
    EXPECT_EQ(Busca<QScrollBar>("hsEjeX").minimum(), -20);
    EXPECT_EQ(Busca<QScrollBar>("vsEjeY").maximum(), 20);
    EXPECT_EQ(Busca<QScrollBar>("hsx").maximum(), 100);
    Busca<QScrollBar>("hsEjeX").setValue(3);
    EXPECT_EQ(DevExtremos(), (Extremos{"7", "-13", "10", "-10"}));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-3"));
    EXPECT_EQ(Busca<QScrollBar>("hsEjeX").value(), 0);
    Busca<QScrollBar>("vsEjeY").setValue(4);
    EXPECT_EQ(DevExtremos(), (Extremos{"7", "-13", "14", "-6"}));
    EXPECT_EQ(Busca<QScrollBar>("vsEjeY").value(), 0);
    auto& barra = Busca<QScrollBar>("hsEjeX");
    QTest::keyClick(&barra, Qt::Key_Right);
    QTest::keyClick(&barra, Qt::Key_Right);
    EXPECT_EQ(DevExtremos()[0], "5");
}

// A drag counts once, from where it began to where the bar is let go; the point X follows it.
TEST_F(Gráfica, LasBarrasDeLosEjesEsperanAQueSeLasSuelte) {
    auto& barra = Busca<QScrollBar>("hsEjeX");
    barra.setSliderDown(true);
    barra.setSliderPosition(2);
    barra.setSliderPosition(3);
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    barra.setSliderDown(false);
    EXPECT_EQ(DevExtremos(), (Extremos{"7", "-13", "10", "-10"}));
    EXPECT_EQ(barra.value(), 0);
    auto& punto = Busca<QScrollBar>("hsx");
    punto.setSliderDown(true);
    punto.setSliderPosition(punto.value() + 10);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-2"));
    punto.setSliderDown(false);
}

TEST_F(Gráfica, LaBarraDelPuntoXLoMueveYMuestraLosValores) {
    Define(0, "X^2");
    Define(1, "SQR(X)");
    Busca<QScrollBar>("hsx").setValue(-25);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-2.5"));
    EXPECT_EQ(DevTexto("txtFxValor_0"), QStringLiteral("6.25"));
    EXPECT_EQ(DevTexto("txtFxValor_1"), QString()); // undefined there
    EXPECT_EQ(DevTexto("txtFxValor_2"), QString()); // off
    Pulsa("ZoomEjeX_0");
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-5"));
    EXPECT_EQ(Busca<QScrollBar>("hsx").value(), -25);
    Pulsa("ValoresPorDefectoEjes");
    EXPECT_EQ(Busca<QScrollBar>("hsx").value(), -50);
}

TEST_F(Gráfica, LosValoresSeRedondeanALasCifrasElegidas) {
    EXPECT_TRUE(Busca<QAction>("RedondeoNúmeros_8").isChecked());
    Pulsa("RedondeoNúmeros_3");
    EXPECT_EQ(contexto.DígitosRedondeo, 3);
    EXPECT_TRUE(Busca<QAction>("RedondeoNúmeros_3").isChecked());
    EXPECT_FALSE(Busca<QAction>("RedondeoNúmeros_8").isChecked());
    Define(0, "1/3+X");
    EXPECT_EQ(DevTexto("txtFxValor_0"), QStringLiteral(".333"));
}

TEST_F(Gráfica, ElNúmeroDePuntosSeElige) {
    EXPECT_TRUE(Busca<QAction>("NúmeroPuntos_1").isChecked());
    Define(0, "X");
    const auto puntos = [&] {
        return dynamic_cast<VisorFunciones&>(Busca<QWidget>("VisorFunciones"))
            .DevCuadro()
            .curvas[0]
            .puntos->size();
    };
    EXPECT_NEAR(static_cast<double>(puntos()), 301, 1);
    for (int i = 0; i < 6; ++i) {
        const std::string acción = "NúmeroPuntos_" + std::to_string(i);
        Pulsa(acción.c_str());
        EXPECT_NEAR(static_cast<double>(puntos()), 150 * (1 << i) + 1, 1);
        EXPECT_TRUE(Busca<QAction>(acción.c_str()).isChecked());
    }
    Pulsa("NúmeroPuntos_5");
    EXPECT_TRUE(Busca<QAction>("NúmeroPuntos_5").isChecked());
}

TEST_F(Gráfica, LoTecleadoSeCompruebaConIntro) {
    Teclea("txtfx_0", "x--2+sin(x)");
    EXPECT_FALSE(EstáActiva(0));
    QTest::keyClick(&Busca<QLineEdit>("txtfx_0"), Qt::Key_Return);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+2+SIN(X)"));
    EXPECT_TRUE(EstáActiva(0));
    EXPECT_EQ(DevTexto("txtFxValor_0"), QStringLiteral("2"));
    QTest::keyClick(&Busca<QLineEdit>("txtfx_0"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X--2+SIN(X)"));
}

TEST_F(Gráfica, UnTextoRechazadoTieneUnSoloMensaje) {
    Define(0, "X");
    Teclea("txtfx_0", "+");
    QTest::keyClick(&Busca<QLineEdit>("txtfx_0"), Qt::Key_Return);
    EXPECT_EQ(TomaMensajes(), std::vector{Aviso("No está permitido terminar con: +")});
    EXPECT_FALSE(EstáActiva(0));
    EXPECT_EQ(DevTexto("txtFxValor_0"), QString());
    EXPECT_EQ(QApplication::focusWidget(), &Busca<QLineEdit>("txtfx_0"));
    EXPECT_EQ(Busca<QLineEdit>("txtfx_0").selectedText(), QStringLiteral("X+"));
    txtSalida.setFocus();
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
}

TEST_F(Gráfica, AlSalirDeLaCajaSeCompruebaLoCambiado) {
    Teclea("txtfx_1", "x+");
    txtSalida.setFocus();
    Espera();
    EXPECT_EQ(TomaMensajes(), std::vector{Aviso("No está permitido terminar con: +")});
    EXPECT_EQ(QApplication::focusWidget(), &Busca<QLineEdit>("txtfx_1"));
    Teclea("txtfx_1", "x*2"); // over the selected text
    txtSalida.setFocus();
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_EQ(DevTexto("txtfx_1"), QStringLiteral("X*2"));
    EXPECT_TRUE(EstáActiva(1));
}

TEST_F(Gráfica, ElClicEnLaCasillaCompruebaUnaSolaVez) {
    Teclea("txtfx_2", "x+");
    QTest::mouseClick(&Busca<QCheckBox>("chkfx_2"), Qt::LeftButton);
    Espera();
    EXPECT_EQ(TomaMensajes(), std::vector{Aviso("No está permitido terminar con: +")});
    EXPECT_FALSE(EstáActiva(2));
    EXPECT_EQ(QApplication::focusWidget(), &Busca<QLineEdit>("txtfx_2"));
    Teclea("txtfx_2", "7");
    QTest::mouseClick(&Busca<QCheckBox>("chkfx_2"), Qt::LeftButton);
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_TRUE(EstáActiva(2));
    EXPECT_EQ(DevTexto("txtFxValor_2"), QStringLiteral("7"));
}

TEST_F(Gráfica, UnaCajaVacíaNoSePuedeEncender) {
    Busca<QCheckBox>("chkfx_3").click();
    EXPECT_EQ(TomaMensajes(),
              std::vector{Aviso("No ha escrito ninguna función o valor numérico ")});
    EXPECT_FALSE(EstáActiva(3));
}

TEST_F(Gráfica, VaciarLaCajaQuitaLaFunciónSinMensaje) {
    Define(0, "X");
    QTest::keyClick(&Busca<QLineEdit>("txtfx_0"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Busca<QLineEdit>("txtfx_0"), Qt::Key_Delete);
    txtSalida.setFocus();
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_FALSE(EstáActiva(0));
    EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
}

TEST_F(Gráfica, AlCerrarNoHayMensajes) {
    Teclea("txtfx_0", "x+");
    formulario.close();
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_FALSE(formulario.isVisible());
}

TEST_F(Gráfica, LosBlancosNoSeTecleanEnLasCajas) {
    Teclea("txtfx_0", "x + 1");
    EXPECT_EQ(DevTexto("txtfx_0"), QStringLiteral("X+1"));
}

TEST_F(Gráfica, ElPuntoXSeTeclea) {
    auto& caja = Busca<QLineEdit>("txtPuntoX");
    Define(0, "X");
    const auto teclea = [&](const char* texto) {
        caja.setFocus(Qt::TabFocusReason); // which selects what is there
        QTest::keyClicks(&caja, QString::fromLatin1(texto));
        QTest::keyClick(&caja, Qt::Key_Return);
    };
    teclea("2.123456789012"); // unrounded
    EXPECT_EQ(caja.text(), QStringLiteral("2.12345678901"));
    Pulsa("RedondeoNúmeros_15");
    EXPECT_EQ(DevTexto("txtFxValor_0"), QStringLiteral("2.123456789012"));
    Pulsa("RedondeoNúmeros_8");
    txtSalida.setFocus();
    teclea("2*sqr(4)");
    EXPECT_EQ(caja.text(), QStringLiteral("4"));
    EXPECT_EQ(Busca<QScrollBar>("hsx").value(), 40);
    txtSalida.setFocus();
    teclea("-.5E1");
    EXPECT_EQ(caja.text(), QStringLiteral("-5"));
    txtSalida.setFocus();
    caja.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&caja, Qt::Key_Delete); // an empty text changes nothing
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_EQ(caja.text(), QStringLiteral("-5"));
    QTest::keyClicks(&caja, QStringLiteral("7"));
    txtSalida.setFocus(); // leaving it is enough
    Espera();
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    EXPECT_NE(caja.text(), QStringLiteral("-5"));
}

TEST_F(Gráfica, UnPuntoXSinCambiarNoPierdeCifras) {
    auto& caja = Busca<QLineEdit>("txtPuntoX");
    caja.setFocus();
    QTest::keyClicks(&caja, QStringLiteral("1/3"));
    QTest::keyClick(&caja, Qt::Key_Return);
    Define(0, "3*X-1");
    Pulsa("RedondeoNúmeros_15");
    const QString antes = DevTexto("txtFxValor_0");
    caja.setFocus();
    QTest::keyClick(&caja, Qt::Key_Return);
    txtSalida.setFocus();
    Espera();
    EXPECT_EQ(DevTexto("txtFxValor_0"), antes);
}

TEST_F(Gráfica, UnPuntoXRechazadoSeDiceUnaVez) {
    auto& caja = Busca<QLineEdit>("txtPuntoX");
    const struct {
        const char* texto;
        const char* mensaje;
    } casos[] = {
        {"x+1", "Este dato no admite la variable X"},
        {"1/0", "El argumento dado a la función está fuera de rango, pruebe otro valor"},
        {"2+", "No está permitido terminar con: +"},
    };
    for (const auto& caso : casos) {
        caja.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&caja, QString::fromLatin1(caso.texto));
        txtSalida.setFocus();
        Espera();
        EXPECT_EQ(TomaMensajes(), std::vector{Aviso(caso.mensaje)});
        EXPECT_EQ(QApplication::focusWidget(), &caja);
        EXPECT_EQ(caja.selectedText(), caja.text());
        txtSalida.setFocus(); // it is not held back a second time
        Espera();
        EXPECT_TRUE(TomaMensajes().empty());
        EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
        EXPECT_EQ(caja.text(), QStringLiteral("0"));
    }
}

TEST_F(Gráfica, LoQueSeTecleaEnElPuntoXNoSePierdePorLoDemás) {
    auto& caja = Busca<QLineEdit>("txtPuntoX");
    caja.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&caja, QStringLiteral("1.2"));
    Pulsa("ZoomGráfica_0");
    EXPECT_EQ(caja.text(), QStringLiteral("1.2"));
    Pulsa("ZoomEjeX_0"); // the point stays 0
    EXPECT_EQ(caja.text(), QStringLiteral("1.2"));
    Busca<QScrollBar>("hsx").setValue(30); // it moves
    EXPECT_EQ(caja.text(), QStringLiteral("3"));
}

TEST_F(Gráfica, ElEjeYSeAjustaALasCurvas) {
    Pulsa("AjustarEjeY"); // to none
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    EXPECT_EQ(formulario.statusBar()->currentMessage(),
              QStringLiteral("No hay curva a la que ajustar el eje"));
    Define(0, "SIN(X)");
    Define(1, "40*COS(X)");
    Pulsa("AjustarEjeY");
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "44", "-44"}));
    Busca<QCheckBox>("chkfx_1").click();
    Pulsa("AjustarEjeY");
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "1.1", "-1.1"}));
    Pulsa("VistaAnterior");
    EXPECT_EQ(DevExtremos()[2], "44");
}

TEST_F(Gráfica, EjesIgualesDaLaMismaUnidadEnLosDosEjes) {
    auto& visor = Busca<QWidget>("VisorFunciones");
    visor.setFixedSize(600, 400);
    QTest::qWait(1);
    Pulsa("EjesIguales");
    EXPECT_EQ(DevExtremos(), (Extremos{"15", "-15", "10", "-10"}));
    Pulsa("EjesIguales"); // they are
    EXPECT_EQ(DevExtremos(), (Extremos{"15", "-15", "10", "-10"}));
    Pulsa("ZoomEjeX_0");
    Pulsa("EjesIguales");
    EXPECT_EQ(DevExtremos(), (Extremos{"30", "-30", "20", "-20"}));
}

// Through a zoom that moves the point with the axis, and one that has been put elsewhere since.
TEST_F(Gráfica, LaVistaAnteriorTraeElPuntoXSiSeMovióConElla) {
    Busca<QScrollBar>("hsx").setValue(40);
    Pulsa("ZoomEjeX_0");
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("8"));
    Pulsa("VistaAnterior");
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("4"));
    Pulsa("ZoomEjeX_0");
    Busca<QScrollBar>("hsx").setValue(-20);
    Pulsa("VistaAnterior");
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-4"));
    EXPECT_EQ(DevExtremos()[0], "10");
}

class DiálogoDeExtremos : public Gráfica {
protected:
    DiálogoDeExtremos() { Pulsa("FijarPuntosExtremos"); }

    QDialog& marco = Busca<QDialog>("frmPuntosExtremos");
    void Pon(const Extremos& extremos) {
        for (std::size_t i = 0; i < 4; ++i)
            Busca<QLineEdit>(("txtPuntosExtremos_" + std::to_string(i)).c_str())
                .setText(DevQString(extremos[i]));
    }
    void Pulsa(const char* acción) { VentanaDePrueba::Pulsa(acción); }
    void PulsaBotón(const char* nombre) {
        marco.findChild<QPushButton*>(QString::fromLatin1(nombre))->click();
    }
    QString DevZoom() { return Busca<QLabel>("zoom").text(); }
};

TEST_F(DiálogoDeExtremos, TieneSusTextosYEmpiezaEnLaPrimeraCaja) {
    EXPECT_TRUE(marco.isVisible());
    EXPECT_EQ(marco.windowTitle(), QStringLiteral("Establecimiento de puntos extremos"));
    QStringList títulos;
    for (const QLabel* etiqueta : marco.findChildren<QLabel*>())
        títulos += etiqueta->text();
    EXPECT_EQ(títulos, (QStringList{QStringLiteral("Punto +X="), QStringLiteral("Punto -X="),
                                    QStringLiteral("Punto +Y="), QStringLiteral("Punto -Y=")}));
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    EXPECT_EQ(marco.focusWidget(), &Busca<QLineEdit>("txtPuntosExtremos_0"));
    EXPECT_EQ(Busca<QLineEdit>("txtPuntosExtremos_0").selectedText(), QStringLiteral("10"));
}

TEST_F(DiálogoDeExtremos, AceptarFijaLaVentanaConExpresiones) {
    Pon({"2*SQR(4)", "-1", "1/3", "0"});
    PulsaBotón("Command1");
    EXPECT_FALSE(marco.isVisible());
    EXPECT_EQ(DevExtremos(), (Extremos{"4", "-1", ".33333333", "0"}));
    EXPECT_EQ(DevZoom(), QStringLiteral("X de -1 a 4 · Y de 0 a .33333"));
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(DiálogoDeExtremos, LoRechazadoNoCambiaNadaYVuelveASuCaja) {
    const char* const Orden = "El primer número debe ser mayor que el segundo";
    const struct {
        Extremos extremos;
        const char* mensaje;
        int caja;
    } casos[] = {
        {{"1", "2", "3", "4"}, Orden, 0},
        {{"1", "1", "3", "4"}, Orden, 0},
        {{"5", "1", "3", "4"}, Orden, 2},
        {{"5", "X", "3", "4"}, "Este dato no admite la variable X", 1},
        {{"5", "1", "4", "1/0"},
         "El argumento dado a la función está fuera de rango, pruebe otro valor",
         3},
        {{"5", "1", "", "1"}, "No ha escrito ninguna función o valor numérico ", 2},
    };
    for (const auto& caso : casos) {
        Pon(caso.extremos);
        PulsaBotón("Command1");
        EXPECT_EQ(TomaMensajes(), std::vector{Aviso(caso.mensaje)});
        EXPECT_TRUE(marco.isVisible());
        EXPECT_EQ(DevZoom(), QStringLiteral("X de -10 a 10 · Y de -10 a 10"));
        auto& caja = Busca<QLineEdit>(("txtPuntosExtremos_" + std::to_string(caso.caja)).c_str());
        EXPECT_EQ(marco.focusWidget(), &caja);
        EXPECT_EQ(caja.selectedText(), caja.text());
        EXPECT_EQ(DevExtremos(), caso.extremos);
    }
}

TEST_F(DiálogoDeExtremos, UnaVentanaQueNoSePuedeDibujarSeDeshace) {
    Pon({"1E308", "-1E308", "1", "0"});
    PulsaBotón("Command1");
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_EQ(DevZoom(), QStringLiteral("X de -10 a 10 · Y de -10 a 10"));
}

TEST_F(DiálogoDeExtremos, CancelarYEscapeSóloLoCierran) {
    Pon({"5", "1", "5", "1"});
    PulsaBotón("Command2");
    EXPECT_FALSE(marco.isVisible());
    EXPECT_EQ(DevZoom(), QStringLiteral("X de -10 a 10 · Y de -10 a 10"));
    Pulsa("FijarPuntosExtremos");
    EXPECT_EQ(DevExtremos(), (Extremos{"10", "-10", "10", "-10"}));
    QTest::keyClick(&marco, Qt::Key_Escape);
    EXPECT_FALSE(marco.isVisible());
}

} // namespace
} // namespace quiralto
