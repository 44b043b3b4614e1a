// What the user has chosen of how the graph is drawn. The rounding digits are the context's.
#pragma once

#include "engine/evaluacion/muestreo.h"

namespace quiralto {

inline constexpr int DígitosRedondeoIniciales = 8;

enum class MétodoDibujo { Líneas, Puntos };

struct Opciones {
    MétodoDibujo método = MétodoDibujo::Líneas;
    int CantidadPuntos = CantidadPuntosInicial;
};

} // namespace quiralto
