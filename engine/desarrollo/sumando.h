// What both kinds of expansion compute with: sums that stay open while additions follow each other,
// and products, powers and calls with their like terms joined.
#pragma once

#include "engine/desarrollo/semejantes.h"
#include "engine/desarrollo/simbolos.h"
#include "engine/lenguaje/operaciones.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quiralto {

// A sum in a register: closed, or open while additions follow each other. `factores` are the sums
// of several terms that it was multiplied from, for the cancelling of quotients.
class Sumando {
public:
    Sumando() = default;
    Sumando(Términos suma) : suma_(std::move(suma)) {} // NOLINT: a sum is one

    const Términos& Cerrada();
    std::size_t Cantidad() const { return abierta_ ? abierta_->Cantidad() : suma_.size(); }

    // *this + signo*b
    void Añade(TablaSímbolos& tabla, Sumando b, double signo);

    std::vector<Términos> factores;

private:
    void Abre(TablaSímbolos& tabla);

    Términos suma_;
    std::unique_ptr<SumaAbierta> abierta_;
};

// What a product of the two has as factors.
std::vector<Términos> DevFactores(Sumando& a, Sumando& b);

// Sums of more terms than this are not kept as factors.
inline constexpr std::size_t MáximosTérminosDeFactor = 256;

Términos MultiplicaYFunde(TablaSímbolos& tabla, const Términos& a, const Términos& b);
Términos ElevaYFunde(TablaSímbolos& tabla, const Términos& base, const Términos& exponente);

// The symbol of a call; SLN of a whole number is a variable, in its place.
IdSímbolo DevLlamada(TablaSímbolos& tabla, const DescripciónOperación& función,
                     const std::string& argumento);

} // namespace quiralto
