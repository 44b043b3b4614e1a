// A refusal as a value: which message, its arguments and the place in the text. Who checks returns
// it and shows nothing; who speaks to the user shows it, once. So the same check can be asked
// quietly, while somebody types.
//
// A check has two forms. The asking one is named Comprueba… (or returns std::variant<T, Rechazo>
// where it reads a T) and shows nothing. The showing face passes what it returns to Acepta:
//
//   std::optional<Rechazo> CompruebaAlgo(std::string_view texto);
//   bool Algo(Contexto& contexto, std::string_view texto) {
//       return Acepta(contexto, CompruebaAlgo(texto));
//   }
//
// A new message is one enumerator here and its row in rechazo.cpp; a row that lacks does not
// compile. Where a text names something, "{0}" and "{1}" in its row stand for the arguments.
#pragma once

#include "engine/base/contexto.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace quiralto {

enum class Motivo {
    // refused without a word
    Callado,
    // the expression language
    SinFórmula,
    CarácterExtraño, // {0} the character
    ParéntesisDesiguales,
    FinalNoPermitido,    // {0} the last character
    ComienzoNoPermitido, // {0} the first character
    FaltaDeLógica,
    NúmeroFueraDeRango,
    NúmeroIlegible,
    FunciónDemasiadoLarga,
    // data typed into boxes
    NoEsEnteroLargo,
    EsNegativo,
    EsCero,
    NoEsMayor,
    NoEsMenor,
    DatoConX,
    ArgumentoFueraDeRango,
    // rational functions
    ArgumentoDeFunciónInválido,
    OperaciónDesbordada,
    OperaciónEntreCero,
    NoEsRacional,
    // linear equations
    NoEsEcuaciónLineal,
    ÍndiceFueraDeRango,
    SinIgualdad,
    IgualEnUnExtremo,
    VariasIgualdades,
    // the lines of the worksheet's commands
    UsoFunción,
    UsoFunciónYPunto,
    UsoFunciónYExtremos,
    NoEsDoblePrecisión,
    ExtremosDesordenados,
    NoEsNúmeroDelRango, // {0} the range
    NoEsUnNúmero,       // {0} the range
    NoSonNúmeros,       // {0} how many, with a leading blank, or nothing; {1} the range
    UsoMultivariable,
    SobranLíneas,
    UsoRacionales,
    UsoParesLagrange,
    FaltanParesLagrange,
    UsoSistema,
    PrimosDemasiadoSeparados,
    Cantidad // how many there are; no refusal
};

struct Rechazo {
    Motivo motivo;
    std::array<std::string, 2> argumentos{};
    // Where in the text that was handed over, in bytes from 0, it is wrong; the whole text is where
    // no one place is.
    std::size_t lugar = 0;

    bool operator==(const Rechazo&) const = default;
};

// What is said to the user (several lines end in CR LF); empty for Callado.
std::string TextoRechazo(const Rechazo& rechazo);

// Shows the refusal with its icon, and sets contexto.ErrorCódigo where its row has a fault.
void MuestraRechazo(Contexto& contexto, const Rechazo& rechazo);

// True where nothing was refused; otherwise shows the refusal.
inline bool Acepta(Contexto& contexto, const std::optional<Rechazo>& rechazo) {
    if (rechazo)
        MuestraRechazo(contexto, *rechazo);
    return !rechazo;
}

// What was read; none where it was refused, which is then shown.
template <typename T> std::optional<T> Acepta(Contexto& contexto, std::variant<T, Rechazo> leído) {
    if (T* const valor = std::get_if<T>(&leído))
        return std::move(*valor);
    MuestraRechazo(contexto, std::get<Rechazo>(leído));
    return std::nullopt;
}

} // namespace quiralto
