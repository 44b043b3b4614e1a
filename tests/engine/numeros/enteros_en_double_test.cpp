#include "engine/numeros/enteros_en_double.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(EnterosEnDouble, SeDistinguenDeLosQueTienenDecimales) {
    for (const double entero : {0.0, -0.0, 1.0, -7.0, 9007199254740991.0, 9007199254740992.0}) {
        EXPECT_TRUE(EsEntero(entero)) << entero;
        EXPECT_TRUE(EsEnteroExacto(entero)) << entero;
    }
    for (const double valor : {.5, -.5, 1.0000000000000002, 4503599627370495.5, 5e-324}) {
        EXPECT_FALSE(EsEntero(valor)) << valor;
        EXPECT_FALSE(EsEnteroExacto(valor)) << valor;
    }
    // Past 2^53 every Double is whole, but stands for its neighbours too.
    EXPECT_TRUE(EsEntero(9007199254740994.0));
    EXPECT_FALSE(EsEnteroExacto(9007199254740994.0));
    EXPECT_FALSE(EsEnteroExacto(-1e300));
}

} // namespace
} // namespace quiralto
