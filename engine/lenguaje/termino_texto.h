// A sum of terms as text, "3*X^2-X+2/Y+.5": the one place where a term is written and the one
// where it is read. A term is a coefficient and a literal part; the literal part is "" for a number
// alone, and "1/…" for a quotient of a number, whose 1 the coefficient takes the place of.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quiralto {

// Adds the general number form to the text.
void EscribeNúmero(std::string& texto, double valor);

// Adds a term to the sum that begins in the text at `principio`: its sign (a "+" only behind
// another term), its coefficient where that is not 1 or stands alone, "*" and the literal part. A
// coefficient 0 adds nothing. Fault: run-time error 5 or 6 for a coefficient that is not finite.
void EscribeTérmino(std::string& texto, double coeficiente, std::string_view literal,
                    std::size_t principio = 0);

// The end of the term that begins at `principio`, below the text's length: the next sign outside
// parentheses, or the end of the text. A sign behind "*", "/", "^" or an exponent letter, and one
// that begins the term, is part of it.
std::size_t FinDeTérmino(std::string_view suma, std::size_t principio);

// Calls `término(text)` for every term in order; all but the first have their sign.
template <typename F> void RecorreTérminos(std::string_view suma, F término) {
    for (std::size_t i = 0, fin = 0; i < suma.size(); i = fin) {
        fin = FinDeTérmino(suma, i);
        término(suma.substr(i, fin - i));
    }
}

struct TérminoLeído {
    double coeficiente = 0; // 1 or -1 where none is written
    std::string literal;
};

// A term with its sign. The literal part begins where the coefficient in the general form and its
// "*" would end, so a coefficient is to be written in that form. A number that is raised or divided
// is part of the literal part. Fault: run-time error 6 for a number beyond the Double range.
TérminoLeído LeeTérmino(std::string_view término);

} // namespace quiralto
