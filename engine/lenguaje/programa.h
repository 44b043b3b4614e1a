// A compiled formula: a flat list of three-address instructions over an array of Double registers.
// It is a value; whoever needs two at a time holds two. compila.h makes one, evalua.h runs it.
#pragma once

#include "engine/lenguaje/operaciones.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quiralto {

// R(resultado) := R(izquierdo) código R(derecho); a function takes R(derecho) alone. Codes outside
// the table do nothing.
struct Instrucción {
    std::int16_t izquierdo;
    Operación código;
    std::int16_t derecho;
    std::int16_t resultado;
};

// Registers and instructions are numbered with 16 bits.
inline constexpr std::size_t MáximoRegistro = 32767;
inline constexpr std::size_t MáximoInstrucciones = 32767;

struct Programa {
    // Register 0 is X. Every other one is a constant, set once by the compiler, or the result of
    // exactly one instruction, and stands as an operand of at most one later instruction.
    std::vector<double> registros;
    std::vector<Instrucción> instrucciones;

    // The register that holds the value of the formula after a run.
    std::size_t Resultado() const {
        return static_cast<std::size_t>(instrucciones.back().resultado);
    }
};

// The program as text, a line an instruction: "Z3 := Z1 + Z2", "Z5 := SIN Z4"; constants stand as
// numbers, register 0 as X. An instruction outside the table, which does nothing, is left out.
std::string ListaPrograma(const Programa& programa);

} // namespace quiralto
