#include "engine/evaluacion/evalua.h"

#include "engine/evaluacion/aritmetica.h"
#include "engine/evaluacion/bloque.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <random>

namespace quiralto {
namespace {

double DevSln(Contexto& contexto, double a) {
    return a == 0 ? std::uniform_real_distribution<double>(0, 1)(contexto.generador) : a;
}

// Why an instruction gave `resultado`, which is not finite.
Fallo DevFallo(Operación código, double izquierdo, double derecho, double resultado) {
    const Fallo desbordaOInválido = std::isnan(resultado) ? ArgumentoInválido : Desbordamiento;
    switch (código) {
    case Operación::Cociente:
        return derecho == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Potencia:
        return izquierdo == 0 && derecho < 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Log:
    case Operación::Sqr:
        return ArgumentoInválido;
    case Operación::Sec:
        return std::cos(derecho) == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Cosec:
        return std::sin(derecho) == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Arcsin:
        return std::isnan(resultado) ? ArgumentoInválido : DivisiónPorCero;
    default:
        return desbordaOInválido;
    }
}

} // namespace

double EvalúaPrograma(Contexto& contexto, Programa& programa, double x) {
    double* const registros = programa.registros.data();
    registros[0] = x;
    for (const Instrucción& instrucción : programa.instrucciones) {
        const double izquierdo = registros[instrucción.izquierdo];
        const double derecho = registros[instrucción.derecho];
        double& resultado = registros[instrucción.resultado];
        resultado = Opera(instrucción.código, izquierdo, derecho, resultado,
                          [&](double a) { return DevSln(contexto, a); });
        if (!std::isfinite(resultado)) [[unlikely]] {
            contexto.ErrorCódigo = DevFallo(instrucción.código, izquierdo, derecho, resultado);
            return std::numeric_limits<double>::quiet_NaN();
        }
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

void EvalúaBloque(Contexto& contexto, const Programa& programa, std::span<const double> equis,
                  std::span<double> valores, std::span<std::int16_t> fallos) {
    assert(valores.size() == equis.size() && fallos.size() == equis.size());
    const std::int16_t errorAnterior = contexto.ErrorCódigo;
    Programa copia; // for the values that need the scalar run
    const auto evalúaUno = [&](std::size_t i) {
        if (copia.registros.empty())
            copia = programa;
        contexto.ErrorCódigo = SinFallo;
        valores[i] = EvalúaPrograma(contexto, copia, equis[i]);
        fallos[i] = contexto.ErrorCódigo;
    };
    Plan plan;
    const bool porBloques = PlaneaBloque(programa, plan);
    EjecutorDeBloques ejecutor(plan);
    for (std::size_t desde = 0; desde < equis.size(); desde += TamañoFila) {
        contexto.Vigila();
        const std::size_t cantidad = std::min(TamañoFila, equis.size() - desde);
        if (porBloques) {
            ejecutor.Ejecuta(equis.subspan(desde, cantidad), valores.subspan(desde, cantidad));
            std::fill_n(fallos.subspan(desde).begin(), cantidad, std::int16_t{SinFallo});
            if (!ejecutor.HayFallos())
                continue;
        }
        for (std::size_t i = 0; i < cantidad; ++i)
            if (!porBloques || ejecutor.HayFallo(i))
                evalúaUno(desde + i);
    }
    contexto.ErrorCódigo = errorAnterior;
}

} // namespace quiralto
