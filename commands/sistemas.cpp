#include "commands/sistemas.h"

#include "commands/formas.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "engine/sistemas/ecuacion_lineal.h"
#include "engine/sistemas/sistema_lineal.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quiralto {
namespace {

void EscribeTérmino(std::string& salida, double coeficiente, std::size_t índice, bool primero) {
    if (coeficiente > 0 && !primero)
        salida += '+';
    if (coeficiente == -1)
        salida += '-';
    else if (coeficiente != 1)
        (salida += TextoNúmero(coeficiente)) += '*';
    ((salida += "SLN(") += std::to_string(índice)) += ')';
}

// The unknown as its row gives it: the constant, then the free unknowns in ascending order.
void EscribeSolución(std::string& salida, const SistemaLineal& sistema, std::size_t fila,
                     std::size_t líder, int dígitos) {
    const double divisor = sistema.Elemento(fila, líder);
    const double constante =
        Redondea(CompruebaFinito(sistema.Independiente(fila) / divisor), dígitos);
    const std::size_t principio = salida.size();
    if (constante != 0)
        salida += TextoNúmero(constante);
    for (std::size_t c = 0; c < sistema.Incógnitas(); ++c) {
        const double elemento = c == líder ? 0 : sistema.Elemento(fila, c);
        if (elemento == 0)
            continue;
        const double coeficiente = Redondea(CompruebaFinito(-elemento / divisor), dígitos);
        if (coeficiente != 0)
            EscribeTérmino(salida, coeficiente, c + 1, salida.size() == principio);
    }
    if (salida.size() == principio)
        salida += '0';
}

} // namespace

void ResolverSistemaLineal1(Contexto& contexto, Hoja& hoja) {
    const GuardaPrefijo prefijo(contexto, "SLN(");
    const Lectura lectura = LeeDatos(contexto, FormaEcuaciones, hoja.líneas);
    std::vector<EcuaciónLineal> ecuaciones;
    // Those in front of a refused one may be refused themselves.
    for (const auto& [izquierda, derecha] : std::get<DatosEcuaciones>(lectura.datos).ecuaciones) {
        contexto.Vigila();
        std::optional<EcuaciónLineal> ecuación =
            LeeEcuaciónLineal(contexto, SimplificaSignos(izquierda + "-(" + derecha + ")"));
        if (!ecuación)
            return SeleccionaLínea(hoja, hoja.líneas[ecuaciones.size()]);
        ecuaciones.push_back(std::move(*ecuación));
    }
    if (!Acepta(contexto, hoja, lectura.rechazo))
        return;
    SistemaLineal sistema(contexto, ecuaciones);
    sistema.Elimina();
    std::size_t fila = 0;
    if (sistema.SistemaCompatibleSln(fila))
        hoja.texto += ResolverSistemaLineal4(contexto, sistema);
    else
        hoja.texto +=
            "\r\n'El sistema anterior es imcompatible en la ecuación : " + std::to_string(fila);
}

std::string ResolverSistemaLineal4(Contexto& contexto, const SistemaLineal& sistema) {
    const auto líderes = sistema.DevLíderes();
    std::string salida = "\r\n\r\n'Soluciones halladas :\r\n";
    for (std::size_t j = sistema.Incógnitas(); j-- > 0;) {
        contexto.Vigila();
        const std::string índice = std::to_string(j + 1);
        salida += "\r\n'X(" + índice + ")=";
        if (líderes[j])
            EscribeSolución(salida, sistema, *líderes[j], j, contexto.DígitosRedondeo);
        else
            salida += "SLN(" + índice + ")";
    }
    salida += "\r\n";
    if (salida.find("SLN") != std::string::npos)
        salida += "\r\n'SLN(i), indica que la solución de la variable 'X(i)' "
                  "es un número real cualquiera.";
    return salida;
}

} // namespace quiralto
