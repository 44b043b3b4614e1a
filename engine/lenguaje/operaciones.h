// The one table of operation codes: the compiler, the evaluator, the listing and the tests all
// take them from here.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quiralto {

enum class Operación : std::int16_t {
    Suma = 1,
    Resta = 2,
    Producto = 3,
    Cociente = 4,
    Potencia = 5,
    Log = 6,
    Sin = 7,
    Cos = 8,
    Tan = 9,
    Atn = 10,
    Exp = 11,
    Sqr = 12,
    Sec = 13,
    Cosec = 14,
    Arcsin = 15,
    Sln = 128,
};

struct DescripciónOperación {
    Operación código;
    std::string_view nombre; // the operator, or the function's name
    bool binaria;            // R(result) := R(left) op R(right), or R(result) := name R(right)
    std::string_view significado;
};

inline constexpr std::array<DescripciónOperación, 16> TablaOperaciones = {{
    {Operación::Suma, "+", true, "left + right"},
    {Operación::Resta, "-", true, "left - right"},
    {Operación::Producto, "*", true, "left * right"},
    {Operación::Cociente, "/", true, "left / right"},
    {Operación::Potencia, "^", true, "left raised to right"},
    {Operación::Log, "LOG", false, "natural logarithm"},
    {Operación::Sin, "SIN", false, "sine, radians"},
    {Operación::Cos, "COS", false, "cosine, radians"},
    {Operación::Tan, "TAN", false, "tangent, radians"},
    {Operación::Atn, "ATN", false, "arc tangent"},
    {Operación::Exp, "EXP", false, "e raised to the argument"},
    {Operación::Sqr, "SQR", false, "square root"},
    {Operación::Sec, "SEC", false, "1 / COS(argument)"},
    {Operación::Cosec, "COSEC", false, "1 / SIN(argument)"},
    {Operación::Arcsin, "ARCSIN", false, "ATN(a / SQR(1 - a*a))"},
    {Operación::Sln, "SLN", false, "the argument; a random number in [0, 1) where it is 0"},
}};

} // namespace quiralto
