// The terminal program between its streams and its files: signals, streams that are closed or take
// no more, worksheets that cannot be read, a primes file that is none, strange places.

#include "tests/cli/terminal.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace quiralto {
namespace {

namespace fs = std::filesystem;

constexpr const char* Área = "Hallar área";
constexpr const char* Resuelta = "X,0,1\n\n'Area= .5";
constexpr const char* NoSeEscribe = "quiralto-cli: no se puede escribir en la salida estándar\n";

// Runs a line of the shell; "$0" is the terminal program, "$1" and so on are `palabras`.
Final LlamaPorShell(const std::string& línea, const std::vector<std::string>& palabras = {},
                    const std::string& entrada = {}) {
    Llamada llamada{
        .palabras = {"/bin/sh", "-c", línea, QUIRALTO_CLI}, .entrada = entrada, .entorno = {}};
    llamada.palabras.insert(llamada.palabras.end(), palabras.begin(), palabras.end());
    return Ejecuta(llamada);
}

std::string DevFórmulaLarga() {
    constexpr int Veces = 10000;
    std::string f;
    for (int i = 0; i < Veces; ++i)
        f += "SIN(";
    return f + 'X' + std::string(Veces, ')');
}

TEST(Señales, InterrumpirYTerminarAcabanConUnaOrdenLarga) {
    const std::string f = DevFórmulaLarga();
    for (const auto& [señal, número] : {std::pair("INT", 2), std::pair("TERM", 15)}) {
        const Final final = LlamaPorShell("timeout --preserve-status -s " + std::string(señal) +
                                              " 0.2 env --default-signal=" + señal +
                                              " \"$0\" --tabla \"$1\" --puntos 32767",
                                          {f});
        EXPECT_EQ(final.estado, 128 + número) << señal;
        EXPECT_EQ(final.salida, "");
        EXPECT_EQ(final.errores, "");
    }
}

TEST(Señales, InterrumpirAcabaMientrasEsperaLaHoja) {
    const Final final = LlamaPorShell("sleep 1 | timeout --preserve-status -s INT 0.2 env "
                                      "--default-signal=INT \"$0\" --orden 'Hallar área'; "
                                      "echo \"estado $?\"; exit 0");
    EXPECT_EQ(final.salida, "estado 130\n");
}

TEST(Salida, UnDispositivoLlenoEsUnaLíneaYElEstadoDos) {
    for (const char* modo :
         {"--sintaxis X", "--evaluar X 1", "--derivar X", "--programa X", "--muestrear X",
          "--tabla X", "--listar", "--ayuda", "--version", "--orden 'Hallar área'",
          "--orden 'Hallar área' --json", "--orden 'Hallar área' --resultado"})
        EXPECT_TRUE(
            Termina(LlamaPorShell(std::string("\"$0\" ") + modo + " >/dev/full", {}, "X,0,1"), 2,
                    "", NoSeEscribe))
            << modo;
}

TEST(Salida, UnaTuberíaCerradaEsUnaLíneaYElEstadoDos) {
    // The reader is gone before the program writes.
    const Final final = LlamaPorShell(
        "{ sleep 0.3; \"$0\" --muestrear X --puntos 32767; echo \"estado $?\" >&2; } | true");
    EXPECT_EQ(final.errores, std::string(NoSeEscribe) + "estado 2\n");
}

TEST(Salida, CerradaEsComoUnDispositivoQueNoAdmiteNada) {
    EXPECT_TRUE(Termina(LlamaPorShell("\"$0\" --sintaxis X >&-"), 2, "", NoSeEscribe));
    EXPECT_TRUE(Termina(LlamaPorShell("\"$0\" --orden 'Hallar área' >&-", {}, "X,0,1"), 2, "",
                        NoSeEscribe));
    // Who has nothing to write does not miss it.
    EXPECT_TRUE(Termina(LlamaPorShell("\"$0\" --sintaxis x >&-"), 1, "",
                        "exclamación: Error de sintáxis: 'x'\n"));
}

TEST(Salida, SinSalidaDeErroresQuedanElResultadoYElEstado) {
    for (const char* errores : {"2>&-", "2>/dev/full"}) {
        EXPECT_TRUE(Termina(
            LlamaPorShell(std::string("\"$0\" --orden 'Hallar área' ") + errores, {}, "x,0,1"), 1,
            "x,0,1", ""))
            << errores;
        EXPECT_EQ(LlamaPorShell(std::string("\"$0\" --nada ") + errores).estado, 2) << errores;
    }
}

TEST(Entrada, CerradaEsUnaHojaQueNoSePuedeLeer) {
    const Final final = LlamaPorShell("\"$0\" --orden 'Hallar área' <&-");
    EXPECT_TRUE(EsMalUso(final));
    EXPECT_NE(final.errores.find("no se puede leer la hoja -"), std::string::npos);
    // With all three closed it still ends.
    EXPECT_EQ(LlamaPorShell("\"$0\" --orden 'Hallar área' <&- >&- 2>&-").estado, 2);
}

TEST(Entrada, VacíaEsUnaHojaVacía) {
    const Final final = LlamaPorShell("\"$0\" --orden 'Hallar área' </dev/null");
    EXPECT_EQ(final.estado, 1);
    EXPECT_EQ(final.salida, "");
    EXPECT_TRUE(final.errores.starts_with("exclamación: Se esperaba una línea"));
}

TEST(Entrada, DeUnTerminalSePideConUnaLínea) {
    const int maestro = posix_openpt(O_RDWR | O_NOCTTY);
    if (maestro < 0)
        GTEST_SKIP() << "this place has no terminals";
    close(maestro);
    const Final final =
        LlamaPorShell("carpeta=$(mktemp -d) && cd \"$carpeta\" && export CLI=\"$0\" && "
                      "script -qec '\"$CLI\" --orden \"Hallar área\" >salida 2>errores' /dev/null "
                      ">/dev/null; estado=$?; cat salida; cat errores >&2; rm -r \"$carpeta\"; "
                      "exit $estado",
                      {}, "X,0,1\n");
    EXPECT_TRUE(Termina(final, 0, "X,0,1\n\n\n'Area= .5",
                        "quiralto-cli: se espera la hoja por la entrada; termina con Ctrl+D\n"));
}

TEST(Hojas, LasQueNoSonFicherosSeRechazan) {
    for (const std::string& hoja :
         {testing::TempDir(), std::string("/no/hay"), std::string("/proc/self/mem"),
          std::string("/dev/full/hoja"), std::string(5000, 'a'), std::string()}) {
        const Final final = LlamaAlTerminal({"--orden", Área, hoja});
        EXPECT_TRUE(EsMalUso(final)) << hoja;
        EXPECT_NE(final.errores.find("no se puede leer la hoja " + hoja), std::string::npos);
    }
}

TEST(Hojas, LasQueNoAcabanSeRechazanPronto) {
    for (const Final& final : {LlamaAlTerminal({"--orden", Área, "/dev/zero"}),
                               LlamaPorShell("yes X,0,1 | \"$0\" --orden 'Hallar área'")}) {
        EXPECT_TRUE(EsMalUso(final));
        EXPECT_NE(final.errores.find("se esperaba una hoja de 64 MiB a lo sumo"),
                  std::string::npos);
        EXPECT_LT(final.cpu, 5);
    }
}

TEST(Hojas, PuedenSerTuberíasYEnlaces) {
    const FicheroTemporal hoja("X,0,1");
    const fs::path enlace = hoja.Ruta() + ".enlace";
    fs::remove(enlace);
    fs::create_symlink(hoja.Ruta(), enlace);
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", Área, enlace.string()}), 0, Resuelta, ""));
    fs::remove(enlace);
    EXPECT_TRUE(Termina(LlamaPorShell("cat | \"$0\" --orden 'Hallar área' /dev/stdin", {}, "X,0,1"),
                        0, Resuelta, ""));
}

// A copy of the program in a folder of its own.
class EnOtroLugar : public testing::Test {
protected:
    void SetUp() override {
        raíz_ = fs::path(testing::TempDir()) / ("año nuevo " + std::to_string(::getpid()));
        fs::remove_all(raíz_);
        fs::create_directories(raíz_ / "bin");
        fs::create_directories(raíz_ / "share/quiralto");
        fs::copy_file(QUIRALTO_CLI, raíz_ / "bin/quiralto-cli");
    }
    void TearDown() override { fs::remove_all(raíz_); }

    fs::path AlLado() const { return raíz_ / "bin/Primos.Qto"; }
    fs::path EntreLosDatos() const { return raíz_ / "share/quiralto/Primos.Qto"; }

    Final Factoriza(std::vector<std::string> delante = {}) const {
        delante.push_back((raíz_ / "bin/quiralto-cli").string());
        delante.insert(delante.end(), {"--orden", "Hallar factores primos", "--resultado"});
        return Ejecuta({.palabras = delante, .entrada = "2147483647", .entorno = {}});
    }
    static testing::AssertionResult Halla(const Final& final) {
        return Termina(final, 0,
                       "Encontrados  1 factores primos, descomposición : \n(2147483647)\n\n"
                       "(Sólo se muestran los factores primos positivos.)\n",
                       "");
    }
    static testing::AssertionResult NoTienePrimos(const Final& final) {
        return final.estado == 1 && final.salida.empty() &&
                       final.errores.starts_with("crítico: Se produjo el error número :11.")
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << final.estado << final.salida << final.errores;
    }

    fs::path raíz_;
};

TEST_F(EnOtroLugar, UnPrefijoConBlancosYEñes) {
    fs::copy_file(QUIRALTO_PRIMOS, EntreLosDatos());
    EXPECT_TRUE(Halla(Factoriza()));
}

TEST_F(EnOtroLugar, SinEntorno) {
    fs::copy_file(QUIRALTO_PRIMOS, EntreLosDatos());
    EXPECT_TRUE(Halla(Factoriza({"/usr/bin/env", "-i"})));
}

TEST_F(EnOtroLugar, PorUnEnlaceAUnaCarpeta) {
    fs::copy_file(QUIRALTO_PRIMOS, EntreLosDatos());
    fs::create_directory_symlink(raíz_ / "bin", raíz_ / "enlace");
    EXPECT_TRUE(Halla(Ejecuta({.palabras = {(raíz_ / "enlace/quiralto-cli").string(), "--orden",
                                            "Hallar factores primos", "--resultado"},
                               .entrada = "2147483647",
                               .entorno = {}})));
}

TEST_F(EnOtroLugar, LosPrimosNoSeLeenDeUnaCarpetaNiDeUnaTubería) {
    fs::create_directory(AlLado());
    EXPECT_TRUE(NoTienePrimos(Factoriza()));
    fs::create_directory(EntreLosDatos());
    EXPECT_TRUE(NoTienePrimos(Factoriza()));
    fs::remove(AlLado());
    fs::remove(EntreLosDatos());
    ASSERT_EQ(mkfifo(AlLado().c_str(), 0600), 0);
    EXPECT_TRUE(NoTienePrimos(Factoriza()));
    ASSERT_EQ(mkfifo(EntreLosDatos().c_str(), 0600), 0);
    EXPECT_TRUE(NoTienePrimos(Factoriza()));
}

TEST_F(EnOtroLugar, LosPrimosDeLosDatosValenDondeAlLadoNoHayFichero) {
    fs::create_directory(AlLado());
    fs::copy_file(QUIRALTO_PRIMOS, EntreLosDatos());
    EXPECT_TRUE(Halla(Factoriza()));
}

TEST_F(EnOtroLugar, UnFicheroDePrimosCambiadoNoDaFactoresFalsos) {
    fs::copy_file(QUIRALTO_PRIMOS, AlLado());
    std::fstream fichero(AlLado(), std::ios::binary | std::ios::in | std::ios::out);
    fichero.seekp(4 * 4000);
    fichero.write("\0\0\0\0", 4);
    fichero.close();
    EXPECT_TRUE(NoTienePrimos(Factoriza()));
}

} // namespace
} // namespace quiralto
