// Small things of the picture and of the boxes that no other test would miss.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"
#include "ui/dibujo/rotulos.h"

#include <QClipboard>

namespace quiralto {
namespace {

class Detalles : public VentanaDePrueba {
protected:
    QWidget& visor = Busca<QWidget>("VisorFunciones");
};

TEST_F(Detalles, OtraLetraCambiaLosRótulosDeUnaGráfica) {
    Define(3, "9");
    const QRect abajo(1, visor.height() / 2, visor.width() - 2, visor.height() / 2 - 2);
    const QImage antes = visor.grab(abajo).toImage();
    QFont grande = visor.font();
    grande.setPointSize(grande.pointSize() * 2);
    visor.setFont(grande);
    EXPECT_NE(visor.grab(abajo).toImage(), antes);
}

TEST_F(Detalles, UnaCasillaMarcadaTieneSuMarca) {
    Define(0, "X");
    txtSalida.setFocus();
    auto& encendida = Busca<QCheckBox>("chkfx_0");
    auto& apagada = Busca<QCheckBox>("chkfx_1");
    ASSERT_TRUE(encendida.isChecked());
    ASSERT_FALSE(apagada.isChecked());
    EXPECT_NE(encendida.grab().toImage(), apagada.grab().toImage());
}

TEST_F(Detalles, LaGráficaCopiadaTieneMarco) {
    Pulsa("CopiarGráfica");
    const QImage imagen = QApplication::clipboard()->image();
    for (int x = 1; x < imagen.width() - 1; ++x)
        ASSERT_LT(imagen.pixelColor(x, 0).lightness(), ColorRejilla.lightness()) << x;
}

TEST_F(Detalles, UnPuntoXQueDesbordaSeRechaza) {
    auto& caja = Busca<QLineEdit>("txtPuntoX");
    caja.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&caja, QStringLiteral("1E999"));
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_EQ(grabados.mensajes.size(), 1U);
}

TEST_F(Detalles, UnClicTrasElTabuladorPoneElCursor) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    caja.setText(QStringLiteral("X^2-4"));
    caja.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(caja.selectedText(), QStringLiteral("X^2-4"));
    QTest::mouseClick(&caja, Qt::LeftButton, Qt::NoModifier, QPoint(20, caja.height() / 2));
    EXPECT_EQ(caja.selectedText(), QString());
}

TEST_F(Detalles, ControlConMayúsculasNoEscribe) {
    QKeyEvent suceso(QEvent::KeyPress, Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier,
                     QStringLiteral("H"));
    QApplication::sendEvent(&txtSalida, &suceso);
    EXPECT_EQ(txtSalida.toPlainText(), QString());
}

TEST(ColoresAtenuados, SonUnCuartoDelSuyoSobrePapel) {
    EXPECT_EQ(DevColorAtenuado(0), QColor(191, 191, 191));
    EXPECT_EQ(DevColorAtenuado(1), QColor(255, 191, 255));
    EXPECT_EQ(DevColorAtenuado(2), QColor(255, 191, 191));
    EXPECT_EQ(DevColorAtenuado(3), QColor(191, 191, 255));
}

TEST(RótuloDelOrigen, EstáAUnLadoDelEje) {
    QImage imagen(16, 16, QImage::Format_RGB32);
    const Lienzo lienzo{QRectF(0, 0, 800, 400), 1};
    const Ventana ventana;
    for (const Rótulo& rótulo :
         DevRótulos(QFontMetricsF(QFont(), &imagen), lienzo, ventana,
                    DevMarcas(-10, 10, 800).mayores, DevMarcas(-10, 10, 400).mayores)
             .enX)
        if (rótulo.texto == QStringLiteral("0"))
            EXPECT_LT(rótulo.marco.right(), 398);
        else
            EXPECT_FALSE(rótulo.marco.left() < 400 && rótulo.marco.right() > 400);
}

} // namespace
} // namespace quiralto
