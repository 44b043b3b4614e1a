#include "engine/lenguaje/operaciones.h"

#include "tests/engine/generador.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>

namespace quiralto {
namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double Máximo = std::numeric_limits<double>::max();
constexpr double Mínimo = std::numeric_limits<double>::denorm_min();

TEST(TablaOperaciones, TieneLosCódigosYNombresDelLenguaje) {
    const struct {
        int código;
        const char* nombre;
        int aridad;
    } filas[] = {{1, "+", 2},    {2, "-", 2},      {3, "*", 2},       {4, "/", 2},
                 {5, "^", 2},    {6, "LOG", 1},    {7, "SIN", 1},     {8, "COS", 1},
                 {9, "TAN", 1},  {10, "ATN", 1},   {11, "EXP", 1},    {12, "SQR", 1},
                 {13, "SEC", 1}, {14, "COSEC", 1}, {15, "ARCSIN", 1}, {128, "SLN", 1}};
    for (const auto& fila : filas) {
        const DescripciónOperación* const operación =
            BuscaOperación(static_cast<Operación>(fila.código));
        ASSERT_NE(operación, nullptr) << fila.código;
        EXPECT_EQ(operación->nombre, fila.nombre);
        EXPECT_EQ(operación->aridad, fila.aridad) << fila.nombre;
    }
    for (const int código : {-32768, -1, 0, 16, 127, 129, 32767})
        EXPECT_EQ(BuscaOperación(static_cast<Operación>(código)), nullptr) << código;
}

TEST(TablaOperaciones, DaElOrdenDeCompilación) {
    std::string orden;
    for (const Operación código : OrdenFunciones)
        (orden += BuscaOperación(código)->nombre) += ' ';
    for (const Operación código : OrdenOperadores)
        (orden += BuscaOperación(código)->nombre) += ' ';
    EXPECT_EQ(orden, "ARCSIN COSEC LOG SIN COS TAN ATN EXP SQR SEC SLN ^ / * - + ");
}

TEST(LongitudNombre, SóloCuentaLoQueSePuedeEscribir) {
    const struct {
        const char* texto;
        std::size_t longitud;
    } casos[] = {{"SIN(X)", 4}, {"SIN", 0},     {"SINX(", 0}, {"COSEC(X", 6}, {"SEC(", 4},
                 {"SLN(2)", 0}, {"ARCSIN(", 7}, {"+(", 0},    {"", 0},        {"XSIN(", 0}};
    for (const auto& caso : casos)
        EXPECT_EQ(LongitudNombre(caso.texto), caso.longitud) << caso.texto;
}

// Values of both operands around everything that a row may have to know of.
std::vector<double> DevOperandos() {
    std::vector<double> operandos = {0.0,
                                     -0.0,
                                     1,
                                     -1,
                                     .5,
                                     -.5,
                                     2,
                                     -2,
                                     3,
                                     -3,
                                     2.5,
                                     -2.5,
                                     400,
                                     -400,
                                     Mínimo,
                                     -Mínimo,
                                     Máximo,
                                     -Máximo,
                                     1e160,
                                     -1e160,
                                     std::nextafter(1, 2),
                                     std::nextafter(1, 0),
                                     -std::nextafter(1, 2)};
    Generador generador(21);
    for (int i = 0; i < 40; ++i)
        operandos.push_back(generador.Real(-5, 5));
    return operandos;
}

// Outside the domain there is no finite value, and inside it one that is not finite is an overflow:
// near the border of the Double range, never without a value.
TEST(TablaOperaciones, ElFalloConcuerdaConElValor) {
    std::set<std::string_view> conFallo;
    for (const DescripciónOperación& fila : TablaOperaciones) {
        if (fila.familia == Familia::Símbolo)
            continue;
        for (const double a : DevOperandos()) {
            for (const double b : DevOperandos()) {
                const double valor = fila.valor(a, b, nullptr);
                const Fallo fallo = fila.fallo(a, b);
                if (fallo != SinFallo) {
                    conFallo.insert(fila.nombre);
                    EXPECT_FALSE(std::isfinite(valor)) << fila.nombre << ' ' << a << ' ' << b;
                } else {
                    EXPECT_FALSE(std::isnan(valor)) << fila.nombre << ' ' << a << ' ' << b;
                }
            }
        }
    }
    EXPECT_EQ(conFallo, (std::set<std::string_view>{"/", "^", "LOG", "SQR", "COSEC", "ARCSIN"}));
}

TEST(TablaOperaciones, DiceQuéOperandosPuedeOcultar) {
    for (const DescripciónOperación& fila : TablaOperaciones) {
        if (fila.familia == Familia::Símbolo)
            continue;
        bool izquierdo = false;
        bool derecho = false;
        for (const double malo : {Infinito, -Infinito, std::nan("")}) {
            for (const double otro : DevOperandos()) {
                izquierdo |= std::isfinite(fila.valor(malo, otro, nullptr));
                derecho |= std::isfinite(fila.valor(otro, malo, nullptr));
            }
        }
        EXPECT_EQ(derecho, fila.oculta != Oculta::Nada) << fila.nombre;
        EXPECT_EQ(izquierdo && fila.EsBinaria(), fila.oculta == Oculta::Ambos) << fila.nombre;
    }
}

} // namespace
} // namespace quiralto
