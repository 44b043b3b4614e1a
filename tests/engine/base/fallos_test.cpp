#include "engine/base/fallos.h"

#include <gtest/gtest.h>

#include <limits>

namespace quiralto {
namespace {

TEST(DescripciónError, CadaNúmeroTieneLaSuya) {
    const struct {
        int número;
        const char* descripción;
    } casos[] = {
        {5, "Argumento o llamada a procedimiento no válida"},
        {6, "Desbordamiento"},
        {7, "Memoria insuficiente"},
        {11, "División por cero"},
        {14, "Espacio de cadenas insuficiente"},
        {0, "Error definido por la aplicación"},
        {129, "Error definido por la aplicación"},
        {-1, "Error definido por la aplicación"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(DescripciónError(caso.número), caso.descripción);
        EXPECT_STREQ(ErrorEjecución(caso.número).what(), caso.descripción);
        EXPECT_EQ(ErrorEjecución(caso.número).Número(), caso.número);
    }
}

int FalloDe(double valor) {
    try {
        EXPECT_EQ(CompruebaFinito(valor), valor);
        return SinFallo;
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
}

TEST(CompruebaFinito, TerminaPorLoQueNoEsFinito) {
    using Límites = std::numeric_limits<double>;
    EXPECT_EQ(FalloDe(0), SinFallo);
    EXPECT_EQ(FalloDe(Límites::lowest()), SinFallo);
    EXPECT_EQ(FalloDe(Límites::denorm_min()), SinFallo);
    EXPECT_EQ(FalloDe(Límites::infinity()), Desbordamiento);
    EXPECT_EQ(FalloDe(-Límites::infinity()), Desbordamiento);
    EXPECT_EQ(FalloDe(Límites::quiet_NaN()), ArgumentoInválido);
}

} // namespace
} // namespace quiralto
