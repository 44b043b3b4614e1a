#include "commands/sistemas.h"

#include "commands/formas.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/lenguaje/termino_texto.h"
#include "engine/numeros/numero.h"
#include "engine/sistemas/ecuacion_lineal.h"
#include "engine/sistemas/ecuacion_llana.h"

#include <optional>
#include <vector>

namespace quiralto {
namespace {

// The equation of an instruction line; none where it was refused, which has been shown.
std::optional<EcuaciónLineal> LeeEcuación(Contexto& contexto, Hoja& hoja, std::size_t línea) {
    const std::string& texto = hoja.líneas[línea];
    if (auto llana = LeeEcuaciónLlana(contexto, texto))
        return llana;
    Lectura lectura = LeeDatos(contexto, FormaEcuaciones, std::span(&texto, 1));
    if (lectura.rechazo)
        lectura.rechazo->línea = línea;
    if (!Acepta(contexto, hoja, lectura.rechazo))
        return std::nullopt;
    const auto& [izquierda, derecha] = std::get<DatosEcuaciones>(lectura.datos).ecuaciones.front();
    const GuardaPrefijo prefijo(contexto, std::string(PrefijoSln));
    auto ecuación = LeeEcuaciónLineal(contexto, SimplificaSignos(izquierda + "-(" + derecha + ")"));
    if (!ecuación)
        SeleccionaLínea(hoja, texto);
    return ecuación;
}

std::string TextoSln(std::size_t columna) {
    return std::string(PrefijoSln) + std::to_string(columna + 1) + ')';
}

// Adds coeficiente * literal, rounded, but for what rounding would make 0: that is a fraction.
void EscribeSumando(std::string& salida, const Coeficiente& coeficiente, const std::string& literal,
                    int dígitos, std::size_t principio) {
    const Coeficiente redondo = coeficiente.Escrito(dígitos);
    if (!redondo.EsCero() || !coeficiente.EsExacto() || coeficiente.EsCero())
        return EscribeTérmino(salida, redondo.ADouble(), literal, principio);
    const Coeficiente fracción = DevFracciónEscrita(coeficiente);
    const std::string divisor = '/' + TextoNúmero(fracción.Denominador().ADouble());
    const double numerador = fracción.Numerador().ADouble();
    EscribeTérmino(salida, numerador, literal.empty() ? literal : literal + divisor, principio);
    salida += literal.empty() ? divisor : "";
}

// The unknown as its row gives it: the constant, then the free unknowns in ascending order.
void EscribeSolución(std::string& salida, const SistemaLineal& sistema, std::size_t fila,
                     std::size_t líder, int dígitos) {
    const std::size_t principio = salida.size();
    const std::size_t incógnitas = sistema.Incógnitas();
    EscribeSumando(salida, sistema.Cociente(fila, incógnitas, líder), {}, dígitos, principio);
    for (std::size_t c = 0; c < incógnitas; ++c)
        if (const Coeficiente cociente = sistema.Cociente(fila, c, líder);
            c != líder && !cociente.EsCero())
            EscribeSumando(salida, -cociente, TextoSln(c), dígitos, principio);
    if (salida.size() == principio)
        salida += '0';
}

} // namespace

void ResolverSistemaLineal1(Contexto& contexto, Hoja& hoja) {
    std::vector<EcuaciónLineal> ecuaciones;
    for (std::size_t i = 0; i < hoja.líneas.size(); ++i) {
        contexto.Vigila();
        std::optional<EcuaciónLineal> ecuación = LeeEcuación(contexto, hoja, i);
        if (!ecuación)
            return;
        ecuaciones.push_back(std::move(*ecuación));
    }
    if (ecuaciones.empty())
        return MuestraRechazo(contexto, {.motivo = Motivo::UsoSistema});
    SistemaLineal sistema = ResolverSistemaLineal2(contexto, ecuaciones);
    ResolverSistemaLineal3(contexto, hoja, sistema);
}

SistemaLineal ResolverSistemaLineal2(Contexto& contexto,
                                     std::span<const EcuaciónLineal> ecuaciones) {
    return {contexto, ecuaciones};
}

void ResolverSistemaLineal3(Contexto& contexto, Hoja& hoja, SistemaLineal& sistema) {
    sistema.Elimina();
    std::size_t fila = 0;
    if (sistema.SistemaCompatibleSln(fila))
        hoja.texto += ResolverSistemaLineal4(contexto, sistema);
    else
        hoja.texto +=
            "\r\n'El sistema anterior es imcompatible en la ecuación : " + std::to_string(fila);
}

std::string ResolverSistemaLineal4(Contexto& contexto, const SistemaLineal& sistema) {
    std::string salida = "\r\n\r\n'Soluciones halladas :\r\n";
    for (std::size_t j = sistema.Incógnitas(); j-- > 0;) {
        contexto.Vigila();
        salida += "\r\n'X(" + std::to_string(j + 1) + ")=";
        if (const auto fila = sistema.EsLiderSln(j))
            EscribeSolución(salida, sistema, *fila, j, contexto.DígitosRedondeo);
        else
            salida += TextoSln(j);
    }
    salida += "\r\n";
    if (salida.find("SLN") != std::string::npos)
        salida += "\r\n'SLN(i), indica que la solución de la variable 'X(i)' "
                  "es un número real cualquiera.";
    return salida;
}

} // namespace quiralto
