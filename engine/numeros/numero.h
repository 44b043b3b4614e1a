// Numbers and their text: the one place where a Double becomes text or comes back, and the
// rounding that every result goes through. Never through the locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quiralto {

// The general form: up to 15 significant digits, trailing zeros dropped, no zero before the point
// ("-2.5", ".5", "1E+20", "3.33333333333333E-02"). Plain digits while there are at most 15 before
// the point and at most 15 behind it, otherwise a mantissa and an exponent with a sign and at
// least two digits. A negative zero is "0". Fault: run-time error 5 or 6 for what is not finite.
std::string TextoNúmero(double valor);

// The same with a leading blank for a value that is not negative.
std::string TextoNúmeroConBlanco(double valor);

// What LeeNúmero found at the front of a text.
struct NúmeroLeído {
    double valor = 0;
    std::size_t longitud = 0; // bytes read; 0 where the text does not begin with a number
    bool desborda = false;    // beyond the Double range; `valor` is then an infinity
};

// Reads the longest number at the front of the text: an optional sign, digits with at most one
// point, and an exponent with "E" or "D" (either case) if digits follow it. A number too small for
// a Double is 0.
NúmeroLeído LeeNúmero(std::string_view texto);

// The value of the number at the front of the text, leading blanks skipped; 0 where there is none.
// Fault: run-time error 6 beyond the Double range.
double Val(std::string_view texto);

// The number of decimal places of the value as the general form writes it; an exponent counts for
// the places that it implies (1.5E-07 has 8).
int DecimalesNúmero(double valor);

// A number without sign as an integer times a power of ten.
struct FormaEntera {
    std::int64_t mantisa = 0; // 0 to 2^53
    int exponente = 0;        // below 0 for what has decimals
};

// The absolute value, exactly where it is an integer up to 2^53, otherwise as the general form
// writes it: at most 15 digits, the last of them not 0. Fault: run-time error 5 or 6 for what is
// not finite.
FormaEntera DevFormaEntera(double valor);

// The nearest Double; 0 for what is too small for one. Fault: run-time error 6 beyond the range.
double DevDoble(const FormaEntera& forma);

// Rounding half away from zero at `dígitos` decimal places (0 to 15). The scale-back is a
// multiplication by 10^-dígitos, which decides the last bit of the results.
double Redondea(double valor, int dígitos);

// Redondea and TextoNúmeroConBlanco: the form in which results stand on the worksheet.
std::string TextoResultado(double valor, int dígitos);

} // namespace quiralto
