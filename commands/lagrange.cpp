#include "commands/lagrange.h"

#include "commands/formas.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/evalua_racional.h"

#include <span>
#include <string>
#include <vector>

namespace quiralto {
namespace {

// The sum of yi*(X-xj)/(xi-xj)*... over all j other than i.
std::string DevSumaLagrange(Contexto& contexto, std::span<const double> números) {
    std::string suma;
    for (std::size_t i = 0; i < números.size(); i += 2) {
        contexto.Vigila();
        if (i > 0)
            suma += '+';
        suma += TextoNúmero(números[i + 1]);
        for (std::size_t j = 0; j < números.size(); j += 2) {
            if (j == i)
                continue;
            (suma += "*(X-").append(TextoNúmero(números[j])) += ")/";
            suma += TextoNúmero(CompruebaFinito(números[i] - números[j]));
        }
        if (suma.size() > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    }
    return SimplificaSignos(suma);
}

// Whatever fails here is an unexpected error: the user has typed no formula.
std::string DevPolLagrange(Contexto& contexto, std::span<const double> números) {
    const Programa programa = CompilaExpresión(DevSumaLagrange(contexto, números));
    return SeparaRacional(contexto,
                          SimplificaRacional(contexto, CalculaRacional(contexto, programa)));
}

} // namespace

void ResolverPolinomioLagrange(Contexto& contexto, Hoja& hoja) {
    const auto números = CargaDatos<DatosNúmeros>(contexto, hoja, FormaPuntos);
    if (!números)
        return;
    const std::string polinomio = DevPolLagrange(contexto, *números);
    hoja.texto += "\r\n\r\n'Polinomio de Lagrange: \r\n'" + polinomio;
}

} // namespace quiralto
