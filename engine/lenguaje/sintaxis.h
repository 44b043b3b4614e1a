// The expression language of one variable X: the check that every typed formula passes before it
// is compiled, and the folding of signs that the whole engine uses on the texts it builds.
//
// A text that Sintaxis has accepted is ASCII, holds digits, ".", "+-*/^()", "X" and the function
// names of operaciones.h (and Contexto::PrefijoVariable while it is set), and its numbers are in
// the general form of numero.h.
#pragma once

#include "engine/base/rechazo.h"

#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

// Checks the text and normalises it in place: exponents marked, signs folded, numbers rounded to
// DígitosRedondeo and rewritten. None if it is a formula; otherwise what is wrong and where in the
// text as it was handed over, and the text may be partly normalised. Shows and sets nothing.
std::optional<Rechazo> CompruebaSintaxis(const Contexto& contexto, std::string& texto);

// The same, said: true if it is a formula; otherwise one message has been shown. Sets ErrorCódigo
// to 6 for a number beyond the Double range.
bool Sintaxis(Contexto& contexto, std::string& texto);

// Folds every run of signs to one sign, and drops a "+" at the beginning and behind "(/*^".
std::string SimplificaSignos(std::string_view texto);

// What ParVálido remembers from pair to pair.
struct EstadoPares {
    bool punto = false;     // the number at hand has its decimal point
    bool exponente = false; // the number at hand is in its exponent
    char anterior = '\0';   // the first character of the pair before
};

// Whether the character b may follow the character a. With `reinicia` it clears the state and
// returns true.
bool ParVálido(EstadoPares& estado, char a, char b, bool reinicia = false);

} // namespace quiralto
