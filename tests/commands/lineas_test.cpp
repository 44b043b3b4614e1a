#include "commands/lineas.h"

#include "commands/fichero_primos.h"
#include "commands/ordenes.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quiralto {
namespace {

TEST(Líneas, SonVacíasComentariosODatos) {
    const struct {
        const char* línea;
        ClaseLínea clase;
        const char* datos;
    } casos[] = {
        {"", ClaseLínea::Vacía, ""},
        {"   ", ClaseLínea::Vacía, ""},
        {"'nota", ClaseLínea::Comentario, ""},
        {"  ' nota", ClaseLínea::Comentario, ""},
        {"X^2,5 'mi nota", ClaseLínea::Datos, "X^2,5 "},
        {" X", ClaseLínea::Datos, " X"},
        {"X'a'b", ClaseLínea::Datos, "X"},
        {"\t", ClaseLínea::Datos, "\t"}, // a tab is no blank
        {"Simplificación :X+1", ClaseLínea::Datos, "Simplificación :X+1"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(ClasificaLínea(caso.línea).clase, caso.clase) << caso.línea;
        EXPECT_EQ(ClasificaLínea(caso.línea).datos, caso.datos) << caso.línea;
    }
}

TEST(Líneas, SeCortanEnCampos) {
    using Campos = std::vector<std::string_view>;
    EXPECT_EQ(CortaCampos(""), Campos{""});
    EXPECT_EQ(CortaCampos("X,1,"), (Campos{"X", "1", ""}));
    EXPECT_EQ(CortaCampos("a,b,c,d", 2), (Campos{"a", "b"}));
    EXPECT_EQ(CortaCampos("a", 2), Campos{"a"});
}

// The first line that a command has appended, empty ones aside.
std::string_view DevPrimeraLínea(std::string_view añadido) {
    const auto líneas = CortaLíneas(añadido);
    const auto primera =
        std::ranges::find_if(líneas, [](std::string_view línea) { return !línea.empty(); });
    return primera == líneas.end() ? "" : *primera;
}

TEST(Líneas, LasDelProgramaSeConocenPorSuTexto) {
    for (const Orden& orden : DevÓrdenes()) {
        Banco banco;
        CargaPrimos(banco.contexto, QUIRALTO_PRIMOS);
        Hoja hoja{std::string(orden.ejemplo)};
        EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
        const std::string_view línea =
            DevPrimeraLínea(std::string_view(hoja.texto).substr(orden.ejemplo.size()));
        EXPECT_TRUE(EsDelPrograma(línea)) << orden.texto << ": " << línea;
    }
    EXPECT_TRUE(EsDelPrograma("Simplificación :X+1"));
    for (const char* línea : {"", "X", "'", "'nota", "simplificación :X", "SIMPLIFICACIÓN :X",
                              "Factorización :X", "Solución en X=2", " Simplificación :X"})
        EXPECT_FALSE(EsDelPrograma(línea)) << línea;
}

} // namespace
} // namespace quiralto
