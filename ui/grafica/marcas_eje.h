// The unit marks of an axis: where they stand and what is written beside them.
#pragma once

#include <string>
#include <vector>

namespace quiralto {

struct Marca {
    double valor;      // logical
    long long número;  // which multiple of the distance between two
    std::string texto; // different for every mark
};

// The marks of an axis from left to right, and the places of the finer lines between them.
struct MarcasEje {
    std::vector<Marca> mayores;
    std::vector<double> menores;
};

// The marks of a range that is `píxeles` long on the screen: at multiples of 1, 2 or 5 times a
// power of ten, whichever stand nearest to 60 to 110 pixels apart, and closer where a short range
// would have fewer than six of them. Their texts are for the eye: a zero before the point, a true
// minus sign (U+2212), powers of ten ("1E13") along the whole axis where that is much shorter.
MarcasEje DevMarcas(double mínimo, double máximo, double píxeles);

// The value with as many decimal places as tell it from its neighbour at a distance of
// `separación`; for the coordinates under the pointer.
std::string TextoCoordenada(double valor, double separación);

// The value with all the digits that it can have when it was worked out from a place in a range of
// that width, and none of its rounding errors.
std::string TextoEnRango(double valor, double ancho);

} // namespace quiralto
