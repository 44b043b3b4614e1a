// What X and the letters are worth at the points of puntos_de_prueba.h: drawn once for an
// expansion, from the generator of its context.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/base/contexto.h"

#include <array>
#include <unordered_map>

namespace quiralto {

class PuntosSorteados {
public:
    static constexpr std::size_t Decena = 10;

    explicit PuntosSorteados(Contexto& contexto);

    // X from [-10, 11), spread evenly, however many points are taken.
    double XAncha(std::size_t punto) const;

    // X from (-1, 1), one in each tenth of it, below Decena; and so a letter, by its place.
    double XEstrecha(std::size_t punto) const { return estrechas_[punto]; }
    double LetraEstrecha(double lugar, std::size_t punto);

private:
    Contexto& contexto_;
    double fase_;
    std::array<double, Decena> estrechas_;
    std::unordered_map<double, std::array<double, Decena>> letras_;
};

} // namespace quiralto
