#include "engine/sistemas/ecuacion_llana.h"

#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

std::string Escribe(const std::optional<EcuaciónLineal>& ecuación) {
    if (!ecuación)
        return "ninguna";
    std::string texto;
    for (const TérminoSln& término : ecuación->términos)
        (texto += término.coeficiente.Texto(15)) += '@' + std::to_string(término.índice) + ' ';
    return texto + "= " + ecuación->independiente.Texto(15);
}

TEST(EcuaciónLlana, LeeSumasDeTérminosALosDosLados) {
    const std::pair<const char*, const char*> casos[] = {
        {"X(1)=1", "1@1 = 1"},
        {"2*X(1)+X(2)=3", "2@1 1@2 = 3"},
        {"-x( 1 ) - .5*X(256) = \t-3.25", "-1@1 -.5@256 = -3.25"},
        {"3+X(2)=X(1)-4+X(2)*", "ninguna"},
        {"3+X(2)=X(1)-4", "-1@1 1@2 = -7"},
        {"X(3)+X(1)+X(3)=X(3)", "1@1 1@3 = 0"},
        {"X(3)-X(3)+X(1)=0", "1@1 = 0"},
        {"007*X(012)=00.50", "7@12 = .5"},
        {".1*X(1)+.2*X(1)=.3", ".3@1 = .3"},
        {"123456789012345678*X(1)=1", "1.23456789012346E+17@1 = 1"},
        {"1.123456789*X(1)=.000000004", "1.12345679@1 = 0"},
        {"+X(1)=+2", "1@1 = 2"},
    };
    Banco banco;
    for (const auto& [línea, esperada] : casos)
        EXPECT_EQ(Escribe(LeeEcuaciónLlana(banco.contexto, línea)), esperada) << línea;
}

TEST(EcuaciónLlana, LoDemásEsParaElCaminoGeneral) {
    Banco banco;
    for (const char* línea : {"",
                              "=",
                              "X(1)",
                              "X(1)=",
                              "=X(1)",
                              "X(1)=1=2",
                              "X(1)==1",
                              "2X(1)=1",
                              "X(1)*2=1",
                              "X(0)=1",
                              "X(257)=1",
                              "X(1.5)=1",
                              "X()=1",
                              "X(1=1",
                              "X1=1",
                              "X=1",
                              "2*3=X(1)",
                              "X(1)/2=1",
                              "X(1)=1/2",
                              "(X(1))=1",
                              "1.*X(1)=1",
                              "1..2*X(1)=1",
                              ".*X(1)=1",
                              "1E3*X(1)=1",
                              "--X(1)=1",
                              "X(1)+-X(2)=1",
                              "X(1)^1=1",
                              "3=3",
                              "0*X(1)=1",
                              "X(1)=X(1)",
                              "SLN(1)=1",
                              "X(1)=1'",
                              "X(1) X(2)=1",
                              "X(1)=\xC3\xB1"})
        EXPECT_FALSE(LeeEcuaciónLlana(banco.contexto, línea)) << línea;
    EXPECT_FALSE(LeeEcuaciónLlana(banco.contexto, std::string(400, '9') + "*X(1)=1"));
}

} // namespace
} // namespace quiralto
