#include "engine/evaluacion/evalua.h"

#include "engine/evaluacion/bloque.h"
#include "engine/evaluacion/opera.h"
#include "engine/evaluacion/reduce.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

// Why an instruction gave `resultado`, which is not finite.
Fallo DevFallo(Operación código, double izquierdo, double derecho, double resultado) {
    const DescripciónOperación* const operación = BuscaOperación(código);
    const Fallo suyo = operación != nullptr ? operación->fallo(izquierdo, derecho) : SinFallo;
    if (suyo != SinFallo)
        return suyo;
    return std::isnan(resultado) ? ArgumentoInválido : Desbordamiento;
}

// The value of a row, and into `escondido`, which is 0 else, what is not finite there and the row
// could hide.
template <std::size_t Fila>
double OperaVigilando(double izquierdo, double derecho, double& escondido) {
    constexpr const DescripciónOperación& operación = TablaOperaciones[Fila];
    if constexpr (operación.oculta == Oculta::Ambos)
        escondido += izquierdo * 0;
    if constexpr (operación.oculta != Oculta::Nada)
        escondido += derecho * 0;
    if constexpr (operación.familia == Familia::Símbolo)
        return derecho; // which no reduced program has
    else
        return operación.valor(izquierdo, derecho, nullptr);
}

constexpr double SinValor = std::numeric_limits<double>::quiet_NaN();

// The value at a finite x, or none where there is a fault, of a program that Reduce gives: what is
// no number stays so up to the end, so that only what its reader could hide is looked at on the
// way. The last result is handed on without the way through the registers, on which each call of a
// chain would wait.
double DevValorReducido(std::span<const Instrucción> instrucciones, double* registros, double x) {
    registros[0] = x;
    double escondido = 0;
    double último = x;
    std::int16_t deÚltimo = 0;
    for (const Instrucción& instrucción : instrucciones) {
        const double izquierdo = registros[instrucción.izquierdo];
        double derecho = último;
        if (instrucción.derecho != deÚltimo)
            derecho = registros[instrucción.derecho];
        ConFila(instrucción.código,
                [&](auto fila) { último = OperaVigilando<fila>(izquierdo, derecho, escondido); });
        deÚltimo = instrucción.resultado;
        registros[deÚltimo] = último;
    }
    return escondido + último * 0 == 0 ? último : SinValor;
}

// The instructions of a program, those first whose operands are there first: what a chain of
// functions does not need stands before it and is done in its time, where the sine and the tangent
// would otherwise keep it waiting, which on some machines let all before them finish first.
std::vector<Instrucción> OrdenaPorNiveles(const Programa& programa) {
    std::vector<std::size_t> nivel(programa.registros.size());
    const auto nivelDe = [&](std::int16_t registro) -> std::size_t& {
        return nivel[static_cast<std::size_t>(registro)];
    };
    for (const Instrucción& i : programa.instrucciones)
        nivelDe(i.resultado) = 1 + std::max(nivelDe(i.izquierdo), nivelDe(i.derecho));
    // Those of a level are as many as its place is behind that of the one before.
    std::vector<std::size_t> lugar(programa.instrucciones.size() + 2);
    for (const Instrucción& i : programa.instrucciones)
        ++lugar[nivelDe(i.resultado) + 1];
    std::partial_sum(lugar.begin(), lugar.end(), lugar.begin());
    std::vector<Instrucción> ordenadas(programa.instrucciones.size());
    for (const Instrucción& i : programa.instrucciones)
        ordenadas[lugar[nivelDe(i.resultado)]++] = i;
    return ordenadas;
}

} // namespace

double EvalúaPrograma(Contexto& contexto, Programa& programa, double x) {
    double* const registros = programa.registros.data();
    registros[0] = x;
    for (const Instrucción& instrucción : programa.instrucciones) {
        const double izquierdo = registros[instrucción.izquierdo];
        const double derecho = registros[instrucción.derecho];
        double& registro = registros[instrucción.resultado];
        const double resultado =
            Opera(instrucción.código, izquierdo, derecho, registro, &contexto.generador);
        if (!std::isfinite(resultado)) [[unlikely]] {
            contexto.ErrorCódigo = DevFallo(instrucción.código, izquierdo, derecho, resultado);
            break;
        }
        registro = resultado;
    }
    return registros[programa.Resultado()];
}

std::optional<double> DevValor(Contexto& contexto, Programa& programa, double x) {
    contexto.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto, programa, x);
    if (contexto.ErrorCódigo == SinFallo)
        return valor;
    contexto.ErrorCódigo = SinFallo;
    return std::nullopt;
}

struct EvaluadorDeBloques::Partes {
    explicit Partes(const Programa& original) : Partes(Reduce(original), original) {}
    Partes(const std::optional<Programa>& reducido, const Programa& original)
        : programa(reducido ? *reducido : original),
          porBloques(reducido && PlaneaBloque(programa, plan)), ejecutor(plan) {
        if (reducido)
            porNiveles = OrdenaPorNiveles(programa);
    }

    Programa programa;                   // for the values that need the scalar run
    std::vector<Instrucción> porNiveles; // its instructions, where it is reduced
    Plan plan;
    bool porBloques;
    EjecutorDeBloques ejecutor;
};

EvaluadorDeBloques::EvaluadorDeBloques(const Programa& programa)
    : partes_(std::make_unique<Partes>(programa)) {
}

EvaluadorDeBloques::~EvaluadorDeBloques() = default;

double EvaluadorDeBloques::DevValor(Contexto& contexto, double x) {
    // An X that is no number is no fault, even where an instruction hides it.
    if (partes_->porNiveles.empty() || !std::isfinite(x))
        return quiralto::DevValor(contexto, partes_->programa, x).value_or(SinValor);
    contexto.ErrorCódigo = SinFallo;
    return DevValorReducido(partes_->porNiveles, partes_->programa.registros.data(), x);
}

void EvaluadorDeBloques::Evalúa(Contexto& contexto, std::span<const double> equis,
                                std::span<double> valores, std::span<std::int16_t> fallos,
                                Causa causa) {
    assert(valores.size() == equis.size() && fallos.size() == equis.size());
    const std::int16_t errorAnterior = contexto.ErrorCódigo;
    for (std::size_t desde = 0; desde < equis.size(); desde += TamañoFila) {
        contexto.Vigila();
        const std::size_t cantidad = std::min(TamañoFila, equis.size() - desde);
        EvalúaTramo(contexto, equis.subspan(desde, cantidad), valores.subspan(desde, cantidad),
                    fallos.subspan(desde, cantidad), causa);
    }
    contexto.ErrorCódigo = errorAnterior;
}

void EvaluadorDeBloques::EvalúaTramo(Contexto& contexto, std::span<const double> equis,
                                     std::span<double> valores, std::span<std::int16_t> fallos,
                                     Causa causa) {
    Programa& programa = partes_->programa;
    EjecutorDeBloques& ejecutor = partes_->ejecutor;
    const bool porBloques = partes_->porBloques;
    if (porBloques) {
        ejecutor.Ejecuta(equis, valores);
        std::ranges::fill(fallos, std::int16_t{SinFallo});
        if (!ejecutor.HayFallos())
            return;
    }
    for (std::size_t i = 0; i < equis.size(); ++i) {
        if (porBloques && !ejecutor.HayFallo(i))
            continue;
        if (porBloques && causa == Causa::Ninguna) {
            fallos[i] = ArgumentoInválido;
            continue;
        }
        contexto.ErrorCódigo = SinFallo;
        valores[i] = EvalúaPrograma(contexto, programa, equis[i]);
        fallos[i] = contexto.ErrorCódigo;
    }
}

void EvalúaBloque(Contexto& contexto, const Programa& programa, std::span<const double> equis,
                  std::span<double> valores, std::span<std::int16_t> fallos, Causa causa) {
    EvaluadorDeBloques(programa).Evalúa(contexto, equis, valores, fallos, causa);
}

} // namespace quiralto
