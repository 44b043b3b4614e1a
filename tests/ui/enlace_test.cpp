// What graph and worksheet do for each other: functions as data, lines as functions, the point X at
// a result, and what has been found marked on the picture.

#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"
#include "ui/dibujo/hallados.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QInputDialog>
#include <QMenu>
#include <QTextBlock>
#include <QToolTip>

namespace quiralto {
namespace {

class Enlace : public VentanaDePrueba {
protected:
    void Pon(const char* texto) { txtSalida.setPlainText(QString::fromUtf8(texto)); }
    QPoint DevLugar(int línea) {
        const QTextCursor cursor(txtSalida.document()->findBlockByNumber(línea));
        return txtSalida.cursorRect(cursor).center() + QPoint(4, 0);
    }
    static QMenu& DevMenúAbierto() {
        auto* menú = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (menú == nullptr)
            throw std::runtime_error("no menu is open");
        return *menú;
    }
    QMenu& AbreMenú(int línea) {
        const QPoint lugar = DevLugar(línea);
        QContextMenuEvent suceso(QContextMenuEvent::Mouse, lugar,
                                 txtSalida.viewport()->mapToGlobal(lugar));
        QApplication::sendEvent(txtSalida.viewport(), &suceso);
        return DevMenúAbierto();
    }
    QMenu& AbreMenúFunción(int índice) {
        auto& caja = Busca<QWidget>(("txtfx_" + std::to_string(índice)).c_str());
        QContextMenuEvent suceso(QContextMenuEvent::Mouse, QPoint(5, 5),
                                 caja.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&caja, &suceso);
        return DevMenúAbierto();
    }
    static QAction* DevEntrada(QMenu& menú, const char* nombre) {
        for (QAction* acción : menú.actions())
            if (acción->objectName() == QString::fromUtf8(nombre))
                return acción;
        return nullptr;
    }
    // Chooses an entry as the keys do.
    static void Elige(QMenu& menú, const char* nombre) {
        QAction* const entrada = DevEntrada(menú, nombre);
        if (entrada == nullptr)
            throw std::runtime_error(std::string("no entry ") + nombre);
        menú.setActiveAction(entrada);
        QTest::keyClick(&menú, Qt::Key_Return);
    }
    static QStringList DevTítulos(QMenu& menú) {
        QStringList títulos;
        for (const QAction* acción : menú.actions())
            if (!acción->isSeparator() || !acción->text().isEmpty())
                títulos += acción->text();
        return títulos;
    }
    void ConCtrl(int línea) {
        QTest::mouseClick(txtSalida.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          DevLugar(línea));
    }
    std::string DevFunción(int índice) {
        return DevTexto(("txtfx_" + std::to_string(índice)).c_str()).toStdString();
    }
    bool EstáEncendida(int índice) {
        return Busca<QCheckBox>(("chkfx_" + std::to_string(índice)).c_str()).isChecked();
    }
    using VentanaDePrueba::DevTexto;
};

TEST_F(Enlace, LlevarALaHojaDaLosÚnicosDatos) {
    Define(0, "X^2-4");
    Pon("12,18\n'nota\n  SIN(X),1,2");
    Elige(AbreMenúFunción(0), "LlevarALaHoja");
    EXPECT_EQ(DevTexto(), "'12,18\n'nota\n'  SIN(X),1,2\nX^2-4,-10,10");
    EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
    EXPECT_TRUE(txtSalida.textCursor().atEnd());
    Pulsa("Deshacer");
    EXPECT_EQ(DevTexto(), "12,18\n'nota\n  SIN(X),1,2");
    Pulsa("Rehacer");
    Pulsa("HallarSoluciones");
    EXPECT_TRUE(DevTexto().ends_with("X^2-4,-10,10\n\n'Solución en X=-2\n'Solución en X= 2\n"));
    Elige(AbreMenúFunción(0), "LlevarALaHoja"); // behind what ends with a line break
    EXPECT_TRUE(DevTexto().ends_with("'X^2-4,-10,10\n\n'Solución en X=-2\n'Solución en X= 2\n"
                                     "X^2-4,-10,10"))
        << DevTexto();
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Enlace, ElBotónDeLaFunciónTieneLoMismo) {
    Define(1, "SIN(X)");
    Busca<QToolButton>("cmdMenúfx_1").click();
    Elige(DevMenúAbierto(), "LlevarALaHoja");
    EXPECT_EQ(DevTexto(), "SIN(X),-10,10");
}

TEST_F(Enlace, LosExtremosSeAdmitenEnTodaVentana) {
    Define(0, "X-1E-8");
    for (int i = 0; i < 9; ++i)
        Pulsa("ZoomEjeX_5"); // /8
    Elige(AbreMenúFunción(0), "LlevarALaHoja");
    EXPECT_EQ(DevTexto().find('E', 6), std::string::npos) << DevTexto();
    Pulsa("HallarSoluciones");
    EXPECT_TRUE(grabados.mensajes.empty());
    EXPECT_TRUE(DevTexto().find("'Solución en X= .00000001") != std::string::npos ||
                DevTexto().find("'Solución en X= 1E-08") != std::string::npos)
        << DevTexto();
}

TEST_F(Enlace, LasInterseccionesSonLasSolucionesDeLaDiferencia) {
    Define(0, "X^2");
    Define(1, "X+2");
    QMenu& menú = AbreMenúFunción(0);
    EXPECT_EQ(DevEntrada(menú, "Intersecciones_1")->text(),
              QStringLiteral("Intersecciones con f&1"));
    EXPECT_EQ(DevEntrada(menú, "Intersecciones_0"), nullptr);
    EXPECT_EQ(DevEntrada(menú, "Intersecciones_2"), nullptr);
    Elige(menú, "Intersecciones_1");
    EXPECT_EQ(DevTexto(), "(X^2)-(X+2),-10,10");
    Pulsa("HallarSoluciones");
    EXPECT_TRUE(DevTexto().ends_with("'Solución en X=-1\n'Solución en X= 2\n")) << DevTexto();
    EXPECT_TRUE(Busca<QWidget>("VisorFunciones")
                    .accessibleDescription()
                    .endsWith(QStringLiteral("Marcas: Corte de f0(X) y f1(X) en X=-1, vale 1; "
                                             "Corte de f0(X) y f1(X) en X=2, vale 4")));
}

TEST_F(Enlace, UnTextoQueNoEsFórmulaNoSeLleva) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    caja.setFocus();
    QTest::keyClicks(&caja, QStringLiteral("x^2+"));
    QMenu& menú = AbreMenúFunción(0);
    EXPECT_EQ(DevEntrada(menú, "LlevarALaHoja"), nullptr);
    menú.close();
    EXPECT_FALSE(Busca<QToolButton>("cmdMenúfx_0").isEnabled());
    QTest::keyClicks(&caja, QStringLiteral("1"));
    EXPECT_TRUE(Busca<QToolButton>("cmdMenúfx_0").isEnabled());
    caja.clear();
    EXPECT_FALSE(Busca<QToolButton>("cmdMenúfx_0").isEnabled());
}

TEST_F(Enlace, DibujarPoneLaFunciónEnLaPrimeraCajaLibre) {
    Pon("X^2-4,-5,5\n'Derivada : \n'2*X\n'Solución en X= 2");
    Elige(AbreMenú(0), "Dibujar");
    EXPECT_EQ(DevFunción(0), "X^2-4");
    EXPECT_TRUE(EstáEncendida(0));
    Define(1, "1");
    Busca<QCheckBox>("chkfx_1").click(); // off, but not free
    Elige(AbreMenú(2), "Dibujar");
    EXPECT_EQ(DevFunción(1), "1");
    EXPECT_EQ(DevFunción(2), "2*X");
    EXPECT_TRUE(EstáEncendida(2));
    QMenu& menú = AbreMenú(3);
    EXPECT_EQ(DevEntrada(menú, "Dibujar"), nullptr);
    EXPECT_NE(DevEntrada(menú, "LlevarPuntoX"), nullptr);
    menú.close();
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5\n'Derivada : \n'2*X\n'Solución en X= 2");
}

TEST_F(Enlace, SinCajaLibrePreguntaCuálSeSustituye) {
    for (int i = 0; i < 4; ++i)
        Define(i, std::to_string(i).c_str());
    Pon("X^2");
    const auto elige = [&](bool acepta) {
        return ConDiálogos([&] { Elige(AbreMenú(0), "Dibujar"); },
                           [&](QWidget& diálogo) {
                               auto& lista = *diálogo.findChild<QComboBox*>();
                               EXPECT_EQ(lista.count(), 4);
                               EXPECT_EQ(lista.itemText(2), QStringLiteral("f2(X)=2"));
                               lista.setCurrentIndex(2);
                               acepta ? dynamic_cast<QDialog&>(diálogo).accept()
                                      : dynamic_cast<QDialog&>(diálogo).reject();
                           });
    };
    EXPECT_EQ(elige(false), 1);
    EXPECT_EQ(DevFunción(2), "2");
    EXPECT_EQ(elige(true), 1);
    EXPECT_EQ(DevFunción(2), "X^2");
    EXPECT_EQ(DevFunción(1), "1");
}

TEST_F(Enlace, ElPuntoXVaADondeDiceElResultado) {
    Pon("'Solución en X= 2\n'Máximo en X=-1    f(X)= 2\n'Area= 8\n'Mínimo en X= 30    f(X)=-50");
    Elige(AbreMenú(0), "LlevarPuntoX");
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("2"));
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "-10", "10", "-10"}));
    ConCtrl(1);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-1"));
    QMenu& menú = AbreMenú(2);
    EXPECT_EQ(DevEntrada(menú, "LlevarPuntoX"), nullptr);
    menú.close();
    ConCtrl(2);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-1"));
    ConCtrl(3); // which lies outside
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("30"));
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"40", "20", "-40", "-60"}));
    QTest::mouseClick(txtSalida.viewport(), Qt::LeftButton, Qt::NoModifier, DevLugar(0));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("30"));
    ConCtrl(0);
    QTest::mouseClick(txtSalida.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      DevLugar(3) + QPoint(0, 40)); // the empty paper
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("2"));
}

// Not the line in which the cursor stood before.
TEST_F(Enlace, ElMenúDeUnaLíneaTrataDeEsaLínea) {
    Pon("12,18\nX^3\nX^4");
    txtSalida.moveCursor(QTextCursor::End);
    QMenu& menú = AbreMenú(1);
    menú.setActiveAction(&Busca<QAction>("ComentarLíneas"));
    QTest::keyClick(&menú, Qt::Key_Return);
    EXPECT_EQ(DevTexto(), "12,18\n'X^3\nX^4");
    txtSalida.selectAll();
    AbreMenú(0).close(); // a part of what is selected
    EXPECT_EQ(txtSalida.textCursor().selectedText().size(), 14);
}

TEST_F(Enlace, LaPreguntaPorLaCajaCabeEnLaPantalla) {
    const QString larga = QStringLiteral("X^3-3*X^2-").repeated(80) + u'X';
    Pon(larga.toLatin1().constData());
    for (int i = 0; i < 4; ++i)
        Elige(AbreMenú(0), "Dibujar");
    EXPECT_EQ(Busca<QLineEdit>("txtfx_0").cursorPosition(), 0); // read from its beginning
    Pon("X^2");
    EXPECT_EQ(ConDiálogos([this] { Elige(AbreMenú(0), "Dibujar"); },
                          [](QWidget& diálogo) {
                              EXPECT_LT(diálogo.width(), 640);
                              auto* lista = diálogo.findChild<QComboBox*>();
                              lista->setCurrentIndex(2);
                              dynamic_cast<QDialog&>(diálogo).accept();
                          }),
              1);
    EXPECT_EQ(DevFunción(2), "X^2");
    EXPECT_EQ(DevFunción(1), larga.toStdString());
}

TEST_F(Enlace, ElMenúDeLaHojaTieneLasÓrdenesQueValen) {
    Pon("X^2-4,-5,5");
    QMenu& menú = AbreMenú(0);
    const QStringList títulos = DevTítulos(menú);
    EXPECT_TRUE(títulos.contains(QStringLiteral("Cálculo numérico con una variable")));
    EXPECT_TRUE(títulos.contains(QStringLiteral("Hallar soluciones")));
    EXPECT_TRUE(títulos.contains(QStringLiteral("Dibu&jar")));
    EXPECT_FALSE(títulos.contains(QStringLiteral("Hallar derivada")));
    EXPECT_FALSE(títulos.contains(QStringLiteral("Números")));
    Elige(menú, "HallarSoluciones");
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5\n\n'Solución en X=-2\n'Solución en X= 2\n");
    Pon("");
    QMenu& vacía = AbreMenú(0);
    EXPECT_EQ(DevEntrada(vacía, "HallarSoluciones"), nullptr);
    EXPECT_NE(DevEntrada(vacía, "BuscarOrden"), nullptr);
    vacía.close();
}

// The entries are told apart by a letter, from the toolkit's own too.
TEST_F(Enlace, NingúnMenúContextualRepiteUnaLetraDeAcceso) {
    Define(0, "X^2");
    Define(1, "X");
    Define(2, "1");
    Pon("X^2-4,-5,5\n'Solución en X= 2");
    const auto comprueba = [](QMenu& menú) {
        QStringList letras;
        for (const QAction* acción : menú.actions())
            if (const QString letra = QKeySequence::mnemonic(acción->text()).toString();
                !letra.isEmpty())
                letras += letra;
        EXPECT_EQ(letras.removeDuplicates(), 0) << letras.join(u' ').toStdString();
        EXPECT_GE(letras.size(), 3);
        menú.close();
    };
    comprueba(AbreMenú(0));
    comprueba(AbreMenú(1));
    comprueba(AbreMenúFunción(0));
}

TEST_F(Enlace, LaTeclaDelMenúEsLaDeLaLíneaDelCursor) {
    Pon("12,18\nX^3");
    txtSalida.moveCursor(QTextCursor::End);
    QContextMenuEvent suceso(QContextMenuEvent::Keyboard, QPoint(1, 1),
                             txtSalida.viewport()->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(txtSalida.viewport(), &suceso);
    Elige(DevMenúAbierto(), "Dibujar");
    EXPECT_EQ(DevFunción(0), "X^3");
}

class Marcadas : public Enlace {
protected:
    Marcadas() { visor.setFixedSize(601, 401); }

    // The colour at a logical place of the window of the start.
    QColor DevColorEn(double x, double y, int dx = 0, int dy = 0) {
        QApplication::processEvents();
        const QImage imagen = visor.grab().toImage();
        return imagen.pixelColor(static_cast<int>((x + 10) / 20 * 600) + dx,
                                 static_cast<int>((10 - y) / 20 * 400) + dy);
    }
    // White inside and the curve's colour around: a hollow dot.
    bool HayMarca(double x, double y, const QColor& color) {
        int blancos = 0;
        for (const auto& [dx, dy] : {std::pair{0, 0}, {2, 2}, {-2, 2}, {2, -2}, {-2, -2}})
            blancos += DevColorEn(x, y, dx, dy) == QColor(Qt::white) ? 1 : 0;
        int bordes = 0;
        for (const auto& [dx, dy] : {std::pair{6, 0}, {-6, 0}, {0, 6}, {0, -6}})
            bordes += DevColorEn(x, y, dx, dy) == color ? 1 : 0;
        return blancos == 5 && bordes == 4;
    }
    QString DevDescripción() { return visor.accessibleDescription(); }

    VisorFunciones& visor = dynamic_cast<VisorFunciones&>(Busca<QWidget>("VisorFunciones"));
    const QColor magenta = QColor(255, 0, 255);
};

TEST_F(Marcadas, LosLugaresHalladosSonPuntosHuecosEnSuFunción) {
    Define(1, "X^2-4");
    EXPECT_FALSE(HayMarca(2, 0, magenta));
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    EXPECT_TRUE(HayMarca(2, 0, magenta));
    EXPECT_TRUE(HayMarca(-2, 0, magenta));
    EXPECT_EQ(visor.DevTextoEn(QPointF(360, 200)), QStringLiteral("Solución de f1(X) en X=2"));
    EXPECT_EQ(visor.DevTextoEn(QPointF(100, 100)), QString());
    EXPECT_TRUE(DevDescripción().endsWith(
        QStringLiteral("Marcas: Solución de f1(X) en X=-2; Solución de f1(X) en X=2")));
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarMínimos");
    EXPECT_FALSE(HayMarca(2, 0, magenta));
    Busca<QScrollBar>("hsx").setValue(50); // whose dot lies above the mark
    EXPECT_TRUE(HayMarca(0, -4, magenta));
}

TEST_F(Marcadas, SeVenBajoElPuntoX) {
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    Busca<QScrollBar>("hsx").setValue(20);
    for (const int lado : {-6, 6})
        EXPECT_EQ(DevColorEn(2, 0, lado), magenta);
    EXPECT_EQ(DevColorEn(2, 0, 2), magenta); // the dot itself
    EXPECT_EQ(DevColorEn(-2, 0, 2), QColor(Qt::white));
}

// The command tells of every change of sign; there the curve has no zero.
TEST_F(Marcadas, UnPoloNoSeMarca) {
    Define(1, "TAN(X)");
    Resuelve(QStringLiteral("TAN(X),-2,4.1"), "HallarSoluciones");
    EXPECT_NE(DevTexto().find("'Solución en X= 1.57079633"), std::string::npos);
    EXPECT_TRUE(DevDescripción().endsWith(
        QStringLiteral("Marcas: Solución de f1(X) en X=0; Solución de f1(X) en X=3.14159265")))
        << DevDescripción().toStdString();
}

TEST_F(Marcadas, ElGloboLoDice) {
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    QHelpEvent suceso(QEvent::ToolTip, QPoint(361, 199), visor.mapToGlobal(QPoint(361, 199)));
    QApplication::sendEvent(&visor, &suceso);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Solución de f1(X) en X=2"));
    QToolTip::hideText();
}

TEST_F(Marcadas, UnaOrdenQueNadaHallaLasDeja) {
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    Resuelve(QStringLiteral("X^2-4,5,-5"), "HallarSoluciones"); // refused
    EXPECT_EQ(grabados.mensajes.size(), 1U);
    EXPECT_TRUE(HayMarca(2, 0, magenta));
    Resuelve(QStringLiteral("X^2"), "HallarDerivada");
    Resuelve(QStringLiteral("X^2+4,-5,5"), "HallarSoluciones"); // there is none
    EXPECT_TRUE(HayMarca(2, 0, magenta));
    Resuelve(QStringLiteral("X^2-9,-5,5"), "HallarSoluciones"); // of a function that is not drawn
    EXPECT_FALSE(HayMarca(2, 0, magenta));
    EXPECT_FALSE(DevDescripción().contains(QStringLiteral("Marcas")));
}

TEST_F(Marcadas, QuitarMarcasLasQuita) {
    EXPECT_FALSE(Busca<QAction>("QuitarMarcas").isEnabled());
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    EXPECT_TRUE(Busca<QAction>("QuitarMarcas").isEnabled());
    Pulsa("QuitarMarcas");
    EXPECT_FALSE(HayMarca(2, 0, magenta));
    EXPECT_FALSE(DevDescripción().contains(QStringLiteral("Marcas")));
    EXPECT_FALSE(Busca<QAction>("QuitarMarcas").isEnabled());
}

TEST_F(Marcadas, SiguenALaFunción) {
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    Busca<QCheckBox>("chkfx_1").click();
    EXPECT_FALSE(HayMarca(2, 0, magenta));
    Busca<QCheckBox>("chkfx_1").click();
    EXPECT_TRUE(HayMarca(2, 0, magenta));
    auto& caja = Busca<QLineEdit>("txtfx_1");
    caja.setFocus();
    caja.end(false);
    QTest::keyClicks(&caja, QStringLiteral("-1"));
    EXPECT_FALSE(HayMarca(2, 0, magenta));
}

// Where there is none, or the command's steps are too few, the number is not told as if it were
// one.
TEST_F(Marcadas, UnÁreaDudosaLoDice) {
    const struct {
        const char* función;
        bool dudosa;
    } casos[] = {{"TAN(X)", true},     {"1/X", true},       {"SIN(311.048776594*X)^2", true},
                 {"SIN(X)", false},    {"EXP(X)", false},   {"SQR(4-X^2)", false},
                 {"SIN(10*X)", false}, {"X^3-3*X", false},  {"0*X", false},
                 {"SQR(X)", false},    {"1/(1+X^2)", false}};
    for (const auto& caso : casos) {
        Define(1, caso.función);
        Resuelve(QString::fromLatin1(caso.función) + QStringLiteral(",-5,5.1"),
                 "HallarÁreaIntervalo");
        ASSERT_TRUE(DevDescripción().contains(QStringLiteral("Área de f1(X) de -5 a 5.1: ")))
            << caso.función;
        EXPECT_EQ(DevDescripción().endsWith(QStringLiteral(" (poco fiable)")), caso.dudosa)
            << caso.función << DevDescripción().toStdString();
    }
}

TEST_F(Marcadas, ElÁreaSeSombrea) {
    Define(1, "X-1");
    const QColor antes = DevColorEn(4, 2);
    Resuelve(QStringLiteral("X-1,-3,5"), "HallarÁreaIntervalo");
    const auto esSombra = [&](double x, double y) {
        const QColor color = DevColorEn(x, y, 2, 2); // beside the grid
        return color.green() < 230 && color.red() == 255 && color.blue() == 255;
    };
    EXPECT_TRUE(esSombra(4, 2));
    EXPECT_TRUE(esSombra(-2, -2));
    EXPECT_FALSE(esSombra(4, 4));
    EXPECT_FALSE(esSombra(4, -1));
    EXPECT_FALSE(esSombra(6, 2));
    EXPECT_FALSE(esSombra(-4, -2));
    EXPECT_EQ(visor.DevTextoEn(QPointF(420, 170)).left(23),
              QStringLiteral("Área de f1(X) de -3 a 5"));
    EXPECT_EQ(visor.DevTextoEn(QPointF(420, 100)), QString());
    EXPECT_TRUE(DevDescripción().contains(QStringLiteral("Marcas: Área de f1(X) de -3 a 5: ")));
    Pulsa("QuitarMarcas");
    EXPECT_EQ(DevColorEn(4, 2), antes);
}

// The copy has what the screen has.
TEST_F(Marcadas, LaImagenCopiadaLasTiene) {
    Define(1, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    const QImage con = visor.grab().toImage();
    Pulsa("QuitarMarcas");
    EXPECT_NE(con, visor.grab().toImage());
}

} // namespace
} // namespace quiralto
