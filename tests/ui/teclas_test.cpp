// What the worksheet makes of keys, dead keys, pasted and dropped text.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/hoja/caja_formula.h"
#include "ui/hoja/filtro_teclas.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

namespace quiralto {
namespace {

class Teclas : public testing::Test {
protected:
    Teclas() {
        caja.show();
        caja.activateWindow();
        (void)QTest::qWaitForWindowActive(&caja);
        caja.setFocus();
    }
    // QTest's own knows ASCII alone.
    void Teclea(const QString& texto) {
        for (const uint código : texto.toUcs4()) {
            const auto carácter = static_cast<char32_t>(código);
            QKeyEvent suceso(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&carácter, 1));
            QApplication::sendEvent(&caja, &suceso);
        }
    }
    void Pega(const QString& texto) {
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(&caja, Qt::Key_V, Qt::ControlModifier);
    }

    int pitidos = 0;
    CajaHoja caja{nullptr, [this] { ++pitidos; }};
};

TEST_F(Teclas, LasLetrasSeHacenMayúsculas) {
    Teclea(QStringLiteral("sin(x)+ñáþ÷'a"));
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("SIN(X)+ÑÁÞ÷'A"));
    EXPECT_EQ(pitidos, 0);
}

TEST_F(Teclas, LosBlancosYLoQuePasaDe254SeTraganConPitido) {
    Teclea(QStringLiteral(" ÿ€ž😀"));
    EXPECT_EQ(caja.toPlainText(), QString());
    EXPECT_EQ(pitidos, 5);
}

TEST_F(Teclas, UnTextoNuevoTomaElLugarDelQueHabía) {
    caja.PonTexto("uno\r\ndos\r\ntres");
    for (const char* const texto : {"uno\r\ndosis\r\ny más", "un", "otro", ""}) {
        caja.PonTexto(texto);
        EXPECT_EQ(caja.DevTexto(), texto);
    }
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier); // one change, taken back as one
    EXPECT_EQ(caja.DevTexto(), "otro");
}

TEST_F(Teclas, LasTeclasDeEdiciónVanPorSuCamino) {
    QTest::keyClicks(&caja, QStringLiteral("ab"));
    QTest::keyClick(&caja, Qt::Key_Return);
    QTest::keyClicks(&caja, QStringLiteral("cd"));
    QTest::keyClick(&caja, Qt::Key_Backspace);
    QTest::keyClick(&caja, Qt::Key_Home);
    QTest::keyClick(&caja, Qt::Key_Delete);
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("AB\n"));
    QTest::keyClick(&caja, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&caja, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(caja.toPlainText(), QString());
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("AB\n"));
    EXPECT_EQ(pitidos, 0);
}

TEST_F(Teclas, AltConUnaLetraNoEscribe) {
    QTest::keyClick(&caja, Qt::Key_J, Qt::AltModifier);
    QTest::keyClick(&caja, Qt::Key_J, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(caja.toPlainText(), QString());
    QTest::keyClick(&caja, Qt::Key_J, Qt::AltModifier | Qt::ControlModifier); // AltGr
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("J"));
}

TEST_F(Teclas, IntroConMayúsculasEsIntro) {
    QTest::keyClicks(&caja, QStringLiteral("a"));
    QTest::keyClick(&caja, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&caja, QStringLiteral("b"));
    QTest::keyClick(&caja, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(caja.DevTexto(), "A\r\nB\r\n");
}

TEST_F(Teclas, ElTabuladorMueveElFoco) {
    QWidget ventana;
    auto* hoja = new CajaHoja(&ventana);
    auto* otra = new QPlainTextEdit(&ventana);
    ventana.show();
    ventana.activateWindow();
    (void)QTest::qWaitForWindowActive(&ventana);
    hoja->setFocus();
    QTest::keyClick(hoja, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), otra);
    EXPECT_EQ(hoja->toPlainText(), QString());
}

TEST_F(Teclas, LasTeclasMuertasPasanPorElFiltro) {
    QInputMethodEvent suceso;
    suceso.setCommitString(QStringLiteral("é x"));
    QApplication::sendEvent(&caja, &suceso);
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("ÉX"));
    EXPECT_EQ(pitidos, 1);
}

TEST_F(Teclas, LoPegadoSeHaceMayúsculasHastaElApóstrofo) {
    Pega(QStringLiteral("sin(x), 1 'nota ñ\n  'otra nota\nx^2,ñ\r\ncos(x)'fin"));
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("SIN(X),1'nota ñ\n'otra nota\nX^2,Ñ\nCOS(X)'fin"));
    EXPECT_EQ(pitidos, 0);
    QTest::keyClick(&caja, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caja.toPlainText(), QString());
}

TEST_F(Teclas, LoPegadoPierdeSusBlancosFueraDeLosComentarios) {
    const struct {
        const char* pegado;
        const char* queda;
    } casos[] = {
        {"x ^ 2 , -5,\t5", "X^2,-5,5"},
        {"1\t2.5\t-3", "1,2.5,-3"}, // a row of a table
        {"1\t\t3 ' sin y", "1,,3' sin y"},
        {"\t1 \t 2\t", "1,2"},
        {"x\t+\t1,\t(\tx\t)", "X+1,(X)"},
        {"'1\t2", "'1\t2"},
        {"x^2\u2028x^3\u2029x^4\vx^5\r\nx^6\rx^7", "X^2\nX^3\nX^4\nX^5\nX^6\nX^7"},
        {" 2*x + 1 ' dos y uno ", "2*X+1' dos y uno "},
        {"' todo esto se queda ", "' todo esto se queda "},
        {"Simplificación :(X+1)/(X-1)", "Simplificación :(X+1)/(X-1)"},
        {"'Solución en X= 2\n\nx", "'Solución en X= 2\n\nX"},
    };
    for (const auto& caso : casos) {
        caja.clear();
        Pega(QString::fromUtf8(caso.pegado));
        EXPECT_EQ(caja.toPlainText(), QString::fromUtf8(caso.queda)) << caso.pegado;
    }
    EXPECT_EQ(pitidos, 0);
}

TEST_F(Teclas, LoPegadoEnUnComentarioQuedaComoEstá) {
    caja.setPlainText(QStringLiteral("'nota de \nx"));
    QTextCursor cursor(caja.document());
    cursor.setPosition(9);
    caja.setTextCursor(cursor);
    Pega(QStringLiteral("hoy\ny+"));
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("'nota de hoy\nY+\nx"));
}

TEST_F(Teclas, LoSoltadoSeHaceMayúsculas) {
    QMimeData datos;
    datos.setText(QStringLiteral("x+e"));
    QDragEnterEvent entrada(QPoint(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(caja.viewport(), &entrada);
    QDropEvent suceso(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(caja.viewport(), &suceso);
    EXPECT_EQ(caja.toPlainText(), QStringLiteral("X+E"));
}

TEST_F(Teclas, UnaFórmulaQueNoCabeSeCortaConPitido) {
    CajaFormula fórmula(nullptr, [this] { ++pitidos; });
    const int cabe = fórmula.maxLength();
    QApplication::clipboard()->setText(QString(cabe, u'1'));
    fórmula.paste();
    EXPECT_EQ(pitidos, 0);
    QApplication::clipboard()->setText(QStringLiteral("+1"));
    fórmula.paste();
    EXPECT_EQ(fórmula.text().size(), cabe);
    EXPECT_EQ(pitidos, 1);
}

TEST_F(Teclas, LaHojaSeLeeConCrLfYTalComoEstá) {
    caja.setPlainText(QStringLiteral("a\u00A0b\nc d\n"));
    EXPECT_EQ(caja.DevTexto(), "a\u00A0b\r\nc d\r\n");
}

} // namespace
} // namespace quiralto
