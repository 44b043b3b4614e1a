// --orden with menu captions, and with names that no command has.

#include "commands/ordenes.h"
#include "tests/cli/terminal.h"

#include <map>

namespace quiralto {
namespace {

TEST(Títulos, UnTítuloDeUnaSolaOrdenLaEjecuta) {
    std::map<std::string_view, int> veces;
    for (const Orden& orden : DevÓrdenes())
        ++veces[orden.título];
    int probados = 0;
    for (const Orden& orden : DevÓrdenes()) {
        if (veces[orden.título] > 1 || orden.título == orden.texto)
            continue;
        const std::string hoja(orden.ejemplo);
        const Final porTítulo = LlamaAlTerminal({"--orden", std::string(orden.título)}, hoja);
        const Final porTexto = LlamaAlTerminal({"--orden", std::string(orden.texto)}, hoja);
        EXPECT_EQ(porTítulo.estado, 0) << orden.título;
        EXPECT_EQ(porTítulo.salida, porTexto.salida) << orden.título;
        ++probados;
    }
    EXPECT_GE(probados, 8);
}

TEST(Títulos, ElDeDosÓrdenesSeRechazaConLosDosTextos) {
    for (const auto& [título, texto] :
         {std::pair("Desarrollar totalmente", "Desarrollo completo"),
          std::pair("Desarrollar simplificadamente", "Desarrollo simplificado")}) {
        const Final final = LlamaAlTerminal({"--orden", título}, "X");
        EXPECT_TRUE(EsMalUso(final));
        EXPECT_EQ(final.errores, "quiralto-cli: más de una orden se titula «" +
                                     std::string(título) + "»; se esperaba «" + texto + "» o «" +
                                     texto + " multivariable» (véase --ayuda)\n");
    }
}

TEST(Títulos, DeUnNombreDesconocidoSeProponeElMásCercano) {
    const struct {
        const char* nombre;
        const char* propuesto;
    } casos[] = {
        {"Hallar soluciones ecuacion", "Hallar soluciones ecuación"},
        {"hallar soluciones", "Hallar soluciones"},
        {"Hallar soluciones ecuación ", "Hallar soluciones ecuación"},
        {"area", "Hallar área"},
        {"hallar AREA", "Hallar área"},
        {"HALLAR MÁXIMOS", "Hallar máximos"},
        {"Hallar maximo", "Hallar máximos"},
        {"derivada", "Hallar derivada"},
        {"derivr", "Derivar"},
        {"Lagrange", "Hallar polinomio de Lagrange"},
        {"fracción continua", "Convertir coeficienes a fracción continua"},
        {"Resolver sistema linea", "Resolver sistema lineal"},
        // Its nearest caption is of two commands.
        {"Desarrollar totalmete", "Desarrollo completo» o «Desarrollo completo multivariable"},
    };
    for (const auto& [nombre, propuesto] : casos) {
        const Final final = LlamaAlTerminal({"--orden", nombre}, "X,0,1");
        EXPECT_TRUE(EsMalUso(final));
        EXPECT_NE(final.errores.find("¿«" + std::string(propuesto) + "»?"), std::string::npos)
            << final.errores;
    }
}

TEST(Títulos, UnNombreSinFinSeRechazaPronto) {
    const Final final = LlamaAlTerminal({"--orden", std::string(120'000, 'h')});
    EXPECT_TRUE(EsMalUso(final));
    EXPECT_LT(final.cpu, 1);
}

} // namespace
} // namespace quiralto
