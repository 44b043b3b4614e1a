// Rational functions of X: a quotient of two polynomials, its arithmetic and its lowest terms.
//
// The text is that of a polynomial where the denominator is 1, otherwise "(" numerator ")/("
// denominator ")".
#pragma once

#include "engine/base/contexto.h"
#include "engine/lenguaje/programa.h"
#include "engine/polinomios/polinomio.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quiralto {

struct Racional {
    Polinomio numerador;
    Polinomio denominador = DevConstante(1); // never 0
};

Racional LeeRacional(const Contexto& contexto, std::string_view texto);
std::string SeparaRacional(const Contexto& contexto, const Racional& r);

// None of these reduces to lowest terms, but for a quotient without a remainder, which is the
// quotient polynomial alone. A negative exponent inverts the base first; 0 gives 1.
// Faults: those of the polynomials' arithmetic; run-time error 11 for a division by 0; 129 for an
// exponent that is not a whole number.
Racional SumaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional RestaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional MultiplicaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional DivideRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional PotenciaRacional(Contexto& contexto, const Racional& base, double exponente);

// Divides both by the gcd of all their coefficients where all of them are whole numbers; otherwise
// leaves both as they are.
void NormalizaFracción(Polinomio& numerador, Polinomio& denominador);

// The quotient in lowest terms: no common factor, the denominator's leading coefficient positive.
// Where all coefficients are whole after the division they have no common factor either; where
// they are not, a constant denominator is divided into the numerator. 0 is 0 over 1.
// Fault: run-time error 11 for the denominator 0.
Racional SimplificaRacional(Contexto& contexto, const Racional& r);

// The same function, both sides scaled to whole coefficients where one of the denominator would be
// written as 0.
Racional ConDenominadorLegible(const Contexto& contexto, Racional r);

// Their gcd: that of the numerators over the lcm of the denominators; and their lcm: that of the
// numerators over the gcd of the denominators. Each function is brought to lowest terms first, and
// the result too. The list is not empty.
Racional DevMCDRacionales(Contexto& contexto, std::span<const Racional> funciones);
Racional DevMCMRacionales(Contexto& contexto, std::span<const Racional> funciones);

// The formula as one rational function, by running its program over rational functions. Functions
// apply to constants alone. Faults: run-time errors 5, 6 and 11 as in a numeric evaluation, 129 for
// a formula that is not a rational function of X; 14 past MáximoTérminosPolinomio.
Racional CalculaRacional(Contexto& contexto, const Programa& programa);

// The same for a user's formula: of the errors 5, 6, 11 and 129 the number is left in ErrorCódigo
// (0 without an error) and a message shown. None after an error.
std::optional<Racional> EvalúaRacional(Contexto& contexto, const Programa& programa);

} // namespace quiralto
