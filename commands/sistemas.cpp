#include "commands/sistemas.h"

#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "engine/sistemas/ecuacion_lineal.h"
#include "engine/sistemas/sistema_lineal.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quiralto {
namespace {

std::string SinBlancos(std::string_view línea) {
    std::string limpia(línea);
    std::erase_if(limpia, [](char c) { return c == ' ' || c == '\t'; });
    return limpia;
}

std::optional<EcuaciónLineal> LeeEcuación(Contexto& contexto, std::string_view línea) {
    const std::string texto = Sustituye1(SinBlancos(línea));
    if (!IgualdadCorrecta(contexto, texto))
        return std::nullopt;
    const std::size_t igual = texto.find('=');
    std::string izquierda = texto.substr(0, igual);
    std::string derecha = texto.substr(igual + 1);
    const GuardaPrefijo prefijo(contexto, "SLN(");
    if (!Sintaxis(contexto, izquierda) || !Sintaxis(contexto, derecha))
        return std::nullopt;
    return LeeEcuaciónLineal(contexto, SimplificaSignos(izquierda + "-(" + derecha + ")"));
}

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
    std::vector<EcuaciónLineal> ecuaciones;
    ecuaciones.reserve(hoja.líneas.size());
    for (const std::string& línea : hoja.líneas) {
        contexto.Vigila();
        std::optional<EcuaciónLineal> ecuación = LeeEcuación(contexto, línea);
        if (!ecuación)
            return SeleccionaLínea(hoja, línea);
        ecuaciones.push_back(std::move(*ecuación));
    }
    if (ecuaciones.empty())
        return contexto.Avisa("Se requiere al menos una ecuación lineal, el formato de la "
                              "las incógnitas debe ser X(i), donde i es un valor entre 1 y 256 "
                              " por ejemplo :\r\n\r\n2*X(1)+X(2)=3\r\nX(1)-X(2)=-3/2");
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

std::string Sustituye1(std::string_view texto) {
    std::string sustituido;
    sustituido.reserve(texto.size() + texto.size() / 2);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool incógnita =
            (texto[i] == 'X' || texto[i] == 'x') && i + 1 < texto.size() && texto[i + 1] == '(';
        if (incógnita)
            sustituido += "SLN";
        else
            sustituido += texto[i];
    }
    return sustituido;
}

bool IgualdadCorrecta(Contexto& contexto, std::string_view texto) {
    const std::size_t igual = texto.find('=');
    if (texto.starts_with('=') || texto.ends_with('='))
        contexto.Avisa("No se permite comenzar o terninar con el signo '='");
    else if (igual == std::string_view::npos)
        contexto.Avisa("Esta expresión carece del signo de igualdad");
    else if (texto.find('=', igual + 1) != std::string_view::npos)
        contexto.Avisa("Sólo se permite un sólo signo igual");
    else
        return true;
    return false;
}

} // namespace quiralto
