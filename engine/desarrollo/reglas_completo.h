// How a complete expansion computes: every value is one fraction.
//
// Its forms: one fraction over one denominator, both multiplied out, its common factors cancelled
// (reduccion.h), negative whole exponents below it, save those of EXP (sin_negativos.h). A fraction
// has whole numbers on both sides (lados.h). A quotient inside an exponent or an argument is one
// fraction likewise.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/acumulada.h"
#include "engine/desarrollo/fraccion_abierta.h"

#include <optional>
#include <string>

namespace quiralto {

class ReglasCompleto {
public:
    // A product with its denominator, or a sum over a whole number.
    struct Valor {
        Acumulada suma;
        std::optional<FracciónAbierta> producto;
        Coeficiente divisor = 1; // of either; the numerator keeps its decimals beside it
    };

    explicit ReglasCompleto(TablaSímbolos& tabla) : tabla_(tabla) {}

    Valor Suma(Valor a, Valor b, int signo);
    Valor Producto(Valor& a, Valor& b);
    Valor Cociente(Valor& a, Valor& b);
    Valor Potencia(Valor& a, Valor& b);
    Valor Llamada(const DescripciónOperación& función, Valor& argumento);
    std::string Escribe(Valor valor);

private:
    void Cierra(Valor& valor);
    Valor DeProducto(FracciónAbierta f, Coeficiente divisor);
    FracciónAbierta ComoProducto(Valor& valor);
    Términos ComoSuma(Valor& valor);

    TablaSímbolos& tabla_;
};

} // namespace quiralto
