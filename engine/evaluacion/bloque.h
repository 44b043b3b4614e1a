// Running a plan over rows of values.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/evaluacion/plan.h"

#include <array>
#include <memory>
#include <span>
#include <vector>

namespace quiralto {

// Enough to hide the cost of going from step to step, few enough for some rows to stay in the
// cache.
inline constexpr std::size_t TamañoFila = 256;

// Where the rows of a run stand: the values of X and the results may be the caller's own arrays.
using Filas = std::vector<double*>;

class EjecutorDeBloques {
public:
    // The plan must outlive it.
    explicit EjecutorDeBloques(const Plan& plan);

    // Runs the plan over 1 to TamañoFila values. Afterwards HayFallo(i) tells, where HayFallos(),
    // whether value i has met a fault, and valores[i] then means nothing.
    void Ejecuta(std::span<const double> equis, std::span<double> valores);

    bool HayFallos() const { return hayFallos_; }
    bool HayFallo(std::size_t i) const { return fallos_[i]; }

private:
    // The row loops for the instruction set of this processor.
    struct Procesador {
        void (*EjecutaPaso)(std::size_t cantidad, const Filas&, const Paso&);
        bool (*TodosFinitos)(std::size_t cantidad, const double*);
    };
    static Procesador DevProcesador();

    void Comprueba(const Paso& paso);
    void AnotaFallos(const double* fila);

    const Plan& plan_;
    std::unique_ptr<double[]> propias_; // one row behind the other
    Filas filas_;
    std::array<bool, TamañoFila> fallos_{};
    bool hayFallos_ = false;
    std::size_t cantidad_ = 0; // of values in the rows of the run, in whole lanes
    Procesador procesador_ = DevProcesador();
};

} // namespace quiralto
