// Systems of linear equations: elimination, compatibility and solutions.
#pragma once

#include "engine/base/contexto.h"
#include "engine/sistemas/ecuacion_lineal.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quiralto {

// Coefficients and, in the last column, the constant of each equation. An entry that rounds to 0
// at DígitosRedondeo is 0.
class SistemaLineal {
public:
    // As many unknowns as the highest index that an equation has.
    SistemaLineal(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones);

    // Gauss-Jordan over the unknowns in ascending order, without scaling; the pivot is the first
    // row not yet used. The watcher is asked. Fault: run-time error 6 beyond the Double range.
    void Elimina();

    // Once eliminated: false where a row without unknowns has a constant that is not 0, and the
    // first such row (from 1).
    bool SistemaCompatibleSln(std::size_t& fila) const;

    // Once eliminated: for every unknown (from index 1) the row that leads with it, or none where
    // it is free.
    std::vector<std::optional<std::size_t>> DevLíderes() const;

    std::size_t Incógnitas() const { return incógnitas_; }

    // Entries of a row from 0: columns 0 to Incógnitas() - 1, and the constant. An entry that
    // rounds to 0 is given as 0.
    double Elemento(std::size_t fila, std::size_t columna) const;
    double Independiente(std::size_t fila) const { return Elemento(fila, incógnitas_); }

private:
    double* Fila(std::size_t fila) { return elementos_.data() + fila * ancho_; }
    std::optional<std::size_t> CoeficienteSln(std::size_t columna);
    void TrasformarSln(std::size_t columna, std::size_t pivote);

    Contexto& contexto_;
    std::size_t filas_;
    std::size_t incógnitas_ = 0;
    std::size_t ancho_ = 0; // of a row
    std::vector<double> elementos_;
    std::vector<bool> usadas_;
};

} // namespace quiralto
