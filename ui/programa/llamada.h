// The program's call: what is answered before any window.
#pragma once

#include <optional>
#include <string>

namespace quiralto {

struct Respuesta {
    std::string texto; // one or more lines
    int estado = 0;    // 0: on standard output; otherwise on standard error
};

// The answer to --version, to --help and to words that are none of the program's or the toolkit's;
// none where the window is to be opened.
std::optional<Respuesta> RespondeALlamada(int argc, const char* const* argv);

// From here on until the application stands, a display that cannot be had ends the process with
// one line and status 1; what else the toolkit and its libraries say is dropped.
void AtiendePantalla();
// The application stands: the toolkit speaks for itself again.
void DejaDeAtenderPantalla();

} // namespace quiralto
