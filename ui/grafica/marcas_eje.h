// The unit marks of an axis: where they stand and what is written beside them.
#pragma once

#include <string>
#include <vector>

namespace quiralto {

struct Marca {
    double valor;      // logical
    std::string texto; // in the general form of numbers, different for every mark
};

// The marks of a range that is `píxeles` long on the screen, from left to right: at multiples of 1,
// 2 or 5 times a power of ten, whichever stand nearest to 60 to 110 pixels apart.
std::vector<Marca> DevMarcas(double mínimo, double máximo, double píxeles);

// The value with as many decimal places as tell it from its neighbour at a distance of
// `separación`; for the coordinates under the pointer.
std::string TextoCoordenada(double valor, double separación);

// The value with all the digits that it can have when it was worked out from a place in a range of
// that width, and none of its rounding errors.
std::string TextoEnRango(double valor, double ancho);

} // namespace quiralto
