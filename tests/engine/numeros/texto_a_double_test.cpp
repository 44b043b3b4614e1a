#include "engine/numeros/texto_a_double.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <random>

namespace quiralto {
namespace {

TEST(TextoADouble, LeeElMásCercano) {
    const struct {
        const char* texto;
        double valor;
    } casos[] = {
        {"0", 0},
        {".5", .5},
        {"5.", 5},
        {"1.25e3", 1250},
        {"1e-5", 1e-5},
        {"00012", 12},
        {"4.9e-324", 4.9406564584124654e-324},
        {"1e+22", 1e22},
        {"9007199254740993", 9007199254740992},
        {"1.7976931348623157e308", 1.7976931348623157e308},
    };
    for (const auto& [texto, esperado] : casos)
        for (const auto lee : {LeeDouble, LeeDoubleConLocaleC}) {
            double valor = -1;
            EXPECT_TRUE(lee(texto, valor)) << texto;
            EXPECT_EQ(valor, esperado) << texto;
        }
}

TEST(TextoADouble, FueraDeLosDoublesNoHayValor) {
    for (const char* texto : {"1e309", "1.8e308", "1e99999", "1e-400", "2e-324", ".0000001e-320"})
        for (const auto lee : {LeeDouble, LeeDoubleConLocaleC}) {
            double valor = -1;
            EXPECT_FALSE(lee(texto, valor)) << texto;
            EXPECT_EQ(valor, -1) << texto;
        }
}

TEST(TextoADouble, LasDosManerasDanLosMismosBits) {
    const auto semilla = std::random_device{}();
    std::mt19937_64 generador(semilla);
    for (int i = 0; i < 100'000; ++i) {
        // Digits beyond those of a Double, so that the rounding is decided far behind.
        std::string texto = std::to_string(generador());
        texto.insert(generador() % texto.size(), ".");
        texto += std::to_string(generador()) + 'e' +
                 std::to_string(static_cast<int>(generador() % 660) - 345);
        double una = 0;
        double otra = 0;
        ASSERT_EQ(LeeDouble(texto, una), LeeDoubleConLocaleC(texto, otra))
            << texto << " seed " << semilla;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(una), std::bit_cast<std::uint64_t>(otra))
            << texto << " seed " << semilla;
    }
}

} // namespace
} // namespace quiralto
