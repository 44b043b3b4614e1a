// The values that an expansion computes with: sums of terms, each a number times powers of symbols.
//
// A symbol is a base (simbolos.h) together with one literal exponent: X^(A+2) is the symbol (X, A)
// to the 1 times the symbol (X, 1) to the 2. So every exponent in a literal part is a plain number,
// and equal bases multiply by adding numbers. Symbols are numbered by the table that made them;
// sums of two tables do not mix.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/numeros/coeficiente.h"

#include <compare>
#include <cstdint>
#include <vector>

namespace quiralto {

using IdSímbolo = std::uint32_t;
using IdBase = std::uint32_t;

// A fraction in lowest terms that is copied with its bits. One that does not fit has the 15 digits
// of its general form; fault: run-time error 6 where these do not fit either.
class Exponente {
public:
    constexpr Exponente(std::int64_t entero = 1) : numerador_(entero) {} // NOLINT: like a number
    explicit Exponente(const Coeficiente& valor);

    Coeficiente Valor() const {
        return denominador_ == 1 ? Coeficiente(numerador_)
                                 : Coeficiente(Entero(numerador_), Entero(denominador_));
    }
    double ADouble() const {
        return static_cast<double>(numerador_) / static_cast<double>(denominador_);
    }
    bool EsEntero() const { return denominador_ == 1; }
    std::int64_t Numerador() const { return numerador_; }
    std::int64_t Denominador() const { return denominador_; }
    int Signo() const { return (numerador_ > 0) - (numerador_ < 0); }

    Exponente operator-() const {
        Exponente opuesto = *this;
        opuesto.numerador_ = -opuesto.numerador_;
        return opuesto;
    }
    friend Exponente operator+(const Exponente& a, const Exponente& b) {
        Exponente suma;
        if (a.denominador_ == 1 && b.denominador_ == 1 &&
            !__builtin_add_overflow(a.numerador_, b.numerador_, &suma.numerador_))
            return suma;
        return Exponente(a.Valor() + b.Valor());
    }
    friend Exponente operator*(const Exponente& a, const Exponente& b) {
        Exponente producto;
        if (a.denominador_ == 1 && b.denominador_ == 1 &&
            !__builtin_mul_overflow(a.numerador_, b.numerador_, &producto.numerador_))
            return producto;
        return Exponente(a.Valor() * b.Valor());
    }
    friend bool operator==(const Exponente&, const Exponente&) = default;
    friend bool operator<(const Exponente& a, const Exponente& b) {
        return a.denominador_ == b.denominador_ ? a.numerador_ < b.numerador_
                                                : (a.Valor() - b.Valor()).Signo() < 0;
    }

private:
    std::int64_t numerador_;
    std::int64_t denominador_ = 1;
};

struct Factor {
    IdSímbolo símbolo;
    Exponente exponente; // not 0
    bool operator==(const Factor&) const = default;
};

// Factors in the order of their texts: variables by their letters (or numbers), then everything
// else by the text of its base; of one base the plain symbol last. Each symbol once.
using Literal = std::vector<Factor>;

struct Término {
    Coeficiente coeficiente;
    Literal literal;
    bool operator==(const Término&) const = default;
};

// Terms in the order in which they are written; no two with the same literal part, none 0.
using Términos = std::vector<Término>;

std::uint64_t DevHash(const Literal& literal);

inline Términos SumaNúmero(const Coeficiente& valor) {
    return valor.EsCero() ? Términos{} : Términos{{valor, {}}};
}
inline Términos SumaSímbolo(IdSímbolo símbolo, const Exponente& exponente = 1) {
    return {{1, {{símbolo, exponente}}}};
}
inline bool EsNúmero(const Términos& suma) {
    return suma.empty() || (suma.size() == 1 && suma[0].literal.empty());
}
inline Coeficiente DevNúmero(const Términos& suma) {
    return suma.empty() ? Coeficiente() : suma[0].coeficiente;
}

// Every coefficient times the factor (not 0). Fault: run-time error 6.
void EscalaSuma(Términos& suma, const Coeficiente& factor);

// The greatest positive number of which all coefficients are whole multiples; 1 where one of them
// is not exact. The sum is not empty.
Coeficiente DevContenido(const Términos& suma);

// Divides a sum by its content, which is returned: its coefficients, where all are exact, become
// whole and have no common factor.
Coeficiente SacaContenido(Términos& suma);

} // namespace quiralto
