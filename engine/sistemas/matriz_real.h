// The matrix of a linear system in Doubles.
// Tested by sistema_lineal_test.cpp.
#pragma once

#include "engine/sistemas/matriz.h"

#include <array>
#include <bitset>

namespace quiralto {

class MatrizReal : public MatrizSln {
public:
    MatrizReal(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones);

    bool EsNulo(std::size_t fila, std::size_t columna) const override;
    bool Trasforma(std::size_t columna, std::size_t pivote) override;
    Coeficiente Cociente(std::size_t fila, std::size_t columna, std::size_t divisor) const override;

    // Whether no entry has left the Double range.
    bool EsFinita() const;

    // Once eliminated: how many bits the numbers of an exact elimination of the same equations have
    // about. A row's numbers are quotients of determinants of the rows that were added to it, and a
    // determinant is the product of their pivots.
    double DevBitsExactos() const;

private:
    using Pivotes = std::bitset<MáximoÍndiceSln>; // in the order in which they were taken

    std::vector<double> elementos_;
    std::vector<double> escala_;     // of each row: what makes its numbers whole, as a power of two
    std::vector<Pivotes> mezcla_;    // of each row: the pivots that are part of it
    std::vector<double> bitsPivote_; // of each pivot
};

} // namespace quiralto
