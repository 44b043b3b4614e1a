// The manual as the window shows it.

#include "commands/ordenes.h"
#include "ui/formularios/frm_manual.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QtTest>

#include <gtest/gtest.h>

namespace quiralto {
namespace {

class Manual : public testing::Test {
protected:
    Manual() : texto(*frm.findChild<QTextBrowser*>(QStringLiteral("txtManual"))) { frm.show(); }

    QStringList DevTítulos() const {
        QStringList títulos;
        const QTextDocument& documento = *texto.document();
        for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next())
            if (bloque.blockFormat().headingLevel() > 0)
                títulos += bloque.text();
        return títulos;
    }

    FrmManual frm{nullptr};
    QTextBrowser& texto;
};

TEST_F(Manual, TieneUnTítuloParaCadaOrden) {
    const QStringList títulos = DevTítulos();
    for (const Orden& orden : DevÓrdenes()) {
        const QString título = QString::fromUtf8(orden.título);
        EXPECT_TRUE(títulos.contains(título)) << orden.título;
    }
}

TEST_F(Manual, EnseñaSusImágenes) {
    const QVariant imagen =
        texto.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("ventana.png")));
    EXPECT_TRUE(imagen.isValid());
}

TEST_F(Manual, SusEnlacesLlevanATítulos) {
    const QRegularExpression enlaces(QStringLiteral("\\]\\(#([^)]+)\\)"));
    int probados = 0;
    for (auto i = enlaces.globalMatch(texto.document()->toMarkdown()); i.hasNext(); ++probados) {
        const QString ancla = i.next().captured(1);
        texto.verticalScrollBar()->setValue(0);
        texto.moveCursor(QTextCursor::Start);
        texto.anchorClicked(QUrl(u'#' + ancla));
        const QTextBlock bloque = texto.textCursor().block();
        EXPECT_GT(bloque.blockFormat().headingLevel(), 0) << ancla.toStdString();
        EXPECT_GE(texto.cursorRect().top(), 0);
        EXPECT_LT(texto.cursorRect().bottom(), texto.viewport()->height());
    }
    EXPECT_GE(probados, 5);
}

TEST_F(Manual, BuscaPalabrasYVuelveAEmpezar) {
    auto& buscar = *frm.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
    buscar.setText(QStringLiteral("Hallar polinomio de Lagrange"));
    QTest::keyClick(&buscar, Qt::Key_Return);
    const int primero = texto.textCursor().position();
    EXPECT_EQ(texto.textCursor().selectedText(), buscar.text());
    QTest::keyClick(&buscar, Qt::Key_Return);
    QTest::keyClick(&buscar, Qt::Key_Return);
    QTest::keyClick(&buscar, Qt::Key_Return);
    EXPECT_EQ(texto.textCursor().selectedText(), buscar.text());
    EXPECT_GT(primero, 0);
}

TEST_F(Manual, EscapeLoCierra) {
    frm.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frm));
    QTest::keyClick(&frm, Qt::Key_Escape);
    EXPECT_FALSE(frm.isVisible());
}

} // namespace
} // namespace quiralto
