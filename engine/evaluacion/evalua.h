// Running a compiled formula: for one value of X, or for many at once.
//
// Faults: the first instruction whose result is not a finite number ends the run with
//   11  a division by zero (0/0 too), 0 raised to a negative exponent;
//    5  any other result that is no real number (SQR or LOG out of their domain, a negative base
//       under a fractional exponent, ARCSIN outside [-1, 1]);
//    6  a result beyond the Double range.
#pragma once

#include "engine/base/contexto.h"
#include "engine/lenguaje/programa.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace quiralto {

// Runs the program at x and returns the register of the last instruction, its value. A fault sets
// contexto.ErrorCódigo and ends the run: the registers keep what was computed, that of the faulting
// instruction and those behind it what they had (0 in a new program). A run without a fault leaves
// ErrorCódigo as it was.
double EvalúaPrograma(Contexto& contexto, Programa& programa, double x);

// The value at x, or none where there is a fault. Leaves ErrorCódigo clear.
std::optional<double> DevValor(Contexto& contexto, Programa& programa, double x);

// What a block run tells of a fault: its code, for which the value is run again by itself, or only
// that there is one, by some code that is not 0.
enum class Causa { Código, Ninguna };

// Runs a program over many values of X at once; made once for many runs.
class EvaluadorDeBloques {
public:
    explicit EvaluadorDeBloques(const Programa& programa);
    ~EvaluadorDeBloques();
    EvaluadorDeBloques(const EvaluadorDeBloques&) = delete;
    EvaluadorDeBloques& operator=(const EvaluadorDeBloques&) = delete;

    // For every value of `equis`: valores[i] and fallos[i] are what EvalúaPrograma would return and
    // set at equis[i], to the bit (fallos[i] is 0 without a fault, and valores[i] means nothing
    // with one). The three spans have one length. contexto.ErrorCódigo is left alone; the watcher
    // is asked between blocks.
    void Evalúa(Contexto& contexto, std::span<const double> equis, std::span<double> valores,
                std::span<std::int16_t> fallos, Causa causa = Causa::Código);

    // The value at x, or not a number where there is a fault: what DevValor gives of the program,
    // and in less time where it says a thing twice. Leaves ErrorCódigo clear.
    double DevValor(Contexto& contexto, double x);

private:
    // One to TamañoFila values.
    void EvalúaTramo(Contexto& contexto, std::span<const double> equis, std::span<double> valores,
                     std::span<std::int16_t> fallos, Causa causa);

    struct Partes;
    std::unique_ptr<Partes> partes_;
};

// The same for a single run.
void EvalúaBloque(Contexto& contexto, const Programa& programa, std::span<const double> equis,
                  std::span<double> valores, std::span<std::int16_t> fallos,
                  Causa causa = Causa::Código);

} // namespace quiralto
