// The matrix of a linear system while it is eliminated: of Doubles, or exact. Rows and columns
// count from 0; the last column holds the constants.
// Tested by sistema_lineal_test.cpp.
#pragma once

#include "engine/base/contexto.h"
#include "engine/sistemas/ecuacion_lineal.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quiralto {

class MatrizSln {
public:
    virtual ~MatrizSln() = default;
    MatrizSln(const MatrizSln&) = delete;
    MatrizSln& operator=(const MatrizSln&) = delete;

    std::size_t Filas() const { return filas_; }
    std::size_t Incógnitas() const { return ancho_ - 1; }

    // Whether the entry rounds to 0 at DígitosRedondeo.
    virtual bool EsNulo(std::size_t fila, std::size_t columna) const = 0;

    // Adds multiples of the pivot's row to all others, which makes the column 0 in them. False: a
    // number has grown past what the matrix holds, which is then of no use. The watcher is asked.
    virtual bool Trasforma(std::size_t columna, std::size_t pivote) = 0;

    // Entry over entry of one row; the divisor is not 0.
    virtual Coeficiente Cociente(std::size_t fila, std::size_t columna,
                                 std::size_t divisor) const = 0;

protected:
    MatrizSln(Contexto& contexto, std::size_t filas, std::size_t incógnitas)
        : contexto_(contexto), filas_(filas), ancho_(incógnitas + 1) {}

    std::size_t Lugar(std::size_t fila, std::size_t columna) const {
        return fila * ancho_ + columna;
    }

    Contexto& contexto_; // NOLINT: what a matrix is made of
    std::size_t filas_;  // NOLINT
    std::size_t ancho_;  // NOLINT: of a row
};

// How many unknowns the equations have: the highest index.
std::size_t DevIncógnitas(std::span<const EcuaciónLineal> ecuaciones);

} // namespace quiralto
