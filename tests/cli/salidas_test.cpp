// --resultado and --json: what of a command's outcome is printed, and how.

#include "commands/ordenes.h"
#include "tests/cli/terminal.h"

#include <sstream>

namespace quiralto {
namespace {

const std::string Soluciones = "Hallar soluciones ecuación";

TEST(SoloResultado, EscribeLoAñadidoSinMarcasNiLíneasVacías) {
    const struct {
        const char* orden;
        const char* hoja;
        const char* salida;
    } casos[] = {
        {"Hallar soluciones", "X^2-4,-5,5", "Solución en X=-2\nSolución en X= 2\n"},
        {"Hallar soluciones", "'nota\n\nX^2-4,-5,5\n\n", "Solución en X=-2\nSolución en X= 2\n"},
        {"Hallar área", "X,0,1", "Area= .5\n"},
        {"Hallar números primos", "2,10",
         "Hallados  4 primos :\n 2\n 3\n 5\n 7\n\n(Sólo se muestran los primos positivos)\n"},
        {"Convertir coeficientes a fracción continua", ".5*X",
         "Expresión convertida : \n(1/2)*X\n"},
    };
    for (const auto& [orden, hoja, salida] : casos)
        EXPECT_TRUE(
            Termina(LlamaAlTerminal({"--orden", orden, "--resultado"}, hoja), 0, salida, ""))
            << orden;
}

TEST(SoloResultado, DeUnaHojaRechazadaNoHayNada) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--resultado", "--orden", Soluciones}, "x,0,1"), 1, "",
                        "exclamación: Error de sintáxis: 'x'\nlínea: x,0,1\n"));
}

// Every line of the result is a line of the worksheet, in their order.
TEST(SoloResultado, SonLasLíneasDeLaHoja) {
    for (const Orden& orden : DevÓrdenes()) {
        const std::string texto(orden.texto);
        const std::string hoja(orden.ejemplo);
        const std::string entera = LlamaAlTerminal({"--orden", texto}, hoja).salida;
        const std::string resultado =
            LlamaAlTerminal({"--orden", texto, "--resultado"}, hoja).salida;
        ASSERT_NE(resultado, "") << texto;
        EXPECT_NE(resultado.front(), '\n') << texto;
        EXPECT_TRUE(resultado.ends_with('\n') && !resultado.ends_with("\n\n")) << texto;
        std::string esperado;
        std::istringstream líneas(entera.substr(ConLf(hoja).size()));
        for (std::string línea; std::getline(líneas, línea);)
            if (!esperado.empty() || !línea.empty())
                esperado += (línea.starts_with('\'') ? línea.substr(1) : línea) + '\n';
        EXPECT_EQ(resultado, esperado) << texto;
    }
}

TEST(Json, TieneLaOrdenLaHojaElResultadoLosMensajesYLaLínea) {
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--json", "--orden", "Hallar soluciones"}, "X^2-4,-5,5\r\n"), 0,
                R"({"orden":"Hallar soluciones ecuación",)"
                R"("hoja":"X^2-4,-5,5\n\n\n'Solución en X=-2\n'Solución en X= 2\n",)"
                R"("resultado":["Solución en X=-2","Solución en X= 2"],"mensajes":[],"línea":null})"
                "\n",
                ""));
}

TEST(Json, LosMensajesVanDentro) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", Soluciones, "--json"}, "x,0,1"), 1,
                        R"({"orden":"Hallar soluciones ecuación","hoja":"x,0,1","resultado":[],)"
                        R"("mensajes":[{"icono":"exclamación","texto":"Error de sintáxis: 'x'"}],)"
                        R"("línea":"x,0,1"})"
                        "\n",
                        ""));
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--orden", "Hallar área", "--json"}, "1E308,0,1"), 1,
                R"({"orden":"Hallar área","hoja":"1E308,0,1\n\n","resultado":[],"mensajes":[)"
                R"({"icono":"crítico","texto":"Se produjo el error número :6. Tipo de error )"
                R"(:Desbordamiento. Utilice valores diferentes para evitar este tipo de error. El )"
                R"(proceso solicitado se cancelará."}],"línea":null})"
                "\n",
                ""));
}

TEST(Json, LosTextosVanEntreComillasYConEscapes) {
    const std::string hoja = "'\"\\\x01\t\x7F ñ🙂\n" + std::string(1, '\0');
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--orden", Soluciones, "--json"}, hoja + ",0,1"), 1,
                R"({"orden":"Hallar soluciones ecuación",)"
                R"("hoja":"'\"\\\u0001\t\u007f ñ🙂\n\u0000,0,1","resultado":[],)"
                R"("mensajes":[{"icono":"exclamación","texto":"Error de sintáxis: '\u0000'"}],)"
                R"("línea":"\u0000,0,1"})"
                "\n",
                ""));
}

TEST(Json, UnaLlamadaErróneaNoEsUnObjeto) {
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--json", "--orden", "Hallar"}, "X,0,1")));
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--json", "--orden", Soluciones}, "\xFF")));
}

} // namespace
} // namespace quiralto
