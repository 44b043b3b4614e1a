#include "engine/evaluacion/evalua.h"

#include "engine/evaluacion/bloque.h"
#include "engine/evaluacion/opera.h"
#include "engine/evaluacion/reduce.h"

#include <algorithm>
#include <cassert>
#include <cmath>
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
          porBloques(reducido && PlaneaBloque(programa, plan)), ejecutor(plan) {}

    Programa programa; // for the values that need the scalar run
    Plan plan;
    bool porBloques;
    EjecutorDeBloques ejecutor;
};

EvaluadorDeBloques::EvaluadorDeBloques(const Programa& programa)
    : partes_(std::make_unique<Partes>(programa)) {
}

EvaluadorDeBloques::~EvaluadorDeBloques() = default;

std::optional<double> EvaluadorDeBloques::DevValor(Contexto& contexto, double x) {
    return quiralto::DevValor(contexto, partes_->programa, x);
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
    auto& [programa, plan, porBloques, ejecutor] = *partes_;
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
