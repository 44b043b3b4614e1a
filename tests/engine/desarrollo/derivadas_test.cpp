// The derivatives of school-book functions: their texts, and that they are the derivatives.
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"
#include "tests/engine/desarrollo/desarrolla.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

struct Derivada {
    const char* función;
    const char* texto;
};

constexpr Derivada Derivadas[] = {
    {"5", "0"},
    {"X", "1"},
    {"3*X-2", "3"},
    {"X^2", "2*X"},
    {"X^3-3*X^2+2*X-7", "3*X^2-6*X+2"},
    {"X^5/5", "X^4"},
    {"(X+1)^3", "3*X^2+6*X+3"},
    {"(2*X-1)^4", "64*X^3-96*X^2+48*X-8"},
    {"(X^2+1)*(X-1)", "3*X^2+1-2*X"},
    {"(X^2+1)^3*(X-1)^2", "8*X^7+24*X^5+24*X^3-14*X^6-30*X^4-18*X^2+8*X-2"},
    {"X^-3", "-3*X^-4"},
    {"1/X", "-1/X^2"},
    {"1/X^2", "-2/X^3"},
    {"5/X^3", "-15/X^4"},
    {"1/(X+1)", "-1/(X+1)^2"},
    {"1/(X-1)^2", "-2/(X-1)^3"},
    {"1/(X^2+1)", "-2*X/(X^2+1)^2"},
    {"1/(X^2+1)^3", "-6*X/(X^2+1)^4"},
    {"X/(X+1)", "1/(X+1)^2"},
    {"X/(X^2+1)", "(-X^2+1)/(X^2+1)^2"},
    {"(X+1)/(X-1)", "-2/(X-1)^2"},
    {"(X-1)/(X+1)", "2/(X+1)^2"},
    {"(2*X+3)/(4*X-5)", "-22/(4*X-5)^2"},
    {"X^2/(X+1)", "(X^2+2*X)/(X+1)^2"},
    {"X^2/(X-1)", "(X^2-2*X)/(X-1)^2"},
    {"(X^2+1)/(X-1)", "(X^2-2*X-1)/(X-1)^2"},
    {"(X^2-1)/(X^2+1)", "4*X/(X^2+1)^2"},
    {"X^2/(X+1)^3", "(-X^2+2*X)/(X+1)^4"},
    {"X^3/(X^2-4)", "(X^4-12*X^2)/(X^2-4)^2"},
    {"(X^2-3*X+2)/(X^2+1)", "(3*X^2-2*X-3)/(X^2+1)^2"},
    {"(X+1)^3/(X-1)^2", "(X^3-3*X^2-9*X-5)/(X-1)^3"},
    {"1/(X^2-4)", "-2*X/(X^2-4)^2"},
    {"X/3", ".33333333"},
    {"(X^2+X)/2", "X+.5"},
    {"1/(3*X+2)", "-3/(3*X+2)^2"},
    {"SQR(X)", "1/(2*SQR(X))"},
    {"X*SQR(X)", "1.5*SQR(X)"},
    {"1/SQR(X)", "-1/(2*X*SQR(X))"},
    {"SQR(X+1)", "1/(2*SQR(X+1))"},
    {"SQR(X^2+1)", "X/SQR(X^2+1)"},
    {"SQR(1-X^2)", "-X/SQR(1-X^2)"},
    {"X*SQR(X^2+1)", "X^2/SQR(X^2+1)+SQR(X^2+1)"},
    {"X/SQR(X^2+1)", "1/((X^2+1)*SQR(X^2+1))"},
    {"(X^2+1)*SQR(X^2+1)", "3*X*SQR(X^2+1)"},
    {"SQR((X+1)/(X-1))", "-1/((X-1)^2*SQR((X+1)/(X-1)))"},
    {"SQR(X)/(X+1)", "(-X+1)/(2*(X+1)^2*SQR(X))"},
    {"(SQR(X)-1)/(SQR(X)+1)", "1/((SQR(X)+1)^2*SQR(X))"},
    {"X^(1/3)", ".33333333*X^(-2/3)"},
    {"X^(2/3)", ".66666667*X^(-1/3)"},
    {"X^1.5", "1.5*X^.5"},
    {"EXP(X)", "EXP(X)"},
    {"EXP(2*X)", "2*EXP(2*X)"},
    {"EXP(-X)", "-EXP(-X)"},
    {"EXP(X^2)", "2*X*EXP(X^2)"},
    {"EXP(-X^2/2)", "-X*EXP(-.5*X^2)"},
    {"X*EXP(X)", "X*EXP(X)+EXP(X)"},
    {"X*EXP(-X)", "-X*EXP(-X)+EXP(-X)"},
    {"X^2*EXP(X)", "X^2*EXP(X)+2*X*EXP(X)"},
    {"X^2*EXP(-3*X^2)", "-6*X^3*EXP(-3*X^2)+2*X*EXP(-3*X^2)"},
    {"EXP(X)/X", "(X*EXP(X)-EXP(X))/X^2"},
    {"X/EXP(X)", "(1-X)/EXP(X)"},
    {"EXP(X)/(1+EXP(X))", "EXP(X)/(1+EXP(X))^2"},
    {"1/(1+EXP(-X))", "EXP(-X)/(1+EXP(-X))^2"},
    {"(EXP(X)+EXP(-X))/2", ".5*EXP(X)-.5*EXP(-X)"},
    {"(EXP(X)-EXP(-X))/(EXP(X)+EXP(-X))", "4/(EXP(X)+EXP(-X))^2"},
    {"EXP(1/X)", "-EXP(1/X)/X^2"},
    {"EXP(SIN(X))", "COS(X)*EXP(SIN(X))"},
    {"EXP(X)*SIN(X)", "COS(X)*EXP(X)+EXP(X)*SIN(X)"},
    {"EXP(-X)*COS(2*X)", "-2*EXP(-X)*SIN(2*X)-COS(2*X)*EXP(-X)"},
    {"2^X", "2^X*LOG(2)"},
    {"X*2^X", "X*2^X*LOG(2)+2^X"},
    {"X^X", "X^X*LOG(X)+X^X"},
    {"LOG(X)", "1/X"},
    {"LOG(2*X+1)", "2/(2*X+1)"},
    {"LOG(X^2+1)", "2*X/(X^2+1)"},
    {"LOG(-X)", "1/X"},
    {"X*LOG(X)", "1+LOG(X)"},
    {"X*LOG(X)-X", "LOG(X)"},
    {"X^2*LOG(X)", "X+2*X*LOG(X)"},
    {"LOG(X)/X", "(1-LOG(X))/X^2"},
    {"LOG(X)^2", "2*LOG(X)/X"},
    {"LOG(LOG(X))", "1/(X*LOG(X))"},
    {"1/LOG(X)", "-1/(X*LOG(X)^2)"},
    {"LOG(SQR(X))", "1/(2*X)"},
    {"LOG((X+1)/(X-1))", "-2/((X+1)*(X-1))"},
    {"LOG(X+SQR(X^2+1))", "1/SQR(X^2+1)"},
    {"LOG(SIN(X))", "COS(X)/SIN(X)"},
    {"LOG(X/9)", "1/X"},
    {"SIN(X)", "COS(X)"},
    {"COS(X)", "-SIN(X)"},
    {"TAN(X)", "1/COS(X)^2"},
    {"SIN(2*X)", "2*COS(2*X)"},
    {"COS(X/2)", "-.5*SIN(.5*X)"},
    {"SIN(X/3)", ".33333333*COS(X/3)"},
    {"TAN(2*X/7)", "2/(7*COS(2*X/7)^2)"},
    {"LOG(SIN(X/3))", "COS(X/3)/(3*SIN(X/3))"},
    {"ATN(X/3)", "3/(9+X^2)"},
    {"SQR(X/3)", "1/(6*SQR(X/3))"},
    {"ARCSIN(X/3)", "1/(3*SQR((-X^2+9)/9))"},
    {"X^(X/3)", ".33333333*X^(X/3)*LOG(X)+.33333333*X^(X/3)"},
    {"((X+1)/3)^X", "((X+1)/3)^X*LOG((X+1)/3)+.33333333*X*((X+1)/3)^(X-1)"},
    {"SIN(X)^2", "2*COS(X)*SIN(X)"},
    {"COS(X)^3", "-3*COS(X)^2*SIN(X)"},
    {"SIN(X)*COS(X)", "-SIN(X)^2+COS(X)^2"},
    {"SIN(X^2)", "2*X*COS(X^2)"},
    {"X*SIN(X)", "X*COS(X)+SIN(X)"},
    {"X^2*COS(X)", "-X^2*SIN(X)+2*X*COS(X)"},
    {"SIN(X)/X", "(X*COS(X)-SIN(X))/X^2"},
    {"COS(X)/SIN(X)", "(-SIN(X)^2-COS(X)^2)/SIN(X)^2"},
    {"SIN(X)/(1+COS(X))", "(COS(X)+COS(X)^2+SIN(X)^2)/(1+COS(X))^2"},
    {"1/(1+SIN(X))", "-COS(X)/(1+SIN(X))^2"},
    {"TAN(X)^2", "2*TAN(X)/COS(X)^2"},
    {"X*TAN(X)", "X/COS(X)^2+TAN(X)"},
    {"SEC(X)", "SIN(X)/COS(X)^2"},
    {"COSEC(X)", "-COS(X)/SIN(X)^2"},
    {"ATN(X)", "1/(1+X^2)"},
    {"ATN(2*X)", "2/(1+4*X^2)"},
    {"ATN(X/3)", "3/(9+X^2)"},
    {"ATN(1/X)", "-1/(X^2+1)"},
    {"X*ATN(X)", "X/(1+X^2)+ATN(X)"},
    {"ATN((X+1)/(X-1))", "-1/(X^2+1)"},
    {"ATN(SQR(X))", "1/(2*(1+X)*SQR(X))"},
    {"ARCSIN(X)", "1/SQR(-X^2+1)"},
    {"ARCSIN(X/2)", "1/(2*SQR(-.25*X^2+1))"},
    {"ARCSIN(X^2)", "2*X/SQR(-X^4+1)"},
    {"X*ARCSIN(X)", "X/SQR(-X^2+1)+ARCSIN(X)"},
    {"ATN(ATN(X))", "1/((1+ATN(X)^2)*(1+X^2))"},
    {"SIN(COS(X))", "-COS(COS(X))*SIN(X)"},
};

std::string DevDerivada(Contexto& contexto, const std::string& función) {
    return Desarrolla(contexto, Clase::Simplificado, Deriva(contexto, función));
}

TEST(Derivadas, SeEscribenComoEnUnLibro) {
    for (const auto& [función, texto] : Derivadas) {
        Banco banco;
        EXPECT_EQ(DevDerivada(banco.contexto, función), texto) << función;
    }
}

TEST(Derivadas, NoCambianAlDesarrollarseOtraVezYLasAceptaLaSintaxis) {
    for (const auto& [función, texto] : Derivadas) {
        Banco banco;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, texto), texto) << función;
        std::string aceptado = texto;
        EXPECT_TRUE(Sintaxis(banco.contexto, aceptado)) << función;
        EXPECT_EQ(aceptado, texto) << función;
    }
}

// Against the central difference quotient, extrapolated: its error goes with h^4.
TEST(Derivadas, SonLasDeLaFunción) {
    for (const auto& [función, texto] : Derivadas) {
        Banco banco;
        Programa f = CompilaExpresión(función);
        Programa derivada = CompilaExpresión(texto);
        int comparadas = 0;
        for (const double x : {-2.3, -1.7, -.6, .3, .55, .8, 1.3, 1.9, 2.6}) {
            constexpr double H = 1e-4;
            const auto en = [&](double h) { return DevValor(banco.contexto, f, x + h); };
            const auto valor = DevValor(banco.contexto, derivada, x);
            const auto a = en(-2 * H);
            const auto b = en(-H);
            const auto c = en(H);
            const auto d = en(2 * H);
            if (!valor || !a || !b || !c || !d)
                continue;
            const double esperada = (8 * (*c - *b) - (*d - *a)) / (12 * H);
            EXPECT_NEAR(*valor, esperada, 1e-6 * std::max(1.0, std::fabs(esperada)))
                << función << " en " << x << ": " << texto;
            ++comparadas;
        }
        EXPECT_GE(comparadas, 3) << función;
    }
}

} // namespace
} // namespace quiralto
