#include "engine/evaluacion/raices.h"

#include "engine/evaluacion/evalua.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <limits>

namespace quiralto {
namespace {

// The sign of the program's value at x, or none where it has no value.
std::optional<int> DevSigno(Contexto& contexto, Programa& programa, double x) {
    contexto.Vigila();
    contexto.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto, programa, x);
    if (contexto.ErrorCódigo != SinFallo) {
        contexto.ErrorCódigo = SinFallo;
        return std::nullopt;
    }
    return (valor > 0) - (valor < 0);
}

} // namespace

std::optional<Solución> BuscaSolución(Contexto& contexto, Programa& programa, double a, double b,
                                      double h) {
    b = CompruebaFinito(b + h);
    std::optional<int> signo;
    while (a <= b && !(signo = DevSigno(contexto, programa, a))) {
        if (a + h == a)
            return std::nullopt;
        a += h;
    }
    if (!signo)
        return std::nullopt;
    // Once a change of sign has been seen no step goes past it: the rounding of a sum could
    // otherwise step over a point where f only touches 0 and walk on with a step near nothing.
    double cambio = std::numeric_limits<double>::infinity();
    for (double x0 = a; a <= b;) {
        a = std::min(x0 + h, cambio);
        if (a == x0)
            return Solución{x0, TextoResultado(x0, contexto.DígitosRedondeo)};
        const std::optional<int> nuevo = DevSigno(contexto, programa, a);
        if (!nuevo || *nuevo == *signo) {
            x0 = a;
        } else {
            cambio = a;
            h /= 2;
        }
    }
    return std::nullopt;
}

std::optional<double> DevSiguienteComienzo(const Solución& solución, double h) {
    for (const double origen : {Val(solución.texto), solución.raíz})
        if (origen + h > solución.raíz)
            return origen + h;
    return std::nullopt;
}

} // namespace quiralto
