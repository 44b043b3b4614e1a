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
