// The root finder behind every command that looks for zeros.
#pragma once

#include "engine/base/contexto.h"
#include "engine/lenguaje/programa.h"

#include <optional>
#include <string>

namespace quiralto {

struct Solución {
    double raíz;       // the largest Double reached before the change of sign
    std::string texto; // rounded to DígitosRedondeo, with a leading blank if not negative
};

// The first root of the program at or after a, up to the extended end b + h: it walks in steps of
// h > 0 and halves the step at a change of sign until the step no longer changes the Double. Points
// without a value are stepped over. A pole where the sign changes counts as a root; a zero without
// a change of sign is found only where a sample falls on it exactly. None: no root.
//
// Leaves ErrorCódigo clear. Asks the watcher. Fault: run-time error 6 where b + h overflows.
std::optional<Solución> BuscaSolución(Contexto& contexto, Programa& programa, double a, double b,
                                      double h);

// Where the search for the next root starts: the rounded root plus h; where that does not lie
// beyond the root (few rounding digits, a tiny interval), the root itself plus h. None: the step
// is too small to leave the root.
std::optional<double> DevSiguienteComienzo(const Solución& solución, double h);

} // namespace quiralto
