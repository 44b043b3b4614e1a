// The colours of the worksheet's lines, and the line under a faulty one.

#include "tests/ui/paletas.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/contraste.h"

#include <QTextBlock>
#include <QTextLayout>

namespace quiralto {
namespace {

class Resaltada : public VentanaDePrueba {
protected:
    // The colour of a character; none where it is the text's own.
    QColor DevColor(int línea, int columna) {
        const QTextBlock bloque = txtSalida.document()->findBlockByNumber(línea);
        for (const QTextLayout::FormatRange& trozo : bloque.layout()->formats())
            if (columna >= trozo.start && columna < trozo.start + trozo.length)
                return trozo.format.foreground().color();
        return {};
    }
    std::string DevSubrayado() {
        QString texto;
        for (const QTextEdit::ExtraSelection& trozo : txtSalida.extraSelections())
            if (trozo.format.underlineStyle() != QTextCharFormat::NoUnderline)
                texto += trozo.cursor.selectedText();
        return texto.toStdString();
    }
    bool EsperaSubrayado(const char* texto, int plazo = 400) {
        return QTest::qWaitFor([&] { return DevSubrayado() == texto; }, plazo);
    }
};

TEST_F(Resaltada, LosComentariosYLosResultadosTienenOtroColor) {
    txtSalida.setPlainText(
        QStringLiteral("X^2,1,2 'nota\n  'otra\n'Derivada : \n'2*X\nSimplificación :X\nX+1"));
    const QColor color = DevColor(1, 2);
    ASSERT_TRUE(color.isValid());
    EXPECT_FALSE(DevColor(0, 0).isValid());
    EXPECT_FALSE(DevColor(0, 7).isValid());
    EXPECT_EQ(DevColor(0, 8), color);
    EXPECT_EQ(DevColor(0, 12), color);
    for (const int línea : {2, 3, 4})
        EXPECT_EQ(DevColor(línea, 0), color) << línea;
    EXPECT_FALSE(DevColor(5, 0).isValid());
}

TEST_F(Resaltada, ElColorCambiaConLoQueSeEscribe) {
    QTest::keyClicks(&txtSalida, QStringLiteral("x"));
    EXPECT_FALSE(DevColor(0, 0).isValid());
    QTest::keyClick(&txtSalida, Qt::Key_Apostrophe, Qt::ControlModifier);
    EXPECT_TRUE(DevColor(0, 1).isValid());
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(DevColor(0, 0).isValid());
    EXPECT_EQ(DevTexto(), "X");
}

TEST_F(Resaltada, SeLeenEnTodaPaleta) {
    txtSalida.setPlainText(QStringLiteral("'nota\nX^2,5,-5\n"));
    ASSERT_TRUE(EsperaSubrayado("X^2,5,-5"));
    QColor anterior;
    for (const QPalette& paleta : {DevPaletaClara(), DevPaletaOscura()}) {
        const ConPaleta puesta(paleta);
        const QColor papel = txtSalida.palette().color(QPalette::Base);
        EXPECT_EQ(papel, paleta.color(QPalette::Base));
        EXPECT_GE(DevContraste(DevColor(0, 0), papel), ContrasteDeTexto);
        ASSERT_EQ(txtSalida.extraSelections().size(), 1);
        EXPECT_GE(DevContraste(txtSalida.extraSelections()[0].format.underlineColor(), papel),
                  ContrasteDeTexto);
        // told from the data too
        EXPECT_GE(DevContraste(DevColor(0, 0), txtSalida.palette().color(QPalette::Text)), 1.3);
        EXPECT_NE(DevColor(0, 0), anterior);
        anterior = DevColor(0, 0);
    }
}

TEST_F(Resaltada, LaLíneaErróneaSeSubraya) {
    txtSalida.setPlainText(QStringLiteral("'nota\nX^2,5,-5 'fin\n"));
    txtSalida.moveCursor(QTextCursor::End);
    EXPECT_TRUE(EsperaSubrayado("X^2,5,-5 ")) << DevSubrayado();
    txtSalida.setPlainText(QStringLiteral("X(1)=1\nX(2)=*\n"));
    txtSalida.moveCursor(QTextCursor::End);
    EXPECT_TRUE(EsperaSubrayado("X(2)=*")) << DevSubrayado();
    txtSalida.setPlainText(QStringLiteral("X^2,-5,5"));
    EXPECT_TRUE(EsperaSubrayado("")) << DevSubrayado();
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Resaltada, LaQueSeEstáEscribiendoSóloTrasUnaPausaOAlDejarla) {
    QTest::keyClicks(&txtSalida, QStringLiteral("x^2-"));
    EXPECT_FALSE(EsperaSubrayado("X^2-", 500));
    EXPECT_TRUE(EsperaSubrayado("X^2-", 1000));
    QTest::keyClicks(&txtSalida, QStringLiteral("*"));
    EXPECT_TRUE(EsperaSubrayado("", 400));
    QTest::keyClick(&txtSalida, Qt::Key_Return);
    EXPECT_TRUE(EsperaSubrayado("X^2-*", 500));
}

} // namespace
} // namespace quiralto
