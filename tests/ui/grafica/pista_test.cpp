// The hints for the usual slips.

#include "ui/grafica/pista.h"

#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(Pista, NombraElDescuido) {
    const struct {
        const char* texto;
        const char* pista;
    } casos[] = {
        {"SEN(", "seno es SIN"},
        {"2*SEN(X)", "seno es SIN"},
        {"TG(X)", "tangente es TAN"},
        {"TAG(X)", "tangente es TAN"},
        {"CSC(X)", "cosecante es COSEC"},
        {"COT(X)", "cotangente es 1/TAN"},
        {"CTG(X)", "cotangente es 1/TAN"},
        {"COTAN(X)", "cotangente es 1/TAN"},
        {"LN(X)", "logaritmo neperiano es LOG"},
        {"SQRT(X)", "raíz cuadrada es SQR"},
        {"RAIZ(X)", "raíz cuadrada es SQR"},
        {"ASIN(X)", "arco seno es ARCSIN"},
        {"ASEN(X)", "arco seno es ARCSIN"},
        {"ARCSEN(X)", "arco seno es ARCSIN"},
        {"ATAN(X)", "arco tangente es ATN"},
        {"ATG(X)", "arco tangente es ATN"},
        {"ARCTAN(X)", "arco tangente es ATN"},
        {"ARCTG(X)", "arco tangente es ATN"},
        {"ABS(X)", "el valor absoluto de X es SQR(X^2)"},
        {"2,5", "el decimal es el punto"},
        {"X+0,5", "el decimal es el punto"},
        {"2X", "falta * entre 2 y X"},
        {"12.5X", "falta * entre 12.5 y X"},
        {"X2", "falta * entre X y 2"},
        {"XX", "falta * entre X y X"},
        {"2(X+1)", "falta * entre 2 y ("},
        {"(X+1)(X-1)", "falta * entre ) y ("},
        {"3SIN(X)", "falta * entre 3 y SIN"},
        {"X**2", "la potencia es ^"},
        {"[X]", "sólo hay paréntesis ( )"},
        {"{X}", "sólo hay paréntesis ( )"},
        {"2·X", "el producto es *"},
        {"2×X", "el producto es *"},
        {"X÷2", "el cociente es /"},
        {"X:2", "el cociente es /"},
        {"X²", "el cuadrado es ^2"},
        {"X +1", "sobra un blanco"},
        {"X^2=4", "sobra el signo ="},
        {"PI*X", "el número pi es 4*ATN(1)"},
        {"E^X", "el número e es EXP(1)"},
        {"X+*2", ""},
        {"", ""},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(DevPista(caso.texto), caso.pista) << caso.texto;
}

TEST(Pista, NoHayNingunaParaUnaFórmula) {
    for (const char* fórmula : {"X^2-4", "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3", "1E5*X",
                                "2.5E-3", "-X", "COSEC(X)/ARCSIN(X)", "EXP(X)"})
        EXPECT_EQ(DevPista(fórmula), "") << fórmula;
}

} // namespace
} // namespace quiralto
