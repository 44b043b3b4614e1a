// Splitting the text of an expansion: into terms, a term into coefficient and factors, a factor
// into base and exponent. Coefficients are read as the engine writes them.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

// The terms in order, all but the first with their sign. A sign behind "*", "/", "^" or an
// exponent letter separates nothing.
std::vector<std::string> SeparaTérminos(std::string_view texto);

// The factors of a term in order; a leading "-" is its number's, or the factor "-1".
std::vector<std::string> SeparaFactores(std::string_view término);

struct TérminoSeparado {
    std::string coeficiente; // "1" or "-1" where none is written
    std::string literal;     // "" for a number alone
};

// The literal part begins where a rewritten coefficient and its "*" end. A number that is raised
// or divided is part of the literal part.
TérminoSeparado SeparaCoeficiente(std::string_view término);

struct FactorSeparado {
    std::string base;
    std::string exponente; // "1" where none is written
};

// A sum of several terms or a product of several factors is its own base.
FactorSeparado SeparaPotencia(std::string_view factor);

} // namespace quiralto
