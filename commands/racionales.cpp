#include "commands/racionales.h"

#include "commands/datos_funcion.h"
#include "engine/evaluacion/raices.h"
#include "engine/lenguaje/compila.h"
#include "engine/polinomios/evalua_racional.h"
#include "engine/polinomios/factores.h"
#include "engine/polinomios/mcd_racionales.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quiralto {
namespace {

// Reads the functions of all the instruction lines, separated by commas, by lines or by both. None:
// a message has been shown, and the line is selected where a function of it is refused.
std::optional<std::vector<Racional>> CargaFuncionesRacionales(Contexto& contexto, Hoja& hoja) {
    const Lectura lectura = LeeDatos(contexto, FormaRacionales, hoja.líneas);
    std::vector<Racional> funciones;
    // Those in front of a refused one may be refused themselves.
    for (const auto& [función, línea] : std::get<DatosFunciones>(lectura.datos).funciones) {
        contexto.Vigila();
        std::optional<Racional> racional = EvalúaRacional(contexto, CompilaExpresión(función));
        if (!racional) {
            SeleccionaLínea(hoja, hoja.líneas[línea]);
            return std::nullopt;
        }
        funciones.push_back(*std::move(racional));
    }
    return Acepta(contexto, hoja, lectura.rechazo) ? std::optional(std::move(funciones))
                                                   : std::nullopt;
}

using OperaciónDeLista = Racional (*)(Contexto&, std::span<const Racional>);

void ReduceLista(Contexto& contexto, Hoja& hoja, std::string_view título,
                 OperaciónDeLista operación) {
    const auto funciones = CargaFuncionesRacionales(contexto, hoja);
    if (!funciones)
        return;
    const Racional resultado = operación(contexto, *funciones);
    ((hoja.texto += "\r\n\r\n") += título) += SeparaRacional(contexto, resultado);
}

} // namespace

void ResolverSimplificarFunciónRacional(Contexto& contexto, Hoja& hoja) {
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::Función);
    if (!datos)
        return;
    const auto racional = EvalúaRacional(contexto, CompilaExpresión(datos->función));
    if (!racional)
        return;
    const Racional simple = SimplificaRacional(contexto, *racional);
    hoja.texto += EsPolinomio(simple) ? "\r\n\r\nSimplificación :" : "\r\n\r\n'Simplificación :";
    hoja.texto += SeparaRacional(contexto, simple);
}

void ResolverFactorizarFunciónRacional(Contexto& contexto, Hoja& hoja) {
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYExtremos);
    if (!datos)
        return;
    const double a = datos->primero;
    const double b = datos->segundo;
    const double h = CompruebaFinito(b - a) / PasosDeBúsqueda;
    auto racional = EvalúaRacional(contexto, CompilaExpresión(datos->función));
    if (!racional)
        return;
    const Racional r = ConCoeficientesLegibles(contexto, *std::move(racional));
    const std::string numerador = FactorizaPolinomio(contexto, r.numerador, a, b, h);
    const std::string denominador = FactorizaPolinomio(contexto, r.denominador, a, b, h);
    hoja.texto += "\r\n\r\n'Factorización :(" + numerador + ")/(" + denominador + ')';
}

void ResolverMáximoComúnDivisorFunciónRacional(Contexto& contexto, Hoja& hoja) {
    ReduceLista(contexto, hoja, "'Máximo común divisor hallado :", DevMCDRacionales);
}

void ResolverMínimoComúnMúltiploFunciónRacional(Contexto& contexto, Hoja& hoja) {
    ReduceLista(contexto, hoja, "'Mínimo común múltiplo hallado :", DevMCMRacionales);
}

} // namespace quiralto
