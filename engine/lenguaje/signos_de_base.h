// The places where a sign binds to the base of a power: behind "*", "/" and "^" the language takes
// a sign with its operand before any power. Differentiation uses these to say with parentheses what
// it means.
// Tested by deriva_test.cpp.
#pragma once

#include <string>
#include <string_view>

namespace quiralto {

// Around a text that stands directly behind "*", "/" or "^" and may turn out to begin with a
// negative power. Control characters, so that nothing of the language is mistaken for them.
inline constexpr char Abre = '\x01';
inline constexpr char Cierra = '\x02';

// "3*-X^2" to "3*(-X)^2": the sign belongs to the base, and now the text says so.
// Fault: run-time error 5 for parentheses that do not match.
std::string EncierraBasesConSigno(std::string_view f);

// Makes the marks around a text that begins with a negative power parentheses, and drops all
// others. Signs are counted as they will be folded: "*\x01--2^X\x02" needs none.
std::string ResuelveMarcas(std::string_view marcado);

} // namespace quiralto
