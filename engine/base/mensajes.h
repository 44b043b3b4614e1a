// How the mathematics speaks to the user: one short text at a time.
//
// Whoever runs the program implements this interface: the window with a message box, the terminal
// program with a line on standard error, a test with a list. Nothing else in the engine or in the
// commands shows or prints anything.
#pragma once

#include <string_view>

namespace quiralto {

enum class Icono { Ninguno, Exclamación, Crítico };

class Mensajes {
public:
    virtual ~Mensajes() = default;

    // Shows `texto` (UTF-8; its lines end in CR LF) and returns once the user has seen it.
    virtual void Muestra(Icono icono, std::string_view texto) = 0;

protected:
    Mensajes() = default;
    Mensajes(const Mensajes&) = default;
    Mensajes& operator=(const Mensajes&) = default;
};

} // namespace quiralto
