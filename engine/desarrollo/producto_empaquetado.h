// Products of polynomials whose exponents fit together into one machine word, so that multiplying
// two monomials is one addition (Monagan and Pearce, "Polynomial Division Using Dynamic Arrays,
// Heaps, and Packed Exponent Vectors", 2007).
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <optional>

namespace quiralto {

// a*b, each kind in the place of its first term. None for sums with quotients, with exponents that
// are negative or not whole, or with too many symbols. A product that will have more than
// MáximoTérminos is not worked through.
// Faults: run-time error 6 for a coefficient beyond the Double range, 14 past MáximoTérminos.
std::optional<Términos> MultiplicaEmpaquetados(const TablaSímbolos& tabla, const Términos& a,
                                               const Términos& b);

} // namespace quiralto
