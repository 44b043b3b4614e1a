#include "engine/evaluacion/raices.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// How many points of the walk are run over at once: at first as many as the last search but one
// took, since a function that swings goes up and down in turns, and then more and more, so that a
// long way is soon gone.
constexpr std::size_t MenorBloque = 4;
constexpr std::size_t MayorPrimerBloque = 64;
constexpr std::size_t MayorBloque = 256;

int Signo(double valor) {
    return (valor > 0) - (valor < 0);
}

} // namespace

Solución DevSolución(double raíz, int dígitosRedondeo) {
    Solución solución{raíz, TextoResultado(raíz, dígitosRedondeo), 0};
    solución.redondeada = Val(solución.texto);
    return solución;
}

BuscadorDeSoluciones::BuscadorDeSoluciones(Contexto& contexto, const Programa& programa)
    : contexto_(contexto), función_(programa) {
}

// The points of the walk from x on: up to b, and up to the first that the step does not change.
void BuscadorDeSoluciones::EvalúaPasos(double x, double b, double h, std::size_t cantidad) {
    equis_.resize(cantidad);
    std::size_t puntos = 0;
    while (x <= b && puntos < cantidad) {
        equis_[puntos++] = x;
        if (x + h == x)
            break;
        x += h;
    }
    equis_.resize(puntos);
    valores_.resize(equis_.size());
    fallos_.resize(equis_.size());
    función_.Evalúa(contexto_, equis_, valores_, fallos_, Causa::Ninguna);
}

// The first step, from the first point with a value on, in which the sign changes or that does not
// change the Double.
std::optional<BuscadorDeSoluciones::Cambio> BuscadorDeSoluciones::BuscaCambio(double a, double b,
                                                                              double h) {
    std::optional<int> signo;
    double antes = a;
    auto& [últimos, penúltimos] = puntosAnteriores_;
    std::size_t cantidad =
        std::clamp(std::min(penúltimos, 2 * últimos) + 1, MenorBloque, MayorPrimerBloque);
    penúltimos = std::exchange(últimos, 0);
    for (double x = a; x <= b; x = antes + h) {
        EvalúaPasos(x, b, h, cantidad);
        for (std::size_t i = 0; i < equis_.size(); ++i, ++últimos) {
            const int suyo = Signo(valores_[i]);
            if (fallos_[i] == SinFallo && suyo != signo.value_or(suyo))
                return Cambio{antes, equis_[i], *signo};
            if (fallos_[i] == SinFallo)
                signo = suyo;
            antes = equis_[i];
        }
        if (antes + h == antes)
            return signo ? std::optional(Cambio{antes, antes, *signo}) : std::nullopt;
        cantidad = std::min(cantidad * 5 / 4, MayorBloque);
    }
    return std::nullopt;
}

std::optional<Solución> BuscadorDeSoluciones::Busca(double a, double b, double h,
                                                    Precisión precisión) {
    const std::optional<Cambio> cambio = BuscaCambio(a, CompruebaFinito(b + h), h);
    return cambio ? std::optional(Estrecha(*cambio, h, precisión)) : std::nullopt;
}

// No step goes past the change: the rounding of a sum could otherwise step over a point where f
// only touches 0 and walk on with a step near nothing. The change itself is not asked again.
Solución BuscadorDeSoluciones::Estrecha(Cambio cambio, double h, Precisión precisión) {
    auto& [antes, después, signo] = cambio;
    // Doubles further from each other hardly have a text in common.
    const double ancho =
        precisión == Precisión::Texto ? std::pow(10, -contexto_.DígitosRedondeo) : 0;
    for (double paso = h;;) {
        const double x = std::min(antes + paso, después);
        if (x == antes)
            return DevSolución(antes, contexto_.DígitosRedondeo);
        if (x == después) {
            paso /= 2;
            continue;
        }
        contexto_.Vigila();
        const double valor = función_.DevValor(contexto_, x);
        if (std::isnan(valor) || Signo(valor) == signo) {
            antes = x;
        } else {
            después = x;
            paso /= 2;
        }
        if (después - antes < ancho)
            if (std::optional<Solución> cierta = DevSiCierta(cambio, h))
                return *std::move(cierta);
    }
}

// The solution where the last Double before the change can have but one text, and the start behind
// it is beyond the change, so that it does not depend on that Double. Between whole numbers, which
// are not rounded, the rounding keeps the order.
std::optional<Solución> BuscadorDeSoluciones::DevSiCierta(const Cambio& cambio, double paso) const {
    const auto [antes, después, signo] = cambio;
    const int dígitos = contexto_.DígitosRedondeo;
    if (Redondea(antes, dígitos) != Redondea(después, dígitos) ||
        std::trunc(antes) != std::trunc(después) || antes == std::trunc(antes))
        return std::nullopt;
    Solución solución = DevSolución(antes, dígitos);
    if (solución.redondeada + paso > después)
        return solución;
    return std::nullopt;
}

std::optional<Solución> BuscaSolución(Contexto& contexto, const Programa& programa, double a,
                                      double b, double h) {
    return BuscadorDeSoluciones(contexto, programa).Busca(a, b, h, Precisión::ÚltimoDoble);
}

std::optional<double> DevSiguienteComienzo(const Solución& solución, double h) {
    for (const double origen : {solución.redondeada, solución.raíz})
        if (origen + h > solución.raíz)
            return origen + h;
    return std::nullopt;
}

} // namespace quiralto
