// Whole numbers of any size, for the algebra that must not lose a digit. A number that fits 63 bits
// is held in place and its arithmetic is that of the processor; a larger one has its magnitude in
// words (magnitud.h).
#pragma once

#include "engine/numeros/ancho128.h"
#include "engine/numeros/magnitud.h"

#include <cstddef>
#include <cstdint>

namespace quiralto {

class Entero {
public:
    Entero(std::int64_t valor = 0); // NOLINT: a number stands for itself

    // A finite Double without a fractional part.
    static Entero DesdeDouble(double valor);

    // What products and sums of two words come to.
    static Entero DesdeAncho(Entero128 valor);

    bool EsCero() const { return grande_.empty() && pequeño_ == 0; }
    bool EsUno() const { return grande_.empty() && pequeño_ == 1; }
    int Signo() const { return (pequeño_ > 0) - (pequeño_ < 0); }
    bool EsPequeño() const { return grande_.empty(); }
    std::int64_t Pequeño() const { return pequeño_; } // of a small one
    std::size_t Bits() const;                         // of the magnitude; 0 for 0
    double ADouble() const; // the nearest one; an infinity beyond the range

    // The remainder 0 .. módulo - 1 (of the number itself, not of its magnitude).
    Palabra Módulo(Palabra módulo) const;

    void CambiaSigno();
    Entero& operator+=(const Entero& otro);
    Entero& operator-=(const Entero& otro);
    Entero& operator*=(const Entero& otro);
    void SumaProducto(const Entero& a, const Entero& b); // += a * b
    void RestaProducto(const Entero& a, const Entero& b);
    Entero Desplazado(std::size_t bits) const; // times 2^bits

    friend Entero operator+(Entero a, const Entero& b) { return a += b; }
    friend Entero operator-(Entero a, const Entero& b) { return a -= b; }
    friend Entero operator*(const Entero& a, const Entero& b);
    friend bool operator==(const Entero& a, const Entero& b) = default;

    // Quotient truncated towards zero, and a remainder with the sign of the dividend.
    struct División;
    static División Divide(const Entero& dividendo, const Entero& divisor);

private:
    class Vista;
    static Entero DesdeMagnitud(Magnitud magnitud, bool negativo);
    void SumaConSigno(const Vista& otro, bool negativo);

    std::int64_t pequeño_ = 0; // the number; 1 or -1 for the sign of a large one
    Magnitud grande_;          // the magnitude where it needs more than 63 bits, lowest first
};

struct Entero::División {
    Entero cociente;
    Entero resto;
};

// The greatest common divisor, never negative; that of 0 and 0 is 0.
Entero DevMCD(Entero a, Entero b);

// 10 raised to an exponent from 0 up.
Entero DevPotenciaDeDiez(int exponente);

// The Double nearest to the quotient; an infinity beyond the range. The divisor is not 0.
double DevCociente(const Entero& dividendo, const Entero& divisor);

} // namespace quiralto
