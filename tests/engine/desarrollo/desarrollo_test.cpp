#include "engine/desarrollo/division_exacta.h"
#include "engine/desarrollo/multinomio.h"
#include "engine/desarrollo/separa.h"
#include "engine/lenguaje/deriva.h"
#include "tests/apoyo.h"
#include "tests/engine/desarrollo/desarrolla.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quiralto {
namespace {

struct Caso {
    const char* texto;
    const char* completo;
    const char* simplificado;
};

// Both expansions, and that they stay when they are expanded again.
void Comprueba(const Caso& caso) {
    Banco banco;
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Completo, caso.texto), caso.completo) << caso.texto;
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, caso.texto), caso.simplificado)
        << caso.texto;
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Completo, caso.completo), caso.completo);
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, caso.simplificado),
              caso.simplificado);
}

TEST(Desarrollo, RecogeYOrdenaLosTérminos) {
    const Caso casos[] = {
        {"5", "5", "5"},
        {"X", "X", "X"},
        {"-X^2+3", "-X^2+3", "-X^2+3"},
        {"X*SIN(X)+SIN(X)*X", "2*X*SIN(X)", "2*X*SIN(X)"},
        {"X^2*X-X^3", "0", "0"},
        {"X^2+X+1+X", "2*X+X^2+1", "2*X+X^2+1"},
        {"(X+1)^3", "X^3+3*X^2+3*X+1", "X^3+3*X^2+3*X+1"},
        {"(X-1)*(X+1)", "X^2-1", "X^2-1"},
        {"1*X^1", "X", "X"},
        {"X^0", "1", "1"},
        {"0*X", "0", "0"},
        {"SIN(2-X)+SIN(-X+2)", "2*SIN(-X+2)", "2*SIN(-X+2)"},
        {"SIN((X+1)^2)", "SIN(X^2+2*X+1)", "SIN(X^2+2*X+1)"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, DejaLosCocientesDondeCadaClaseLosQuiere) {
    const Caso casos[] = {
        {"X/2+X^2/3", "(3*X+2*X^2)/6", ".5*X+.33333333*X^2"},
        {"1/X+1/(X+1)", "(2*X+1)/(X^2+X)", "1/X+1/(X+1)"},
        {"X/3+X/7", "10*X/21", ".47619048*X"},
        {"(X^2-1)/(X-1)", "X+1", "X+1"},
        {"(2*X+2)/(4*X+4)", "1/2", ".5"},
        {"X/(2*X)", "1/2", ".5"},
        {"((X+1)*(X+2))/((X+1)*(X+3))", "(X+2)/(X+3)", "(X+2)/(X+3)"},
        {"(X+1)*SIN(X)/((X+1)*COS(X))", "SIN(X)/COS(X)", "SIN(X)/COS(X)"},
        {"SIN(2-X)/SIN(-X+2)", "1", "1"},
        {"2*(X+1)/(X+3)", "(2*X+2)/(X+3)", "(2*X+2)/(X+3)"},
        {"-(X+1)/(X+3)", "(-X-1)/(X+3)", "(-X-1)/(X+3)"},
        {"1/(2*X)+1/(2*X)", "1/X", "1/X"},
        {"3/X+2/X", "5/X", "5/X"},
        {"X/.5", "2*X", "2*X"},
        {"1.5/(.5*X)", "3/X", "3/X"},
        {"1/(1+1/(1+1/X))", "(X+1)/(2*X+1)", "(X+1)/(2*X+1)"},
        {"(X+1/X)^3", "(X^6+3*X^4+3*X^2+1)/X^3", "X^3+3*X+3/X+1/X^3"},
        {"X/(X+1)+1/(X+1)", "1", "X/(X+1)+1/(X+1)"},
        {"SIN((X+1)/2)", "SIN((X+1)/2)", "SIN(.5*X+.5)"},
        {"1/(.00001^2*X)", "10000000000/X", "10000000000/X"},
        {"1/(X/3)", "3/X", "3/X"},
        {"(X+1)/(X/3)", "(3*X+3)/X", "(3*X+3)/X"},
        {"1/(X/7+1)", "7/(X+7)", "7/(X+7)"},
        {"1/(X/1234.567)", "1234567/(1000*X)", "1234567/(1000*X)"},
        {"(306^-2)^-3/(2*X)", "410486201821728/X", "410486201821728/X"},
        {"(X-1)/(X^-3-X^-2)", "-X^3", "-X^3"},
        {"(X^2-1)/(X-X^-1)", "X", "X"},
        {"(X+4)/-X", "(-X-4)/X", "(X+4)/(-X)"},
        {"2-(X+4)/-X", "(3*X+4)/X", "2+(X+4)/X"},
        {"5/(((3^X-216)/(3+X)+.5)/2)", "(60+20*X)/(2*3^X-429+X)", "(60+20*X)/(2*3^X-429+X)"},
        {"EXP(-65)/EXP(-130)", "EXP(65)", "EXP(65)"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, NoDejaCocientesEnUnGrupoQueSeHaceEntero) {
    const Caso casos[] = {
        {"SQR(1/X+1)^-2", "X/(1+X)", "X/(1+X)"},
        {"SQR(1/X)^-2", "X", "X"},
        {"1/SQR(1+1/X)/SQR(1+1/X)", "X/(X+1)", "X/(X+1)"},
        {"3*SQR(1/X+1)^-4+1", "(4*X^2+1+2*X)/(1+2*X+X^2)", "3*X^2/(1+X)^2+1"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

// At 0, 3 and 8 digits alike: what stands inside is never rounded.
TEST(Desarrollo, NoPierdeDígitosDentroDeFuncionesBasesYExponentes) {
    const Caso casos[] = {
        {"((X+1)/3)^X", "((X+1)/3)^X", "((X+1)/3)^X"},
        {"-(X/3)^X", "-(X/3)^X", "-(X/3)^X"},
        {"(1/3)^X", "(1/3)^X", "(1/3)^X"},
        {"SIN(X/3)", "SIN(X/3)", "SIN(X/3)"},
        {"SIN(2*X/3+1/7)", "SIN((14*X+3)/21)", "SIN((14*X+3)/21)"},
        {"EXP(X/3)", "EXP(X/3)", "EXP(X/3)"},
        {"X^(SLN(65)/3)", "X^(SLN(65)/3)", "X^(SLN(65)/3)"},
        {"SIN(1/3)", "SIN(1/3)", "SIN(1/3)"},
        {"((X-2)/X)^(SLN(65)-3)", "((X-2)/X)^(SLN(65)-3)", "((X-2)/X)^(SLN(65)-3)"},
    };
    for (const int dígitos : {0, 3, 8})
        for (const Caso& caso : casos) {
            Banco banco;
            banco.contexto.DígitosRedondeo = dígitos;
            const auto desarrolla = [&](Clase clase, const char* texto) {
                return Desarrolla(banco.contexto, clase, texto);
            };
            EXPECT_EQ(desarrolla(Clase::Completo, caso.texto), caso.completo);
            EXPECT_EQ(desarrolla(Clase::Completo, caso.completo), caso.completo);
            EXPECT_EQ(desarrolla(Clase::Simplificado, caso.texto), caso.simplificado);
            EXPECT_EQ(desarrolla(Clase::Simplificado, caso.simplificado), caso.simplificado);
        }
    Banco banco;
    banco.contexto.DígitosRedondeo = 0;
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, "-(X/2)^X"), "-(X/2)^X");
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, "SIN(.5*X)"), "SIN(X/2)");
}

// SQR(4*X)^2 is a factor that the powers' terms share with the denominator.
TEST(Desarrollo, CancelaLoQueLasRaícesMultiplicadasDejanEnComún) {
    const Caso casos[] = {
        {"(X-X/SQR(4*X)-7/X)^2", "(4*X^4-2*X^3*SQR(4*X)-56*X^2+X^3+14*X*SQR(4*X)+196)/(4*X^2)",
         "X^2-2*X^2/SQR(4*X)-14+.25*X+14/SQR(4*X)+49/X^2"},
        {"SIN((X*SLN(65)+X/SQR(4*X))^2/(X*SLN(65)+X))",
         "SIN((4*SLN(65)^2*X+2*SLN(65)*SQR(4*X)+1)/(4*SLN(65)+4))",
         "SIN((4*SLN(65)^2*X+2*SLN(65)*SQR(4*X)+1)/(4*SLN(65)+4))"},
        {"SIN((SLN(65)+SQR(X))*(SLN(65)-SQR(X))*(SLN(66)+1)/(SLN(65)^2-X)^2)",
         "SIN((SLN(65)^2*SLN(66)+SLN(65)^2-SLN(66)*X-X)/(SLN(65)^4-2*SLN(65)^2*X+X^2))",
         "SIN((SLN(66)+1)/(SLN(65)^2-X))"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, NoDejaPotenciasDeCocientesNiNúmerosEnUnaPotenciaNegativa) {
    const Caso casos[] = {
        {"(SQR(.5/X)+1)^2", "(1+4*X*SQR(1/(2*X))+2*X)/(2*X)", "1/(2*X)+2*SQR(1/(2*X))+1"},
        {"SQR(X+.5)^-3", "2/(2*X*SQR(X+.5)+SQR(X+.5))", "2*(2*X+1)^-1*SQR(X+.5)^-1"},
        {"EXP(-7)/2+X", "(EXP(-7)+2*X)/2", ".5*EXP(-7)+X"},
        {"EXP(-.5/-SLN(67))", "EXP(.5/SLN(67))", "EXP(.5/SLN(67))"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
    Banco banco;
    EXPECT_THROW(Desarrolla(banco.contexto, Clase::Completo, "SQR(0)^-2"), ErrorEjecución);
    EXPECT_THROW(Desarrolla(banco.contexto, Clase::Simplificado, "SQR(0)^-2"), ErrorEjecución);
}

// What differs in one factor, at the points of one sign, or in part of an exponent is not alike.
TEST(Desarrollo, NoFundeLoQueSoloSeParece) {
    const Caso casos[] = {
        {"(EXP(X)*SIN(X))^.5", "(EXP(X)*SIN(X))^.5", "(EXP(X)*SIN(X))^.5"},
        {"X^2*X^SLN(65)+X^2", "X^(SLN(65)+2)+X^2", "X^(SLN(65)+2)+X^2"},
        {"SQR(2*X^2+2*X*SQR(X^2))-SQR(4*X^2)", "SQR(2*X^2+2*X*SQR(X^2))-SQR(4*X^2)",
         "SQR(2*X^2+2*X*SQR(X^2))-SQR(4*X^2)"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, FundeLoQueSeHaceSemejante) {
    const Caso casos[] = {
        {"LOG(EXP(X))+X", "2*X", "2*X"},
        {"SQR(X+.5)^-3+(2*X+1)^-1*SQR(X+.5)^-1", "3/(2*X*SQR(X+.5)+SQR(X+.5))",
         "3*(2*X+1)^-1*SQR(X+.5)^-1"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

// Products of nineteen digits need all of two words.
TEST(Desarrollo, MultiplicaNúmerosGrandesSinPerderUnBit) {
    const Caso casos[] = {
        {"7E18^3", "3.43E+56", "3.43E+56"},
        {"(7E18*X)^3", "3.43E+56*X^3", "3.43E+56*X^3"},
        {"(7E18*X+1)^2", "4.9E+37*X^2+1.4E+19*X+1", "4.9E+37*X^2+1.4E+19*X+1"},
        {"(7E18*X+1)*(8E18*X-1)", "5.6E+37*X^2+1E+18*X-1", "5.6E+37*X^2+1E+18*X-1"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, CancelaLoQueElTextoDejaIgual) {
    const Caso casos[] = {
        {"1E20-4/(X+1)", "1E+20", "1E+20-4/(X+1)"},
        {"(1E20*(X+1)-4)/(X+1)", "1E+20", "1E+20"},
        {"(1E20*(X+1)-4)/(X+1)^2", "1E+20/(X+1)", "1E+20/(X+1)"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
    // Every number keeps fifteen digits of its own, however large the others are.
    const char* const cortado = "(44*SLN(65)+1.46666666666668E+16*SLN(66))/(SLN(67)+1)";
    Comprueba({"(SLN(65)+333333333333337*SLN(66))*44/(SLN(67)+1)", cortado, cortado});
    // Half of the second number has sixteen digits.
    const char* const deQuince = "(2*SLN(65)+3.31363636363637E+23*SLN(66))/(SLN(67)+1)";
    Comprueba({deQuince, deQuince, deQuince});
    const char* const cuadrado = "1/(2*SLN(65)+3.31363636363637E+23*SLN(66))^2";
    Comprueba({cuadrado,
               "1/(4*SLN(65)^2+1.32545454545455E+24*SLN(65)*SLN(66)+"
               "1.09801859504133E+47*SLN(66)^2)",
               "1/(4*(SLN(65)+1.65681818181819E+23*SLN(66))^2)"});
    // Cut once they have 8 in common, and cut again 16.
    const char* const dosVeces =
        "(5.6085780288426E+21-1.89963522797765E+18*X^5+257363915118310*X^10"
        "-17433922005*X^15+590490*X^20-8*X^25)/(1.5506596534144E+26*3^.5)";
    Comprueba({"(1/4-X^5/59049)^5/27/3^.5", dosVeces, dosVeces});
}

TEST(Desarrollo, CalculaOConservaLasPotencias) {
    const Caso casos[] = {
        {"2^3^2", "64", "64"},
        {"2^-1", "1/2", ".5"},
        {"0^0", "1", "1"},
        {"2^.5", "2^.5", "2^.5"},
        {"(-8)^(1/3)", "(-8)^(1/3)", "(-8)^(1/3)"},
        {"X^-2", "1/X^2", "X^-2"},
        {"X^(1/3)", "X^(1/3)", "X^(1/3)"},
        {"X^.5*X^.5", "X", "X"},
        {"(X^2)^.5", "(X^2)^.5", "(X^2)^.5"},
        {"(X^.5)^.5", "X^.25", "X^.25"},
        {"(X+1)^-2", "1/(X^2+2*X+1)", "(X+1)^-2"},
        {"(X+1)^.5*(X+1)^.5", "X+1", "X+1"},
        {"2^X*2^-X", "1", "1"},
        {"2^(X+3)", "2^(X+3)", "2^(X+3)"},
        {"2^X*X", "X*2^X", "X*2^X"},
        {"X^(X+3)*X^2", "X^(X+5)", "X^(X+5)"},
        {"X^-X", "X^-X", "X^-X"},
        {"2^(-X^2)", "2^(-X^2)", "2^(-X^2)"},
        {"X^((X+1)/3)", "X^((X+1)/3)", "X^((X+1)/3)"},
        {"X*X^(2/X)", "X^((2+X)/X)", "X^(2/X+1)"},
        {"(1/X)^-1", "X", "X"},
        {"(X+1/3)^2", "(9*X^2+6*X+1)/9", "X^2+.66666667*X+.11111111"},
        {"X^(4/3+2-4-2.5*X)", "X^((-15*X-4)/6)", "X^((-15*X-4)/6)"},
        {"(X^(-4/-6)*X)^-6*X", "1/X^9", "X^-9"},
        {"(X/X^(1/3))^3", "X^2", "X^2"},
        {"(1/(X+1)/X^(1/3))^3", "1/(X^4+3*X^3+3*X^2+X)", "1/(X*(X+1)^3)"},
        {"X^-(X/X/X/X^(X/-X/X))", "X^(-X^((1-X)/X))", "X^(-1/X^(1/(-X)+1))"},
        {"((2*X)^-.5)^2", "1/(2*X)", ".5*X^-1"},
        {"(2*X)^X*(2*X)^(-1-X)*X", ".5", ".5"},
        {"(1/X+1)^(2/3)*(1/X+1)^(1/3)+X", "(1+X+X^2)/X", "1/X+1+X"},
        {"2^-48-5", "-5", "-5"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

// With many digits a third must not pass for a decimal, nor what is nearly 1 for another number.
TEST(Desarrollo, NoConfundeLosTerciosConDecimales) {
    const struct {
        const char* texto;
        const char* simplificado;
    } casos[] = {
        {"X/3+X/3+X/3", "X"}, {"1/(X/3)", "3/X"},     {"1/(X/27)", "27/X"},
        {"1/7^-2", "49"},     {"X^2/(X/49)", "49*X"}, {"1/(X/3+1/7)", "21/(7*X+3)"},
    };
    for (const int dígitos : {8, 11, 12, 14, 15})
        for (const auto& caso : casos) {
            Banco banco;
            banco.contexto.DígitosRedondeo = dígitos;
            EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, caso.texto),
                      caso.simplificado)
                << caso.texto << ", " << dígitos;
        }
}

TEST(Desarrollo, SumaFraccionesExactas) {
    const Caso casos[] = {
        {"X/7+X/7+X/7+X/7+X/7+X/7+X/7", "X", "X"},
        {"(X/3+X/7)*21", "10*X", "10*X"},
        {"3*X*(X/3)", "X^2", "X^2"},
        {"(X/100)^5", "X^5/10000000000", "X^5/10000000000"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

TEST(Desarrollo, NoEscribeComoCeroLoQueNoLoEs) {
    Banco banco;
    banco.contexto.DígitosRedondeo = 0;
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, "X/3"), "X/3");
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, "X^2+X/3+1/4"), "X^2+X/3+1/4");
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, "2*X/3"), "X");
}

TEST(Desarrollo, ConservaLosFactoresDelDenominador) {
    const struct {
        const char* texto;
        const char* simplificado;
    } casos[] = {
        {"X/(X^2+1)^2", "X/(X^2+1)^2"},
        {"((X+1)*(X+2))/((X+1)^3*(X-2))", "(X+2)/((X+1)^2*(X-2))"},
        {"(X-1)/(1-X)", "-1"},
        {"1/(X^2-1)*(X+1)", "1/(X-1)"},
        {"X*(X+1)/(X+3)", "(X^2+X)/(X+3)"},
        {"X/(X^2+X)", "1/(X+1)"},
        {"2/(4*X+4)^2", "1/(8*(X+1)^2)"},
        {"6/(4*X+4)", "3/(2*X+2)"},
        {"1/(1-X)", "1/(1-X)"},
        {"1/(-2*X)", "1/(-2*X)"},
        {"-1/(-2*X)", "1/(2*X)"},
        {".5/X", "1/(2*X)"},
        {".5/(2*SQR(.5*X))", "1/(4*SQR(.5*X))"},
        {"X/(1+X/(1+X))", "(X+X^2)/(1+2*X)"},
        {"(X+1)^2*(X+1)^-3", "(X+1)^-1"},
        {"-(X-X^2)/(X+1)", "(-X+X^2)/(X+1)"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, caso.texto), caso.simplificado)
            << caso.texto;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, caso.simplificado),
                  caso.simplificado);
    }
}

TEST(Desarrollo, JuntaRaícesYExponenciales) {
    const Caso casos[] = {
        {"SQR(X)^2", "X", "X"},
        {"SQR(X+1)^2", "X+1", "X+1"},
        {"X/SQR(X)", "SQR(X)", "SQR(X)"},
        {"X*SQR(X)", "X*SQR(X)", "X*SQR(X)"},
        {"SQR(X)*X^.5", "X", "X"},
        {"X^.5", "X^.5", "X^.5"},
        {"X^.5*X", "X^1.5", "X^1.5"},
        {"SQR(X^2)^3/X^2", "SQR(X^2)", "SQR(X^2)"},
        {"SQR(X)*SQR(X+1)", "SQR(X)*SQR(X+1)", "SQR(X)*SQR(X+1)"},
        {"(X+1)/SQR(X+1)", "SQR(X+1)", "SQR(X+1)"},
        {"SQR(2)*SQR(2)", "2", "2"},
        {"EXP(X)*EXP(2*X+1)", "EXP(3*X+1)", "EXP(3*X+1)"},
        {"EXP(X)^2", "EXP(2*X)", "EXP(2*X)"},
        {"1/EXP(X)", "1/EXP(X)", "1/EXP(X)"},
        {"EXP(X)*EXP(-X)", "1", "1"},
    };
    for (const Caso& caso : casos)
        Comprueba(caso);
}

// What functions hide at the values that letters and large X have is no likeness.
TEST(Desarrollo, NoTomaPorSemejanteLoQueSóloSeSatura) {
    const char* const iguales[] = {
        "A*EXP(-C)-B*EXP(-C)",
        "1/A^5-1/B^5",
        "EXP(-A)+EXP(-B)",
        "X^-28+X^-32",
        "X*ARCSIN(X)",
        "ATN(X^40)-ATN(X^42)",
        "LOG(2+EXP(-40*X^2))-LOG(2+EXP(-41*X^2))",
        "LOG(A+EXP(-B))-LOG(A)",
        "ATN(EXP(A))-ATN(EXP(B))",
        "(A^9+1)^.5-(A^9)^.5",
        "LOG(2+EXP(-40*(X-3)^2))-LOG(2+EXP(-41*(X-3)^2))",
    };
    constexpr std::uint64_t Semillas = 100;
    for (const char* const igual : iguales) {
        Banco primero;
        std::string texto;
        for (std::uint64_t semilla = 0; semilla < Semillas; ++semilla) {
            Banco banco;
            banco.contexto.generador.Siembra(semilla);
            const std::string suyo = Desarrolla(banco.contexto, Clase::Simplificado, ConSln(igual));
            if (semilla == 0)
                texto = suyo;
            EXPECT_EQ(suyo, texto) << "semilla " << semilla;
        }
        EXPECT_EQ(SeparaTérminos(texto).size(), SeparaTérminos(igual).size()) << texto;
    }
    Banco banco;
    EXPECT_EQ(SeparaTérminos(Desarrolla(banco.contexto, Clase::Simplificado, "(1/X+1)^40")).size(),
              41U);
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, ConSln("(A-B)*EXP(-C)")),
              ConSln("A*EXP(-C)-B*EXP(-C)"));
}

TEST(Desarrollo, TomaPorSemejanteLoQueValeLoMismo) {
    const struct {
        const char* texto;
        const char* simplificado;
    } casos[] = {
        {"SIN(A+B)+SIN(B+A)", "2*SIN(B+A)"},
        {"ARCSIN(X-5)+ARCSIN(-5+X)", "2*ARCSIN(-5+X)"},
        {"SIN(X+1)*X-X*SIN(1+X)", "0"},
        {"LOG(1+X)/LOG(X+1)", "1"},
    };
    for (const auto& caso : casos)
        for (std::uint64_t semilla = 0; semilla < 20; ++semilla) {
            Banco banco;
            banco.contexto.generador.Siembra(semilla);
            EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, ConSln(caso.texto)),
                      ConSln(caso.simplificado))
                << semilla;
        }
}

TEST(Desarrollo, OrdenaLasLetrasPorElAlfabeto) {
    const Caso casos[] = {
        {"(A+B)^2", "A^2+2*A*B+B^2", "A^2+2*A*B+B^2"},
        {"(X-D)*(A+B)", "A*X+B*X-A*D-B*D", "A*X+B*X-A*D-B*D"},
        {"A/B*C", "A*C/B", "A*C/B"},
        {"A/B/C", "A/(B*C)", "A/(B*C)"},
        {"X*A", "A*X", "A*X"},
        {"(X^2-A^2)/(X-A)", "A+X", "A+X"},
        {"((X+A)*(X+B))/((X+A)*(X-B))", "(X+B)/(-B+X)", "(X+B)/(X-B)"},
        {"(A*X)^.5", "(A*X)^.5", "(A*X)^.5"},
    };
    for (const Caso& caso : casos) {
        Banco banco;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Completo, ConSln(caso.texto)),
                  ConSln(caso.completo))
            << caso.texto;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, ConSln(caso.texto)),
                  ConSln(caso.simplificado))
            << caso.texto;
    }
}

TEST(Desarrollo, TomaPorSemejantesLasLetrasDelMismoProducto) {
    Banco banco;
    // 65*84 = 70*78
    EXPECT_EQ(Desarrolla(banco.contexto, Clase::Completo, "SLN(65)*SLN(84)+SLN(70)*SLN(78)"),
              "2*SLN(70)*SLN(78)");
}

TEST(Desarrollo, CuentaLosTérminosDelMultinomio) {
    Banco banco;
    const std::string desarrollo =
        Desarrolla(banco.contexto, Clase::Completo, ConSln("(A+B+C+D)^10"));
    EXPECT_EQ(SeparaTérminos(desarrollo).size(), 286U);
    EXPECT_NE(desarrollo.find("+25200*SLN(65)^3*SLN(66)^3*SLN(67)^2*SLN(68)^2+"),
              std::string::npos);
}

TEST(Desarrollo, DaLosBinomiosExactos) {
    Banco banco;
    const std::string desarrollo = Desarrolla(banco.contexto, Clase::Simplificado, "(X+1)^50");
    EXPECT_NE(desarrollo.find("+126410606437752*X^25+"), std::string::npos);
    EXPECT_TRUE(desarrollo.ends_with("+1225*X^2+50*X+1"));
}

TEST(Desarrollo, EscribeDerivadasLegibles) {
    const struct {
        const char* f;
        const char* derivada;
    } casos[] = {
        {"X^2", "2*X"},
        {"SIN(X)^2", "2*COS(X)*SIN(X)"},
        {"X*EXP(X)", "X*EXP(X)+EXP(X)"},
        {"1/X", "-1/X^2"},
        {"LOG(X)", "1/X"},
        {"TAN(X)", "1/COS(X)^2"},
        {"SQR(X^2+1)", "X/SQR(X^2+1)"},
        {"X^X", "X^X*LOG(X)+X^X"},
        {"LOG(X/9)", "1/X"},
        {"LOG(X/7+1)", "1/(X+7)"},
        {"SIN(X)/(X/9)", "(9*X*COS(X)-9*SIN(X))/X^2"},
        {"(X^2+1)/(X-1)", "(X^2-2*X-1)/(X-1)^2"},
        {"5", "0"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, Deriva(banco.contexto, caso.f)),
                  caso.derivada)
            << caso.f;
    }
}

int DevError(Contexto& contexto, Clase clase, const std::string& texto) {
    try {
        Desarrolla(contexto, clase, texto);
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
    return 0;
}

TEST(Desarrollo, AcabaConUnErrorLoQueNoTieneValorONoCabe) {
    const struct {
        const char* texto;
        int error;
    } casos[] = {
        {"1/0", DivisiónPorCero},
        {"1/(X-X)", DivisiónPorCero},
        {"0^-1", DivisiónPorCero},
        {"9^9^9^9", Desbordamiento},
        {"(1E+200*X)^2", Desbordamiento},
        {"(SLN(65)+SLN(66)+SLN(67)+SLN(68)+SLN(69))^60", EspacioDeCadenasInsuficiente},
        {"(SLN(65)+SLN(66)+SLN(67)+SLN(68)+SLN(69))^30*"
         "(SLN(65)+SLN(66)+SLN(67)+SLN(68)+SLN(69))^30",
         EspacioDeCadenasInsuficiente},
    };
    for (const auto& caso : casos)
        for (const Clase clase : {Clase::Completo, Clase::Simplificado}) {
            Banco banco;
            EXPECT_EQ(DevError(banco.contexto, clase, caso.texto), caso.error) << caso.texto;
        }
}

TEST(Desarrollo, SeCancela) {
    Banco banco;
    int preguntas = 0;
    banco.vigilante.continúa = [&] { return ++preguntas < 100; };
    EXPECT_THROW(Desarrolla(banco.contexto, Clase::Completo, ConSln("(A+B+C+D)^40*(A+B+C+D)^40")),
                 OrdenCancelada);
}

// The watcher is asked all along, not only before and behind.
TEST(Desarrollo, PreguntaMientrasElevaYDivide) {
    Banco banco;
    TablaSímbolos tabla(banco.contexto, ClaseDesarrollo::Simplificado);
    int preguntas = 0;
    banco.vigilante.continúa = [&] { return ++preguntas > 0; };
    Términos suma;
    for (const char letra : {'A', 'B', 'C', 'D'})
        suma.push_back({1, {{tabla.DevVariable(letra, std::string(1, letra)), 1}}});
    std::ranges::sort(suma, [&](const Término& a, const Término& b) {
        return tabla.Precede(a.literal[0].símbolo, b.literal[0].símbolo);
    });
    const auto potencia = ElevaPorMultinomio(tabla, suma, 50);
    ASSERT_TRUE(potencia.has_value());
    EXPECT_EQ(potencia->size(), 23426U);
    EXPECT_GE(preguntas, 5);
    preguntas = 0;
    const IdSímbolo x = tabla.DevVariable('X', "X");
    const auto cociente =
        DivideExacta(tabla, {{1, {{x, 100'000}}}, {-1, {}}}, {{1, {{x, 1}}}, {-1, {}}});
    ASSERT_TRUE(cociente.has_value());
    EXPECT_EQ(cociente->size(), 100'000U);
    EXPECT_GE(preguntas, 90);
}

// Twice the work with every level would not end.
TEST(Desarrollo, LaDerivadaDeCocientesAnidadosNoSeMultiplica) {
    constexpr int Profundidad = 20;
    std::string seno = "X";
    std::string cociente = "X";
    std::string raíz = "X";
    for (int i = 0; i < Profundidad; ++i) {
        seno = "SIN(" + seno + ")/X";
        cociente = "X/(1+" + cociente + ")";
        raíz = "(1/(X+" + raíz + "))^.5";
    }
    for (const std::string& texto : {seno, cociente, raíz}) {
        Banco banco;
        int preguntas = 0;
        banco.vigilante.continúa = [&] { return ++preguntas < 20'000; };
        EXPECT_NO_THROW(
            Desarrolla(banco.contexto, Clase::Simplificado, Deriva(banco.contexto, texto)))
            << texto;
    }
}

TEST(Desarrollo, NoSeHundeConLaProfundidad) {
    constexpr int Profundidad = 2000;
    std::string cociente = "X";
    std::string seno = "X";
    std::string raíz = "X";
    for (int i = 0; i < Profundidad; ++i) {
        cociente = "1/(1+" + cociente + ")";
        seno = "SIN(" + seno + ")";
        raíz = "(" + raíz + "+1)^.5";
    }
    for (const std::string& texto : {cociente, seno, raíz}) {
        Banco banco;
        EXPECT_EQ(DevError(banco.contexto, Clase::Simplificado, texto), 0);
    }
}

TEST(SumaDesarrollo, PoneDelanteLosTérminosQueHallanSemejante) {
    const struct {
        const char* a;
        const char* b;
        const char* suma;
    } casos[] = {
        {"1+X", "X", "2*X+1"},
        {"X*SIN(X)", "SIN(X)*X", "2*SIN(X)*X"},
        {"X^2*X", "-X^3", "0"},
        {"0", "X", "X"},
        {"X", "0", "X"},
        {".1*X", ".2*X", ".3*X"},
        {"X^2+3*X-1", "X-X^2+5", "4*X+4"},
        {"-X", "X^2", "-X+X^2"},
        {"2/X", "3/X", "5/X"},
        {"X", "(2*X)", "X+(2*X)"},
        {".000000000001*X", "X^2", "X/1000000000000+X^2"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        EXPECT_EQ(SumaDesarrollo(banco.contexto, caso.a, caso.b), caso.suma) << caso.a;
    }
}

TEST(MismaExpresión, ComparaPorLosValores) {
    const struct {
        const char* p;
        const char* q;
        bool misma;
    } casos[] = {
        {"X^2*X", "X^3", true},
        {"(X+1)^2", "X^2+2*X+1", true},
        {"X", "2*X", false},
        {"SQR(-1-X^2)", "LOG(-1-X^2)", false}, // no value anywhere
        {"SQR(-1-X^2)", "SQR(-1-X^2)", true},
        {"X", "SQR(X)^2", false}, // one has a value where the other has none
        {"X/X", "1", true},
        {"X+.0001", "X", false},
    };
    for (const auto& caso : casos) {
        Banco banco;
        banco.contexto.generador.Siembra(11);
        EXPECT_EQ(MismaExpresión(banco.contexto, caso.p, caso.q), caso.misma)
            << caso.p << " y " << caso.q;
        EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
    }
}

TEST(Separa, CortaTérminosYFactores) {
    EXPECT_EQ(SeparaTérminos("3*X^-2-(X+1)*SIN(X-1)+1.5E-07*X*-2"),
              (std::vector<std::string>{"3*X^-2", "-(X+1)*SIN(X-1)", "+1.5E-07*X*-2"}));
    EXPECT_EQ(SeparaTérminos("-X"), (std::vector<std::string>{"-X"}));
    EXPECT_TRUE(SeparaTérminos("").empty());
    EXPECT_EQ(SeparaFactores("3*X*SIN(X*2)*(X+1)^2"),
              (std::vector<std::string>{"3", "X", "SIN(X*2)", "(X+1)^2"}));
    EXPECT_EQ(SeparaFactores("-X*2"), (std::vector<std::string>{"-1", "X", "2"}));
}

TEST(Separa, SeparaElCoeficiente) {
    const struct {
        const char* término;
        const char* coeficiente;
        const char* literal;
    } casos[] = {
        {"3*X", "3", "X"},     {"+3*X", "3", "X"},  {"-3*X", "-3", "X"}, {"+X", "1", "X"},
        {"-X", "-1", "X"},     {"X", "1", "X"},     {"7", "7", ""},      {"-.5*X^2", "-.5", "X^2"},
        {"3.0*A", "3", "0*A"}, {"2^X", "1", "2^X"}, {"2/X", "2", "1/X"}, {"1E+20*X", "1E+20", "X"},
    };
    for (const auto& caso : casos) {
        const TérminoSeparado separado = SeparaCoeficiente(caso.término);
        EXPECT_EQ(separado.coeficiente, caso.coeficiente) << caso.término;
        EXPECT_EQ(separado.literal, caso.literal) << caso.término;
    }
}

TEST(Separa, SeparaLaPotencia) {
    const struct {
        const char* factor;
        const char* base;
        const char* exponente;
    } casos[] = {
        {"X", "X", "1"},
        {"X^2", "X", "2"},
        {"(X+1)^-2", "(X+1)", "-2"},
        {"SIN(X^2)", "SIN(X^2)", "1"},
        {"X+X^2", "X+X^2", "1"},
        {"X*X^2", "X*X^2", "1"},
        {"X^(X+3)", "X", "(X+3)"},
    };
    for (const auto& caso : casos) {
        const FactorSeparado separado = SeparaPotencia(caso.factor);
        EXPECT_EQ(separado.base, caso.base) << caso.factor;
        EXPECT_EQ(separado.exponente, caso.exponente) << caso.factor;
    }
}

} // namespace
} // namespace quiralto
