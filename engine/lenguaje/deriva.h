// Symbolic differentiation, by rewriting of text.
#pragma once

#include "engine/base/contexto.h"

#include <functional>
#include <string>
#include <string_view>

namespace quiralto {

// Is shown the text as it stands before each round, with "D(" u ")D" for what is still to be
// derived; a round rewrites the first of these.
using ObservadorDeRondas = std::function<void(const std::string& texto)>;

// The derivative of a text that Sintaxis has accepted, in the same language. Only signs are folded;
// tidying is the business of the expansion. The rules split a text, in this order, at its first
// "+", last "-", first "*", last "/" and first "^" outside parentheses, and write
//
//   (u+v)' = (u'+v')        (u-v)' = (u'-v')          (u*v)' = (u*v'+v*u')
//   (u/v)' = (v*u'-u*v')/v^2          (u^v)' = (u^v*v'*LOG(u)+v*u^(v-1)*u')
//
// without the part that has no X in it; the chain rule stands before or behind each function's
// derivative. A leading sign that these leave whole is the derivative's; a text without X gives 0.
//
// The language takes a sign behind "*" or "/" with its operand before any power ("3*-X^2" is 3
// times (-X)^2), and a chain a^b^c as (a^b)^c. In the input both are put in parentheses, and so is
// a derivative behind "*", "/" or "^" that begins with a signed power; for a plain odd exponent the
// sign makes no difference and stands as it is. So the derivative is that of the function that the
// evaluator computes.
//
// Faults: run-time error 14 for a derivative past MáximoTexto or an input of more than two
// million operators; 5 for a text that is not of the language.
std::string Deriva(Contexto& contexto, std::string_view f, const ObservadorDeRondas& observa = {});

} // namespace quiralto
