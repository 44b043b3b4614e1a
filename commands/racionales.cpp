#include "commands/racionales.h"

#include "commands/datos_funcion.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/polinomios/factores.h"
#include "engine/polinomios/racional.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quiralto {
namespace {

constexpr int Pasos = 1000; // of the search for roots

// Reads the functions of all the instruction lines, separated by commas, by lines or by both. None:
// a message has been shown, and the line is selected where a function of it is refused.
std::optional<std::vector<Racional>> CargaFuncionesRacionales(Contexto& contexto, Hoja& hoja) {
    if (hoja.líneas.empty()) {
        contexto.Avisa("Se eperabán una lista de funciones racionales "
                       "separadas por comas, en la forma f(x),g(x),..., o bien "
                       "separadas una o más líneas una de otra.");
        return std::nullopt;
    }
    std::vector<Racional> funciones;
    for (const std::string& línea : hoja.líneas) {
        for (std::size_t desde = 0, coma = 0; coma != std::string::npos; desde = coma + 1) {
            contexto.Vigila();
            coma = línea.find(',', desde);
            std::string función = línea.substr(desde, coma - desde);
            std::optional<Racional> racional;
            if (Sintaxis(contexto, función))
                racional = EvalúaRacional(contexto, CompilaExpresión(función));
            if (!racional) {
                SeleccionaLínea(hoja, línea);
                return std::nullopt;
            }
            funciones.push_back(*std::move(racional));
        }
    }
    return funciones;
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
    const std::string simple = SeparaRacional(contexto, SimplificaRacional(contexto, *racional));
    const bool esCociente = simple.find('/') != std::string::npos;
    (hoja.texto += esCociente ? "\r\n\r\n'Simplificación :" : "\r\n\r\nSimplificación :") += simple;
}

void ResolverFactorizarFunciónRacional(Contexto& contexto, Hoja& hoja) {
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYExtremos);
    if (!datos)
        return;
    const double a = datos->primero;
    const double b = datos->segundo;
    const double h = CompruebaFinito(b - a) / Pasos;
    auto racional = EvalúaRacional(contexto, CompilaExpresión(datos->función));
    if (!racional)
        return;
    const Racional r = ConDenominadorLegible(contexto, *std::move(racional));
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
