#include "commands/hallazgos.h"

#include "commands/ordenes.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

struct Corrida {
    std::string añadido;
    std::vector<Hallazgo> hallazgos;
};

Corrida Ejecuta(Banco& banco, const std::string& texto, const char* orden) {
    Hoja hoja(texto);
    EjecutaInstrucciones(banco.contexto, hoja, orden);
    return {hoja.texto.substr(texto.size()), hoja.hallazgos};
}

TEST(Hallazgos, SonLosDeLasLíneasDeLaHoja) {
    const struct {
        const char* orden;
        const char* línea;
    } casos[] = {
        {"Hallar soluciones ecuación", "SIN(X),-10,10"},
        {"Hallar soluciones ecuación", "X^2-2,-10,10"},
        {"Hallar máximos", "X^3-3*X,-5,5"},
        {"Hallar mínimos", "X^3-3*X+1/3,-5,5"},
        {"Hallar puntos de inflexión", "X^3-X/7,-1,1"},
        {"Hallar área", "X/3,0,1"},
        {"Hallar soluciones ecuación", "X^2+1,-10,10"},
    };
    for (const auto& caso : casos)
        for (const int cifras : {0, 3, 8, 15}) {
            Banco banco;
            banco.contexto.DígitosRedondeo = cifras;
            const Corrida corrida = Ejecuta(banco, caso.línea, caso.orden);
            std::vector<Hallazgo> leídos;
            for (const std::string_view línea : CortaLíneas(corrida.añadido))
                if (const auto leído = LeeHallazgo(línea)) {
                    leídos.push_back(*leído);
                    EXPECT_EQ(TextoHallazgo(*leído, MáximoDígitosRedondeo), línea);
                }
            ASSERT_EQ(leídos.size(), corrida.hallazgos.size()) << corrida.añadido;
            for (std::size_t i = 0; i < leídos.size(); ++i) {
                const Hallazgo& hallazgo = corrida.hallazgos[i];
                EXPECT_EQ(leídos[i].clase, hallazgo.clase);
                EXPECT_EQ(leídos[i].x, hallazgo.x);
                EXPECT_EQ(leídos[i].y, Val(TextoResultado(hallazgo.y, cifras)));
                EXPECT_EQ(hallazgo.función + ',' + TextoNúmero(hallazgo.desde) + ',' +
                              TextoNúmero(hallazgo.hasta),
                          caso.línea);
            }
        }
}

TEST(Hallazgos, CadaOrdenLosHaceDeNuevo) {
    Banco banco;
    Hoja hoja("X^2-4,-5,5");
    EjecutaInstrucciones(banco.contexto, hoja, "Hallar soluciones ecuación");
    ASSERT_EQ(hoja.hallazgos.size(), 2U);
    EXPECT_EQ(hoja.hallazgos[0].x, -2);
    EXPECT_EQ(hoja.hallazgos[1].x, 2);
    EjecutaInstrucciones(banco.contexto, hoja, "ninguna");
    EXPECT_EQ(hoja.hallazgos.size(), 2U);
    EjecutaInstrucciones(banco.contexto, hoja, "Derivar");
    EXPECT_EQ(hoja.hallazgos.size(), 0U);
    int quedan = 50;
    banco.vigilante.continúa = [&] { return quedan-- > 0; };
    EjecutaInstrucciones(banco.contexto, hoja, "Hallar soluciones ecuación");
    EXPECT_EQ(hoja.hallazgos.size(), 0U); // cancelled
}

TEST(Hallazgos, UnaLíneaDeOtraCosaNoEsNinguno) {
    for (const char* línea :
         {"", "'", "'Solución en X=", "'Solución en X= ", "'Solución en X=a", "'Solución en X= 2 ",
          "'Solución en X= 2    f(X)= 3", "Solución en X= 2", "'Máximo en X= 2",
          "'Máximo en X= 2    f(X)=", "'Máximo en X= 2   f(X)= 1", "'Area=", "'Area= 1'",
          "'Solución en X= 1E+999", "'Area= 1E+999", "'No se hallaron soluciones"})
        EXPECT_FALSE(LeeHallazgo(línea)) << línea;
    const auto máximo = LeeHallazgo("'Máximo en X=-1.5    f(X)= 1E-20");
    ASSERT_TRUE(máximo);
    EXPECT_EQ(máximo->clase, ClaseHallazgo::Máximo);
    EXPECT_EQ(máximo->x, -1.5);
    EXPECT_EQ(máximo->y, 1E-20);
}

} // namespace
} // namespace quiralto
