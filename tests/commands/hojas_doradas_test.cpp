// Every golden worksheet, run in process; and the reader of their files.

#include "commands/fichero_primos.h"
#include "commands/ordenes.h"
#include "tests/hojas_doradas.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace quiralto {
namespace {

const std::filesystem::path Carpeta = QUIRALTO_HOJAS;

class HojasDoradas : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(HojasDoradas, QuedanComoSeEspera) {
    const HojaDorada dorada = CargaHojaDorada(GetParam());
    ASSERT_TRUE(std::ranges::any_of(
        DevÓrdenes(), [&](const Orden& orden) { return orden.texto == dorada.orden; }))
        << "no such command: " << dorada.orden;
    Banco banco;
    banco.contexto.DígitosRedondeo = dorada.cifras;
    CargaPrimos(banco.contexto, QUIRALTO_PRIMOS);
    Hoja hoja(ConCrLf(dorada.hoja));
    EjecutaInstrucciones(banco.contexto, hoja, dorada.orden);
    EXPECT_EQ(ConLf(hoja.texto), dorada.queda);
    EXPECT_EQ(DevMensajes(banco.TomaMensajes(), hoja.líneaSeleccionada), dorada.mensajes);
}

INSTANTIATE_TEST_SUITE_P(Hojas, HojasDoradas, testing::ValuesIn(DevFicherosDeHojas(Carpeta)),
                         [](const auto& datos) { return DevNombreDePrueba(datos.param, Carpeta); });

TEST(LectorDeHojas, HayHojasQueProbar) {
    EXPECT_FALSE(DevFicherosDeHojas(Carpeta).empty());
}

TEST(LectorDeHojas, LeeTodasLasSecciones) {
    const HojaDorada leída = LeeHojaDorada("orden: Hallar área\ncifras: 3\n--- hoja\nX,0,1\n\n"
                                           "--- queda\nX,0,1\n\n\n'Area= .5\n"
                                           "--- mensajes\nexclamación: a\nb\nlínea: c\n");
    EXPECT_EQ(leída.orden, "Hallar área");
    EXPECT_EQ(leída.cifras, 3);
    EXPECT_EQ(leída.hoja, "X,0,1\n");
    EXPECT_EQ(leída.queda, "X,0,1\n\n\n'Area= .5");
    EXPECT_EQ(leída.mensajes, "exclamación: a\nb\nlínea: c");
}

TEST(LectorDeHojas, LasCifrasYLosMensajesPuedenFaltar) {
    const HojaDorada leída = LeeHojaDorada("orden: Derivar\n--- hoja\n\n--- queda\n\n");
    EXPECT_EQ(leída.cifras, 8);
    EXPECT_EQ(leída.hoja, "");
    EXPECT_EQ(leída.queda, "");
    EXPECT_EQ(leída.mensajes, "");
}

TEST(LectorDeHojas, RechazaLosFicherosMalFormados) {
    for (const char* texto : {
             "",
             "orden: a\n",
             "--- hoja\nX\n--- queda\nX\n",
             "orden: \n--- hoja\nX\n--- queda\nX\n",
             "orden: a\norden: b\n--- hoja\nX\n--- queda\nX\n",
             "orden: a\ncifras: 16\n--- hoja\nX\n--- queda\nX\n",
             "orden: a\ncifras: 2\ncifras: 3\n--- hoja\nX\n--- queda\nX\n",
             "orden: a\ncifras: 8 \n--- hoja\nX\n--- queda\nX\n",
             "orden: a\nnota: b\n--- hoja\nX\n--- queda\nX\n",
             "orden: a\n--- hoja\nX\n",
             "orden: a\n--- hoja\n--- queda\nX\n",
             "orden: a\n--- queda\nX\n--- hoja\nX\n",
             "orden: a\n--- hoja\nX\n--- queda\nX",
             "orden: a\n--- hoja\nX\n--- queda\nX\n--- mensajes\n",
             "orden: a\n--- hoja\nX\n--- queda\nX\n--- mensajes\n\n",
             "orden: a\n--- hoja\nX\n--- queda\nX\n--- mensaje\nb\n",
             "orden: a\n--- hoja\nX\n--- queda\nX\n--- mensajes\nb\n--- hoja\nX\n",
             "orden: a\n--- hoja\n\xFF\n--- queda\nX\n",
         })
        EXPECT_THROW(LeeHojaDorada(texto), std::runtime_error) << texto;
}

TEST(LectorDeHojas, EscribeLosMensajesComoElTerminal) {
    EXPECT_EQ(DevMensajes({}, std::nullopt), "");
    EXPECT_EQ(DevMensajes({{Icono::Exclamación, "a\r\nb"}, {Icono::Crítico, "c"}}, "X,1"),
              "exclamación: a\nb\ncrítico: c\nlínea: X,1");
    EXPECT_EQ(DevMensajes({{Icono::Ninguno, "a"}}, std::nullopt), "mensaje: a");
}

} // namespace
} // namespace quiralto
