// Systems of linear equations: elimination, compatibility and solutions.
#pragma once

#include "engine/base/contexto.h"
#include "engine/sistemas/ecuacion_lineal.h"
#include "engine/sistemas/matriz.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quiralto {

// The elimination is exact while all coefficients are exact, a Double such as SQR(2) to its last
// bit, and its numbers stay within MatrizExacta::MáximosBits; otherwise the whole of it runs on
// Doubles. In either an entry that rounds to 0 at DígitosRedondeo is 0 where a pivot or a
// contradiction is looked for.
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

    // Once eliminated: the row that leads with the unknown (both from 0); none where it is free.
    std::optional<std::size_t> EsLiderSln(std::size_t columna) const { return líderes_[columna]; }

    std::size_t Incógnitas() const { return líderes_.size(); }

    // Once eliminated: an entry of a row over that of the unknown with which it leads; column
    // Incógnitas() is the constant. Where Doubles have rounded, an entry that rounds to 0 gives 0.
    Coeficiente Cociente(std::size_t fila, std::size_t columna, std::size_t líder) const {
        return matriz_->Cociente(fila, columna, líder);
    }

private:
    bool EliminaCon(std::unique_ptr<MatrizSln> matriz);
    std::optional<std::size_t> CoeficienteSln(std::size_t columna);
    bool TrasformarSln(std::size_t columna, std::size_t pivote) {
        return matriz_->Trasforma(columna, pivote);
    }
    void BuscaLíderes();

    Contexto& contexto_;
    std::span<const EcuaciónLineal> ecuaciones_; // of the constructor's caller
    std::unique_ptr<MatrizSln> matriz_;
    std::vector<bool> usadas_;
    std::vector<std::optional<std::size_t>> líderes_;
};

} // namespace quiralto
