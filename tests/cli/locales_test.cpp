// The same bytes whatever the user's locale: in three of them the decimal point is a comma, and in
// Turkish a small i has another capital.

#include "tests/cli/terminal.h"
#include "tests/hojas_doradas.h"

namespace quiralto {
namespace {

struct Locale {
    const char* nombre;
    const char* definición;
};

constexpr Locale Locales[] = {
    {"es_ES.UTF-8", "es_ES"},
    {"de_DE.UTF-8", "de_DE"},
    {"tr_TR.UTF-8", "tr_TR"},
};

const std::filesystem::path CarpetaDeLocales = QUIRALTO_LOCALES;

using Entorno = std::vector<std::pair<std::string, std::string>>;

Entorno DevEntornoDe(const std::string& nombre) {
    return {{"LOCPATH", CarpetaDeLocales.string()}, {"LC_ALL", nombre}, {"LANG", nombre}};
}

// Compiles the locale into the build folder unless it is there. Tests that run at the same time may
// both do it: each writes a folder of its own, and the last name given wins.
void PreparaLocale(const Locale& locale) {
    const std::filesystem::path destino = CarpetaDeLocales / locale.nombre;
    if (std::filesystem::exists(destino))
        return;
    std::filesystem::create_directories(CarpetaDeLocales);
    const std::filesystem::path propia = destino.string() + '.' + std::to_string(::getpid());
    const Final final = Ejecuta(
        {.palabras = {QUIRALTO_LOCALEDEF, "-i", locale.definición, "-f", "UTF-8", propia.string()},
         .entrada = {},
         .entorno = {}});
    ASSERT_EQ(final.estado, 0) << final.errores;
    std::error_code yaEstá;
    std::filesystem::rename(propia, destino, yaEstá);
    if (yaEstá)
        std::filesystem::remove_all(propia);
}

class BajoUnLocale : public testing::TestWithParam<Locale> {
protected:
    void SetUp() override { PreparaLocale(GetParam()); }

    Final Llama(std::vector<std::string> palabras, const std::string& entrada = {}) const {
        palabras.insert(palabras.begin(), QUIRALTO_CLI);
        return Ejecuta({.palabras = std::move(palabras),
                        .entrada = entrada,
                        .entorno = DevEntornoDe(GetParam().nombre)});
    }
};

TEST_P(BajoUnLocale, SonLosQueDicenSer) {
    const Final final = Ejecuta({.palabras = {"/usr/bin/locale", "-k", "decimal_point"},
                                 .entrada = {},
                                 .entorno = DevEntornoDe(GetParam().nombre)});
    EXPECT_EQ(final.salida, "decimal_point=\",\"\n");
}

TEST_P(BajoUnLocale, NoCambianLoQueSeEscribe) {
    const std::vector<std::string> llamadas[] = {
        {"--listar"},
        {"--ayuda"},
        {"--nada"},
        {"--sintaxis", "X*0.5-1.25E-3"},
        {"--sintaxis", "Xİı"},
        {"--evaluar", "SIN(X)/1.5", "0.5", "1E-3", "-.25"},
        {"--derivar", "SIN(1.5*X)"},
        {"--muestrear", "X/3", "--xmín", "-1.5", "--xmáx", "2.5", "--puntos", "40"},
        {"--orden", "no hay tal orden"},
    };
    for (const auto& palabras : llamadas) {
        const Final enC = Ejecuta({.palabras =
                                       [&] {
                                           auto todas = palabras;
                                           todas.insert(todas.begin(), QUIRALTO_CLI);
                                           return todas;
                                       }(),
                                   .entrada = {},
                                   .entorno = DevEntornoDe("C")});
        EXPECT_TRUE(Termina(Llama(palabras), enC.estado, enC.salida, enC.errores))
            << palabras.front();
    }
}

TEST_P(BajoUnLocale, NoCambianLasHojasDoradas) {
    for (const std::filesystem::path& fichero : DevFicherosDeHojas(QUIRALTO_HOJAS)) {
        const HojaDorada dorada = CargaHojaDorada(fichero);
        EXPECT_TRUE(
            Termina(Llama({"--cifras", std::to_string(dorada.cifras), "--orden", dorada.orden},
                          dorada.hoja),
                    dorada.mensajes.empty() ? 0 : 1, dorada.queda,
                    dorada.mensajes.empty() ? "" : dorada.mensajes + '\n'))
            << fichero;
    }
}

INSTANTIATE_TEST_SUITE_P(Terminal, BajoUnLocale, testing::ValuesIn(Locales),
                         [](const auto& datos) { return std::string(datos.param.definición); });

} // namespace
} // namespace quiralto
