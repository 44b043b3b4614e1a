#include "commands/formas.h"

#include "commands/ecuaciones.h"
#include "commands/letras.h"
#include "engine/base/caracteres.h"
#include "engine/evaluacion/validadores.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quiralto {
namespace {

struct Rango {
    std::string_view texto;
    double mínimo;
    double máximo;
};

// In the order of ClaseNúmeros.
constexpr std::array Rangos = {
    Rango{"números de doble precisión : -1.79769313486231E+308 a 1.79769313486231E+308",
          -1.79769313486231E+308, 1.79769313486231E+308},
    Rango{"números enteros largos : -2147483648 a 2147483647", -2147483648.0, 2147483647},
    Rango{"números enteros cortos : -32768 a 32767", -32768, 32767},
    Rango{"números enteros positivos : 2 a 2147483647", 2, 2147483647},
};

const Rango& RangoDe(const Forma& forma) {
    return Rangos[static_cast<std::size_t>(forma.números)];
}

bool EsDoblePrecisión(std::string_view campo) {
    constexpr double Máximo = std::numeric_limits<double>::max();
    return EsNúmeroEnRango(campo, -Máximo, Máximo);
}

std::size_t LugarDe(std::string_view campo, std::string_view línea) {
    return static_cast<std::size_t>(campo.data() - línea.data());
}

// The refusal of a piece of a line, as one of the line.
RechazoDatos EnLínea(Rechazo rechazo, std::size_t línea, std::size_t lugar = 0) {
    rechazo.lugar += lugar;
    return {std::move(rechazo), línea};
}

// The refusal of how many lines or fields there are.
RechazoDatos DeLaHoja(Motivo motivo) {
    return {Rechazo{.motivo = motivo}, std::nullopt};
}

Motivo UsoDe(ClaseForma clase) {
    return clase == ClaseForma::Función         ? Motivo::UsoFunción
           : clase == ClaseForma::FunciónYPunto ? Motivo::UsoFunciónYPunto
                                                : Motivo::UsoFunciónYExtremos;
}

// Field by field, so that the first thing wrong is the one that is told.
std::optional<RechazoDatos> LeeUnaFunción(Contexto& contexto, ClaseForma clase,
                                          std::span<const std::string> líneas,
                                          DatosFunción& datos) {
    constexpr std::size_t Máximo = 4; // tells that there are too many for every form
    if (líneas.size() != 1)
        return DeLaHoja(UsoDe(clase));
    const std::string_view línea = líneas.front();
    const std::vector<std::string_view> campos = CortaCampos(línea, Máximo);
    datos.función = campos[0];
    if (auto rechazo = CompruebaSintaxis(contexto, datos.función))
        return EnLínea(*std::move(rechazo), 0);
    const std::size_t esperados = clase == ClaseForma::Función         ? 1
                                  : clase == ClaseForma::FunciónYPunto ? 2
                                                                       : 3;
    const std::array<double*, 2> números = {&datos.primero, &datos.segundo};
    for (std::size_t i = 1; i < esperados && i < campos.size(); ++i) {
        if (!EsDoblePrecisión(campos[i]))
            return EnLínea({.motivo = Motivo::NoEsDoblePrecisión}, 0, LugarDe(campos[i], línea));
        *números[i - 1] = Val(campos[i]);
    }
    // What follows the second end is nobody's: there no further comma is looked for.
    const bool sobran = campos.size() > esperados && clase != ClaseForma::FunciónYExtremos;
    if (campos.size() < esperados || sobran)
        return DeLaHoja(UsoDe(clase));
    if (clase == ClaseForma::FunciónYExtremos && !(datos.primero < datos.segundo))
        return EnLínea({.motivo = Motivo::ExtremosDesordenados}, 0, LugarDe(campos[1], línea));
    return std::nullopt;
}

std::optional<RechazoDatos> LeeNúmeros(Contexto& contexto, const Forma& forma,
                                       std::span<const std::string> líneas, DatosNúmeros& números) {
    const Rango& rango = RangoDe(forma);
    for (std::size_t i = 0; i < líneas.size(); ++i) {
        for (const std::string_view campo : CortaCampos(líneas[i])) {
            contexto.Vigila();
            if (!EsNúmeroEnRango(campo, rango.mínimo, rango.máximo))
                return EnLínea({.motivo = Motivo::NoEsNúmeroDelRango,
                                .argumentos = {std::string(rango.texto)}},
                               i, LugarDe(campo, líneas[i]));
            números.push_back(Val(campo));
        }
    }
    if (!números.empty() && (forma.cantidad == 0 || números.size() == forma.cantidad))
        return std::nullopt;
    if (forma.cantidad == 1)
        return RechazoDatos{
            {.motivo = Motivo::NoEsUnNúmero, .argumentos = {std::string(rango.texto)}}, {}};
    // The count brings a leading blank of its own; without a count two blanks stay.
    const std::string cuenta = forma.cantidad == 0 ? "" : ' ' + std::to_string(forma.cantidad);
    return RechazoDatos{
        {.motivo = Motivo::NoSonNúmeros, .argumentos = {cuenta, std::string(rango.texto)}}, {}};
}

std::optional<RechazoDatos> LeePuntos(Contexto& contexto, const Forma& forma,
                                      std::span<const std::string> líneas, DatosNúmeros& números) {
    if (auto rechazo = LeeNúmeros(contexto, forma, líneas, números))
        return rechazo;
    if (números.size() % 2 != 0)
        return DeLaHoja(Motivo::UsoParesLagrange);
    if (números.size() <= 2)
        return DeLaHoja(Motivo::FaltanParesLagrange);
    return std::nullopt;
}

std::optional<RechazoDatos> LeeMultivariable(Contexto& contexto,
                                             std::span<const std::string> líneas,
                                             DatosMultivariable& datos) {
    if (líneas.size() != 1)
        return DeLaHoja(líneas.empty() ? Motivo::UsoMultivariable : Motivo::SobranLíneas);
    datos.función = SustituyeVariables(líneas.front());
    const GuardaPrefijo prefijo(contexto, std::string(PrefijoSln));
    if (auto rechazo = CompruebaSintaxis(contexto, datos.función)) {
        rechazo->lugar = 0; // counted in a text with longer letters
        return EnLínea(*std::move(rechazo), 0);
    }
    return std::nullopt;
}

std::optional<RechazoDatos> LeeFunciones(Contexto& contexto, std::span<const std::string> líneas,
                                         DatosFunciones& datos) {
    if (líneas.empty())
        return DeLaHoja(Motivo::UsoRacionales);
    for (std::size_t i = 0; i < líneas.size(); ++i) {
        for (const std::string_view campo : CortaCampos(líneas[i])) {
            contexto.Vigila();
            std::string función(campo);
            if (auto rechazo = CompruebaSintaxis(contexto, función))
                return EnLínea(*std::move(rechazo), i, LugarDe(campo, líneas[i]));
            datos.funciones.push_back({std::move(función), i});
        }
    }
    return std::nullopt;
}

std::optional<Rechazo> LeeEcuación(Contexto& contexto, std::string_view línea,
                                   DatosEcuaciones::Una& ecuación) {
    const std::string texto = Sustituye1(SinBlancos(línea));
    if (auto rechazo = CompruebaIgualdad(texto))
        return rechazo;
    const std::size_t igual = texto.find('=');
    ecuación.izquierda = texto.substr(0, igual);
    ecuación.derecha = texto.substr(igual + 1);
    if (auto rechazo = CompruebaSintaxis(contexto, ecuación.izquierda))
        return rechazo;
    return CompruebaSintaxis(contexto, ecuación.derecha);
}

std::optional<RechazoDatos> LeeEcuaciones(Contexto& contexto, std::span<const std::string> líneas,
                                          DatosEcuaciones& datos) {
    if (líneas.empty())
        return DeLaHoja(Motivo::UsoSistema);
    const GuardaPrefijo prefijo(contexto, std::string(PrefijoSln));
    for (std::size_t i = 0; i < líneas.size(); ++i) {
        contexto.Vigila();
        DatosEcuaciones::Una ecuación;
        if (auto rechazo = LeeEcuación(contexto, líneas[i], ecuación)) {
            rechazo->lugar = 0; // counted in a text that has been rewritten
            return EnLínea(*std::move(rechazo), i);
        }
        datos.ecuaciones.push_back(std::move(ecuación));
    }
    return std::nullopt;
}

// Whether a letter stands in the text that neither is X nor belongs to a function's name.
bool HayLetras(std::string_view texto) {
    return SustituyeVariables(texto).find(PrefijoSln) != std::string::npos;
}

std::optional<Forma> ReconoceUnaLínea(std::string_view línea) {
    const std::vector<std::string_view> campos = CortaCampos(línea);
    if (campos.size() == 1)
        return HayLetras(línea) ? FormaMultivariable : FormaFunción;
    if (!std::ranges::all_of(campos.begin() + 1, campos.end(), EsDoblePrecisión))
        return FormaRacionales;
    return campos.size() == 2 ? FormaFunciónYPunto : FormaFunciónYExtremos;
}

} // namespace

Lectura LeeDatos(Contexto& contexto, const Forma& forma, std::span<const std::string> líneas) {
    const auto lee = [&](auto datos, auto lector) {
        std::optional<RechazoDatos> rechazo = lector(datos);
        return Lectura{std::move(datos), std::move(rechazo)};
    };
    switch (forma.clase) {
    case ClaseForma::Ecuaciones:
        return lee(DatosEcuaciones{},
                   [&](auto& datos) { return LeeEcuaciones(contexto, líneas, datos); });
    case ClaseForma::Números:
        return lee(DatosNúmeros{},
                   [&](auto& datos) { return LeeNúmeros(contexto, forma, líneas, datos); });
    case ClaseForma::Puntos:
        return lee(DatosNúmeros{},
                   [&](auto& datos) { return LeePuntos(contexto, forma, líneas, datos); });
    case ClaseForma::FuncionesRacionales:
        return lee(DatosFunciones{},
                   [&](auto& datos) { return LeeFunciones(contexto, líneas, datos); });
    case ClaseForma::Multivariable:
        return lee(DatosMultivariable{},
                   [&](auto& datos) { return LeeMultivariable(contexto, líneas, datos); });
    case ClaseForma::Función:
    case ClaseForma::FunciónYPunto:
    case ClaseForma::FunciónYExtremos:
        break;
    }
    return lee(DatosFunción{},
               [&](auto& datos) { return LeeUnaFunción(contexto, forma.clase, líneas, datos); });
}

std::optional<Forma> ReconoceForma(std::span<const std::string> líneas) {
    const auto sonNúmeros = [](std::string_view línea) {
        return std::ranges::all_of(CortaCampos(línea), EsDoblePrecisión);
    };
    if (líneas.empty())
        return std::nullopt;
    if (std::ranges::all_of(líneas, sonNúmeros))
        return FormaEnteros;
    if (std::ranges::all_of(líneas, [](const std::string& l) { return l.find('=') != l.npos; }))
        return FormaEcuaciones;
    return líneas.size() == 1 ? ReconoceUnaLínea(líneas.front()) : std::nullopt;
}

bool Acepta(Contexto& contexto, Hoja& hoja, const std::optional<RechazoDatos>& rechazo) {
    if (!rechazo)
        return true;
    MuestraRechazo(contexto, rechazo->rechazo);
    if (rechazo->línea)
        SeleccionaLínea(hoja, hoja.líneas[*rechazo->línea]);
    return false;
}

} // namespace quiralto
