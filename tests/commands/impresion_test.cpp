#include "commands/impresion.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

using Líneas = std::vector<std::string>;

std::string Repite(std::string_view pieza, int veces) {
    std::string texto;
    for (int i = 0; i < veces; ++i)
        texto += pieza;
    return texto;
}

TEST(DevLíneasImpresas, CortaLasLíneasLargasCadaOchentaCaracteres) {
    for (const char* carácter : {"X", "ñ", "€", "🙂"}) {
        const auto pieza = [&](int cuántos) { return Repite(carácter, cuántos); };
        const std::pair<int, Líneas> casos[] = {
            {0, {""}},
            {1, {pieza(1)}},
            {79, {pieza(79)}},
            {80, {pieza(80)}},
            {81, {pieza(80), pieza(1)}},
            {160, {pieza(80), pieza(80)}},
            {200, {pieza(80), pieza(80), pieza(40)}},
        };
        for (const auto& [cuántos, líneas] : casos)
            EXPECT_EQ(DevLíneasImpresas(pieza(cuántos)), líneas) << cuántos << carácter;
    }
}

TEST(DevLíneasImpresas, ImprimeTambiénLasVacíasYLosComentarios) {
    EXPECT_EQ(DevLíneasImpresas("X,0,1\r\n\r\n'Area= .5"), (Líneas{"X,0,1", "", "'Area= .5"}));
    EXPECT_EQ(DevLíneasImpresas("\r\nX\r\n"), (Líneas{"", "X", ""}));
    EXPECT_EQ(DevLíneasImpresas("  X  'nota"), (Líneas{"  X  'nota"}));
}

TEST(DevLíneasImpresas, CadaLíneaSeCortaPorSuCuenta) {
    const std::string larga(81, '1');
    EXPECT_EQ(DevLíneasImpresas(larga + "\r\n2\r\n'" + larga),
              (Líneas{std::string(80, '1'), "1", "2", "'" + std::string(79, '1'), "11"}));
}

TEST(DevLíneasImpresas, SóloCrLfSeparaLíneas) {
    EXPECT_EQ(DevLíneasImpresas("a\nb\rc"), (Líneas{"a\nb\rc"}));
}

TEST(DevLíneasImpresas, NoPierdeNadaDeUnTextoEnorme) {
    const std::string línea(std::size_t{1} << 20, 'X');
    std::string todo;
    for (const std::string& impresa : DevLíneasImpresas(línea)) {
        EXPECT_LE(impresa.size(), ColumnasImpresas);
        todo += impresa;
    }
    EXPECT_EQ(todo, línea);
}

} // namespace
} // namespace quiralto
