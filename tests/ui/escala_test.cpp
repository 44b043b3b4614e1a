// The picture at the ratio of the screen, which ctest has at 1 and at 2.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"

#include <QClipboard>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

class Escala : public VentanaDePrueba {
protected:
    Escala() {
        visor.setFixedSize(601, 401);
        QTest::qWait(1);
    }
    QImage DevImagen() { return visor.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    // Rows, or columns, of a colour along a line of pixels across the image.
    static std::vector<int> DevLugares(const QImage& imagen, int línea, bool enColumna,
                                       const QColor& color) {
        std::vector<int> lugares;
        for (int i = 0; i < (enColumna ? imagen.height() : imagen.width()); ++i)
            if ((enColumna ? imagen.pixelColor(línea, i) : imagen.pixelColor(i, línea)) == color)
                lugares.push_back(i);
        return lugares;
    }

    QWidget& visor = Busca<QWidget>("VisorFunciones");
    const int escala = static_cast<int>(std::lround(visor.devicePixelRatioF()));
};

TEST_F(Escala, EsLaQueSePide) {
    const QByteArray pedida = qgetenv("QT_SCALE_FACTOR");
    EXPECT_EQ(visor.devicePixelRatioF(), pedida.isEmpty() ? 1.0 : pedida.toDouble());
}

TEST_F(Escala, LaImagenTieneTodosLosPíxelesDeLaPantalla) {
    EXPECT_EQ(DevImagen().size(), visor.size() * escala);
}

// The marker and the axes are a logical pixel wide, a curve one and a half; all have their middle
// where their value is.
TEST_F(Escala, LasLíneasTienenSuAnchuraYSuLugar) {
    Define(3, "5");
    Busca<QScrollBar>("hsx").setValue(50);
    const QImage imagen = DevImagen();
    const auto esperados = [&](double desde, double ancho) {
        std::vector<int> lugares;
        for (int i = 0; i < static_cast<int>(ancho * escala); ++i)
            lugares.push_back(static_cast<int>(desde * escala) + i);
        return lugares;
    };
    EXPECT_EQ(DevLugares(imagen, 30 * escala, false, ColorMarcador), esperados(450, 1));
    EXPECT_EQ(DevLugares(imagen, 130 * escala, true, ColorEje), esperados(200, 1));
    const std::vector<int> curva = DevLugares(imagen, 70 * escala, true, Qt::blue);
    const auto enteros = static_cast<double>(curva.size()); // but for those that its edges cross
    EXPECT_GE(enteros, 1.5 * escala - 1);
    EXPECT_LE(enteros, 1.5 * escala);
    EXPECT_NEAR(curva.front(), 100 * escala, 1);
}

TEST_F(Escala, LosRótulosCrecenConElla) {
    Busca<QScrollBar>("hsx").setValue(90);
    Define(3, "9");
    const QImage imagen = DevImagen();
    // the ink of "−8", left of the axis and above the middle of the lower half
    const QRect zona(QPoint(230, 350) * escala, QSize(66, 22) * escala);
    int arriba = imagen.height();
    int abajo = 0;
    for (int y = zona.top(); y <= zona.bottom(); ++y)
        for (int x = zona.left(); x <= zona.right(); ++x)
            if (imagen.pixelColor(x, y).lightness() < 110) {
                arriba = std::min(arriba, y);
                abajo = std::max(abajo, y);
            }
    const int alto = abajo - arriba + 1;
    EXPECT_GE(alto, 6 * escala);
    EXPECT_LE(alto, 13 * escala);
}

TEST_F(Escala, ElClicEsElLugarQueSeVe) {
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(450, 100));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("5"));
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(0, 100));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("-10"));
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(600, 100));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("10"));
}

TEST_F(Escala, LasCoordenadasSonLasDelPuntero) {
    QMouseEvent movido(QEvent::MouseMove, QPointF(450, 100), visor.mapToGlobal(QPointF(450, 100)),
                       Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&visor, &movido);
    EXPECT_EQ(Busca<QLabel>("coordenadas").text(), QStringLiteral("X=5  Y=5"));
}

TEST_F(Escala, LaGráficaCopiadaTieneLaDeLaPantalla) {
    Pulsa("CopiarGráfica");
    EXPECT_EQ(QApplication::clipboard()->image().size(), visor.size() * escala);
}

} // namespace
} // namespace quiralto
