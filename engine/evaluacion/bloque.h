// Running a plan over rows of values.
// Tested by evalua_test.cpp.
#pragma once

#include "engine/evaluacion/nucleos.h"
#include "engine/evaluacion/plan.h"

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <vector>

namespace quiralto {

// Enough to hide the cost of going from step to step, few enough for some rows to stay in the
// cache.
inline constexpr std::size_t TamañoFila = 256;

class EjecutorDeBloques {
public:
    explicit EjecutorDeBloques(const Plan& plan);

    // Runs the plan over 1 to TamañoFila values. Afterwards HayFallo(i) tells, where HayFallos(),
    // whether value i has met a fault, and valores[i] then means nothing.
    void Ejecuta(std::span<const double> equis, std::span<double> valores);

    bool HayFallos() const { return hayFallos_; }
    bool HayFallo(std::size_t i) const { return fallos_[i]; }

private:
    // A step with its rows; which of these are X and the result is told at each run.
    struct PasoListo {
        Núcleo núcleo;
        FilasDePaso filas;
        bool vigilado;
    };
    // Rows begin where a cache line does, so that no load reaches over two.
    struct Línea {
        alignas(64) std::array<double, 8> valores;
    };

    double* DevLugar(std::size_t lugar);
    Fuente DevFuente(std::size_t operando);
    void PonEquis(double* equis);
    void AnotaFallos(const double* fila);

    std::size_t cantidadConstantes_;
    std::unique_ptr<Línea[]> propias_; // the row of X, the constants, and the rows
    std::vector<PasoListo> pasos_;
    std::vector<Fuente*> equis_; // whatever in pasos_ reads X
    std::array<bool, TamañoFila> fallos_{};
    bool hayFallos_ = false;
    std::size_t cantidad_ = 0; // of values in the rows of the run
};

} // namespace quiralto
