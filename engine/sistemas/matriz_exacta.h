// The matrix of a linear system in exact fractions: rows of whole numbers, each times a fraction.
// Tested by sistema_lineal_test.cpp.
#pragma once

#include "engine/sistemas/matriz.h"

namespace quiralto {

class MatrizExacta : public MatrizSln {
public:
    // A whole number of a row has at most so many bits: what forty equations with small whole
    // numbers come to, which take a tenth of a second; and, where there are fewer equations, what
    // takes no longer than that: sixteen with all the digits of a Double.
    static std::size_t MáximosBits(std::size_t filas);

    // Every coefficient is exact.
    MatrizExacta(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones);

    // False: a number is too large from the beginning.
    bool Cabe() const;

    bool EsNulo(std::size_t fila, std::size_t columna) const override;
    bool Trasforma(std::size_t columna, std::size_t pivote) override;
    Coeficiente Cociente(std::size_t fila, std::size_t columna, std::size_t divisor) const override;

private:
    void PonFila(std::size_t fila, const EcuaciónLineal& ecuación);
    bool TrasformaFila(std::size_t fila, std::size_t columna, std::size_t pivote);

    std::vector<Entero> elementos_;   // of a row without a common factor
    std::vector<Coeficiente> factor_; // of each row
    bool redondeada_;                 // the equations hold Doubles that stand for other numbers
};

} // namespace quiralto
