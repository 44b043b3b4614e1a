// The one table of the language's operations: the check of names, the compiler, the evaluator and
// its faults, the plan of a block run, the derivative, the listing and the algebra take what they
// know of an operation from its row.
//
// A new function is an enumerator and a row here, nothing else; a row that lacks something does not
// compile.
#pragma once

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"
#include "engine/lenguaje/aritmetica.h"

#include <algorithm>
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

// What an operation is to the algebra, which switches over it.
enum class Familia : std::uint8_t {
    Suma,
    Resta,
    Producto,
    Cociente,
    Potencia,
    Función, // a function of the language: known by its values alone
    Símbolo, // SLN: stands for a variable of its own, and is typed under no name
};

// The operands whose not being finite the value can hide by being finite.
enum class Oculta : std::uint8_t { Nada, Derecho, Ambos };

struct DescripciónOperación {
    Operación código;
    std::string_view nombre; // the operator, or the function's name
    Familia familia;
    int aridad; // 2: R(result) := R(left) op R(right); 1: R(result) := name R(right)
    int orden;  // in which the compiler takes it, operators and functions each from 1 on
    // Only SLN draws from the source of random numbers; none is needed where it cannot stand.
    double (*valor)(double izquierdo, double derecho, Azar* azar);
    // The fault of two finite operands outside the domain, or SinFallo; then a value that is not
    // finite has overflowed.
    Fallo (*fallo)(double izquierdo, double derecho);
    Oculta oculta;
    // Of a function: the derivative's text, in which "u" stands for the argument, "d" for its
    // derivative, "D(" and ")D" enclose what is still to be derived, and "[" and "]" what may turn
    // out to begin with a negative power. An argument stands in parentheses of its own, and what is
    // still to be derived names only functions of rows above.
    std::string_view derivada;
    std::string_view significado;

    constexpr bool EsBinaria() const { return aridad == 2; }
};

namespace filas {

constexpr Fallo NoFalla(double, double) {
    return SinFallo;
}

constexpr Fallo EntreCero(bool esCero) {
    return esCero ? DivisiónPorCero : SinFallo;
}

constexpr Fallo FueraDeDominio(bool estáFuera) {
    return estáFuera ? ArgumentoInválido : SinFallo;
}

inline Fallo FalloPotencia(double a, double b) {
    return a == 0 && b < 0 ? DivisiónPorCero : FueraDeDominio(a < 0 && b != std::trunc(b));
}

inline Fallo FalloArcoseno(double, double b) {
    return b == 1 || b == -1 ? DivisiónPorCero : FueraDeDominio(!(std::fabs(b) <= 1));
}

} // namespace filas

inline constexpr auto TablaOperaciones = std::to_array<DescripciónOperación>({
    {Operación::Suma, "+", Familia::Suma, 2, 5, [](double a, double b, Azar*) { return a + b; },
     filas::NoFalla, Oculta::Nada, "", "left + right"},
    {Operación::Resta, "-", Familia::Resta, 2, 4, [](double a, double b, Azar*) { return a - b; },
     filas::NoFalla, Oculta::Nada, "", "left - right"},
    {Operación::Producto, "*", Familia::Producto, 2, 3,
     [](double a, double b, Azar*) { return a * b; }, filas::NoFalla, Oculta::Nada, "",
     "left * right"},
    {Operación::Cociente, "/", Familia::Cociente, 2, 2,
     [](double a, double b, Azar*) { return a / b; },
     [](double, double b) { return filas::EntreCero(b == 0); }, Oculta::Derecho, "",
     "left / right"},
    {Operación::Potencia, "^", Familia::Potencia, 2, 1,
     [](double a, double b, Azar*) { return DevPotencia(a, b); }, filas::FalloPotencia,
     Oculta::Ambos, "", "left raised to right"},
    {Operación::Log, "LOG", Familia::Función, 1, 3,
     [](double, double b, Azar*) { return std::log(b); },
     [](double, double b) { return filas::FueraDeDominio(b <= 0); }, Oculta::Nada, "d/(u)",
     "natural logarithm"},
    {Operación::Sin, "SIN", Familia::Función, 1, 4,
     [](double, double b, Azar*) { return std::sin(b); }, filas::NoFalla, Oculta::Nada, "d*COS(u)",
     "sine, radians"},
    {Operación::Cos, "COS", Familia::Función, 1, 5,
     [](double, double b, Azar*) { return std::cos(b); }, filas::NoFalla, Oculta::Nada, "-d*SIN(u)",
     "cosine, radians"},
    {Operación::Tan, "TAN", Familia::Función, 1, 6,
     [](double, double b, Azar*) { return std::tan(b); }, filas::NoFalla, Oculta::Nada,
     "d/COS(u)^2", "tangent, radians"},
    {Operación::Atn, "ATN", Familia::Función, 1, 7,
     [](double, double b, Azar*) { return std::atan(b); }, filas::NoFalla, Oculta::Derecho,
     "d/(1+(u)^2)", "arc tangent"},
    {Operación::Exp, "EXP", Familia::Función, 1, 8,
     [](double, double b, Azar*) { return std::exp(b); }, filas::NoFalla, Oculta::Derecho,
     "d*EXP(u)", "e raised to the argument"},
    {Operación::Sqr, "SQR", Familia::Función, 1, 9,
     [](double, double b, Azar*) { return std::sqrt(b); },
     [](double, double b) { return filas::FueraDeDominio(b < 0); }, Oculta::Nada, "d/(2*SQR(u))",
     "square root"},
    {Operación::Sec, "SEC", Familia::Función, 1, 10,
     [](double, double b, Azar*) { return DevSecante(b); },
     [](double, double b) { return filas::EntreCero(std::cos(b) == 0); }, Oculta::Nada,
     "D(1/COS(u))D", "1 / COS(argument)"},
    {Operación::Cosec, "COSEC", Familia::Función, 1, 2,
     [](double, double b, Azar*) { return DevCosecante(b); },
     [](double, double b) { return filas::EntreCero(std::sin(b) == 0); }, Oculta::Nada,
     "D(1/SIN(u))D", "1 / SIN(argument)"},
    {Operación::Arcsin, "ARCSIN", Familia::Función, 1, 1,
     [](double, double b, Azar*) { return DevArcoseno(b); }, filas::FalloArcoseno, Oculta::Nada,
     "D(ATN((u)/SQR(-(u)*(u)+1)))D", "ATN(a / SQR(1 - a*a))"},
    {Operación::Sln, "SLN", Familia::Símbolo, 1, 11,
     [](double, double b, Azar* azar) { return DevSln(b, azar); }, filas::NoFalla, Oculta::Nada, "",
     "the argument; a random number in [0, 1) where it is 0"},
});

constexpr bool TieneFunciones([[maybe_unused]] const DescripciónOperación& fila) {
#ifdef __SANITIZE_ADDRESS__
    return true; // with its checks for null g++ 12 takes no function's address for a constant
#else
    return fila.valor != nullptr && fila.fallo != nullptr;
#endif
}

constexpr bool EstáCompleta(const DescripciónOperación& fila) {
    const bool esFunción = fila.familia == Familia::Función;
    const auto deSuAridad = [&](const DescripciónOperación& otra) {
        return otra.aridad == fila.aridad;
    };
    return !fila.nombre.empty() && !fila.significado.empty() &&
           fila.aridad == (esFunción || fila.familia == Familia::Símbolo ? 1 : 2) &&
           fila.orden >= 1 && fila.orden <= std::ranges::count_if(TablaOperaciones, deSuAridad) &&
           std::ranges::count_if(TablaOperaciones,
                                 [&](const DescripciónOperación& otra) {
                                     return deSuAridad(otra) && otra.orden == fila.orden;
                                 }) == 1 &&
           std::ranges::count(TablaOperaciones, fila.código, &DescripciónOperación::código) == 1 &&
           std::ranges::count(TablaOperaciones, fila.nombre, &DescripciónOperación::nombre) == 1 &&
           TieneFunciones(fila) && fila.derivada.empty() != esFunción;
}
static_assert(std::ranges::all_of(TablaOperaciones, EstáCompleta),
              "each row needs a name, an arity, a place in the order, a value, a fault and, of a "
              "function, a derivative");

// The operations of an arity in the order in which the compiler takes them.
template <int Aridad> consteval auto EnOrden() {
    constexpr auto esSuya = [](const DescripciónOperación& fila) { return fila.aridad == Aridad; };
    std::array<Operación, std::ranges::count_if(TablaOperaciones, esSuya)> enOrden{};
    for (const DescripciónOperación& fila : TablaOperaciones)
        if (esSuya(fila))
            enOrden[static_cast<std::size_t>(fila.orden - 1)] = fila.código;
    return enOrden;
}
inline constexpr auto OrdenFunciones = EnOrden<1>();
inline constexpr auto OrdenOperadores = EnOrden<2>();

// The row of a code, or null where there is none.
constexpr const DescripciónOperación* BuscaOperación(Operación código) {
    for (const DescripciónOperación& fila : TablaOperaciones)
        if (fila.código == código)
            return &fila;
    return nullptr;
}

// The row of an operator's character, or null.
constexpr const DescripciónOperación* BuscaOperador(char c) {
    for (const DescripciónOperación& fila : TablaOperaciones)
        if (fila.EsBinaria() && fila.nombre.front() == c)
            return &fila;
    return nullptr;
}

// Whether the function's name and parenthesis begin the text.
constexpr bool EmpiezaCon(std::string_view texto, const DescripciónOperación& fila) {
    return !fila.EsBinaria() && texto.starts_with(fila.nombre) &&
           texto.substr(fila.nombre.size()).starts_with('(');
}

// The row of the function whose name and parenthesis begin the text, or null.
constexpr const DescripciónOperación* BuscaFunción(std::string_view texto) {
    for (const DescripciónOperación& fila : TablaOperaciones)
        if (EmpiezaCon(texto, fila))
            return &fila;
    return nullptr;
}

// Whether a call of the function of the row, or of one below, begins the text.
constexpr bool EmpiezaDesde(std::string_view texto, const DescripciónOperación& fila) {
    bool desde = false; // no pointers: with its checks for null g++ 12 takes none for a constant
    for (const DescripciónOperación& otra : TablaOperaciones) {
        desde = desde || otra.código == fila.código;
        if (desde && EmpiezaCon(texto, otra))
            return true;
    }
    return false;
}

// Whether each argument in the row's derivative stands in parentheses, so that no operator in it
// meets one outside, and no function still to be derived there has its row here or below, so that
// rewriting ends.
constexpr bool SeDeriva(const DescripciónOperación& fila) {
    constexpr auto esLetra = [](char c) { return c >= 'A' && c <= 'Z'; };
    const std::string_view texto = fila.derivada;
    const std::size_t marca = std::min(texto.find("D("), texto.size());
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == 'u' && (texto[i - 1] != '(' || texto[i + 1] != ')'))
            return false;
        const bool empieza = i > marca && esLetra(texto[i]) && !esLetra(texto[i - 1]);
        if (empieza && EmpiezaDesde(texto.substr(i), fila))
            return false;
    }
    return texto.find(")D") == texto.rfind(")D") &&
           (marca == texto.size()) == (texto.find(")D") == std::string_view::npos);
}
static_assert(std::ranges::all_of(TablaOperaciones, SeDeriva),
              "a derivative that would be read amiss, or never end");

// Length of the name, with its parenthesis, of a function that may be typed and begins the text;
// 0 where none does.
constexpr std::size_t LongitudNombre(std::string_view texto) {
    const DescripciónOperación* const fila = BuscaFunción(texto);
    return fila != nullptr && fila->familia == Familia::Función ? fila->nombre.size() + 1 : 0;
}

// How a variable's symbol begins: SLN and its parenthesis.
inline constexpr std::string_view PrefijoSln = "SLN(";
static_assert(BuscaFunción(PrefijoSln)->código == Operación::Sln);

} // namespace quiralto
