#include "commands/calculo.h"

#include "commands/datos_funcion.h"
#include "engine/desarrollo/desarrollo.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/polinomio.h"

#include <optional>

namespace quiralto {
namespace {

// The line y = pendiente*X + corte in the display form of polynomials.
std::string TextoRecta(const Contexto& contexto, double pendiente, double corte) {
    return EscribePolinomio(
        contexto, Monomios<double>{{1, CompruebaFinito(pendiente)}, {0, CompruebaFinito(corte)}});
}

} // namespace

void ResolverDerivada(Contexto& contexto, Hoja& hoja) {
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::Función);
    if (!datos)
        return;
    const Programa programa = CompilaExpresión(Deriva(contexto, datos->función));
    const std::string derivada = DesarrollaSimplificado(contexto, programa);
    hoja.texto += "\r\n\r\n'Derivada : \r\n'" + derivada;
}

void ResolverTangente(Contexto& contexto, Hoja& hoja) {
    hoja.texto += "\r\n\r\n";
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYPunto);
    if (!datos)
        return;
    const double x0 = datos->primero;
    Programa f = CompilaExpresión(datos->función);
    const std::optional<double> y0 = DevValor(contexto, f, x0);
    if (!y0) {
        hoja.texto += "'No existe tangente en el punto";
        return;
    }
    Programa derivada = CompilaExpresión(Deriva(contexto, datos->función));
    // Where the slope has no value the line has what the run left in its last register.
    const double pendiente = EvalúaPrograma(contexto, derivada, x0);
    contexto.ErrorCódigo = SinFallo;
    hoja.texto += "'Tangente :" + TextoRecta(contexto, pendiente, *y0 - pendiente * x0);
}

void ResolverSecante(Contexto& contexto, Hoja& hoja) {
    hoja.texto += "\r\n\r\n";
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYExtremos);
    if (!datos)
        return;
    const double a = datos->primero;
    const double b = datos->segundo;
    Programa f = CompilaExpresión(datos->función);
    const std::optional<double> enA = DevValor(contexto, f, a);
    const std::optional<double> enB = enA ? DevValor(contexto, f, b) : std::nullopt;
    if (!enB) {
        hoja.texto += "'No se puede trazar la secante pués para " +
                      TextoNúmeroConBlanco(enA ? b : a) + " no hay valor real definido";
        return;
    }
    const double pendiente = (*enB - *enA) / (b - a);
    hoja.texto += "'Secante :" + TextoRecta(contexto, pendiente, *enA - pendiente * a);
}

} // namespace quiralto
