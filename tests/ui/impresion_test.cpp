// What comes out of the printer, read back from a PDF file.

#include "tests/proceso.h"
#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/programa/impresora.h"

#include <QImage>
#include <QPrintDialog>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace quiralto {
namespace {

class Impresión : public VentanaDePrueba {
protected:
    Impresión() { impresora.fichero = carpeta.filePath(QStringLiteral("hoja.pdf")); }

    // The pages' texts, a line each printed line, without blank lines.
    std::vector<std::vector<std::string>> DevPáginas() {
        const Final final = Ejecuta({
            .palabras = {"/usr/bin/pdftotext", "-layout", impresora.fichero.toStdString(), "-"},
            .entrada = {},
            .entorno = {},
        });
        EXPECT_EQ(final.estado, 0) << final.errores;
        std::vector<std::vector<std::string>> páginas;
        for (const QString& página :
             QString::fromStdString(final.salida).split(u'\f', Qt::SkipEmptyParts)) {
            páginas.emplace_back();
            for (const QString& línea : página.split(u'\n', Qt::SkipEmptyParts))
                páginas.back().push_back(línea.trimmed().toStdString());
        }
        return páginas;
    }

    QTemporaryDir carpeta;
};

TEST_F(Impresión, LaHojaSeImprimeConSusComentariosYCortadaA80) {
    txtSalida.setPlainText(QStringLiteral("X^2-4,-5,5\n'Solución en X=-2\n") + QString(200, u'7'));
    Pulsa("ImprimirTexto");
    EXPECT_EQ(DevPáginas(), (std::vector<std::vector<std::string>>{
                                {"X^2-4,-5,5", "'Solución en X=-2", std::string(80, '7'),
                                 std::string(80, '7'), std::string(40, '7')}}));
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Impresión, UnaHojaLargaOcupaVariasPáginas) {
    std::vector<std::string> esperadas;
    QString hoja;
    for (int i = 0; i < 200; ++i) {
        esperadas.push_back("X+" + std::to_string(i));
        hoja += DevQString(esperadas.back()) + u'\n';
    }
    txtSalida.setPlainText(hoja);
    Pulsa("ImprimirTexto");
    const auto páginas = DevPáginas();
    EXPECT_GT(páginas.size(), 3U);
    std::vector<std::string> impresas;
    for (const auto& página : páginas)
        impresas.insert(impresas.end(), página.begin(), página.end());
    EXPECT_EQ(impresas, esperadas);
}

// The widest letters, 80 of them, still stand on the page.
TEST_F(Impresión, UnaLíneaAnchaCabeEnLaPágina) {
    txtSalida.setPlainText(QString(80, u'W'));
    Pulsa("ImprimirTexto");
    const Final final = Ejecuta({
        .palabras = {"/usr/bin/pdftotext", "-bbox", impresora.fichero.toStdString(), "-"},
        .entrada = {},
        .entorno = {},
    });
    const auto valor = [&](const char* nombre) {
        const QString texto = QString::fromStdString(final.salida);
        const QString marca = QString::fromLatin1(nombre) + QStringLiteral("=\"");
        const qsizetype i = texto.indexOf(marca) + marca.size();
        return texto.mid(i, texto.indexOf(u'"', i) - i).toDouble();
    };
    EXPECT_GT(valor("xMax"), 400);
    EXPECT_LE(valor("xMax"), valor("width"));
}

// How many pixels of the page have a colour, more or less.
int Cuenta(const QImage& imagen, int rojo, int verde, int azul) {
    int cuenta = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QRgb p = imagen.pixel(x, y);
            cuenta += std::abs(qRed(p) - rojo) < 60 && std::abs(qGreen(p) - verde) < 60 &&
                              std::abs(qBlue(p) - azul) < 60
                          ? 1
                          : 0;
        }
    return cuenta;
}

TEST_F(Impresión, LaGráficaSeImprimeEnUnaPáginaConSusFuncionesEnColor) {
    Busca<QWidget>("VisorFunciones").setFixedSize(500, 500);
    formulario.resize(1000, 700);
    QTest::qWait(1);
    Define(1, "X^2-4");
    Define(3, "SIN(X)+5");
    Pulsa("ImprimirGráfica");
    const auto páginas = DevPáginas();
    ASSERT_EQ(páginas.size(), 1U);
    const std::vector<std::string>& líneas = páginas[0];
    ASSERT_GT(líneas.size(), 10U); // unit marks among them
    EXPECT_EQ(líneas[líneas.size() - 2], "f1(X)=X^2-4");
    EXPECT_EQ(líneas.back(), "f3(X)=SIN(X)+5");
    QStringList palabras;
    for (const std::string& línea : líneas)
        palabras += QString::fromStdString(línea).split(u' ', Qt::SkipEmptyParts);
    // on both axes, the origin once
    for (const auto& [marca, veces] : {std::pair{"8", 2}, {"−8", 2}, {"4", 2}, {"0", 1}})
        EXPECT_EQ(palabras.count(QString::fromUtf8(marca)), veces)
            << marca << " in " << palabras.join(u' ').toStdString();

    const Final final = Ejecuta({
        .palabras = {"/usr/bin/pdftoppm", "-r", "50", "-png", "-singlefile",
                     impresora.fichero.toStdString(),
                     carpeta.filePath(QStringLiteral("hoja")).toStdString()},
        .entrada = {},
        .entorno = {},
    });
    ASSERT_EQ(final.estado, 0) << final.errores;
    const QImage página(carpeta.filePath(QStringLiteral("hoja.png")));
    EXPECT_GT(Cuenta(página, 255, 0, 255), 50);
    EXPECT_GT(Cuenta(página, 0, 0, 255), 50);
    EXPECT_EQ(Cuenta(página, 255, 0, 0), 0);
}

// The size of the page in points, and the right and lower ends of what is written on it.
struct Medidas {
    double ancho = 0;
    double alto = 0;
    double derecha = 0;
    double abajo = 0;
};

TEST_F(Impresión, LaPáginaSeTomaEnLaMejorOrientación) {
    const auto mide = [&] {
        const Final final = Ejecuta({
            .palabras = {"/usr/bin/pdftotext", "-bbox", impresora.fichero.toStdString(), "-"},
            .entrada = {},
            .entorno = {},
        });
        const QString texto = QString::fromStdString(final.salida);
        const auto mayor = [&](const QString& nombre) {
            double valor = 0;
            const QString marca = nombre + QStringLiteral("=\"");
            for (qsizetype i = texto.indexOf(marca); i >= 0; i = texto.indexOf(marca, i + 1)) {
                const qsizetype desde = i + marca.size();
                valor = std::max(valor,
                                 texto.mid(desde, texto.indexOf(u'"', desde) - desde).toDouble());
            }
            return valor;
        };
        return Medidas{mayor(QStringLiteral(" width")), mayor(QStringLiteral("height")),
                       mayor(QStringLiteral("xMax")), mayor(QStringLiteral("yMax"))};
    };
    Define(0, "X");
    auto& visor = Busca<QWidget>("VisorFunciones");
    visor.setFixedSize(600, 300);
    QTest::qWait(1);
    Pulsa("ImprimirGráfica");
    const Medidas ancha = mide();
    EXPECT_GT(ancha.ancho, ancha.alto);
    EXPECT_GT(ancha.derecha, ancha.ancho * 0.9); // "X" stands at the right border
    visor.setFixedSize(300, 500);
    QTest::qWait(1);
    Pulsa("ImprimirGráfica");
    const Medidas alta = mide();
    EXPECT_LT(alta.ancho, alta.alto);
    EXPECT_GT(alta.abajo, alta.alto * 0.9); // the legend at the lower one
}

TEST_F(Impresión, LosRótulosDeLaGráficaMidenNuevePuntosOMás) {
    Define(0, "X");
    Pulsa("ImprimirGráfica");
    const Final final = Ejecuta({
        .palabras = {"/usr/bin/pdftotext", "-bbox-layout", impresora.fichero.toStdString(), "-"},
        .entrada = {},
        .entorno = {},
    });
    const QString texto = QString::fromStdString(final.salida);
    const QRegularExpression palabra(
        QStringLiteral("<word [^>]*yMin=\"([0-9.]+)\"[^>]*yMax=\"([0-9.]+)\">[0-9]+</word>"));
    int rótulos = 0;
    for (auto i = palabra.globalMatch(texto); i.hasNext(); ++rótulos) {
        const QRegularExpressionMatch cuál = i.next();
        EXPECT_GT(cuál.captured(2).toDouble() - cuál.captured(1).toDouble(), 8.5);
    }
    EXPECT_GT(rótulos, 6);
}

TEST_F(Impresión, LaVistaPreviaMuestraLoMismoYPuedeImprimirlo) {
    Define(2, "X^2");
    txtSalida.setPlainText(QStringLiteral("X^2-4,-5,5"));
    const struct {
        const char* acción;
        const char* última;
    } casos[] = {{"PrevisualizarGráfica", "f2(X)=X^2"}, {"PrevisualizarTexto", "X^2-4,-5,5"}};
    for (const auto& caso : casos) {
        impresora.fichero =
            carpeta.filePath(QString::fromUtf8(caso.acción) + QStringLiteral(".pdf"));
        impresora.vista = false;
        impresora.imprimeTrasVer = false;
        Pulsa(caso.acción);
        EXPECT_TRUE(impresora.vista) << caso.acción;
        EXPECT_EQ(DevPáginas().back().back(), caso.última);
        QFile::remove(impresora.fichero);
        impresora.imprimeTrasVer = true;
        Pulsa(caso.acción);
        EXPECT_EQ(DevPáginas().back().back(), caso.última);
    }
}

TEST_F(Impresión, ControlPImprimeLaHojaEnEllaYSiNoLaGráfica) {
    Define(2, "X^2");
    txtSalida.setPlainText(QStringLiteral("X^2-4,-5,5"));
    txtSalida.setFocus();
    QTest::keyClick(&txtSalida, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(DevPáginas(), (std::vector<std::vector<std::string>>{{"X^2-4,-5,5"}}));
    auto& visor = Busca<QWidget>("VisorFunciones");
    visor.setFocus();
    QTest::keyClick(&visor, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(DevPáginas().back().back(), "f2(X)=X^2");
}

TEST_F(Impresión, UnaFunciónLarguísimaDejaSitioALaGráfica) {
    const QString larga = QStringLiteral("X+").repeated(3000) + u'X';
    auto& caja = Busca<QLineEdit>("txtfx_0");
    caja.setText(larga);
    QTest::keyClick(&caja, Qt::Key_Return);
    Pulsa("ImprimirGráfica");
    EXPECT_EQ(DevPáginas().size(), 1U);
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Impresión, CancelarElDiálogoNoImprime) {
    impresora.fichero.clear();
    Pulsa("ImprimirTexto");
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Impresión, UnaImpresoraInservibleSeAvisa) {
    impresora.fichero = carpeta.filePath(QStringLiteral("no/existe/hoja.pdf"));
    Pulsa("ImprimirTexto");
    EXPECT_EQ(grabados.mensajes,
              std::vector{(Mensaje{Icono::Exclamación, "No se puede imprimir"})});
}

// A full device, which takes every file and keeps none of it.
TEST_F(Impresión, UnDiscoLlenoSeAvisa) {
    impresora.fichero = QStringLiteral("/dev/full");
    Define(0, "X");
    for (const char* acción : {"ImprimirTexto", "ImprimirGráfica"}) {
        Pulsa(acción);
        EXPECT_EQ(std::exchange(grabados.mensajes, {}),
                  std::vector{(Mensaje{Icono::Exclamación, "No se puede imprimir"})})
            << acción;
    }
}

// The toolkit's own dialog, which the others stand in for.
TEST(ImpresoraDelSistema, PreguntaConElDiálogoDelSistema) {
    for (const bool acepta : {false, true}) {
        QTemporaryDir carpeta;
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFileName(carpeta.filePath(QStringLiteral("salida.pdf")));
        bool elegida = !acepta;
        const int vistos =
            ConDiálogos([&] { elegida = ImpresoraDelSistema().Elige(impresora, nullptr); },
                        [&](QWidget& diálogo) {
                            EXPECT_EQ(diálogo.windowTitle(), QStringLiteral("Imprimir"));
                            EXPECT_TRUE(diálogo.isModal());
                            auto& suyo = dynamic_cast<QPrintDialog&>(diálogo);
                            acepta ? suyo.accept() : suyo.reject();
                        });
        EXPECT_EQ(vistos, 1);
        EXPECT_EQ(elegida, acepta);
    }
}

} // namespace
} // namespace quiralto
