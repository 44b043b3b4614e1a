#include "commands/desarrollos.h"

#include "commands/datos_funcion.h"
#include "commands/letras.h"
#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/compila.h"

namespace quiralto {
namespace {

using Desarrollo = std::string (*)(Contexto&, const Programa&);

void ResolverDesarrollo(Contexto& contexto, Hoja& hoja, Desarrollo desarrolla) {
    const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::Función);
    if (!datos)
        return;
    const Programa programa = CompilaExpresión(datos->función);
    hoja.texto += "\r\n\r\n";
    hoja.texto += "'Desarrollo :" + desarrolla(contexto, programa);
}

void ResolverDesarrolloMultivariable(Contexto& contexto, Hoja& hoja, Desarrollo desarrolla) {
    const auto función = CargaFunciónMultivariable(contexto, hoja);
    if (!función)
        return;
    const Programa programa = CompilaExpresión(*función);
    hoja.texto += "\r\n\r\n";
    hoja.texto += "'Desarrollo : " + SustituyeSln(desarrolla(contexto, programa));
}

} // namespace

void ResolverDesarrolloCompleto(Contexto& contexto, Hoja& hoja) {
    ResolverDesarrollo(contexto, hoja, DesarrollaCompleto);
}

void ResolverDesarrolloSimplificado(Contexto& contexto, Hoja& hoja) {
    ResolverDesarrollo(contexto, hoja, DesarrollaSimplificado);
}

void ResolverDesarrolloCompletoMultivariable(Contexto& contexto, Hoja& hoja) {
    ResolverDesarrolloMultivariable(contexto, hoja, DesarrollaCompleto);
}

void ResolverDesarrolloSimplificadoMultivariable(Contexto& contexto, Hoja& hoja) {
    ResolverDesarrolloMultivariable(contexto, hoja, DesarrollaSimplificado);
}

std::optional<std::string> CargaFunciónMultivariable(Contexto& contexto, Hoja& hoja) {
    auto datos = CargaDatos<DatosMultivariable>(contexto, hoja, FormaMultivariable);
    return datos ? std::optional(std::move(datos->función)) : std::nullopt;
}

} // namespace quiralto
