// The two sides of the one fraction that a complete expansion ends in, both multiplied out.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

#include <string>

namespace quiralto {

struct Lados {
    Términos numerador;
    Términos denominador;

    bool operator==(const Lados&) const = default;
};

// The sides of f/divisor.
Lados DevLados(TablaSímbolos& tabla, FracciónAbierta f, const Coeficiente& divisor);

// The fraction that they are, reduced.
FracciónAbierta DevFracción(TablaSímbolos& tabla, const Lados& lados);

// A sum as one term, a quotient of both sides multiplied out; or itself where it holds none.
Términos DevUnCociente(TablaSímbolos& tabla, const Términos& suma);

// Where a text will stand: whether its numbers are rounded.
enum class Sitio : std::uint8_t { Fuera, Dentro };

// The text: a fraction has whole numbers on both sides, in lowest terms. Without a denominator
// decimals are rounded (outside), or stand over one number (inside) where they would be cut.
std::string EscribeLados(TablaSímbolos& tabla, Lados lados, Sitio sitio);

} // namespace quiralto
