// How the terminal program takes its words: modes, options, wrong calls.

#include "commands/ordenes.h"
#include "tests/cli/terminal.h"

#include <algorithm>
#include <regex>

namespace quiralto {
namespace {

using Palabras = std::vector<std::string>;

constexpr const char* Soluciones = "Hallar soluciones ecuación";

std::string Junta(const Palabras& palabras) {
    std::string texto;
    for (const std::string& palabra : palabras)
        (texto += palabra) += " | ";
    return texto;
}

TEST(Opciones, ListarEscribeLasÓrdenesEnElOrdenDeLaTabla) {
    std::string esperado;
    for (const Orden& orden : DevÓrdenes())
        esperado.append(orden.texto) += '\n';
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--listar"}), 0, esperado, ""));
}

TEST(Opciones, LasÓrdenesSonLasConocidasYEnSuOrden) {
    const std::vector<std::string_view> conocidas = {
        "Resolver sistema lineal",
        "Hallar máximo común divisor",
        "Hallar mínimo común múltiplo",
        "Hallar divisores",
        "Hallar factores primos",
        "Hallar números primos",
        "Hallar soluciones ecuación",
        "Hallar máximos",
        "Hallar mínimos",
        "Hallar puntos de inflexión",
        "Hallar área",
        "Derivar",
        "Hallar tangente",
        "Hallar secante",
        "Desarrollo completo",
        "Desarrollo simplificado",
        "Simplificar función racional",
        "Factorizar función racional",
        "Máximo común divisor función racional",
        "Mínimo común múltiplo función racional",
        "Desarrollo completo multivariable",
        "Desarrollo simplificado multivariable",
        "Convertir coeficientes a fracción continua",
        "Hallar polinomio de Lagrange",
    };
    auto lugar = conocidas.begin();
    for (const Orden& orden : DevÓrdenes()) {
        const auto hallada = std::find(lugar, conocidas.end(), orden.texto);
        ASSERT_NE(hallada, conocidas.end()) << orden.texto << " unknown or out of order";
        lugar = hallada + 1;
    }
    EXPECT_NE(lugar, conocidas.begin());
}

TEST(Opciones, LosEjemplosDeLasÓrdenesFuncionan) {
    for (const Orden& orden : DevÓrdenes()) {
        const Final final =
            LlamaAlTerminal({"--orden", std::string(orden.texto)}, std::string(orden.ejemplo));
        EXPECT_EQ(final.estado, 0) << orden.texto;
        EXPECT_EQ(final.errores, "") << orden.texto;
        EXPECT_NE(final.salida, orden.ejemplo) << orden.texto;
    }
}

TEST(Opciones, ListarLargoEscribeLasColumnasDeLaTabla) {
    std::string esperado;
    for (const Orden& orden : DevÓrdenes()) {
        std::string ejemplo(orden.ejemplo);
        for (std::size_t i; (i = ejemplo.find("\r\n")) != std::string::npos;)
            ejemplo.replace(i, 2, "\\n");
        for (const std::string_view columna : {orden.texto, orden.título, orden.forma.texto})
            esperado.append(columna) += '\t';
        esperado += ejemplo + '\n';
    }
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--listar", "--largo"}), 0, esperado, ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--largo", "--listar"}), 0, esperado, ""));
    EXPECT_NE(esperado.find("\\n"), std::string::npos);
}

TEST(Opciones, LosNombresCortosSonLosLargos) {
    for (const auto& [corto, largo] :
         {std::pair("-h", "--ayuda"), std::pair("-h", "--help"), std::pair("-V", "--version")})
        EXPECT_EQ(LlamaAlTerminal({corto}).salida, LlamaAlTerminal({largo}).salida) << corto;
}

TEST(Opciones, LaAyudaNombraTodasLasOpciones) {
    const Final ayuda = LlamaAlTerminal({"--ayuda"});
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_EQ(ayuda.errores, "");
    for (const char* opción :
         {"--orden", "--sintaxis", "--evaluar",   "--derivar", "--muestrear", "--xmín",
          "--xmáx",  "--ymín",     "--ymáx",      "--puntos",  "--cifras",    "--listar",
          "--ayuda", "--version",  "--resultado", "--json",    "--pasos",     "--programa",
          "--tabla", "--largo",    "-h",          "-V"})
        EXPECT_NE(ayuda.salida.find(opción), std::string::npos) << opción;
}

TEST(Opciones, LaVersiónSonTresNúmeros) {
    for (const char* opción : {"--version", "--versión"}) {
        const Final final = LlamaAlTerminal({opción});
        EXPECT_EQ(final.estado, 0);
        EXPECT_EQ(final.errores, "");
        EXPECT_TRUE(
            std::regex_match(final.salida, std::regex("quiralto-cli [0-9]+\\.[0-9]+\\.[0-9]+\n")))
            << final.salida;
    }
}

TEST(Opciones, LasCifrasDecidenElRedondeo) {
    const struct {
        Palabras palabras;
        const char* salida;
    } casos[] = {
        {{"--sintaxis", ".123456789012345678"}, ".12345679\n"},
        {{"--cifras", "8", "--sintaxis", ".123456789012345678"}, ".12345679\n"},
        {{"--cifras", "0", "--sintaxis", ".5"}, "1\n"},
        {{"--cifras", "3", "--sintaxis", "X-.0005"}, "X-.001\n"},
        {{"--cifras", "15", "--sintaxis", ".123456789012345678"}, ".123456789012346\n"},
        {{"--sintaxis", ".123456789012345678", "--cifras", "1"}, ".1\n"},
        {{"--cifras", "2", "--evaluar", ".126*X", "1"}, "0.13\n"},
        {{"--cifras", "2", "--derivar", ".126*X"}, ".13*1\n"},
        // The last one counts.
        {{"--cifras", "2", "--cifras", "4", "--sintaxis", ".123456"}, ".1235\n"},
    };
    for (const auto& [palabras, salida] : casos)
        EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 0, salida, "")) << Junta(palabras);
}

TEST(Opciones, LasCifrasSirvenDelanteYDetrásDeLaOrden) {
    const std::string salida = "X^2-2,0,2\n\n\n'Solución en X= 1.414\n";
    const FicheroTemporal hoja("X^2-2,0,2\n");
    for (const Palabras& palabras : {Palabras{"--cifras", "3", "--orden", Soluciones, hoja.Ruta()},
                                     Palabras{"--orden", Soluciones, "--cifras", "3", hoja.Ruta()},
                                     Palabras{"--orden", Soluciones, hoja.Ruta(), "--cifras", "3"},
                                     Palabras{hoja.Ruta(), "--orden", Soluciones, "--cifras", "3"}})
        EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 0, salida, "")) << Junta(palabras);
}

TEST(Opciones, ElValorDeUnaOpciónPuedeEmpezarPorGuiones) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis", "--X"}), 0, "X\n", ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--evaluar", "--X", "5", "-5"}), 0, "5\n-5\n", ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--derivar", "-X"}), 0, "-1\n", ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis", "--listar"}), 1, "",
                        "exclamación: Error de sintáxis: 'l'\n"));
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--orden", "--listar"})));
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--cifras", "--listar"})));
}

TEST(Opciones, ElValorPuedeIrPegadoConUnIgual) {
    const struct {
        Palabras palabras;
        const char* salida;
    } casos[] = {
        {{"--cifras=3", "--sintaxis=.12345"}, ".123\n"},
        {{"--evaluar=X^2", "3", "-3"}, "9\n9\n"},
        {{"--derivar=-X"}, "-1\n"},
        {{"--programa=X^2"}, "Z2 := X ^ 2\n"},
        {{"--tabla=X", "--xmín=0", "--xmáx=1", "--puntos=2"}, "0\t0\n0.5\t0.5\n1\t1\n"},
        {{"--muestrear=X", "--ymin=-1", "--xmax=1", "--xmin=-1", "--ymax=1", "--puntos=1"},
         "-10\t-10\n10\t10\n"},
    };
    for (const auto& [palabras, salida] : casos)
        EXPECT_TRUE(Termina(LlamaAlTerminal(palabras), 0, salida, "")) << Junta(palabras);
    // Only the first "=" parts the two.
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis=X=1"}), 1, "",
                        "exclamación: Error de sintáxis: '='\n"));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis="}), 1, "",
                        "exclamación: No ha escrito ninguna función o valor numérico \n"));
}

TEST(Opciones, DetrásDeDosGuionesNoHayOpciones) {
    const std::string salida = "X^2-2,0,2\n\n\n'Solución en X= 1.41421356\n";
    const FicheroTemporal hoja("X^2-2,0,2\n");
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--orden", Soluciones, "--", hoja.Ruta()}), 0, salida, ""));
    // Standard input is still called "-", and a second "--" is a name.
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--orden", Soluciones, "--", "-"}, "X^2-2,0,2\n"), 0, salida, ""));
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--orden", Soluciones, "--", "--"})));
    // Behind an option that needs a value it is that value.
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--sintaxis", "--"}), 1, "",
                        "exclamación: No está permitido terminar con: -\n"));
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--cifras", "--", "--listar"})));
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--listar", "--"}), 0, LlamaAlTerminal({"--listar"}).salida, ""));
}

TEST(Opciones, RechazaLasLlamadasErróneas) {
    const Palabras casos[] = {
        {},
        {""},
        {"hoja.txt"},
        {"--"},
        {"-a"},
        {"-hV"},
        {"-h=1"},
        {"-"},
        {"--nada"},
        {"--nada=1"},
        {"=1"},
        {"--listar=1"},
        {"--ayuda="},
        {"--", "--listar"},
        {"-h", "-V"},
        {"--Listar"},
        {"--listar", "--ayuda"},
        {"--listar", "--listar"},
        {"--listar", "hoja.txt"},
        {"--ayuda", "hoja.txt"},
        {"--version", "1"},
        {"--sintaxis"},
        {"--sintaxis", "X", "X"},
        {"--sintaxis", "X", "--derivar", "X"},
        {"--derivar"},
        {"--derivar", "X", "1"},
        {"--evaluar"},
        {"--evaluar", "X"},
        {"--evaluar", "X", "a"},
        {"--evaluar", "X", ""},
        {"--evaluar", "X", "1,5"},
        {"--evaluar", "X", " 1"},
        {"--evaluar", "X", "1 "},
        {"--evaluar", "X", "1E400"},
        {"--evaluar", "X", "inf"},
        {"--evaluar", "X", "nan"},
        {"--evaluar", "X", "0x10"},
        {"--evaluar", "X", "--"},
        {"--evaluar", "X", "1", "--cifras", "3"},
        {"--evaluar", "X", "--", "1"},
        {"--evaluar=X"},
        {"--evaluar=X", "1", "--cifras=3"},
        {"--programa"},
        {"--programa", "X", "X"},
        {"--tabla"},
        {"--tabla", "X", "--ymín", "1"},
        {"--tabla", "X", "--ymáx=1"},
        {"--tabla", "X", "--puntos=0"},
        {"--tabla", "X", "--xmín=10"},
        {"--derivar", "X", "--pasos=1"},
        {"--sintaxis", "X", "--pasos"},
        {"--sintaxis", "X", "--json"},
        {"--sintaxis", "X", "--resultado"},
        {"--sintaxis", "X", "--largo"},
        {"--orden", Soluciones, "--largo"},
        {"--orden", Soluciones, "--json", "--resultado"},
        {"--orden", Soluciones, "-hoja"},
        {"--muestrear"},
        {"--muestrear", "X", "1"},
        {"--muestrear", "X", "--puntos"},
        {"--muestrear", "X", "--puntos", "0"},
        {"--muestrear", "X", "--puntos", "-1"},
        {"--muestrear", "X", "--puntos", "1.5"},
        {"--muestrear", "X", "--puntos", "32768"},
        {"--muestrear", "X", "--puntos", "muchos"},
        {"--muestrear", "X", "--xmín", "10"},
        {"--muestrear", "X", "--xmín", "11"},
        {"--muestrear", "X", "--xmáx", "-10"},
        {"--muestrear", "X", "--ymín", "10"},
        {"--muestrear", "X", "--ymáx", "-11"},
        {"--muestrear", "X", "--xmín", "a"},
        {"--muestrear", "X", "--xmín"},
        {"--sintaxis", "X", "--xmín", "1"},
        {"--sintaxis", "X", "--puntos", "10"},
        {"--orden"},
        {"--orden", ""},
        {"--orden", "Hallar"},
        {"--orden", "hallar soluciones ecuación"},
        {"--orden", "Hallar soluciones ecuación "},
        {"--orden", "Hallar soluciones ecuacion"},
        {"--orden", Soluciones, "--orden", Soluciones},
        {"--orden", Soluciones, "-", "-"},
        {"--orden", Soluciones, "--ymín", "1"},
        {"--cifras"},
        {"--cifras", "3"},
        {"--cifras", "-1", "--listar"},
        {"--cifras", "16", "--listar"},
        {"--cifras", "1.5", "--listar"},
        {"--cifras", "", "--listar"},
        {"--cifras=", "--listar"},
        {"--cifras==4", "--listar"},
        {"--cifras", "ocho", "--listar"},
        // What the line on standard error repeats must not break it.
        {"--orden", "dos\nlíneas"},
        {"--dos\nlíneas"},
        {"--listar", "dos\nlíneas"},
        {"--orden", Soluciones, "no hay\ntal hoja"},
    };
    for (const Palabras& palabras : casos)
        EXPECT_TRUE(EsMalUso(LlamaAlTerminal(palabras))) << Junta(palabras);
}

TEST(Opciones, RechazaLasPalabrasQueNoSonUtf8) {
    for (const char* mala :
         {"\xFF", "X\x80", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80"})
        for (const Palabras& palabras : {Palabras{"--sintaxis", mala}, Palabras{"--orden", mala},
                                         Palabras{"--orden", Soluciones, mala}, Palabras{mala}})
            EXPECT_TRUE(EsMalUso(LlamaAlTerminal(palabras))) << Junta(palabras);
}

} // namespace
} // namespace quiralto
