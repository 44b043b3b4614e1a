#include "engine/polinomios/mcd_racionales.h"

#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"

#include <utility>

namespace quiralto {
namespace {

Polinomio Positivo(Polinomio p) {
    return SignoPrincipal(p) < 0 ? CambiaSigno(std::move(p)) : p;
}

// The greatest common divisor of two polynomials that are not 0, with the greatest number that
// divides all coefficients where they are whole.
Polinomio MCDConContenido(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    Polinomio común = MCDPrimitivo(contexto, p, q);
    if (!EsDeCoeficientesEnteros(p) || !EsDeCoeficientesEnteros(q))
        return común;
    Entero contenido =
        DevMCD(DevContenido(SiExacto(p)->términos), DevContenido(SiExacto(q)->términos));
    if (contenido.EsUno())
        return común;
    return MultiplicaPolinomios(contexto, común, DevExacto({{0, std::move(contenido)}}, 1));
}

// With a positive leading coefficient.
Polinomio MCMPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsCero(p) || EsCero(q))
        return DevConstante(0);
    if (p == q)
        return Positivo(p);
    const Polinomio común = MCDConContenido(contexto, p, q);
    Polinomio mcm =
        MultiplicaPolinomios(contexto, p, DivideSinRedondear(contexto, q, común).cociente);
    return Positivo(std::move(mcm));
}

using Reúne = Polinomio (*)(Contexto&, const Polinomio&, const Polinomio&);

// Each function in lowest terms, quotients with whole coefficients.
Racional ReúneLista(Contexto& contexto, std::span<const Racional> funciones, Reúne numeradores,
                    Reúne denominadores) {
    const auto simplifica = [&](const Racional& función) {
        Racional simple = ReduceRacional(contexto, función);
        return EsPolinomio(simple) ? simple : ConCoeficientesEnteros(std::move(simple));
    };
    Racional total = simplifica(funciones.front());
    for (const Racional& función : funciones.subspan(1)) {
        contexto.Vigila();
        const Racional simple = simplifica(función);
        total = {numeradores(contexto, total.numerador, simple.numerador),
                 denominadores(contexto, total.denominador, simple.denominador)};
    }
    return total;
}

Polinomio EnEnteros(const Polinomio& p) {
    return EsDeCoeficientesEnteros(p) ? p : DevPrimitivo(p);
}

} // namespace

Racional DevMCDRacionales(Contexto& contexto, std::span<const Racional> funciones) {
    Racional mcd =
        SimplificaRacional(contexto, ReúneLista(contexto, funciones, MCDPolinomios, MCMPolinomios));
    if (EsPolinomio(mcd) && !EsDeDecimales(contexto, mcd.numerador))
        mcd.numerador = DevPrimitivo(mcd.numerador);
    return mcd;
}

Racional DevMCMRacionales(Contexto& contexto, std::span<const Racional> funciones) {
    const auto numeradores = [](Contexto& c, const Polinomio& p, const Polinomio& q) {
        return MCMPolinomios(c, EnEnteros(p), EnEnteros(q));
    };
    Racional mcm = ReúneLista(contexto, funciones, numeradores, MCDConContenido);
    if (EsCero(mcm.numerador) || EsConstante(mcm.denominador))
        mcm.denominador = DevConstante(1);
    mcm = {Positivo(EnEnteros(mcm.numerador)), Positivo(mcm.denominador)};
    return ConCoeficientesLegibles(contexto, std::move(mcm));
}

} // namespace quiralto
