#include "engine/base/utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quiralto {
namespace {

// The bytes of a code point, by the definition of the encoding.
std::string Codifica(std::uint32_t código) {
    const auto octeto = [](std::uint32_t valor) { return static_cast<char>(valor); };
    const auto resto = [&](unsigned bits) { return octeto(0x80U | ((código >> bits) & 0x3FU)); };
    if (código < 0x80)
        return {octeto(código)};
    if (código < 0x800)
        return {octeto(0xC0U | (código >> 6U)), resto(0)};
    if (código < 0x10000)
        return {octeto(0xE0U | (código >> 12U)), resto(6), resto(0)};
    return {octeto(0xF0U | (código >> 18U)), resto(12), resto(6), resto(0)};
}

bool EsSustituto(std::uint32_t código) {
    return código >= 0xD800 && código <= 0xDFFF;
}

TEST(Utf8, MideCadaCarácterDeUnicode) {
    for (std::uint32_t código = 0; código <= 0x10FFFF; ++código) {
        const std::string texto = Codifica(código);
        const std::size_t longitud = EsSustituto(código) ? 0 : texto.size();
        ASSERT_EQ(LongitudCarácter(texto, 0), longitud) << código;
        ASSERT_EQ(EsUtf8(texto), longitud != 0) << código;
    }
}

TEST(Utf8, RechazaLoQueNoEsUnCarácter) {
    const char* casos[] = {
        "\x80",             // a continuation byte alone
        "\xBF",             //
        "\xC0\x80",         // overlong forms
        "\xC1\xBF",         //
        "\xE0\x80\x80",     //
        "\xE0\x9F\xBF",     //
        "\xF0\x80\x80\x80", //
        "\xF0\x8F\xBF\xBF", //
        "\xED\xA0\x80",     // surrogates
        "\xED\xBF\xBF",     //
        "\xF4\x90\x80\x80", // past U+10FFFF
        "\xF5\x80\x80\x80", //
        "\xFF",             //
        "\xC3",             // cut short
        "\xE2\x82",         //
        "\xF0\x9F\x98",     //
        "\xC3(",            // not followed by a continuation byte
        "\xE2\x82(",        //
        "\xF0\x9F\x98(",    //
    };
    for (const char* caso : casos) {
        EXPECT_EQ(LongitudCarácter(caso, 0), 0U) << caso;
        EXPECT_FALSE(EsUtf8(caso)) << caso;
        EXPECT_FALSE(EsUtf8(std::string("X") + caso + "X")) << caso;
    }
}

TEST(Utf8, DecideIgualQueUnaDescodificaciónDirecta) {
    // Every sequence of two bytes: valid if it is two ASCII characters or one two-byte character.
    for (unsigned a = 0; a < 256; ++a) {
        for (unsigned b = 0; b < 256; ++b) {
            const std::string texto = {static_cast<char>(a), static_cast<char>(b)};
            const bool ascii = a < 0x80 && b < 0x80;
            const bool doble = a >= 0xC2 && a <= 0xDF && b >= 0x80 && b <= 0xBF;
            ASSERT_EQ(EsUtf8(texto), ascii || doble) << a << ' ' << b;
        }
    }
}

TEST(Utf8, MideDesdeCualquierLugar) {
    const std::string texto = "XÑ€\U0001F600";
    const std::size_t longitudes[] = {1, 2, 0, 3, 0, 0, 4, 0, 0, 0, 0};
    for (std::size_t i = 0; i <= texto.size(); ++i)
        EXPECT_EQ(LongitudCarácter(texto, i), longitudes[i]) << i;
    EXPECT_TRUE(EsUtf8(texto));
    EXPECT_TRUE(EsUtf8(""));
    EXPECT_TRUE(EsUtf8(std::string(1, '\0')));
}

} // namespace
} // namespace quiralto
