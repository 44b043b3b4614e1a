#include "engine/sistemas/grado.h"

#include "engine/lenguaje/compila.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quiralto {
namespace {

std::string Producto(int desde, int hasta) {
    std::string texto;
    for (int i = desde; i <= hasta; ++i)
        texto += (i == desde ? "(SLN(" : "*(SLN(") + std::to_string(i) + ")+1)";
    return texto;
}

TEST(Grado, UnProductoLargoDeIncógnitasNoEsLineal) {
    for (const std::string& texto : std::vector<std::string>{
             Producto(1, 256), Producto(1, 20) + "-1", "(SLN(1)+SLN(2)+1)^12",
             "1/(" + Producto(1, 13) + ")*(SLN(1)+X)^13", "3*SLN(1)-.25*" + Producto(2, 15)})
        EXPECT_TRUE(PasaDeGradoUno(CompilaExpresión(texto))) << texto;
}

TEST(Grado, LoQueSeAnulaQuedaLineal) {
    for (const std::string& texto : std::vector<std::string>{
             Producto(1, 30) + "-" + Producto(1, 30) + "+SLN(1)",
             "((SLN(1)+1)^13*(SLN(2)-.5)^3)/((SLN(1)+1)^12*(SLN(2)-.5)^3)",
             "((SLN(3)+1)^13-(SLN(3)+1)^13)*SLN(1)+2*SLN(2)-7",
             "(1+1)^1024*SLN(1)",
         })
        EXPECT_FALSE(PasaDeGradoUno(CompilaExpresión(texto))) << texto;
}

TEST(Grado, DeLoCortoYDeLasFuncionesNoDiceNada) {
    for (const std::string& texto :
         std::vector<std::string>{"SLN(1)*SLN(2)", "SLN(1)^2", Producto(1, 20) + "*SQR(SLN(21))",
                                  Producto(1, 20) + "*SLN(21)^.5", Producto(1, 20) + "*SLN(1)^-1",
                                  Producto(1, 20) + "/(SLN(1)-SLN(1))"})
        EXPECT_FALSE(PasaDeGradoUno(CompilaExpresión(texto))) << texto;
}

} // namespace
} // namespace quiralto
