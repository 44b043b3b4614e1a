// The plot window and the sampling of a function into points of the drawing scale.
#pragma once

#include "engine/base/contexto.h"
#include "engine/lenguaje/programa.h"

#include <vector>

namespace quiralto {

// The logical extremes of both axes.
struct Ventana {
    double XMáx = 10;
    double XMín = -10;
    double YMáx = 10;
    double YMín = -10;

    bool operator==(const Ventana&) const = default;
};

inline constexpr int CantidadPuntosInicial = 300;
inline constexpr int MáximoCantidadPuntos = 32767;

// The drawing scale: both axes run from -MediaEscala to MediaEscala whatever the window.
inline constexpr double MediaEscala = 10;

// Drawing-scale position of a logical X or Y, and the logical X of a drawing-scale position.
double DevXlógico(const Ventana& ventana, double x);
double DevYlógico(const Ventana& ventana, double y);
double DevXfísico(const Ventana& ventana, double s);

// A sampled point in the drawing scale. Values off the window stand at y = 11 or -11, one unit
// beyond the frame, so that a line to them runs off its edge.
struct Punto {
    float x;
    float y;

    bool operator==(const Punto&) const = default;
};

// Samples the program from XMín to XMáx in cantidadPuntos (1 to MáximoCantidadPuntos) steps that
// are added up, so normally cantidadPuntos + 1 samples; a point without a value is left out.
// ErrorCódigo is left alone. Fault: run-time error 6 where the window is too wide for a Double, has
// no height, or is so narrow that the step no longer changes X.
std::vector<Punto> CargaPuntos(Contexto& contexto, const Programa& programa, const Ventana& ventana,
                               int cantidadPuntos);

} // namespace quiralto
