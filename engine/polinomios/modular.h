// Polynomials with whole coefficients seen modulo a prime, where dividing them makes nothing grow,
// and the way back.
// Tested by mcd_test.cpp.
#pragma once

#include "engine/numeros/campo_primo.h"
#include "engine/numeros/primos_grandes.h"
#include "engine/polinomios/denso.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quiralto {

using Imagen =
    std::vector<CampoPrimo::Resto>; // coefficient i is that of Y^i; the last one is not 0

class Imágenes {
public:
    Imágenes(Contexto& contexto, std::uint64_t primo) : contexto_(contexto), campo_(primo) {}

    const CampoPrimo& Campo() const { return campo_; }

    // The image of p / denominador; none where the prime divides the leading coefficient or the
    // denominator. Only for degrees up to MáximoTérminosPolinomio.
    std::optional<Imagen> DevImagen(const Disperso& p, const Entero& denominador) const;

    // The remainder of p / denominador by the image, by Horner's rule in Y.
    Imagen DevRestoDisperso(const Disperso& p, const Entero& denominador,
                            const Imagen& divisor) const;

    // The last divisor other than 0 of the chain that begins with divisor and resto.
    Imagen DevÚltimoDivisor(Imagen divisor, Imagen resto) const;

private:
    void Divide(Imagen& resto, const Imagen& divisor) const;
    void MultiplicaPorPotencia(Imagen& r, std::uint64_t salto, const Imagen& mónico) const;
    Imagen Multiplica(const Imagen& a, const Imagen& b, const Imagen& mónico) const;
    Imagen Mónico(Imagen p) const;

    Contexto& contexto_;
    CampoPrimo campo_;
};

// Whole numbers known modulo the product of some primes (the Chinese remainder theorem).
class NúmerosPorRestos {
public:
    void Vacía() { *this = {}; }
    bool EstáVacío() const { return números_.empty(); }
    std::size_t Cantidad() const { return números_.size(); }

    // `restos`, the numbers modulo one more prime, one for each number.
    void Añade(const CampoPrimo& campo, const Imagen& restos);

    // The numbers of least magnitude.
    std::vector<Entero> DevNúmeros() const;

private:
    Entero módulo_ = 1;
    std::vector<Entero> números_; // 0 .. módulo - 1
};

} // namespace quiralto
