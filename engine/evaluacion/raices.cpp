#include "engine/evaluacion/raices.h"

#include "engine/numeros/numero.h"

#include <algorithm>

namespace quiralto {
namespace {

// Points that are looked at one by one before the walk goes on by blocks, and how large a block is
// at first and at most: roots that stand close make it no slower, and a long way is soon gone.
constexpr std::size_t PrimerosSueltos = 4;
constexpr std::size_t PrimerBloque = 16;
constexpr std::size_t MáximoBloque = 256;

int Signo(double valor) {
    return (valor > 0) - (valor < 0);
}

} // namespace

BuscadorDeSoluciones::BuscadorDeSoluciones(Contexto& contexto, const Programa& programa)
    : contexto_(contexto), programa_(programa), bloques_(programa) {
}

// The sign of the program's value at x, or none where it has no value.
std::optional<int> BuscadorDeSoluciones::DevSigno(double x) {
    contexto_.Vigila();
    const std::optional<double> valor = DevValor(contexto_, programa_, x);
    return valor ? std::optional(Signo(*valor)) : std::nullopt;
}

// The points that follow x0 as long as they may be reached: up to the first beyond b, and up to the
// first that the step no longer changes.
void BuscadorDeSoluciones::EvalúaPasos(double x0, double b, double h, std::size_t cantidad) {
    equis_.clear();
    for (double x = x0; x <= b && equis_.size() < cantidad && x + h != x; x += h)
        equis_.push_back(x + h);
    valores_.resize(equis_.size());
    fallos_.resize(equis_.size());
    if (equis_.size() >= PrimerBloque) {
        bloques_.Evalúa(contexto_, equis_, valores_, fallos_);
        return;
    }
    for (std::size_t i = 0; i < equis_.size(); ++i) {
        contexto_.Vigila();
        const std::optional<double> valor = DevValor(contexto_, programa_, equis_[i]);
        valores_[i] = valor.value_or(0);
        fallos_[i] = valor ? SinFallo : ArgumentoInválido;
    }
}

// The step from a on in which the sign changes, or that no longer changes the Double.
std::optional<BuscadorDeSoluciones::Cambio> BuscadorDeSoluciones::BuscaCambio(double a, double b,
                                                                              double h, int signo) {
    double x0 = a;
    for (std::size_t cantidad = 1, sueltos = 0; x0 <= b;) {
        EvalúaPasos(x0, b, h, cantidad);
        if (equis_.empty())
            return Cambio{x0, x0};
        for (std::size_t i = 0; i < equis_.size(); ++i) {
            if (fallos_[i] == SinFallo && Signo(valores_[i]) != signo)
                return Cambio{x0, equis_[i]};
            x0 = equis_[i];
        }
        if (++sueltos >= PrimerosSueltos)
            cantidad = std::clamp(2 * cantidad, PrimerBloque, MáximoBloque);
    }
    return std::nullopt;
}

std::optional<Solución> BuscadorDeSoluciones::Busca(double a, double b, double h) {
    b = CompruebaFinito(b + h);
    std::optional<int> signo;
    while (a <= b && !(signo = DevSigno(a))) {
        if (a + h == a)
            return std::nullopt;
        a += h;
    }
    if (!signo)
        return std::nullopt;
    std::optional<Cambio> cambio = BuscaCambio(a, b, h, *signo);
    if (!cambio || cambio->después > b)
        return std::nullopt;
    // No step goes past the change: the rounding of a sum could otherwise step over a point where
    // f only touches 0 and walk on with a step near nothing. The change itself is not asked again.
    auto [x0, después] = *cambio;
    for (;;) {
        const double x = std::min(x0 + h, después);
        if (x == x0)
            return Solución{x0, TextoResultado(x0, contexto_.DígitosRedondeo)};
        const std::optional<int> nuevo = x == después ? std::nullopt : DevSigno(x);
        if (x != después && (!nuevo || *nuevo == *signo)) {
            x0 = x;
        } else {
            después = x;
            h /= 2;
        }
    }
}

std::optional<Solución> BuscaSolución(Contexto& contexto, const Programa& programa, double a,
                                      double b, double h) {
    return BuscadorDeSoluciones(contexto, programa).Busca(a, b, h);
}

std::optional<double> DevSiguienteComienzo(const Solución& solución, double h) {
    for (const double origen : {Val(solución.texto), solución.raíz})
        if (origen + h > solución.raíz)
            return origen + h;
    return std::nullopt;
}

} // namespace quiralto
