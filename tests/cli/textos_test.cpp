// Every text of the terminal program's own, spelled out: its help, its list of the commands, and
// what it answers to each wrong call.

#include "tests/cli/terminal.h"

#include <gtest/gtest.h>
#include <sstream>

namespace quiralto {
namespace {

std::string LeeTexto(const char* nombre) {
    std::ostringstream texto;
    texto << std::ifstream(std::string(QUIRALTO_FUENTES) + "/tests/cli/textos/" + nombre).rdbuf();
    return texto.str();
}

TEST(Textos, LaAyudaEsLaEscrita) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--ayuda"}), 0, LeeTexto("ayuda.txt"), ""));
}

TEST(Textos, LosDeLasÓrdenesSonLosEscritos) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--listar", "--largo"}), 0, LeeTexto("ordenes.txt"), ""));
}

TEST(Textos, CadaLlamadaErradaDiceLoQueSeEsperaba) {
    struct Errada {
        std::vector<std::string> palabras;
        const char* dicho;
    };
    const char* const Modos = "--orden, --sintaxis, --evaluar, --derivar, --programa, "
                              "--muestrear, --tabla, --listar, --ayuda o --version";
    const std::string una = std::string("se esperaba una sola de las opciones ") + Modos;
    const std::string alguna = std::string("se esperaba ") + Modos;
    const std::vector<Errada> erradas = {
        {{}, alguna.c_str()},
        {{"--sintaxis", "X", "--derivar", "X"}, una.c_str()},
        {{"--nada"}, "opción desconocida: --nada"},
        {{"--orden", "Derivar", "a", "b"}, "se esperaba una sola hoja"},
        {{"--listar=1"}, "no se esperaba un valor detrás de --listar"},
        {{"--sintaxis"}, "se esperaba un valor detrás de --sintaxis"},
        {{"--evaluar", "X"}, "se esperaba al menos un valor de X detrás de la función"},
        {{"--evaluar", "X", "uno"}, "se esperaba un número para X"},
        {{"--listar", "hoja"}, "no se esperaba 'hoja'"},
        {{"--listar", "--pasos"}, "se esperaba --derivar con --pasos"},
        {{"--listar", "--json"}, "se esperaba --orden con --json"},
        {{"--listar", "--puntos", "4"}, "se esperaba --muestrear o --tabla con --puntos"},
        {{"--orden", "Derivar", "--json", "--resultado"},
         "se esperaba una sola de las opciones --resultado y --json"},
        {{"--tabla", "X", "--xmín=2", "--xmáx=1"}, "se esperaba un mínimo menor que el máximo"},
        {{"--tabla", "X", "--xmín=dos"}, "se esperaba un número para --xmín"},
        {{"--cifras", "16", "--listar"}, "se esperaba un entero de 0 a 15 para --cifras"},
        {{"--tabla", "X", "--puntos=0"}, "se esperaba un entero de 1 a 32767 para --puntos"},
        {{"--sintaxis", "\xFF"}, "se esperaba texto en UTF-8"},
        {{"--orden", "Desarrollar totalmente"},
         "más de una orden se titula «Desarrollar totalmente»; se esperaba «Desarrollo completo» "
         "o «Desarrollo completo multivariable»"},
        {{"--orden", "Derivas"},
         "orden desconocida: Derivas; se esperaba una de las que escribe --listar, ¿«Derivar»?"},
        {{"--orden", "Derivar", "/no/existe"}, "no se puede leer la hoja /no/existe"},
    };
    for (const Errada& errada : erradas)
        EXPECT_TRUE(Termina(LlamaAlTerminal(errada.palabras), 2, "",
                            "quiralto-cli: " + std::string(errada.dicho) + " (véase --ayuda)\n"));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", "Derivar"}, "\xFF\n"), 2, "",
                        "quiralto-cli: se esperaba una hoja en UTF-8 (véase --ayuda)\n"));
}

} // namespace
} // namespace quiralto
