// Memory that runs out anywhere in a whole run of the terminal program, from the first word of its
// call to the last of its output: the n-th request is refused, for every n.

#include "tests/cli/terminal.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

constexpr const char* SinMemoria =
    "crítico: Se produjo el error número :7. Tipo de error :Memoria insuficiente. Utilice valores "
    "diferentes para evitar este tipo de error. El proceso solicitado se cancelará.\n";

struct Corrida {
    const char* nombre;
    std::vector<std::string> palabras;
    std::string entrada;
};

class Memoria : public testing::TestWithParam<Corrida> {};

// The n-th request alone, or with all behind it.
Final Corre(const Corrida& corrida, long n) {
    std::vector<std::string> palabras = corrida.palabras;
    palabras.insert(palabras.begin(), QUIRALTO_CLI);
    return Ejecuta({.palabras = std::move(palabras),
                    .entrada = corrida.entrada,
                    .entorno = {{"LD_PRELOAD", QUIRALTO_MÓDULO_SIN_MEMORIA},
                                {"QUIRALTO_SIN_MEMORIA", std::to_string(n)}}});
}

// Run by run until two in a row ask for less than n; true where some failed.
void CompruebaTodas(const Corrida& corrida, int signo) {
    const bool conHoja = !corrida.entrada.empty() && corrida.palabras.size() == 2;
    const Final entera = Corre(corrida, 0);
    ASSERT_EQ(entera.estado, 0) << entera.errores;
    bool leída = false;
    int rechazadas = 0;
    for (int n = 1; n < 5000; ++n) {
        const Final final = Corre(corrida, signo * n);
        ASSERT_EQ(final.señal, 0) << n << ' ' << final.errores;
        ASSERT_FALSE(final.agotado) << n;
        if (final.estado == 0) {
            EXPECT_EQ(final.salida, entera.salida) << n;
            EXPECT_GT(rechazadas, 20);
            EXPECT_EQ(leída, conHoja);
            return;
        }
        ++rechazadas;
        ASSERT_EQ(final.estado, 1) << n << ' ' << final.errores;
        // an object for other programs holds its messages
        EXPECT_TRUE(final.errores.ends_with(SinMemoria) ||
                    final.salida.find("Memoria insuficiente") != std::string::npos)
            << n << ' ' << final.errores;
        if (!conHoja)
            continue;
        leída = leída || !final.salida.empty(); // once it has been read it is written
        EXPECT_TRUE(final.salida.starts_with(leída ? corrida.entrada : "")) << n;
    }
    FAIL() << "no end";
}

TEST_P(Memoria, UnaPeticiónRechazada) {
    CompruebaTodas(GetParam(), 1);
}

TEST_P(Memoria, EsaYTodasLasQueSiguen) {
    CompruebaTodas(GetParam(), -1);
}

INSTANTIATE_TEST_SUITE_P(
    Terminal, Memoria,
    testing::Values(Corrida{"Orden", {"--orden", "Hallar máximo común divisor"}, "12,18\n"},
                    Corrida{"Json", {"--orden", "Derivar", "--json"}, "X^2*SIN(X)\n"},
                    Corrida{"Derivar", {"--derivar", "X^2*SIN(X)"}, ""}),
    [](const auto& datos) { return std::string(datos.param.nombre); });

} // namespace
} // namespace quiralto
