// The text of an equation, before anything is calculated with it.
#pragma once

#include "engine/base/rechazo.h"

#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

// Every "X(" and "x(" as "SLN(".
std::string Sustituye1(std::string_view texto);

// The line without its blanks and tabs.
std::string SinBlancos(std::string_view línea);

// The text has one "=", neither first nor last.
std::optional<Rechazo> CompruebaIgualdad(std::string_view texto);
bool IgualdadCorrecta(Contexto& contexto, std::string_view texto);

} // namespace quiralto
