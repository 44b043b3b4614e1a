// The polynomial through given points.
#pragma once

#include "engine/polinomios/polinomio.h"

#include <span>

namespace quiralto {

inline constexpr std::size_t MáximosPuntosInterpolación = 1024;

// The polynomial of the least degree through the points x1, y1, x2, y2, ... (finite, at least one
// point), each number taken as the general form writes it. Newton's divided differences: exact
// while their common denominator stays within MáximoBitsExactos, otherwise in fixed point, with as
// many bits as leave every coefficient right beyond its fifteenth decimal place and, where it is
// above 1E-15, to the last bit or two of a Double. The watcher is asked. Faults: run-time error 11
// for two points with the same x, 6 for more than MáximosPuntosInterpolación or a coefficient
// beyond the Double range.
Polinomio DevPolinomioPorPuntos(Contexto& contexto, std::span<const double> puntos);

} // namespace quiralto
