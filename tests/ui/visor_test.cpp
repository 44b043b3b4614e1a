// The picture, pixel by pixel.

#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"
#include "ui/dibujo/grafica.h"
#include "ui/formularios/copia_grafica.h"

#include <QClipboard>
#include <QMimeData>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <span>

namespace quiralto {
namespace {

const QRgb Negro = qRgb(0, 0, 0);
const QRgb Magenta = qRgb(255, 0, 255);
const QRgb Rojo = qRgb(255, 0, 0);
const QRgb Azul = qRgb(0, 0, 255);

class Visor : public VentanaDePrueba {
protected:
    Visor() { visor.setFixedSize(601, 401); }

    QImage DevImagen() {
        QApplication::processEvents();
        return visor.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    // How many pixels of a colour there are in a part of the image, as shares of its sides.
    static int Cuenta(const QImage& imagen, QRgb color, double x0 = 0, double x1 = 1, double y0 = 0,
                      double y1 = 1) {
        int cuenta = 0;
        for (int y = static_cast<int>(y0 * imagen.height()); y < y1 * imagen.height(); ++y)
            for (int x = static_cast<int>(x0 * imagen.width()); x < x1 * imagen.width(); ++x)
                cuenta += (imagen.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF) ? 1 : 0;
        return cuenta;
    }
    // The heights of a colour's pixels in a column, from the top.
    static std::vector<int> Alturas(const QImage& imagen, QRgb color, int x) {
        std::vector<int> alturas;
        for (int y = 0; y < imagen.height(); ++y)
            if ((imagen.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF))
                alturas.push_back(y);
        return alturas;
    }
    void Gira(int ángulo) {
        const QPointF lugar(450, 100);
        QWheelEvent suceso(lugar, visor.mapToGlobal(lugar), {}, QPoint(0, ángulo), Qt::NoButton,
                           Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&visor, &suceso);
    }
    void Mueve(const QPoint& lugar, Qt::KeyboardModifiers teclas) {
        QMouseEvent movido(QEvent::MouseMove, QPointF(lugar), visor.mapToGlobal(QPointF(lugar)),
                           Qt::NoButton, Qt::LeftButton, teclas);
        QApplication::sendEvent(&visor, &movido);
    }
    void Arrastra(const QPoint& desde, const QPoint& hasta, Qt::KeyboardModifiers teclas) {
        QTest::mousePress(&visor, Qt::LeftButton, teclas, desde);
        Mueve((desde + hasta) / 2, teclas);
        Mueve(hasta, teclas);
        QTest::mouseRelease(&visor, Qt::LeftButton, teclas, hasta);
    }
    void PonX(int décimas) { Busca<QScrollBar>("hsx").setValue(décimas); }

    QWidget& visor = Busca<QWidget>("VisorFunciones");
};

TEST_F(Visor, CadaFunciónTieneSuColor) {
    const QRgb colores[] = {Negro, Magenta, Rojo, Azul};
    for (int i = 0; i < 4; ++i)
        Define(i, std::to_string(2 * i + 1).c_str());
    const QImage imagen = DevImagen();
    for (int i = 0; i < 4; ++i) {
        // the height of Y=2i+1 in the scale of 400 rows
        const int esperada = static_cast<int>((10 - (2 * i + 1)) / 20.0 * 400);
        const std::vector<int> alturas = Alturas(imagen, colores[i], 90);
        ASSERT_EQ(alturas.size(), 1U) << i;
        EXPECT_NEAR(alturas[0], esperada, 1) << i;
    }
}

TEST_F(Visor, LasÚltimasFuncionesSeDibujanEncima) {
    for (int i = 0; i < 3; ++i)
        Define(i, "X/2+1");
    QImage imagen = DevImagen();
    EXPECT_EQ(Cuenta(imagen, Negro, 0, 0.45), 0);
    EXPECT_EQ(Cuenta(imagen, Magenta, 0, 0.45), 0);
    EXPECT_GT(Cuenta(imagen, Rojo, 0, 0.45), 80); // the core of a slanting line
    Busca<QCheckBox>("chkfx_2").click();
    imagen = DevImagen();
    EXPECT_EQ(Cuenta(imagen, Rojo), 0);
    EXPECT_GT(Cuenta(imagen, Magenta, 0, 0.45), 80);
}

TEST_F(Visor, LaRaízNoTieneNadaALaIzquierda) {
    Define(3, "SQR(X)");
    PonX(-50);
    const QImage imagen = DevImagen();
    EXPECT_EQ(Cuenta(imagen, Azul, 0, 0.495), 0);
    EXPECT_GT(Cuenta(imagen, Azul, 0.505, 1), 120);
}

TEST_F(Visor, LaParábolaSaleDelMarcoPorArriba) {
    Define(3, "X^2");
    PonX(90);
    const QImage imagen = DevImagen();
    // Outside of |X| = SQR(10) all is above the frame; the last line into it ends at its edge.
    EXPECT_EQ(Cuenta(imagen, Azul, 0, 0.33), 0);
    EXPECT_EQ(Cuenta(imagen, Azul, 0.67, 1), 0);
    EXPECT_GT(Cuenta(imagen, Azul, 0.33, 0.36, 0, 0.01), 0);
    EXPECT_GT(Cuenta(imagen, Azul, 0.64, 0.67, 0, 0.01), 0);
}

TEST_F(Visor, UnHuecoSeUneConUnaRecta) {
    Define(3, "SQR(X^2-9)");
    PonX(90);
    // between X=-3 and X=3, where there is no value, a line runs along Y=0 just above the axis
    // or over it
    Busca<QCheckBox>("chkfx_3").click();
    const QImage sin = DevImagen();
    Busca<QCheckBox>("chkfx_3").click();
    const QImage con = DevImagen();
    int columnas = 0;
    for (int x = 240; x < 360; ++x)
        for (int y = 150; y < 201; ++y)
            if (sin.pixel(x, y) != con.pixel(x, y)) {
                ++columnas;
                break;
            }
    EXPECT_GT(columnas, 100);
}

TEST_F(Visor, PorPuntosHayUnPíxelPorMuestra) {
    Define(3, "9");
    PonX(90);
    Pulsa("NúmeroPuntos_0");
    Pulsa("OrdenMenúPuntos");
    EXPECT_NEAR(Cuenta(DevImagen(), Azul, 0, 0.94), 142, 2); // 151 over the whole width
    Pulsa("OrdenMenúLíneas");
    EXPECT_NEAR(Cuenta(DevImagen(), Azul, 0, 0.94), 565, 2);
}

TEST_F(Visor, ElMarcadorSeMueveConElPuntoX) {
    const QImage antes = DevImagen();
    PonX(-50);
    const QImage después = DevImagen();
    EXPECT_NE(antes.pixel(150, 20), después.pixel(150, 20));
    EXPECT_NE(antes.pixel(300, 20), después.pixel(300, 20));
    EXPECT_EQ(antes.pixel(450, 20), después.pixel(450, 20));
}

TEST_F(Visor, HayUnPuntoSobreCadaFunción) {
    Define(3, "5");
    PonX(-50);
    // a dot of radius 4 at (150, 100)
    EXPECT_GT(Cuenta(DevImagen(), Azul, 145 / 601.0, 156 / 601.0), 30);
}

TEST_F(Visor, LosEjesPasanPorElOrigenYDesaparecenFueraDeVista) {
    PonX(90);
    const QRgb eje = DevImagen().pixel(300, 30);
    EXPECT_EQ(DevImagen().pixel(30, 200), eje);
    Busca<QScrollBar>("hsEjeX").setValue(-5); // the window moves to the right, the axis to the left
    EXPECT_EQ(DevImagen().pixel(150, 30), eje);
    Busca<QScrollBar>("vsEjeY").setValue(-20);
    EXPECT_NE(DevImagen().pixel(30, 200), eje);
}

TEST_F(Visor, ElClicFijaElPuntoXYLasFlechasLoMueven) {
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(450, 50));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("5"));
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(367, 50));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("2.23"));
    QTest::mouseClick(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(450, 50));
    EXPECT_EQ(Busca<QScrollBar>("hsx").value(), 50);
    visor.setFocus();
    QTest::keyClick(&visor, Qt::Key_Right);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("5.1"));
    PonX(0);
    QTest::keyClick(&visor, Qt::Key_Right);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral(".1")); // not 9.99999999999996E-02
    PonX(51);
    QTest::keyClick(&visor, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("4.1"));
}

TEST_F(Visor, ArrastrarDesplazaYNoMueveElPuntoX) {
    QTest::mousePress(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(300, 200));
    QMouseEvent movido(QEvent::MouseMove, QPointF(360, 240), visor.mapToGlobal(QPointF(360, 240)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&visor, &movido);
    QTest::mouseRelease(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(360, 240));
    const auto extremos = DevExtremos();
    EXPECT_NEAR(std::stod(extremos[0]), 8, 0.05);
    EXPECT_NEAR(std::stod(extremos[2]), 12, 0.05);
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("0"));
}

TEST_F(Visor, DosMuescasDeLaRuedaAmplíanElDobleAlrededorDelPuntero) {
    Gira(60);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "-10", "10", "-10"}));
    Gira(60); // half a notch more
    const auto media = DevExtremos();
    for (const std::string& extremo : media)
        EXPECT_LE(extremo.size(), 5U) << extremo; // no finer than a pixel
    EXPECT_NEAR(std::stod(media[0]) - std::stod(media[1]), 20 / std::sqrt(2), 0.02);
    Gira(120);
    const auto entera = DevExtremos();
    EXPECT_EQ(std::stod(entera[0]) - std::stod(entera[1]), 10);
    EXPECT_EQ(std::stod(entera[2]) - std::stod(entera[3]), 10);
    EXPECT_NEAR(std::stod(entera[0]), 7.5, 0.03);
    EXPECT_NEAR(std::stod(entera[2]), 7.5, 0.03);
    Gira(-240);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "-10", "10", "-10"}));
    Gira(240);
    EXPECT_EQ(DevExtremos(), entera); // both at once
}

TEST_F(Visor, UnRectánguloConMayúsSeEncuadra) {
    Arrastra(QPoint(150, 100), QPoint(450, 300), Qt::ShiftModifier);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "-5", "5", "-5"}));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("0"));
    Arrastra(QPoint(150, 100), QPoint(152, 300), Qt::ShiftModifier); // hardly more than a click
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "-5", "5", "-5"}));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("0"));
    Arrastra(QPoint(450, 300), QPoint(150, 100), Qt::ShiftModifier); // from any corner
    EXPECT_EQ(DevExtremos()[0], "2.5");
}

TEST_F(Visor, ElRectánguloSeVeYEscapeLoDeja) {
    const QImage antes = visor.grab().toImage();
    QTest::mousePress(&visor, Qt::LeftButton, Qt::ShiftModifier, QPoint(150, 100));
    Mueve(QPoint(450, 300), Qt::ShiftModifier);
    EXPECT_NE(visor.grab().toImage().pixel(160, 150), antes.pixel(160, 150));
    QTest::keyClick(&visor, Qt::Key_Escape);
    EXPECT_EQ(visor.grab().toImage().pixel(160, 150), antes.pixel(160, 150));
    Mueve(QPoint(250, 200), Qt::ShiftModifier); // the button is still down, and does nothing more
    Mueve(QPoint(300, 250), Qt::NoModifier);
    QTest::mouseRelease(&visor, Qt::LeftButton, Qt::ShiftModifier, QPoint(450, 300));
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "-10", "10", "-10"}));
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("0"));
    Arrastra(QPoint(150, 100), QPoint(450, 300), Qt::ShiftModifier);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "-5", "5", "-5"}));
}

TEST_F(Visor, UnRectánguloNoAbarcaMásQueLaImagen) {
    Arrastra(QPoint(300, 200), QPoint(900, -700), Qt::ShiftModifier);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "0", "10", "0"}));
    Arrastra(QPoint(300, 200), QPoint(-40, 700), Qt::ShiftModifier);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "0", "5", "0"}));
    Arrastra(QPoint(-40, -40), QPoint(-400, -30), Qt::ShiftModifier); // all of it outside
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "0", "5", "0"}));
}

// A menu that opens in the midst takes the button's release.
TEST_F(Visor, UnBotónQueSubióEnOtraParteNoSigueArrastrando) {
    for (const Qt::KeyboardModifiers teclas : {Qt::NoModifier, Qt::ShiftModifier}) {
        QTest::mousePress(&visor, Qt::LeftButton, teclas, QPoint(150, 100));
        QMouseEvent movido(QEvent::MouseMove, QPointF(450, 300),
                           visor.mapToGlobal(QPointF(450, 300)), Qt::NoButton, Qt::NoButton,
                           Qt::NoModifier);
        QApplication::sendEvent(&visor, &movido);
        EXPECT_EQ(visor.cursor().shape(), Qt::CrossCursor);
        QTest::mouseRelease(&visor, Qt::LeftButton, Qt::NoModifier, QPoint(450, 300));
        EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"10", "-10", "10", "-10"}));
        EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("0"));
    }
}

TEST_F(Visor, NoHayVistaAnteriorMientrasNoHayaNinguna) {
    const QAction& anterior = Busca<QAction>("VistaAnterior");
    EXPECT_FALSE(anterior.isEnabled());
    Pulsa("ValoresPorDefectoEjes"); // as it is
    EXPECT_FALSE(anterior.isEnabled());
    Gira(120);
    EXPECT_TRUE(anterior.isEnabled());
    Pulsa("ZoomEjeX_0");
    Pulsa("VistaAnterior");
    EXPECT_TRUE(anterior.isEnabled());
    Pulsa("VistaAnterior");
    EXPECT_FALSE(anterior.isEnabled());
}

TEST_F(Visor, LaVistaAnteriorVuelvePorGestos) {
    const auto alComienzo = DevExtremos();
    Gira(120);
    Gira(120);
    Gira(120); // one gesture
    const auto trasLaRueda = DevExtremos();
    Arrastra(QPoint(300, 200), QPoint(360, 240), Qt::NoModifier);
    const auto trasArrastrar = DevExtremos();
    Arrastra(QPoint(300, 200), QPoint(360, 240), Qt::NoModifier);
    Pulsa("ZoomEjeX_0");
    Pulsa("VistaAnterior");
    Pulsa("VistaAnterior");
    EXPECT_EQ(DevExtremos(), trasArrastrar);
    Pulsa("VistaAnterior");
    EXPECT_EQ(DevExtremos(), trasLaRueda);
    QTest::keyClick(&visor, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(DevExtremos(), alComienzo);
    QTest::keyClick(&visor, Qt::Key_Left, Qt::AltModifier); // there is none
    EXPECT_EQ(DevExtremos(), alComienzo);
}

TEST_F(Visor, LasCoordenadasNuncaQuedanAtrasadas) {
    auto& coordenadas = Busca<QLabel>("coordenadas");
    EXPECT_EQ(coordenadas.text(), QString());
    QTest::mouseMove(&visor, QPoint(450, 100));
    QMouseEvent movido(QEvent::MouseMove, QPointF(450, 100), visor.mapToGlobal(QPointF(450, 100)),
                       Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&visor, &movido);
    EXPECT_EQ(coordenadas.text(), QStringLiteral("X=5  Y=5"));
    Pulsa("ZoomEjesXY_0");
    EXPECT_EQ(coordenadas.text(), QStringLiteral("X=10  Y=10"));
    QEvent sale(QEvent::Leave);
    QApplication::sendEvent(&visor, &sale);
    EXPECT_EQ(coordenadas.text(), QString());
}

// Lines are whole pixels wide; letters are as large as the others of the window.
TEST_F(Visor, LosRótulosCrecenConLaEscalaAunqueNoSeaEntera) {
    Escena escena;
    escena.leyenda = {{0, "f0(X)=X"}, {1, "f1(X)=2"}, {2, "f2(X)=3"}};
    const QSize tamaño(400, 300);
    const auto alto = [&](qreal escala) {
        const auto copia = DevCopia(escena, tamaño, escala, visor.font());
        return copia->imageData().value<QImage>().height() / escala - tamaño.height();
    };
    for (const qreal escala : {1.25, 1.5, 1.75, 2.0, 3.0})
        EXPECT_NEAR(alto(escala) / alto(1), 1, .1) << escala;
}

TEST_F(Visor, LaGráficaSeCopiaConSuLeyendaComoPngYComoPdf) {
    Define(3, "X");
    Define(1, "9");
    Busca<QCheckBox>("chkfx_1").click(); // off: not in the legend either
    QTest::keyClick(&visor, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    const QMimeData& copia = *QApplication::clipboard()->mimeData();
    const QImage imagen = QApplication::clipboard()->image();
    EXPECT_EQ(imagen.width(), visor.width());
    EXPECT_GT(Cuenta(imagen, Azul), 200);
    EXPECT_EQ(Cuenta(imagen, Magenta), 0);
    ASSERT_GT(imagen.height(), visor.height() + 8);
    EXPECT_LT(imagen.height(), visor.height() + 40); // one line
    int escrito = 0;
    for (int y = visor.height() + 4; y < imagen.height(); ++y)
        for (int x = 0; x < 100; ++x)
            escrito += qBlue(imagen.pixel(x, y)) > qRed(imagen.pixel(x, y)) + 60 ? 1 : 0;
    EXPECT_GT(escrito, 20);
    EXPECT_EQ(QImage::fromData(copia.data(QStringLiteral("image/png"))).size(), imagen.size());
    EXPECT_TRUE(copia.data(QStringLiteral("application/pdf")).startsWith("%PDF-"));
    Busca<QCheckBox>("chkfx_3").click();
    Pulsa("CopiarGráfica"); // no function, no legend
    EXPECT_EQ(QApplication::clipboard()->image().size(), visor.size());
}

TEST_F(Visor, LaTablaDeValoresVaEnColumnas) {
    QApplication::clipboard()->setText(QStringLiteral("antes"));
    Pulsa("CopiarTabla"); // no function is on
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("antes"));
    Define(0, "X^2");
    Define(2, "SQR(X)");
    Define(3, "7");
    Busca<QCheckBox>("chkfx_3").click();
    Pulsa("CopiarTabla");
    const QStringList filas = QApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(filas.size(), 303);
    EXPECT_EQ(filas[0], QStringLiteral("X\tf0(X)=X^2\tf2(X)=SQR(X)"));
    EXPECT_EQ(filas[1], QStringLiteral("-10\t100\t"));
    EXPECT_EQ(filas[301], QStringLiteral("10\t100\t3.16227766016838"));
    EXPECT_EQ(filas[302], QString());
}

TEST_F(Visor, UnPuntoXFueraDeLaVistaSeSeñalaEnElBorde) {
    const QColor señal = ColorMarcador;
    const auto cuenta = [&](double x0, double x1) {
        return Cuenta(DevImagen(), señal.rgb(), x0, x1);
    };
    PonX(90);
    Pulsa("ZoomEjeX_0");
    EXPECT_EQ(cuenta(0.97, 1), 0);
    Pulsa("ValoresPorDefectoEjes"); // the point stays at 18
    EXPECT_EQ(DevTexto("txtPuntoX"), QStringLiteral("18"));
    EXPECT_GT(cuenta(0.97, 1), 30);
    EXPECT_EQ(cuenta(0, 0.9), 0);
    PonX(-90);
    EXPECT_EQ(cuenta(0.97, 1), 0);
    Pulsa("ZoomEjeX_0");
    Pulsa("ValoresPorDefectoEjes");
    EXPECT_GT(cuenta(0, 0.03), 30);
    EXPECT_EQ(cuenta(0.1, 1), 0);
}

TEST_F(Visor, LaGráficaVacíaDiceQuéHacerHastaLaPrimeraFunción) {
    auto& caja = Busca<QLineEdit>("txtfx_0");
    const QRect medio(100, 140, 400, 60);
    // Few pixels of a thin letter have the whole colour of the text.
    const auto oscuros = [&] {
        const QImage imagen =
            visor.grab(medio).toImage().convertToFormat(QImage::Format_Grayscale8);
        int cuantos = 0;
        for (int y = 0; y < imagen.height(); ++y) {
            const std::span línea(imagen.constScanLine(y),
                                  static_cast<std::size_t>(imagen.width()));
            cuantos += static_cast<int>(
                std::ranges::count_if(línea, [](uchar gris) { return gris < 128; }));
        }
        return cuantos;
    };
    PonX(90);
    EXPECT_EQ(caja.placeholderText(), QStringLiteral("por ejemplo SIN(X)"));
    const int conInvitación = oscuros();
    EXPECT_GT(conInvitación, 30);
    Define(1, "9");
    EXPECT_EQ(caja.placeholderText(), QString());
    EXPECT_LT(oscuros(), conInvitación / 2); // labels of the axis
}

TEST_F(Visor, LasTeclasMásYMenosAumentanYReducen) {
    visor.setFocus();
    QTest::keyClick(&visor, Qt::Key_Plus);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"5", "-5", "5", "-5"}));
    QTest::keyClick(&visor, Qt::Key_Minus);
    QTest::keyClick(&visor, Qt::Key_Minus);
    EXPECT_EQ(DevExtremos(), (std::vector<std::string>{"20", "-20", "20", "-20"}));
}

TEST_F(Visor, OtraLetraCambiaLosRótulos) {
    const QImage antes = DevImagen();
    QFont grande = visor.font();
    grande.setPointSize(grande.pointSize() * 2);
    visor.setFont(grande);
    EXPECT_NE(DevImagen(), antes);
}

TEST_F(Visor, ElPapelSigueBlancoConElFoco) {
    const QImage sin = visor.grab().toImage();
    visor.setFocus();
    QApplication::processEvents();
    const QImage con = visor.grab().toImage();
    const QRect dentro = con.rect().adjusted(1, 1, -1, -1);
    EXPECT_EQ(con.copy(dentro), sin.copy(dentro));
    EXPECT_NE(con.pixelColor(0, 0), sin.pixelColor(0, 0));
}

TEST_F(Visor, LaDescripciónDiceLoQueSeVe) {
    Define(0, "X^2");
    Define(1, "SQR(X)");
    PonX(-20);
    EXPECT_EQ(visor.accessibleDescription(),
              QStringLiteral("X de -10 a 10 · Y de -10 a 10. Punto X=-2. f0(X)=X^2, en X vale 4. "
                             "f1(X)=SQR(X), sin valor en X"));
}

// Twice the pixels, not twice the size of each: a curve stays one and a half logical pixels wide.
TEST(Dibujo, EsNítidoConEscala2) {
    ListaPuntos puntos;
    for (int i = 0; i <= 100; ++i)
        puntos.push_back({static_cast<float>(i) / 5 - 10, 5});
    Cuadro cuadro;
    cuadro.curvas[3].puntos = std::make_shared<const ListaPuntos>(puntos);
    for (const int escala : {1, 2, 3}) {
        QImage imagen(600 * escala, 400 * escala, QImage::Format_RGB32);
        QPainter pintor(&imagen);
        DibujaGráfica(pintor, {QRectF(imagen.rect()), static_cast<qreal>(escala)}, cuadro);
        pintor.end();
        int filas = 0;
        for (int y = 0; y < imagen.height(); ++y)
            filas += (imagen.pixel(90 * escala, y) & 0xFFFFFF) == (Azul & 0xFFFFFF) ? 1 : 0;
        EXPECT_EQ(filas, static_cast<int>(1.5 * escala));
    }
}

TEST(Dibujo, UnÍndiceDesconocidoEsNegro) {
    for (const int índice : {-1, 0, 4, 100})
        EXPECT_EQ(DevColor(índice), QColor(0, 0, 0));
    EXPECT_EQ(DevColor(1), QColor(255, 0, 255));
    EXPECT_EQ(DevColor(2), QColor(255, 0, 0));
    EXPECT_EQ(DevColor(3), QColor(0, 0, 255));
}

} // namespace
} // namespace quiralto
