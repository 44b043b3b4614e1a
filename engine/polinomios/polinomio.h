// Polynomials in X: their value, their text and their arithmetic. division.h divides them, mcd.h
// holds what goes by common factors, racional.h the quotients of two.
//
// The value is a list of terms, highest exponent first, each exponent once, no coefficient 0; the
// zero polynomial has no term. Exponents are real numbers and are compared as such. A polynomial is
// exact while its coefficients are fractions that it can hold, so that nothing is lost to rounding;
// one that has met a number without an exact value (SIN(2)) or has outgrown MáximoBitsExactos is
// real, its coefficients are Doubles.
//
// The text is the display form: "3*X^2-X+.5", terms with the signs of their coefficients, no
// blanks.
#pragma once

#include "engine/base/contexto.h"
#include "engine/numeros/entero.h"
#include "engine/polinomios/terminos.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace quiralto {

// A coefficient, numerator or denominator, of more bits turns its polynomial into a real one.
inline constexpr std::size_t MáximoBitsExactos = 2048;

// The sum of the terms, divided by the denominator, which is positive and has no factor in common
// with all the coefficients. One denominator for all of them, rather than fractions: common factors
// are found modulo primes, over whole numbers.
struct PolinomioExacto {
    Monomios<Entero> términos;
    Entero denominador = 1;
    bool operator==(const PolinomioExacto&) const = default;
};
using PolinomioReal = Monomios<double>;
using Polinomio = std::variant<PolinomioExacto, PolinomioReal>;

// --- Text

// The terms of a text in the display form, as they stand: neither ordered nor collected; none for
// an empty text. Fault: run-time error 6 for a number beyond the Double range.
Monomios<double> LeePolinomio(std::string_view texto);

// Two texts at once.
struct PolinomiosLeídos {
    Monomios<double> p;
    Monomios<double> q;
};
PolinomiosLeídos LeePolinomios(std::string_view p, std::string_view q);

// Orders the terms, highest exponent first, and collects those of equal exponents. The result is
// exact where every coefficient is a decimal of at most DígitosRedondeo places in the general
// number form.
Polinomio ReduceTérminos(const Contexto& contexto, Monomios<double> términos);

// The display form: coefficients and exponents rounded to DígitosRedondeo, terms of coefficient 0
// left out, "0" where none is left.
std::string EscribePolinomio(const Contexto& contexto, const Monomios<double>& términos);
std::string EscribePolinomio(const Contexto& contexto, const Polinomio& p);
std::string EscribePolinomio(const Contexto& contexto, std::string_view texto);

// With the coefficients that the display form writes; the result is exact.
Polinomio RedondeaPolinomio(const Contexto& contexto, const Polinomio& p);

// The polynomial without the leading terms that the display form leaves out.
Polinomio QuitaPrincipalesNulos(const Contexto& contexto, Polinomio p);

// Whether the display form writes it in full: exact decimals of at most DígitosRedondeo places.
bool EsDeDecimales(const Contexto& contexto, const Polinomio& p);

// --- Values

// The constant with the value of the number as the general form writes it, exact.
Polinomio DevConstante(double valor);
// The constant of a computed number: exact where it is a decimal of at most DígitosRedondeo places.
Polinomio DevConstanteCalculada(const Contexto& contexto, double valor);
// X^exponente
Polinomio DevPotenciaDeX(double exponente);

// The exact value where the polynomial is exact, otherwise none.
inline const PolinomioExacto* SiExacto(const Polinomio& p) {
    return std::get_if<PolinomioExacto>(&p);
}
PolinomioReal AReal(const Polinomio& p);

bool EsCero(const Polinomio& p);
bool EsUno(const Polinomio& p);
bool EsConstante(const Polinomio& p); // 0 too
double DevGrado(const Polinomio& p);  // the leading exponent; 0 for the zero polynomial
bool TieneExponentesNaturales(const Polinomio& p); // all whole, none negative
bool EsDeCoeficientesEnteros(const Polinomio& p);  // exact, denominator 1
int SignoPrincipal(const Polinomio& p);            // of the leading coefficient

// The multiple of an exact one that has whole coefficients without a common factor and a positive
// leading one; 0 and real ones as they are.
Polinomio DevPrimitivo(const Polinomio& p);

// From whole coefficients (ordered, each exponent once, zeros allowed) over a denominator that is
// not 0. Fault: run-time error 6 where a coefficient is beyond the Double range, 14 for too many
// terms.
Polinomio DevExacto(Monomios<Entero> términos, Entero denominador);

// From terms in order, each exponent once, zeros allowed. Faults as above.
Polinomio DevReal(PolinomioReal términos);

// Faults of the arithmetic: run-time error 6 where a coefficient leaves the Double range or an
// exponent the whole numbers that a Double tells apart; 14 past MáximoTérminosPolinomio. The
// watcher is asked. Sums cost the terms read; products the pairs of terms.
Polinomio SumaPolinomios(const Polinomio& p, const Polinomio& q);
Polinomio RestaPolinomios(const Polinomio& p, const Polinomio& q);
Polinomio MultiplicaPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q);
Polinomio CambiaSigno(Polinomio p);

} // namespace quiralto
