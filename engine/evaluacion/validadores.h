// The small checks on what the user typed. Each has an asking form, which says what is wrong and
// shows nothing, and a face that shows it (with the exclamation icon) and returns true where the
// input is acceptable.
#pragma once

#include "engine/base/rechazo.h"

#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

// Digits, the first character may be "-", value in -2147483648 .. 2147483647. A "-" behind the
// first character is refused without a message.
std::optional<Rechazo> CompruebaEnteroLargo(std::string_view texto);
bool EsEnteroLargo(Contexto& contexto, std::string_view texto);

// No "X" in the text; never a message, the caller reports.
bool NoContieneX(std::string_view texto);

// The numeric value of the text is not negative.
std::optional<Rechazo> CompruebaNoNegativo(std::string_view texto);
bool NoNegativo(Contexto& contexto, std::string_view texto);

// The text is not exactly "0"; "0.0" and "00" pass.
std::optional<Rechazo> CompruebaNoCero(std::string_view texto);
bool NoCero(Contexto& contexto, std::string_view texto);

enum class ModoOrden { Mayor = 1, Menor = 2 };

// The value of the first text is strictly greater (smaller) than that of the second.
std::optional<Rechazo> CompruebaOrdenados(std::string_view primero, std::string_view segundo,
                                          ModoOrden modo);
bool CompruebaOrden(Contexto& contexto, std::string_view primero, std::string_view segundo,
                    ModoOrden modo);

// A numeric datum typed as a constant expression ("2*SQR(3)"): its text is replaced by its value.
// Leaves ErrorCódigo clear, but that the face sets it to 6 for a number beyond the Double range.
std::optional<Rechazo> CompruebaValorDato(Contexto& contexto, std::string& texto);
bool DevValorDato(Contexto& contexto, std::string& texto);

enum class Caja { Ninguna, Primera, Segunda };

// A pair of extremes typed as constant expressions, in the given order: their texts are replaced by
// the values rounded to DígitosRedondeo, which are also returned in the Doubles. Returns the box
// that was refused (the first where only their order is wrong), or Ninguna.
Caja CompruebaExtremos(Contexto& contexto, std::string& primero, std::string& segundo,
                       double& valorPrimero, double& valorSegundo, ModoOrden modo);

// A plain number: digits, at most one point (not last), at most one sign (not last, not behind the
// point), with a value from `mínimo` to `máximo`; any value where both bounds are 0. Never a
// message, the caller reports. The sign may stand behind digits, where Val ends the number.
bool EsNúmeroEnRango(std::string_view texto, double mínimo, double máximo);

// What a key typed into a box for formulas becomes: Enter and backspace stay, a blank, any other
// control character and everything past code 254 is swallowed (0: beep), the rest is upper-cased.
char32_t FiltraTecla(char32_t código);

} // namespace quiralto
