// Arithmetic modulo a prime of 62 bits, in Montgomery's form: the image in which polynomials with
// whole coefficients are divided without their coefficients growing.
#pragma once

#include "engine/numeros/ancho128.h"
#include "engine/numeros/entero.h"

#include <cstddef>
#include <cstdint>

namespace quiralto {

class CampoPrimo {
public:
    using Resto = std::uint64_t; // in Montgomery's form, 0 .. primo - 1

    // An odd number from 3 to 2^62; a prime where Inverso is used.
    explicit CampoPrimo(std::uint64_t primo);

    std::uint64_t Primo() const { return primo_; }
    Resto DevResto(const Entero& número) const { return AResto(número.Módulo(primo_)); }
    Resto AResto(std::uint64_t valor) const { return Producto(valor, cuadrado_); }
    std::uint64_t DevValor(Resto a) const { return Reduce(a); } // 0 .. primo - 1

    Resto Uno() const { return uno_; }
    Resto Suma(Resto a, Resto b) const { return a + b >= primo_ ? a + b - primo_ : a + b; }
    Resto Resta(Resto a, Resto b) const { return a >= b ? a - b : a + primo_ - b; }
    Resto Producto(Resto a, Resto b) const { return Reduce(Doble{a} * b); }
    Resto Potencia(Resto base, std::uint64_t exponente) const;
    Resto Inverso(Resto a) const { return Potencia(a, primo_ - 2); } // a is not 0

private:
    using Doble = Natural128;

    std::uint64_t Reduce(Doble t) const {
        const auto m = static_cast<std::uint64_t>(t) * inverso_;
        const auto r = static_cast<std::uint64_t>((t + Doble{m} * primo_) >> 64);
        return r >= primo_ ? r - primo_ : r;
    }

    std::uint64_t primo_;
    std::uint64_t inverso_;  // -1 / primo modulo 2^64
    std::uint64_t uno_;      // 2^64 modulo primo
    std::uint64_t cuadrado_; // 2^128 modulo primo
};

} // namespace quiralto
