// The call of the program: what is answered before any window.

#include "quiralto_version.h"
#include "tests/proceso.h"
#include "ui/programa/llamada.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quiralto {
namespace {

std::optional<Respuesta> Responde(std::vector<const char*> palabras) {
    palabras.insert(palabras.begin(), "quiralto");
    return RespondeALlamada(static_cast<int>(palabras.size()), palabras.data());
}

TEST(Llamada, LasOpcionesDelToolkitPasan) {
    for (const std::vector<const char*>& palabras : std::vector<std::vector<const char*>>{
             {},
             {"-platform", "offscreen"},
             {"--platform", "xcb", "-style", "fusion"},
             {"-style=fusion"},
             {"-display", ":1", "-reverse"},
             {"-qwindowgeometry", "800x600+1+1"},
         })
        EXPECT_FALSE(Responde(palabras).has_value());
}

TEST(Llamada, LoQueNoSeEntiendeEsUnaLíneaYEstado2) {
    for (const std::vector<const char*>& palabras : std::vector<std::vector<const char*>>{
             {"hoja.txt"},
             {"--orden"},
             {"-platform", "offscreen", "otra"},
             {"-platform"},
             {""},
             {"-"},
             {"--"},
         }) {
        const auto respuesta = Responde(palabras);
        ASSERT_TRUE(respuesta.has_value());
        EXPECT_EQ(respuesta->estado, 2);
        EXPECT_EQ(std::ranges::count(respuesta->texto, '\n'), 1) << respuesta->texto;
        EXPECT_TRUE(respuesta->texto.ends_with("vea quiralto --help\n"));
    }
}

// The program itself, with no display or one that nobody serves, and no session either, of which
// the display libraries complain on their own.
Final Corre(std::vector<std::string> palabras, const std::string& pantalla) {
    palabras.insert(palabras.begin(), QUIRALTO_PROGRAMA);
    return Ejecuta({.palabras = std::move(palabras),
                    .entrada = {},
                    .entorno = {{"DISPLAY", pantalla},
                                {"WAYLAND_DISPLAY", ""},
                                {"XDG_RUNTIME_DIR", ""},
                                {"QT_QPA_PLATFORM", ""}}});
}

TEST(Programa, SinPantallaLoDiceEnUnaLíneaYAcabaCon1) {
    for (const char* pantalla : {"", ":97", "nadie"}) {
        const Final final = Corre({}, pantalla);
        EXPECT_EQ(final.estado, 1) << pantalla;
        EXPECT_EQ(final.salida, "");
        EXPECT_EQ(final.errores, "quiralto: no hay pantalla en la que abrir la ventana\n");
    }
    const Final final = Corre({"-platform", "noexiste"}, "");
    EXPECT_EQ(final.estado, 1);
    EXPECT_EQ(std::ranges::count(final.errores, '\n'), 1) << final.errores;
}

TEST(Programa, VersiónYAyudaNoNecesitanPantalla) {
    const Final versión = Corre({"--version"}, "");
    EXPECT_EQ(versión.estado, 0);
    EXPECT_EQ(versión.salida, "quiralto " + std::string(Versión) + "\n");
    EXPECT_EQ(versión.errores, "");
    const Final ayuda = Corre({"--help"}, "");
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_TRUE(ayuda.salida.starts_with("Uso: quiralto"));
    const Final otra = Corre({"hoja.txt"}, "");
    EXPECT_EQ(otra.estado, 2);
    EXPECT_EQ(otra.salida, "");
    EXPECT_NE(otra.errores.find("«hoja.txt»"), std::string::npos);
}

} // namespace
} // namespace quiralto
