// The application as the program prepares it.

#include "ui/dibujo/iconos.h"
#include "ui/programa/aplicacion.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(Aplicación, LosBotonesEstánEnEspañol) {
    const QDialogButtonBox botones(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                   QDialogButtonBox::Close);
    EXPECT_EQ(botones.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
              QStringLiteral("Cancelar"));
    EXPECT_EQ(botones.button(QDialogButtonBox::Close)->text().remove(u'&'),
              QStringLiteral("Cerrar"));
}

TEST(Aplicación, LosNúmerosLlevanPuntoConCualquierIdioma) {
    if (const char* idioma = std::getenv("QUIRALTO_IDIOMA")) {
        EXPECT_TRUE(std::string(std::setlocale(LC_CTYPE, nullptr)).starts_with(idioma))
            << "the locale of this run is not installed";
    }
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_EQ(std::strtod("1.5", nullptr), 1.5);
}

TEST(Aplicación, TieneNombreEIdentificador) {
    EXPECT_EQ(QApplication::applicationName(), QStringLiteral("Quiralto"));
    EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("io.github.quiralto.Quiralto"));
}

// Both curves are there to be seen in every size.
TEST(Aplicación, SinIconoDelEscritorioSeDibujaElMismo) {
    for (const int lado : {16, 24, 32, 48, 128}) {
        const QImage imagen = DevIconoDibujado().pixmap(lado, lado).toImage();
        int rojos = 0;
        int azules = 0;
        for (int i = 0; i < lado * lado; ++i) {
            const QColor color = imagen.pixelColor(i % lado, i / lado);
            rojos += color.red() > color.blue() + 80 ? 1 : 0;
            azules += color.blue() > color.red() + 80 ? 1 : 0;
        }
        EXPECT_GT(rojos, lado) << lado;
        EXPECT_GT(azules, lado) << lado;
    }
    EXPECT_FALSE(QGuiApplication::windowIcon().isNull());
}

// In their square of 24 units: where the strokes end, and where none may be.
TEST(Aplicación, LosIconosDeLaBarraTienenSusFlechasYSuLente) {
    const struct {
        Figura figura;
        bool ampliar;
        std::vector<QPointF> con;
        std::vector<QPointF> sin;
    } casos[] = {
        {Figura::EjeX, true, {{6, 8}, {6, 16}, {18, 8}, {18, 16}, {3, 12}, {21, 12}}, {{12, 12}}},
        {Figura::EjeX, false, {{5, 8}, {5, 16}, {19, 8}, {19, 16}, {9, 12}, {15, 12}}, {{12, 12}}},
        {Figura::EjeY, true, {{8, 6}, {16, 6}, {8, 18}, {16, 18}, {12, 3}, {12, 21}}, {{12, 12}}},
        {Figura::EjeY, false, {{8, 5}, {16, 5}, {8, 19}, {16, 19}, {12, 9}, {12, 15}}, {{12, 12}}},
        {Figura::EjesXY, true, {{4.5, 4.5}, {19.5, 4.5}, {4.5, 19.5}, {19.5, 19.5}}, {{12, 12}}},
        {Figura::EjesXY, false, {{10, 10}, {14, 10}, {10, 14}, {14, 14}}, {{12, 12}}},
        {Figura::Gráfica, true, {{3, 10}, {10, 17}, {20, 20}, {7, 10}, {10, 7}}, {{20, 4}}},
        {Figura::Gráfica, false, {{3, 10}, {10, 17}, {20, 20}, {7, 10}}, {{20, 4}, {10, 7}}},
    };
    constexpr int Lado = 96;
    for (const auto& caso : casos) {
        const QImage imagen = DevIcono(caso.figura, caso.ampliar).pixmap(Lado, Lado).toImage();
        const qreal escala = imagen.width() / 24.0;
        const auto hayTinta = [&](const QPointF& lugar) {
            return imagen.pixelColor((lugar * escala).toPoint()).alpha() > 128;
        };
        const std::string nombre =
            std::to_string(static_cast<int>(caso.figura)) + (caso.ampliar ? " larger" : " smaller");
        for (const QPointF& lugar : caso.con)
            EXPECT_TRUE(hayTinta(lugar)) << nombre << ": " << lugar.x() << ", " << lugar.y();
        for (const QPointF& lugar : caso.sin)
            EXPECT_FALSE(hayTinta(lugar)) << nombre << ": " << lugar.x() << ", " << lugar.y();
    }
}

TEST(Aplicación, ElIconoDelEscritorioVaDelante) {
    const QString tema = QIcon::themeName();
    const QStringList carpetas = QIcon::themeSearchPaths();
    const QTemporaryDir carpeta;
    ASSERT_TRUE(QDir(carpeta.path()).mkpath(QStringLiteral("prueba/32")));
    QFile índice(carpeta.filePath(QStringLiteral("prueba/index.theme")));
    ASSERT_TRUE(índice.open(QIODevice::WriteOnly));
    índice.write("[Icon Theme]\nName=prueba\nDirectories=32\n[32]\nSize=32\nType=Fixed\n");
    índice.close();
    QImage imagen(32, 32, QImage::Format_RGB32);
    imagen.fill(Qt::green);
    ASSERT_TRUE(
        imagen.save(carpeta.filePath(QStringLiteral("prueba/32/") +
                                     QGuiApplication::desktopFileName() + QStringLiteral(".png"))));
    QIcon::setThemeSearchPaths({carpeta.path()});
    QIcon::setThemeName(QStringLiteral("prueba"));
    const QImage mostrada = DevIconoPrograma().pixmap(32, 32).toImage();
    QIcon::setThemeSearchPaths(carpetas);
    QIcon::setThemeName(tema);
    ASSERT_FALSE(mostrada.isNull());
    EXPECT_EQ(mostrada.pixelColor(mostrada.rect().center()), QColor(Qt::green));
}

} // namespace
} // namespace quiralto
