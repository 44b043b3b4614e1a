// The promise that the sums of an expansion keep is seen to be broken where it is.
#include "engine/desarrollo/forma_canonica.h"

#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(FormaCanónica, DistingueLasSumasQueLaTienen) {
    Banco banco;
    TablaSímbolos tabla(banco.contexto, ClaseDesarrollo::Simplificado);
    IdSímbolo x = tabla.DevVariable('X', "X");
    IdSímbolo y = tabla.DevVariable('Y', "Y");
    if (!tabla.Precede(x, y))
        std::swap(x, y);
    const Literal equis = {{x, 1}};
    EXPECT_TRUE(EsCanónica(tabla, {}));
    EXPECT_TRUE(EsCanónica(tabla, {{2, equis}, {3, {{x, 2}}}, {1, {{x, 1}, {y, 1}}}, {5, {}}}));
    EXPECT_FALSE(EsCanónica(tabla, {{0, equis}}));
    EXPECT_FALSE(EsCanónica(tabla, {{1, {{x, 0}}}}));
    EXPECT_FALSE(EsCanónica(tabla, {{1, {{y, 1}, {x, 1}}}}));
    EXPECT_FALSE(EsCanónica(tabla, {{2, equis}, {3, {}}, {4, equis}}));
    EXPECT_FALSE(EsCanónica(tabla, {{2, {}}, {3, {}}}));
}

} // namespace
} // namespace quiralto
