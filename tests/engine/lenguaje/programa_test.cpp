#include "engine/lenguaje/programa.h"

#include <gtest/gtest.h>

namespace quiralto {
namespace {

TEST(ListaPrograma, EscribeUnaLíneaPorInstrucción) {
    const Programa programa{.registros = {7, -.5, 0, 0, 1e20, 0},
                            .instrucciones = {{1, Operación::Producto, 0, 2},
                                              {0, Operación::Arcsin, 2, 3},
                                              {3, Operación::Potencia, 4, 5}}};
    EXPECT_EQ(ListaPrograma(programa), "Z2 := -.5 * X\nZ3 := ARCSIN Z2\nZ5 := Z3 ^ 1E+20\n");
    EXPECT_EQ(ListaPrograma({}), "");
}

TEST(ListaPrograma, EscribeCadaOperación) {
    for (const DescripciónOperación& fila : TablaOperaciones) {
        const Programa programa{.registros = {0, 2, 0}, .instrucciones = {{1, fila.código, 0, 2}}};
        const std::string nombre(fila.nombre);
        EXPECT_EQ(ListaPrograma(programa),
                  fila.EsBinaria() ? "Z2 := 2 " + nombre + " X\n" : "Z2 := " + nombre + " X\n");
    }
}

TEST(ListaPrograma, CallaLoQueNoHaceNada) {
    const Programa programa{.registros = {0, 0},
                            .instrucciones = {{0, static_cast<Operación>(99), 0, 1}}};
    EXPECT_EQ(ListaPrograma(programa), "");
}

} // namespace
} // namespace quiralto
