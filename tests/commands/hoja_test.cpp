#include "commands/hoja.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

using Líneas = std::vector<std::string>;

TEST(Hoja, UnaHojaSinInstruccionesNoTieneLíneas) {
    for (const char* texto : {"", "\r\n", "   ", "'nota", "  'nota\r\n\r\n   \r\n'otra\r\n"})
        EXPECT_EQ(LeeTextBox(texto), Líneas{}) << texto;
}

TEST(Hoja, LeeLasLíneasQueNoSonComentarios) {
    EXPECT_EQ(LeeTextBox("X^2,1\r\n'Derivada : \r\n X\r\n"), (Líneas{"X^2,1", " X"}));
}

TEST(Hoja, CortaElComentarioFinalYDejaLosBlancos) {
    EXPECT_EQ(LeeTextBox("X^2,5 'mi nota"), Líneas{"X^2,5 "});
    EXPECT_EQ(LeeTextBox("X'a'b"), Líneas{"X"});
}

TEST(Hoja, SóloCrLfSeparaLíneas) {
    EXPECT_EQ(LeeTextBox("A\rB\nC"), Líneas{"A\rB\nC"});
}

TEST(Hoja, LosSaltosVanYVienen) {
    EXPECT_EQ(ConCrLf("a\nb\r\nc\rd\n"), "a\r\nb\r\nc\rd\r\n");
    EXPECT_EQ(ConLf("a\r\nb\r\nc\rd\r\n"), "a\nb\nc\rd\n");
    EXPECT_EQ(ConLf(ConCrLf("\n\n")), "\n\n");
    EXPECT_EQ(ConCrLf("\n\r\n\r\r\n\n\r"), "\r\n\r\n\r\r\n\r\n\r");
    EXPECT_EQ(ConLf("\r\r\n\r\n\n\r"), "\r\n\n\n\r");
    EXPECT_EQ(ConCrLf("") + ConLf(""), "");
}

} // namespace
} // namespace quiralto
