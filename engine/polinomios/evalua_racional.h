// A formula as one rational function, by running its program over rational functions of X.
// Tested by racional_test.cpp.
#pragma once

#include "engine/base/rechazo.h"
#include "engine/lenguaje/programa.h"
#include "engine/polinomios/racional.h"

#include <optional>
#include <variant>

namespace quiralto {

// Functions apply to constants alone; their argument and every exponent are taken as they would be
// written. Faults: run-time errors 5, 6 and 11 as in a numeric evaluation, 129 for a formula that
// is not a rational function of X; 14 past MáximoTérminosPolinomio.
Racional CalculaRacional(Contexto& contexto, const Programa& programa);

// The same for a user's formula: the errors 5, 6, 11 and 129 are refusals.
std::variant<Racional, Rechazo> CompruebaRacional(Contexto& contexto, const Programa& programa);

// The same, and a refusal shown. ErrorCódigo is its number, or 0.
std::optional<Racional> EvalúaRacional(Contexto& contexto, const Programa& programa);

} // namespace quiralto
