// The terminal program with its primes file in place, missing and cut short.

#include "tests/proceso.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace quiralto {
namespace {

namespace fs = std::filesystem;

class PrimosPorTerminal : public testing::Test {
protected:
    void SetUp() override {
        raíz_ = fs::path(testing::TempDir()) / ("quiralto_cli_" + std::to_string(::getpid()));
        fs::remove_all(raíz_);
        fs::create_directories(raíz_ / "bin");
        fs::copy_file(QUIRALTO_CLI, raíz_ / "bin/quiralto-cli");
    }
    void TearDown() override { fs::remove_all(raíz_); }

    Final Factoriza(const std::string& número) const {
        return Ejecuta({.palabras = {(raíz_ / "bin/quiralto-cli").string(), "--orden",
                                     "Hallar factores primos"},
                        .entrada = número,
                        .entorno = {}});
    }

    static void EsperaDivisiónPorCero(const Final& final) {
        EXPECT_EQ(final.estado, 1);
        EXPECT_EQ(final.salida, "2147483647");
        EXPECT_EQ(final.errores,
                  "crítico: Se produjo el error número :11. Tipo de error :División por cero. "
                  "Utilice valores diferentes para evitar este tipo de error. El proceso "
                  "solicitado se cancelará.\n");
    }

    static void EsperaPrimo(const Final& final) {
        EXPECT_EQ(final.estado, 0);
        EXPECT_EQ(final.errores, "");
        EXPECT_NE(final.salida.find("\n'(2147483647)\n"), std::string::npos) << final.salida;
    }

    fs::path raíz_;
};

TEST_F(PrimosPorTerminal, SinSuFicheroTerminanEnDivisiónPorCeroYNoLoCrean) {
    EsperaDivisiónPorCero(Factoriza("2147483647"));
    EXPECT_FALSE(fs::exists(raíz_ / "bin/Primos.Qto"));
}

TEST_F(PrimosPorTerminal, ConElFicheroCortadoTerminanEnDivisiónPorCero) {
    for (const std::uintmax_t tamaño : {0U, 2U, 4000U, 19164U, 19167U}) {
        const fs::path fichero = raíz_ / "bin/Primos.Qto";
        fs::copy_file(QUIRALTO_PRIMOS, fichero, fs::copy_options::overwrite_existing);
        fs::resize_file(fichero, tamaño);
        EsperaDivisiónPorCero(Factoriza("2147483647"));
        EXPECT_EQ(fs::file_size(fichero), tamaño);
    }
}

TEST_F(PrimosPorTerminal, LoEncuentranAlLadoDelProgramaDesdeCualquierCarpeta) {
    fs::copy_file(QUIRALTO_PRIMOS, raíz_ / "bin/Primos.Qto");
    EsperaPrimo(Factoriza("2147483647"));
    // Called by another name, the program is where its file is.
    fs::create_symlink(raíz_ / "bin/quiralto-cli", raíz_ / "enlace");
    EsperaPrimo(
        Ejecuta({.palabras = {(raíz_ / "enlace").string(), "--orden", "Hallar factores primos"},
                 .entrada = "2147483647",
                 .entorno = {}}));
}

TEST_F(PrimosPorTerminal, LoEncuentranEntreLosDatosInstalados) {
    const fs::path datos = raíz_ / "share/quiralto";
    fs::create_directories(datos);
    fs::copy_file(QUIRALTO_PRIMOS, datos / "Primos.Qto");
    EsperaPrimo(Factoriza("2147483647"));
}

} // namespace
} // namespace quiralto
