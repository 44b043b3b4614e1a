// What the graph writes on the worksheet: a function over the window as a line of data, and the
// functions and the window as comments.
#pragma once

#include "ui/grafica/funciones.h"

#include <string>
#include <string_view>

namespace quiralto {

// The value as a plain decimal, without exponent, for the number data of the commands: rounded to
// the power of ten that is no more than `separación` (> 0), with at most 17 digits.
std::string TextoPlano(double valor, double separación);

// "X^2,-10,10": the text over the window's X range, whose pixels are `separación` apart.
std::string DevDatosEnVentana(std::string_view función, const Ventana& ventana, double separación);

// "(f)-(g)", of which the solutions are where they meet.
std::string DevDiferencia(std::string_view f, std::string_view g);

// Comment lines ended by CR LF: the functions that are formulas, and the window.
std::string DevCabecera(const FuncionesGráficas& funciones, const Ventana& ventana);

} // namespace quiralto
