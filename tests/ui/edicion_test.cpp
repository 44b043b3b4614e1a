// The menu "&Edición": undo and the clipboard, comments, the last command again, and the search for
// a command.

#include "tests/ui/ventana_de_prueba.h"

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBlock>
#include <QTreeWidget>

namespace quiralto {
namespace {

class MenúEdición : public VentanaDePrueba {
protected:
    MenúEdición() { QApplication::clipboard()->clear(); }

    void Pon(const char* texto, int línea = -1) {
        txtSalida.setPlainText(QString::fromUtf8(texto));
        txtSalida.moveCursor(QTextCursor::End);
        if (línea >= 0)
            txtSalida.setTextCursor(QTextCursor(txtSalida.document()->findBlockByNumber(línea)));
    }
    static std::string DevPegado() { return QApplication::clipboard()->text().toStdString(); }
    // The menu as it opens, without a screen to show it on.
    bool SePuede(const char* acción) {
        auto& menú = Busca<QMenu>("MenúEdición");
        Q_EMIT menú.aboutToShow();
        const bool puede = Busca<QAction>(acción).isEnabled();
        Q_EMIT menú.aboutToHide();
        return puede;
    }
};

TEST_F(MenúEdición, DeshaceYPegaEnLaCajaQueTeníaElFoco) {
    auto& caja = Busca<QLineEdit>("txtfx_1");
    EXPECT_FALSE(SePuede("Deshacer"));
    QTest::keyClicks(&txtSalida, QStringLiteral("x^2"));
    EXPECT_TRUE(SePuede("Deshacer"));
    EXPECT_FALSE(SePuede("Copiar"));
    txtSalida.selectAll();
    EXPECT_TRUE(SePuede("Cortar"));
    Pulsa("Cortar");
    EXPECT_EQ(DevTexto(), "");
    EXPECT_EQ(DevPegado(), "X^2");
    caja.setFocus();
    EXPECT_FALSE(SePuede("Deshacer"));
    Busca<QWidget>("VisorFunciones").setFocus(); // which is no box
    Pulsa("Pegar");
    EXPECT_EQ(caja.text(), QStringLiteral("X^2"));
    Pulsa("Deshacer");
    EXPECT_EQ(caja.text(), QString());
    Pulsa("Rehacer");
    EXPECT_EQ(caja.text(), QStringLiteral("X^2"));
    txtSalida.setFocus();
    Pulsa("Deshacer");
    EXPECT_EQ(DevTexto(), "X^2");
}

TEST_F(MenúEdición, UnaCajaQueSóloSeLeeSóloSeCopia) {
    Define(0, "X+3");
    auto& valor = Busca<QLineEdit>("txtFxValor_0");
    valor.setFocus();
    valor.selectAll();
    EXPECT_TRUE(SePuede("Copiar"));
    EXPECT_FALSE(SePuede("Cortar"));
    EXPECT_FALSE(SePuede("Pegar"));
    Pulsa("Copiar");
    EXPECT_EQ(DevPegado(), "3");
}

TEST_F(MenúEdición, CopiarTodoLlevaLasFuncionesYLaVentana) {
    Define(0, "X^2-4");
    Define(2, "SIN(X)");
    Busca<QCheckBox>("chkfx_2").click();
    Pulsa("ZoomEjeX_3");
    Pon("X^2-4,-5,5\n\n'Solución en X=-2");
    Pulsa("CopiarTodo");
    EXPECT_EQ(DevPegado(), "'f0(X)=X^2-4\n'f2(X)=SIN(X), sin dibujar\n"
                           "'Ventana: X de -5 a 5, Y de -10 a 10\n"
                           "X^2-4,-5,5\n\n'Solución en X=-2");
    txtSalida.clear();
    txtSalida.setFocus();
    Pulsa("Pegar"); // and it is the same data as before
    EXPECT_EQ(ConLf(LeeTextBox(dynamic_cast<CajaHoja&>(txtSalida).DevTexto()).at(0)), "X^2-4,-5,5");
}

TEST_F(MenúEdición, RepetirEsLaÚltimaOrdenElegidaAunqueSeRechazara) {
    EXPECT_FALSE(Busca<QAction>("RepetirOrden").isEnabled());
    Pon("X^2-4,-5,5");
    QTest::keyClick(&txtSalida, Qt::Key_F5);
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5");
    Pulsa("HallarSoluciones");
    Pon("X^2-9,5,-5");
    QTest::keyClick(&txtSalida, Qt::Key_F5);
    EXPECT_EQ(grabados.mensajes.size(), 1U);
    Pon("X^2-9,-5,5");
    QTest::keyClick(&txtSalida, Qt::Key_F5);
    EXPECT_EQ(DevTexto(), "X^2-9,-5,5\n\n'Solución en X=-3\n'Solución en X= 3\n");
    Pon("X");
    Pulsa("HallarMáximos"); // refused, and now the last one
    EXPECT_EQ(grabados.mensajes.size(), 2U);
    Pon("X^3-3*X,-5,5");
    Pulsa("RepetirOrden");
    EXPECT_TRUE(DevTexto().find("'Máximo en X=-1") != std::string::npos) << DevTexto();
    EXPECT_EQ(Busca<QAction>("RepetirOrden").statusTip(), QStringLiteral("Hallar máximos"));
}

TEST_F(MenúEdición, ComentaYDescomentaLasLíneasElegidas) {
    Pon("X^2\nX^3\n\n'nota\nX^4", 1);
    QTest::keyClick(&txtSalida, Qt::Key_Apostrophe, Qt::ControlModifier);
    EXPECT_EQ(DevTexto(), "X^2\n'X^3\n\n'nota\nX^4");
    QTest::keyClick(&txtSalida, Qt::Key_Apostrophe, Qt::ControlModifier);
    EXPECT_EQ(DevTexto(), "X^2\nX^3\n\n'nota\nX^4");

    QTextCursor cursor = txtSalida.textCursor();
    cursor.setPosition(5);                           // in the second line
    cursor.setPosition(15, QTextCursor::KeepAnchor); // at the beginning of the last one
    ASSERT_EQ(cursor.block().text(), QStringLiteral("X^4"));
    txtSalida.setTextCursor(cursor);
    Pulsa("ComentarLíneas");
    EXPECT_EQ(DevTexto(), "X^2\n'X^3\n\n''nota\nX^4");
    EXPECT_TRUE(txtSalida.textCursor().hasSelection());
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier); // one step
    EXPECT_EQ(DevTexto(), "X^2\nX^3\n\n'nota\nX^4");
}

TEST_F(MenúEdición, ComentaLosDatosAnteriores) {
    Pon("X^2\n'nota\n  X^3 'cubo\nSimplificación :X+1\nX^4");
    Pulsa("ComentarDatosAnteriores");
    const std::string comentada = "'X^2\n'nota\n'  X^3 'cubo\n'Simplificación :X+1\nX^4";
    EXPECT_EQ(DevTexto(), comentada);
    Pulsa("ComentarDatosAnteriores");
    EXPECT_EQ(DevTexto(), comentada);
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(DevTexto(), "X^2\n'nota\n  X^3 'cubo\nSimplificación :X+1\nX^4");
    Pon("X^2\nX^3\n", 1);
    Pulsa("ComentarDatosAnteriores");
    EXPECT_EQ(DevTexto(), "'X^2\nX^3\n");
}

class Búsqueda : public MenúEdición {
protected:
    std::vector<std::string> DevVisibles() const {
        std::vector<std::string> visibles;
        for (int i = 0; i < lista.topLevelItemCount(); ++i)
            if (!lista.topLevelItem(i)->isHidden())
                visibles.push_back(lista.topLevelItem(i)->text(0).toStdString());
        return visibles;
    }

    QDialog& Abierto() {
        QTest::keyClick(&txtSalida, Qt::Key_K, Qt::ControlModifier);
        return Busca<QDialog>("frmBuscarOrden");
    }
    QDialog& diálogo = Abierto();
    QTreeWidget& lista = Busca<QTreeWidget>("listaÓrdenes");
    QLineEdit& caja = Busca<QLineEdit>("txtBuscarOrden");
};

TEST_F(Búsqueda, EnseñaLasVeinticuatroConSusDatosYSuEjemplo) {
    EXPECT_TRUE(diálogo.isVisible());
    EXPECT_EQ(diálogo.focusWidget(), &caja);
    ASSERT_EQ(static_cast<std::size_t>(lista.topLevelItemCount()), DevÓrdenes().size());
    EXPECT_EQ(DevVisibles().size(), 24U);
    const QTreeWidgetItem& soluciones = *lista.topLevelItem(6);
    EXPECT_EQ(soluciones.text(0), QStringLiteral("Hallar soluciones"));
    EXPECT_EQ(soluciones.text(1), QStringLiteral("f(x),extremo1,extremo2"));
    EXPECT_EQ(soluciones.text(2), QStringLiteral("X^2-4,-5,5"));
    EXPECT_FALSE(lista.topLevelItem(0)->text(2).contains(u'\n'));
}

TEST_F(Búsqueda, FiltraSinTildesNiMayúsculasMientrasSeTeclea) {
    QTest::keyClicks(&caja, QStringLiteral("INFLEX"));
    EXPECT_EQ(DevVisibles(), (std::vector<std::string>{"Hallar puntos de inflexión"}));
    caja.clear();
    QTest::keyClicks(&caja, QStringLiteral("comun max"));
    EXPECT_EQ(DevVisibles(),
              (std::vector<std::string>{"Hallar máximo común divisor",
                                        "Máximo común divisor funciones racionales"}));
    caja.clear();
    QTest::keyClicks(&caja, QStringLiteral("derivar")); // its command text
    EXPECT_EQ(DevVisibles(), (std::vector<std::string>{"Hallar derivada"}));
    QTest::keyClicks(&caja, QStringLiteral("zz"));
    EXPECT_TRUE(DevVisibles().empty());
    EXPECT_FALSE(Busca<QPushButton>("cmdEjecutarOrden").isEnabled());
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_TRUE(diálogo.isVisible());
}

TEST_F(Búsqueda, EnterEjecutaLaMarcada) {
    txtSalida.setPlainText(QStringLiteral("X^3-3*X,-5,5"));
    QTest::keyClicks(&caja, QStringLiteral("imos"));
    EXPECT_EQ(DevVisibles(),
              (std::vector<std::string>{"Descomponer en factores primos", "Hallar números primos",
                                        "Hallar máximos", "Hallar mínimos"}));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&caja, Qt::Key_Down);
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_FALSE(diálogo.isVisible());
    EXPECT_TRUE(DevTexto().find("'Mínimo en X= 1") != std::string::npos) << DevTexto();
    EXPECT_TRUE(DevTexto().find("'Máximo") == std::string::npos) << DevTexto();

    QTest::keyClick(&txtSalida, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(caja.text(), QString());
    EXPECT_EQ(DevVisibles().size(), 24U);
}

// "max" and Enter is a maximum of a function, and the greatest divisor of numbers.
TEST_F(Búsqueda, SeMarcaLaPrimeraALaQueConvienenLosDatos) {
    const auto marcada = [&](const char* datos, const char* parte) {
        diálogo.reject();
        txtSalida.setPlainText(QString::fromUtf8(datos));
        QTest::keyClick(&txtSalida, Qt::Key_K, Qt::ControlModifier);
        QTest::keyClicks(&caja, QString::fromUtf8(parte));
        return lista.currentItem()->text(0).toStdString();
    };
    EXPECT_EQ(marcada("X^3-3*X,-5,5", "max"), "Hallar máximos");
    EXPECT_EQ(marcada("12,18", "max"), "Hallar máximo común divisor");
    EXPECT_EQ(marcada("X^2,2", "tangente"), "Hallar la ecuación de la tangente a un punto");
    EXPECT_EQ(marcada("X^2,2", "primos"), "Descomponer en factores primos"); // none
    EXPECT_EQ(marcada("", "max"), "Hallar máximo común divisor");
    EXPECT_EQ(marcada("X^2-4,-5,5", ""), "Hallar soluciones");
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5\n\n'Solución en X=-2\n'Solución en X= 2\n");
}

TEST_F(Búsqueda, EscapeNoHaceNada) {
    txtSalida.setPlainText(QStringLiteral("X^2-4,-5,5"));
    QTest::keyClick(&caja, Qt::Key_Escape);
    EXPECT_FALSE(diálogo.isVisible());
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5");
    EXPECT_FALSE(Busca<QAction>("RepetirOrden").isEnabled());
}

TEST_F(MenúEdición, CtrlKBuscaTambiénDesdeUnaFunción) {
    Define(0, "X^2");
    auto& caja = Busca<QLineEdit>("txtfx_0");
    QTest::keyClick(&caja, Qt::Key_Home);
    QTest::keyClick(&caja, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(caja.text(), QStringLiteral("X^2"));
    EXPECT_TRUE(Busca<QDialog>("frmBuscarOrden").isVisible());
}

// Two entries of one menu, or two titles of the bar and the labels beside it, never have one
// letter.
TEST_F(MenúEdición, NingúnMenúRepiteUnaLetraDeAcceso) {
    const auto letra = [](const QString& texto) {
        return QKeySequence::mnemonic(texto).toString();
    };
    const auto comprueba = [&](const QList<QAction*>& acciones, QSet<QString> vistas) {
        for (const QAction* acción : acciones) {
            const QString suya = letra(acción->text());
            EXPECT_FALSE(!suya.isEmpty() && vistas.contains(suya)) << acción->text().toStdString();
            vistas += suya;
        }
        return vistas;
    };
    QSet<QString> vistas = comprueba(formulario.menuBar()->actions(), {});
    for (const QLabel* etiqueta : formulario.findChildren<QLabel*>()) {
        const QString suya = letra(etiqueta->text());
        if (etiqueta->buddy() == nullptr || suya.isEmpty() || etiqueta->window() != &formulario)
            continue;
        EXPECT_FALSE(vistas.contains(suya)) << etiqueta->text().toStdString();
        vistas += suya;
    }
    for (const QMenu* menú : formulario.menuBar()->findChildren<QMenu*>())
        comprueba(menú->actions(), {});
    for (const QAction* acción : Busca<QMenu>("MenúEdición").actions())
        EXPECT_TRUE(acción->isSeparator() || acción->text().contains(u'&'))
            << acción->text().toStdString();
}

} // namespace
} // namespace quiralto
