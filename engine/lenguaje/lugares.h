// Where the operators, groups and X of an expression text stand, found in one pass, so that
// splitting the text at its operators never searches it again.
#pragma once

#include "engine/lenguaje/operaciones.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quiralto {

class Lugares {
public:
    // Faults: run-time error 5 for parentheses that do not match; 14 for more than two million
    // operators and groups.
    explicit Lugares(std::string_view texto);

    // Whether there is an X in a range of the text (the one of "EXP" counts), or the "u" that
    // stands for an argument with an X in the text of a rewritten function.
    bool ContieneX(std::size_t principio, std::size_t fin) const;

    // The group whose contents begin at `principio`; group 0 is the whole text.
    // Fault: run-time error 5 where none does.
    std::size_t GrupoEn(std::size_t principio) const;

    // The first or last place of an operator in a range of a group, outside its inner groups, or
    // the range's end. A sign of an exponent or behind "*", "/" or "^" is none.
    std::size_t Primero(std::size_t grupo, Operación operador, std::size_t principio,
                        std::size_t fin) const;
    std::size_t Último(std::size_t grupo, Operación operador, std::size_t principio,
                       std::size_t fin) const;

private:
    using Lista = std::vector<std::uint32_t>;
    struct Grupo {
        std::size_t principio;                             // of its contents
        std::array<Lista, OrdenOperadores.size()> lugares; // by operator, ascending
    };

    const Lista& DevLista(std::size_t grupo, Operación operador) const;

    Lista equis_;
    std::vector<Grupo> grupos_; // by ascending principio
};

} // namespace quiralto
