#include "engine/numeros/primos_grandes.h"

#include "engine/numeros/campo_primo.h"

#include <algorithm>
#include <array>
#include <bit>

namespace quiralto {
namespace {

constexpr std::uint64_t Tope = std::uint64_t{1} << 62;

// Most calculations need one or two primes: the first ones stand here, as Tope minus each.
constexpr std::array<std::uint64_t, 8> Primeros = {57, 87, 117, 143, 153, 167, 171, 195};

} // namespace

bool EsPrimo(std::uint64_t número) {
    constexpr std::array<std::uint64_t, 12> Bases = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37};
    for (const std::uint64_t base : Bases)
        if (número % base == 0)
            return número == base;
    const CampoPrimo campo(número);
    const CampoPrimo::Resto menosUno = campo.Resta(0, campo.Uno());
    const int doses = std::countr_zero(número - 1);
    return std::ranges::all_of(Bases, [&](std::uint64_t base) {
        CampoPrimo::Resto x = campo.Potencia(campo.AResto(base), (número - 1) >> doses);
        bool pasa = x == campo.Uno() || x == menosUno;
        for (int i = 1; i < doses && !pasa; ++i) {
            x = campo.Producto(x, x);
            pasa = x == menosUno;
        }
        return pasa;
    });
}

std::uint64_t SucesiónDePrimos::Siguiente() {
    if (tomados_ < Primeros.size())
        return último_ = Tope - Primeros[tomados_++];
    do
        último_ -= 2;
    while (!EsPrimo(último_));
    return último_;
}

} // namespace quiralto
