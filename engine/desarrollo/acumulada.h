// What both kinds of expansion compute with: a sum that stays open while additions follow each
// other, and calls of functions.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/suma_abierta.h"

#include <memory>
#include <utility>

namespace quiralto {

// A sum in a register: closed, or open while additions follow each other.
class Acumulada {
public:
    Acumulada() = default;
    Acumulada(Términos suma) : suma_(std::move(suma)) {} // NOLINT: a sum is one

    const Términos& Cerrada() &;
    Términos Cerrada() && {
        Cerrada();
        return std::move(suma_);
    }
    std::size_t Cantidad() const { return abierta_ ? abierta_->Cantidad() : suma_.size(); }

    // *this + signo*b
    void Añade(TablaSímbolos& tabla, Acumulada b, int signo);

private:
    void Abre(TablaSímbolos& tabla);

    Términos suma_;
    std::unique_ptr<SumaAbierta> abierta_;
};

// A call of a function whose argument (final, with its text) is given. SLN of a whole number is a
// variable, in its place. In the equation of a linear system a function of a number is its value;
// fault: that of its evaluation, as a run-time error.
Términos DevLlamada(TablaSímbolos& tabla, const DescripciónOperación& función,
                    const Términos& argumento, const std::string& texto);

// base^exponente for an exponent that is no whole number, with the same rule for the equations of
// linear systems. Both are final.
Términos ElevaAlFinal(TablaSímbolos& tabla, const Términos& base, const Términos& exponente);

// The exponent as a whole number, where it is one.
std::optional<std::int64_t> DevExponenteEntero(const Términos& exponente);

} // namespace quiralto
