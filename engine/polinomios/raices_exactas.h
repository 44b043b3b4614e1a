// Roots of polynomials with whole coefficients, made exact.
#pragma once

#include "engine/base/contexto.h"
#include "engine/polinomios/denso.h"

#include <optional>
#include <vector>

namespace quiralto {

// Above this degree looking closer at a root would take longer than to find it.
inline constexpr std::size_t MáximoGradoExacto = 1000;

// numerador / denominador, in lowest terms with a positive denominator.
struct RaízExacta {
    Entero numerador;
    Entero denominador = 1;
    bool esRacional = false; // otherwise less than 2^-112 from the root

    double ADouble() const { return DevCociente(numerador, denominador); }
    bool operator==(const RaízExacta&) const = default;
};

// The root of p next to x: the signs of p are taken exactly around x, farther and farther away but
// no farther than `lejos`, and the change is closed in upon by halving. None where no change of
// sign is found. p has no root more than once, and a degree from 1 to MáximoGradoExacto.
std::optional<RaízExacta> DevRaízExacta(Contexto& contexto, const Denso& p, double x, double lejos);

// p divided by (X - root) for each root, of which none is named twice: exactly for those that are
// rational; for others what is left over is dropped. p has a degree of at least as many as there
// are roots. Fault: run-time error 14 where one is not rational and the degree is past
// MáximoTérminosPolinomio.
Polinomio DivideEntreRaíces(Contexto& contexto, const PolinomioExacto& p,
                            const std::vector<RaízExacta>& raíces);

} // namespace quiralto
