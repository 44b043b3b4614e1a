#include "engine/lenguaje/lugares.h"

#include "engine/base/fallos.h"

#include <gtest/gtest.h>

#include <string>

namespace quiralto {
namespace {

int FalloDe(const std::string& texto) {
    try {
        const Lugares lugares(texto);
        return SinFallo;
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
}

TEST(Lugares, EncuentraElPrimeroYElÚltimoFueraDeLosGrupos) {
    const std::string_view texto = "1-X-(X-2)*3-SIN(X+1)";
    const Lugares lugares(texto);
    const std::size_t fin = texto.size();
    EXPECT_EQ(lugares.Primero(0, Operación::Resta, 0, fin), 1U);
    EXPECT_EQ(lugares.Primero(0, Operación::Resta, 2, fin), 3U);
    EXPECT_EQ(lugares.Último(0, Operación::Resta, 0, fin), 11U);
    EXPECT_EQ(lugares.Último(0, Operación::Resta, 0, 11), 3U);
    EXPECT_EQ(lugares.Primero(0, Operación::Producto, 0, fin), 9U);
    EXPECT_EQ(lugares.Primero(0, Operación::Suma, 0, fin), fin);
    EXPECT_EQ(lugares.Último(0, Operación::Cociente, 0, fin), fin);
    const std::size_t grupo = lugares.GrupoEn(5);
    EXPECT_EQ(lugares.Primero(grupo, Operación::Resta, 5, 8), 6U);
    EXPECT_EQ(lugares.Primero(lugares.GrupoEn(16), Operación::Suma, 16, 19), 17U);
}

TEST(Lugares, UnSignoDeExponenteODeOperandoNoSepara) {
    const std::string_view texto = "1E+20-X*-2/-3^-X";
    const Lugares lugares(texto);
    EXPECT_EQ(lugares.Primero(0, Operación::Suma, 0, texto.size()), texto.size());
    EXPECT_EQ(lugares.Primero(0, Operación::Resta, 0, texto.size()), 5U);
    EXPECT_EQ(lugares.Último(0, Operación::Resta, 0, texto.size()), 5U);
}

TEST(Lugares, SabeDóndeHayUnaX) {
    const Lugares lugares("2*(3+X)-EXP(1)");
    EXPECT_TRUE(lugares.ContieneX(0, 14));
    EXPECT_FALSE(lugares.ContieneX(0, 5));
    EXPECT_TRUE(lugares.ContieneX(5, 6));
    EXPECT_FALSE(lugares.ContieneX(6, 9));
    EXPECT_TRUE(lugares.ContieneX(8, 14)); // the one of EXP
}

TEST(Lugares, RechazaParéntesisDesigualesYTextosEnormes) {
    for (const char* texto : {"(", ")", "X)", "(X", ")("})
        EXPECT_EQ(FalloDe(texto), ArgumentoInválido) << texto;
    EXPECT_EQ(FalloDe("(X)+(X)"), SinFallo);
    EXPECT_EQ(FalloDe(std::string(2'000'001, '+')), EspacioDeCadenasInsuficiente);
    EXPECT_THROW(Lugares("X+(X)").GrupoEn(1), ErrorEjecución);
}

} // namespace
} // namespace quiralto
