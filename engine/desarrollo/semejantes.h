// Which terms are alike: the one criterion that sums, products and the cancelling of quotients ask.
//
// 1. Literal parts that are equal to the letter are alike. A number is like a number and nothing
//    else.
// 2. In the equations of a linear system nothing else is alike.
// 3. Otherwise their values decide. A pair is judged at the first ten points of the pool at which
//    at least one has a value, and then, to be sure of a rare event, at the next few dozen. It
//    differs where only one has a value and where two values do not agree to a part in 1E9; but
//    where both round to 0 the point says nothing. Agreement must hold again in the second set of
//    points; where less than three points of the first say anything, the second must say it alone,
//    and where it says nothing either, only the letter counts.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/puntos_de_prueba.h"
#include "engine/desarrollo/recolector.h"
#include "engine/desarrollo/simbolos.h"

#include <cmath>

namespace quiralto {

// Whether two literal parts are alike.
bool SonSemejantes(TablaSímbolos& tabla, const Literal& a, const Literal& b);

// Literal parts by what they are worth at the first ten points at which they have a value.
class ÍndiceSemejantes {
public:
    static constexpr std::uint32_t Ninguno = ÍndiceHash::Ninguno;

    explicit ÍndiceSemejantes(TablaSímbolos& tabla);

    // A position whose literal part is like this one by its values, or Ninguno. `de` gives the
    // literal part at a position.
    template <typename De> std::uint32_t Busca(const Literal& literal, De de) {
        Prepara(literal);
        if (!última_.sirve)
            return Ninguno;
        for (const std::uint64_t clave : {última_.clave, última_.vecina}) {
            const std::uint32_t hallado = índice_.Busca(clave, [&](std::uint32_t i) {
                return Confirma(literal, última_, de(i), huellas_[i]);
            });
            if (hallado != Ninguno || última_.clave == última_.vecina)
                return hallado;
        }
        return Ninguno;
    }

    // The literal part last looked for, or another, gets the position (those from 0 on, in order).
    void Añade(const Literal& literal, std::uint32_t posición);

private:
    static constexpr std::size_t Decena = PuntosDePrueba::Decena;

    struct Huella {
        std::array<double, Decena> valores{};
        std::array<std::uint16_t, Decena> lugares{};
        std::uint16_t cuántos = 0;
        std::uint16_t dicen = 0; // how many do not round to 0
        bool constante = false;  // the same value everywhere
        bool sirve = false;      // may be like another
        std::uint64_t clave = 0; // alike ones share it, or one's neighbour
        std::uint64_t vecina = 0;
    };
    friend bool SonSemejantes(TablaSímbolos& tabla, const Literal& a, const Literal& b);

    void Prepara(const Literal& literal);
    bool EsConstante(const Literal& literal) const;
    Huella DevHuella(const Literal& literal);
    void PonClave(Huella& huella, const Literal& literal);
    void Recoge(Huella& huella, const std::array<double, Decena>& valores, std::size_t desde) const;
    bool Redondea0(double valor) const { return std::fabs(valor) < mitad_; }
    bool Callan(double a, double b) const { return Redondea0(a) && Redondea0(b); }
    bool Confirma(const Literal& a, const Huella& ha, const Literal& b, const Huella& hb);
    bool ConfirmaPrimero(const Literal& a, const Literal& b, std::size_t desde);
    bool ConfirmaSegundo(const Literal& a, const Literal& b, bool bastaConCallar);

    TablaSímbolos& tabla_;
    double mitad_; // of the last decimal place
    ÍndiceHash índice_;
    std::vector<Huella> huellas_; // by position
    Huella última_;
    Literal últimoLiteral_;
    bool hayÚltimo_ = false;
};

// A number, or a power of X with a whole exponent that is not negative: two different ones are
// never alike, so no values are needed to tell them apart.
bool EsMonomioDeX(const TablaSímbolos& tabla, const Literal& literal);

// Adds the like terms of a product that only their values show, each to the first of its kind.
void FundeSemejantes(TablaSímbolos& tabla, Términos& suma);

} // namespace quiralto
