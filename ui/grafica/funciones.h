// The functions of the graph as they stand in their boxes: text, state, program, and whether each
// is switched on. What is typed takes effect as it becomes a formula; nothing is shown unless a
// text is settled.
#pragma once

#include "engine/base/rechazo.h"
#include "engine/lenguaje/programa.h"
#include "ui/grafica/vista.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

inline constexpr int CantidadFunciones = 4;

// One of each function.
template <typename T> using PorFunción = std::array<T, CantidadFunciones>;

enum class EstadoTexto {
    Vacío,
    MediaEscrita, // no formula, but typing on could make it one
    Rechazado,    // no formula, whatever follows
    Fórmula,
};

struct FunciónGráfica {
    std::string texto;     // as it stands in the box
    std::string corregido; // of a formula: as Sintaxis writes it
    EstadoTexto estado = EstadoTexto::Vacío;
    std::optional<Rechazo> rechazo;   // why it is no formula; none where it is one or empty
    std::optional<Programa> programa; // of the last formula
    std::uint64_t versión = 0;        // another one for every program
    bool encendida = false;           // its check box
    bool apagadaAquí = false;         // the user has unticked it over this very text
    bool sinAsentar = false;          // the text has changed since it was last settled

    // Whether it is drawn, has a value and stands in the legend.
    bool EstáActiva() const { return encendida && estado == EstadoTexto::Fórmula; }
    // Whether its last curve stays, faded.
    bool EstáAtenuada() const {
        return encendida && estado == EstadoTexto::MediaEscrita && programa;
    }
};

class FuncionesGráficas {
public:
    // The context outlives the functions.
    explicit FuncionesGráficas(Contexto& contexto) : contexto_(contexto) {}

    const FunciónGráfica& operator[](int índice) const {
        return funciones_.at(static_cast<std::size_t>(índice));
    }

    // The text of the box is now this one; nothing is shown.
    void Escribe(int índice, std::string_view texto);

    // Enter, or the box is left: the text becomes what Sintaxis makes of it. False for a text that
    // is no formula, an empty one among them; then its one message has been shown and the function
    // is switched off.
    bool Asienta(int índice);

    // No text, and switched off.
    void Quita(int índice);

    void Enciende(int índice);
    void Apaga(int índice); // as the user's wish over this text

    // The value of an active function at x; none where it is not active or has no value there.
    std::optional<double> DevValor(int índice, double x);

    // The first active function with a value at x, and that value there.
    std::optional<Lugar> DevPrimeraFunciónDefinida(double x);

private:
    FunciónGráfica& Función(int índice) { return funciones_.at(static_cast<std::size_t>(índice)); }
    void Lee(FunciónGráfica& función);

    Contexto& contexto_;
    PorFunción<FunciónGráfica> funciones_;
    std::uint64_t versión_ = 0;
};

// Whether some text typed behind this one would make it a formula: the rest of a function's name,
// an operand, closing parentheses. False for a formula's own text only by chance; it is asked of
// texts that are none.
bool EsMediaEscrita(const Contexto& contexto, std::string_view texto);

} // namespace quiralto
