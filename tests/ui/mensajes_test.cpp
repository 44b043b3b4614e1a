// Message boxes as the user sees them.

#include "tests/ui/dialogos.h"
#include "ui/programa/mensajes_ventana.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(MensajesVentana, MuestraElTextoConSuIconoTítuloYAceptar) {
    VigilanteVentana vigilante;
    MensajesVentana mensajes(vigilante);
    for (const auto& caso : {std::pair{Icono::Exclamación, QMessageBox::Warning},
                             {Icono::Crítico, QMessageBox::Critical},
                             {Icono::Ninguno, QMessageBox::NoIcon}}) {
        const int vistos =
            ConDiálogos([&] { mensajes.Muestra(caso.first, "a <b>ñ</b>\r\nc&d "); },
                        [&](QWidget& diálogo) {
                            auto& caja = dynamic_cast<QMessageBox&>(diálogo);
                            EXPECT_EQ(caja.icon(), caso.second);
                            EXPECT_EQ(caja.text(), QStringLiteral("a <b>ñ</b>\nc&d "));
                            EXPECT_EQ(caja.textFormat(), Qt::PlainText);
                            EXPECT_EQ(caja.windowTitle(), QStringLiteral("Quiralto"));
                            ASSERT_EQ(caja.buttons().size(), 1);
                            EXPECT_EQ(caja.buttons()[0]->text(), QStringLiteral("Aceptar"));
                            caja.buttons()[0]->click();
                        });
        EXPECT_EQ(vistos, 1);
    }
}

TEST(MensajesVentana, EscapeLaCierra) {
    VigilanteVentana vigilante;
    MensajesVentana mensajes(vigilante);
    EXPECT_EQ(ConDiálogos([&] { mensajes.Muestra(Icono::Ninguno, "a"); },
                          [](QWidget& diálogo) { diálogo.close(); }),
              1);
}

} // namespace
} // namespace quiralto
