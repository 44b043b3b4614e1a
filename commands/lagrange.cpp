#include "commands/lagrange.h"

#include "commands/formas.h"
#include "engine/polinomios/interpola.h"

#include <span>
#include <string>

namespace quiralto {
namespace {

std::string DevPolLagrange(Contexto& contexto, std::span<const double> puntos) {
    return EscribePolinomio(contexto, DevPolinomioPorPuntos(contexto, puntos));
}

} // namespace

void ResolverPolinomioLagrange(Contexto& contexto, Hoja& hoja) {
    const auto puntos = CargaDatos<DatosNúmeros>(contexto, hoja, FormaPuntos);
    if (!puntos)
        return;
    const std::string polinomio = DevPolLagrange(contexto, *puntos);
    hoja.texto += "\r\n\r\n'Polinomio de Lagrange: \r\n'" + polinomio;
}

} // namespace quiralto
