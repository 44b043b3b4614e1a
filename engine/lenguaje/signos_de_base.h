// What a power is a power of. Behind "*" and "/" the language takes a sign with its operand before
// any power, and of a chain a^b^c the first power first. Differentiation uses these to say with
// parentheses what it means.
// Tested by deriva_test.cpp.
#pragma once

#include "engine/base/contexto.h"

#include <string>
#include <string_view>

namespace quiralto {

// Around a text that stands directly behind "*", "/" or "^" and may turn out to begin with a
// negative power. Control characters, so that nothing of the language is mistaken for them.
inline constexpr char Abre = '\x01';
inline constexpr char Cierra = '\x02';

// "3*-X^2" to "3*(-X)^2": the sign belongs to the base, and now the text says so; not for a plain
// odd exponent, where it makes no difference. "X^2^3" to "(X^2)^3".
// Fault: run-time error 5 for parentheses that do not match.
std::string EncierraBases(std::string_view f);

// Makes the marks around a text that begins with a negative power parentheses, where they make a
// difference, and drops all others. Signs are counted as they will be folded: "*\x01--2^X\x02"
// needs none. The watcher is asked.
std::string ResuelveMarcas(Contexto& contexto, std::string_view marcado);

} // namespace quiralto
