// The one table of the options: reading, refusals and --ayuda come from it.
#pragma once

#include "cli/llamada.h"

#include <initializer_list>
#include <span>
#include <string_view>

namespace quiralto::cli {

// A wrong call; what was expected.
struct UsoErróneo {
    std::string esperado;
};

struct Opción {
    std::string_view nombre;
    std::string_view otro;     // without its accents, or in English
    std::string_view corta;    // "-h", or nothing
    std::string_view valor;    // how --ayuda calls its value; nothing: it takes none
    std::optional<Modo> modo;  // the mode that it chooses
    std::span<const Modo> con; // the modes that it goes with; none: with all of them
    std::string_view uso;      // of a mode: how it is called
    void (*pon)(Opciones&, const std::string& opción, const std::string& valor);
    std::string_view ayuda; // may have several lines

    bool SeLlama(std::string_view palabra) const {
        return palabra == nombre || (!otro.empty() && palabra == otro) ||
               (!corta.empty() && palabra == corta);
    }
};

std::span<const Opción> DevTablaOpciones();

// The number that the whole word is. Fault: UsoErróneo, with what it was to be for.
double LeeDoble(const std::string& palabra, const std::string& qué);

} // namespace quiralto::cli
