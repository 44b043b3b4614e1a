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
    // with a value behind them, or none
    for (const char* opción :
         {"-platform", "-platformpluginpath", "-platformtheme", "-plugin", "-style", "-stylesheet",
          "-qwindowgeometry", "-geometry", "-qwindowicon", "-icon", "-qwindowtitle", "-title",
          "-session", "-display", "-fontengine", "-qmljsdebugger"}) {
        EXPECT_FALSE(Responde({opción, "valor"}).has_value()) << opción;
        const auto falta = Responde({opción});
        ASSERT_TRUE(falta.has_value()) << opción;
        EXPECT_EQ(falta->texto, "quiralto: falta el valor de «" + std::string(opción) +
                                    "»; vea quiralto --help\n");
        EXPECT_EQ(falta->estado, 2);
    }
    for (const char* opción : {"-reverse", "-widgetcount", "-nograb", "-dograb", "-sync"}) {
        EXPECT_FALSE(Responde({opción}).has_value()) << opción;
        EXPECT_TRUE(Responde({opción, "valor"}).has_value()) << opción;
    }
}

TEST(Llamada, LoQueNoSeEntiendeEsUnaLíneaYEstado2) {
    const struct {
        std::vector<const char*> palabras;
        const char* texto;
    } casos[] = {
        {{"hoja.txt"}, "quiralto: no se entiende «hoja.txt»; vea quiralto --help\n"},
        {{"--orden"}, "quiralto: no se entiende «--orden»; vea quiralto --help\n"},
        {{"-platform", "offscreen", "otra"},
         "quiralto: no se entiende «otra»; vea quiralto --help\n"},
        {{"-platform"}, "quiralto: falta el valor de «-platform»; vea quiralto --help\n"},
        {{""}, "quiralto: no se entiende «»; vea quiralto --help\n"},
        {{"-"}, "quiralto: no se entiende «-»; vea quiralto --help\n"},
        {{"--"}, "quiralto: no se entiende «--»; vea quiralto --help\n"},
    };
    for (const auto& caso : casos) {
        const auto respuesta = Responde(caso.palabras);
        ASSERT_TRUE(respuesta.has_value());
        EXPECT_EQ(respuesta->estado, 2);
        EXPECT_EQ(respuesta->texto, caso.texto);
    }
}

TEST(Llamada, LaAyudaDiceCómoSeLlama) {
    for (const char* opción : {"-h", "--help", "--ayuda"}) {
        const auto respuesta = Responde({opción});
        ASSERT_TRUE(respuesta.has_value());
        EXPECT_EQ(respuesta->estado, 0);
        EXPECT_EQ(respuesta->texto,
                  R"(Uso: quiralto [OPCIONES]
Abre el taller de matemáticas Quiralto.

  -h, --help, --ayuda   muestra esta ayuda
  -V, --version         muestra la versión

También se admiten las opciones del sistema de ventanas, como
-platform, -style o -display. Sin ventana: quiralto-cli.
)");
    }
    for (const char* opción : {"-V", "--version", "--versión"})
        EXPECT_EQ(Responde({opción})->texto, "quiralto " + std::string(Versión) + "\n");
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
