// The forms of the data that the commands expect on the worksheet, and the one reader of them. It
// shows nothing: the commands show what it refuses, the window tells it while one types.
#pragma once

#include "commands/hoja.h"
#include "engine/base/rechazo.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace quiralto {

enum class ClaseForma {
    Ecuaciones,          // any number of lines, an equation in SLN(i) each
    Números,             // separated by commas, by lines or by both
    Puntos,              // numbers, two for each of at least two points
    Función,             // one line f(x)
    FunciónYPunto,       // one line f(x),punto
    FunciónYExtremos,    // one line f(x),extremo1,extremo2
    FuncionesRacionales, // functions separated as numbers are
    Multivariable,       // one line, a function of letters
};

// The numbers that a command takes, each with its range.
enum class ClaseNúmeros {
    DoblePrecisión = 0,   // -1.79769313486231E+308 to 1.79769313486231E+308
    EnterosLargos = 1,    // -2147483648 to 2147483647
    EnterosCortos = 2,    // -32768 to 32767
    EnterosPositivos = 3, // 2 to 2147483647
};

struct Forma {
    ClaseForma clase;
    std::string_view texto; // as the menus and the terminal program show it
    ClaseNúmeros números = ClaseNúmeros::DoblePrecisión;
    std::size_t cantidad = 0; // of Números; 0: any number of them, but at least one
};

inline constexpr Forma FormaEcuaciones{ClaseForma::Ecuaciones, "ecuaciones"};
inline constexpr Forma FormaEnteros{ClaseForma::Números, "enteros"};
inline constexpr Forma FormaEntero{ClaseForma::Números, "entero", ClaseNúmeros::EnterosLargos, 1};
inline constexpr Forma FormaDosEnteros{ClaseForma::Números, "entero,entero",
                                       ClaseNúmeros::EnterosPositivos, 2};
inline constexpr Forma FormaPuntos{ClaseForma::Puntos, "x1,y1,x2,y2,..."};
inline constexpr Forma FormaFunción{ClaseForma::Función, "f(x)"};
inline constexpr Forma FormaFunciónYPunto{ClaseForma::FunciónYPunto, "f(x),punto"};
inline constexpr Forma FormaFunciónYExtremos{ClaseForma::FunciónYExtremos,
                                             "f(x),extremo1,extremo2"};
inline constexpr Forma FormaRacionales{ClaseForma::FuncionesRacionales, "f(x),g(x),..."};
inline constexpr Forma FormaMultivariable{ClaseForma::Multivariable, "f(...,x,y,z,...,s)"};

struct DatosFunción {
    std::string función; // as Sintaxis left it
    double primero = 0;  // punto, or extremo1
    double segundo = 0;  // extremo2, greater than extremo1
};

using DatosNúmeros = std::vector<double>; // only their range is checked: decimals pass

struct DatosMultivariable {
    std::string función; // as Sintaxis left it, its letters SLN(i)
};

struct DatosFunciones {
    struct Una {
        std::string función; // as Sintaxis left it
        std::size_t línea;   // which instruction line it stands on, from 0
    };
    std::vector<Una> funciones;
};

struct DatosEcuaciones {
    // One a line: two sides as Sintaxis left them, the unknowns SLN(i).
    struct Una {
        std::string izquierda;
        std::string derecha;
    };
    std::vector<Una> ecuaciones;
};

using Datos =
    std::variant<DatosFunción, DatosNúmeros, DatosMultivariable, DatosFunciones, DatosEcuaciones>;

struct RechazoDatos {
    Rechazo rechazo;
    // The instruction line that is wrong, from 0, in which rechazo.lugar counts; none where it is
    // the number of lines or of fields.
    std::optional<std::size_t> línea;
};

// What stood before the first thing that is wrong is read in any case.
struct Lectura {
    Datos datos;
    std::optional<RechazoDatos> rechazo;
};

// Reads the instruction lines as data of that form. Shows nothing, and leaves ErrorCódigo alone.
// The watcher is asked.
Lectura LeeDatos(Contexto& contexto, const Forma& forma, std::span<const std::string> líneas);

// The form that the lines look like, whether LeeDatos accepts them or not; none where they are no
// data or like no form. Fields that are all numbers are numbers.
std::optional<Forma> ReconoceForma(std::span<const std::string> líneas);

// True where nothing was refused; otherwise shows it, and selects the line that is wrong.
bool Acepta(Contexto& contexto, Hoja& hoja, const std::optional<RechazoDatos>& rechazo);

// The data of hoja.líneas; none where they were refused, which is then shown.
template <typename Clase>
std::optional<Clase> CargaDatos(Contexto& contexto, Hoja& hoja, const Forma& forma) {
    Lectura lectura = LeeDatos(contexto, forma, hoja.líneas);
    if (!Acepta(contexto, hoja, lectura.rechazo))
        return std::nullopt;
    return std::get<Clase>(std::move(lectura.datos));
}

} // namespace quiralto
