// Rational functions of X: a quotient of two polynomials, its arithmetic and its lowest terms.
// evalua_racional.h makes one of a formula; mcd_racionales.h holds the gcd and lcm of several.
//
// The text is that of a polynomial where the denominator is 1, otherwise "(" numerator ")/("
// denominator ")".
#pragma once

#include "engine/base/contexto.h"
#include "engine/polinomios/polinomio.h"

#include <string>
#include <string_view>

namespace quiralto {

struct Racional {
    Polinomio numerador;
    Polinomio denominador = DevConstante(1); // never 0
};

Racional LeeRacional(const Contexto& contexto, std::string_view texto);
std::string SeparaRacional(const Contexto& contexto, const Racional& r);

// Whether the denominator is 1, and the text without a fraction bar.
inline bool EsPolinomio(const Racional& r) {
    return EsUno(r.denominador);
}

// None of these reduces to lowest terms, but for a quotient without a remainder, which is the
// quotient polynomial alone. A negative exponent inverts the base first; 0 gives 1.
// Faults: those of the polynomials' arithmetic; run-time error 11 for a division by 0; 129 for an
// exponent that is not a whole number or has a point in its general form (2.5E+20).
Racional SumaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional RestaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional MultiplicaRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional DivideRacional(Contexto& contexto, const Racional& a, const Racional& b);
Racional PotenciaRacional(Contexto& contexto, const Racional& base, double exponente);

// Divides both by the gcd of all their coefficients where all of them are whole numbers; otherwise
// leaves both as they are.
void NormalizaFracción(Polinomio& numerador, Polinomio& denominador);

// The same function with whole coefficients without a common factor; as it is where they are not
// all exact.
Racional ConCoeficientesEnteros(Racional r);

// The same function as a text can hold it: a polynomial as it is; a quotient of exact polynomials
// with whole coefficients without a common factor where rounding would cut one of them short; any
// other one times the power of ten that keeps every term of the denominator from being written as
// 0.
Racional ConCoeficientesLegibles(Contexto& contexto, Racional r);

// The quotient in lowest terms: both divided by their gcd with a positive leading coefficient, so
// that the signs stay. A constant denominator is divided into the numerator. 0 is 0 over 1.
// Fault: run-time error 11 for the denominator 0.
Racional ReduceRacional(Contexto& contexto, const Racional& r);

// The same as it is to be written: its coefficients legible (above), those of real ones rounded;
// where all of them are whole they have no common factor.
Racional SimplificaRacional(Contexto& contexto, const Racional& r);

} // namespace quiralto
