// Every golden worksheet through the terminal program.

#include "tests/hojas_doradas.h"
#include "tests/proceso.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

const std::filesystem::path Carpeta = QUIRALTO_HOJAS;

class HojasPorTerminal : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(HojasPorTerminal, QuedanComoSeEspera) {
    const HojaDorada dorada = CargaHojaDorada(GetParam());
    const Final final = Ejecuta({
        .palabras = {QUIRALTO_CLI, "--cifras", std::to_string(dorada.cifras), "--orden",
                     dorada.orden},
        .entrada = dorada.hoja,
        .entorno = {},
    });
    EXPECT_FALSE(final.agotado);
    EXPECT_EQ(final.señal, 0);
    EXPECT_EQ(final.salida, dorada.queda);
    EXPECT_EQ(final.errores, dorada.mensajes.empty() ? "" : dorada.mensajes + '\n');
    EXPECT_EQ(final.estado, dorada.mensajes.empty() ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Hojas, HojasPorTerminal, testing::ValuesIn(DevFicherosDeHojas(Carpeta)),
                         [](const auto& datos) { return DevNombreDePrueba(datos.param, Carpeta); });

TEST(HojasDelTerminal, HayHojasQueProbar) {
    EXPECT_FALSE(DevFicherosDeHojas(Carpeta).empty());
}

} // namespace
} // namespace quiralto
