#include "engine/lenguaje/termino_texto.h"

#include "engine/base/fallos.h"
#include "engine/numeros/numero.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace quiralto {
namespace {

TEST(TérminoTexto, EscribeCadaTérminoTrasElAnterior) {
    const struct {
        double coeficiente;
        const char* literal;
        const char* primero;
        const char* detrás; // behind another one
    } casos[] = {
        {3, "X^2", "3*X^2", "A+3*X^2"},
        {1, "X", "X", "A+X"},
        {-1, "X", "-X", "A-X"},
        {-2.5, "X", "-2.5*X", "A-2.5*X"},
        {.5, "", ".5", "A+.5"},
        {1, "", "1", "A+1"},
        {-1, "", "-1", "A-1"},
        {0, "X", "", "A"},
        {-0.0, "", "", "A"},
        {2, "1/(X+1)", "2/(X+1)", "A+2/(X+1)"},
        {-2, "1/X", "-2/X", "A-2/X"},
        {1, "1/X", "1/X", "A+1/X"},
        {-1, "1/X", "-1/X", "A-1/X"},
        {1E+20, "X", "1E+20*X", "A+1E+20*X"},
        {123456789012345, "X", "123456789012345*X", "A+123456789012345*X"},
        {1234567890123456, "X", "1.23456789012346E+15*X", "A+1.23456789012346E+15*X"},
    };
    for (const auto& caso : casos) {
        std::string solo = "(";
        EscribeTérmino(solo, caso.coeficiente, caso.literal, 1);
        EXPECT_EQ(solo, std::string("(") + caso.primero);
        std::string detrás = "A";
        EscribeTérmino(detrás, caso.coeficiente, caso.literal);
        EXPECT_EQ(detrás, caso.detrás);
    }
}

TEST(TérminoTexto, LoQueNoEsFinitoNoSeEscribe) {
    std::string texto;
    EXPECT_THROW(EscribeTérmino(texto, std::numeric_limits<double>::infinity(), "X"),
                 ErrorEjecución);
    EXPECT_THROW(EscribeNúmero(texto, std::numeric_limits<double>::quiet_NaN()), ErrorEjecución);
}

TEST(TérminoTexto, LosNúmerosTienenLaFormaGeneral) {
    std::mt19937_64 azar(30101);
    std::vector<double> números = {0,     -0.0,     1,         -1,      .1,     1e15,
                                   -1e15, 1e15 - 1, 1e15 + .5, 4.2e-16, 1e-300, 1e300};
    for (int i = 0; i < 2000; ++i)
        números.push_back(static_cast<double>(static_cast<std::int64_t>(azar()) >> (azar() % 64)) /
                          (i % 2 == 0 ? 1 : 64));
    for (const double número : números) {
        std::string texto = "X+";
        EscribeNúmero(texto, número);
        EXPECT_EQ(texto, "X+" + TextoNúmero(número));
    }
}

TEST(TérminoTexto, CortaEnLosSignosQueSeparan) {
    const struct {
        const char* suma;
        std::vector<std::string_view> términos;
    } casos[] = {
        {"", {}},
        {"X", {"X"}},
        {"-X+1", {"-X", "+1"}},
        {"+X-1", {"+X", "-1"}},
        {"X^-2+1.5E-07*X-.5", {"X^-2", "+1.5E-07*X", "-.5"}},
        {"1.5D+07-2*-A+B/-C", {"1.5D+07", "-2*-A", "+B/-C"}},
        {"(A+B)*SIN(X-1)-(C-(D+E))", {"(A+B)*SIN(X-1)", "-(C-(D+E))"}},
        {"A)+B", {"A)", "+B"}},
        {"A-", {"A", "-"}},
        {"A+-B", {"A", "+", "-B"}},
    };
    for (const auto& caso : casos) {
        std::vector<std::string_view> términos;
        RecorreTérminos(caso.suma, [&](std::string_view t) { términos.push_back(t); });
        EXPECT_EQ(términos, caso.términos) << caso.suma;
    }
}

TEST(TérminoTexto, SeparaElCoeficienteDeLaParteLiteral) {
    const struct {
        const char* término;
        double coeficiente;
        const char* literal;
    } casos[] = {
        {"X", 1, "X"},
        {"-X^3", -1, "X^3"},
        {"+X", 1, "X"},
        {"7", 7, ""},
        {"-7", -7, ""},
        {"+.5", .5, ""},
        {"3*X^2", 3, "X^2"},
        {"-1.5E-16*A*B", -1.5e-16, "A*B"},
        {"2/(X+1)", 2, "1/(X+1)"},
        {"-3/X", -3, "1/X"},
        {"2^X", 1, "2^X"},
        {"-2^X*3", -1, "2^X*3"},
        {"(A+B)*C", 1, "(A+B)*C"},
        {"3.0*A", 3, "0*A"}, // not in the general form: cut behind "3" and one more
        {"--5", -1, "-5"},
        {"", 1, ""},
        {"-", -1, ""},
    };
    for (const auto& caso : casos) {
        const TérminoLeído leído = LeeTérmino(caso.término);
        EXPECT_EQ(leído.coeficiente, caso.coeficiente) << caso.término;
        EXPECT_EQ(leído.literal, caso.literal) << caso.término;
    }
    EXPECT_THROW(LeeTérmino("1E+400*X"), ErrorEjecución);
}

TEST(TérminoTexto, LoEscritoSeLeeIgual) {
    constexpr std::string_view Literales[] = {"",        "X",           "X^-2", "SIN(X-1)*A",
                                              "1/(X-1)", "(A+B)^(C-D)", "2^X"};
    std::mt19937_64 azar(30102);
    for (int i = 0; i < 500; ++i) {
        std::string texto;
        std::vector<TérminoLeído> escritos;
        for (std::size_t n = azar() % 8; n > 0; --n) {
            const double coeficiente = (static_cast<double>(azar() % 201) - 100) / 8;
            if (coeficiente == 0)
                continue;
            escritos.push_back({coeficiente, std::string(Literales[azar() % 7])});
            EscribeTérmino(texto, coeficiente, escritos.back().literal);
        }
        std::size_t k = 0;
        RecorreTérminos(texto, [&](std::string_view término) {
            ASSERT_LT(k, escritos.size()) << texto;
            const TérminoLeído leído = LeeTérmino(término);
            EXPECT_EQ(leído.coeficiente, escritos[k].coeficiente) << texto;
            EXPECT_EQ(leído.literal, escritos[k].literal) << texto;
            ++k;
        });
        EXPECT_EQ(k, escritos.size()) << texto;
    }
}

} // namespace
} // namespace quiralto
