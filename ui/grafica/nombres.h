// The names of the language's functions, as its table of operations has them.
#pragma once

#include "engine/lenguaje/operaciones.h"

#include <string_view>
#include <vector>

namespace quiralto {

inline std::vector<std::string_view> DevNombresFunción() {
    std::vector<std::string_view> nombres;
    for (const DescripciónOperación& fila : TablaOperaciones)
        if (fila.familia == Familia::Función)
            nombres.push_back(fila.nombre);
    return nombres;
}

} // namespace quiralto
