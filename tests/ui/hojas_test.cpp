// Every golden worksheet through the window.

#include "tests/hojas_doradas.h"
#include "tests/ui/ventana_de_prueba.h"

namespace quiralto {
namespace {

const std::filesystem::path Carpeta = QUIRALTO_HOJAS;

class HojasPorVentana : public VentanaDePrueba,
                        public testing::WithParamInterface<std::filesystem::path> {};

TEST_P(HojasPorVentana, QuedanComoSeEspera) {
    const HojaDorada dorada = CargaHojaDorada(GetParam());
    contexto.DígitosRedondeo = dorada.cifras;
    txtSalida.setPlainText(DevQString(dorada.hoja));
    formulario.findChild<Ejecutor*>()->Ejecuta(dorada.orden);
    EXPECT_EQ(DevTexto(), dorada.queda);
    std::optional<std::string> seleccionada;
    if (txtSalida.textCursor().hasSelection())
        seleccionada = DevUtf8(txtSalida.textCursor().selectedText());
    EXPECT_EQ(DevMensajes(grabados.mensajes, seleccionada), dorada.mensajes);
}

INSTANTIATE_TEST_SUITE_P(Hojas, HojasPorVentana, testing::ValuesIn(DevFicherosDeHojas(Carpeta)),
                         [](const auto& datos) { return DevNombreDePrueba(datos.param, Carpeta); });

} // namespace
} // namespace quiralto
