// The application as the program prepares it.

#include "ui/programa/aplicacion.h"

#include <QDialogButtonBox>
#include <QPushButton>

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

} // namespace
} // namespace quiralto
