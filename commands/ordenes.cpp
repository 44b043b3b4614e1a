#include "commands/ordenes.h"

#include "commands/analisis.h"
#include "commands/calculo.h"
#include "commands/desarrollos.h"
#include "commands/lagrange.h"
#include "commands/numeros.h"
#include "commands/racionales.h"
#include "commands/sistemas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace quiralto {
namespace {

constexpr std::string_view Números = "Números";
constexpr std::string_view Ecuaciones = "Ecuaciones y funciones";
constexpr std::string_view Numérico = "Cálculo numérico con una variable";
constexpr std::string_view Simbólico = "Cálculo simbólico con una variable";
constexpr std::string_view Multivariable = "Cálculo simbólico con más de una variable";

constexpr std::array Órdenes = {
    Orden{"Resolver sistema lineal", Ecuaciones, "Resolver sistema lineal", FormaEcuaciones,
          "2*X(1)+X(2)=3\r\nX(1)-X(2)=-3/2", ResolverSistemaLineal1},
    Orden{"Hallar máximo común divisor", Números, "Hallar máximo común divisor", FormaEnteros,
          "12,18", ResolverMcdNúmeros},
    Orden{"Hallar mínimo común múltiplo", Números, "Hallar mínimo común múltiplo", FormaEnteros,
          "12,18", ResolverMcmNúmeros},
    Orden{"Hallar divisores", Números, "Hallar divisores", FormaEntero, "360",
          ResolverDivisoresNúmero},
    Orden{"Hallar factores primos", Números, "Descomponer en factores primos", FormaEntero, "360",
          ResolverDescomposiciónEnFactoresPrimos},
    Orden{"Hallar números primos", Números, "Hallar números primos", FormaDosEnteros, "2,100",
          ResolverNúmerosPrimos},
    Orden{"Hallar soluciones ecuación", Numérico, "Hallar soluciones", FormaFunciónYExtremos,
          "X^2-4,-5,5", ResolverSolucionesEcuación},
    Orden{"Hallar máximos", Numérico, "Hallar máximos", FormaFunciónYExtremos, "X^3-3*X,-5,5",
          ResolverMáximosEcuación},
    Orden{"Hallar mínimos", Numérico, "Hallar mínimos", FormaFunciónYExtremos, "X^3-3*X,-5,5",
          ResolverMínimosEcuación},
    Orden{"Hallar puntos de inflexión", Numérico, "Hallar puntos de inflexión",
          FormaFunciónYExtremos, "X^3,-1,1", ResolverPuntosInflexión},
    Orden{"Hallar área", Numérico, "Hallar área en un intervalo", FormaFunciónYExtremos, "X,0,1",
          ResolverArea},
    Orden{"Derivar", Simbólico, "Hallar derivada", FormaFunción, "X*EXP(X)", ResolverDerivada},
    Orden{"Hallar tangente", Simbólico, "Hallar la ecuación de la tangente a un punto",
          FormaFunciónYPunto, "X^2,3", ResolverTangente},
    Orden{"Hallar secante", Simbólico, "Hallar la ecuación de la secante a dos puntos",
          FormaFunciónYExtremos, "X^2,1,3", ResolverSecante},
    Orden{"Desarrollo completo", Simbólico, "Desarrollar totalmente", FormaFunción, "X/2+X^2/3",
          ResolverDesarrolloCompleto},
    Orden{"Desarrollo simplificado", Simbólico, "Desarrollar simplificadamente", FormaFunción,
          "(X+1)^3", ResolverDesarrolloSimplificado},
    Orden{"Simplificar función racional", Simbólico, "Simplificar función racional", FormaFunción,
          "(X^2-3*X+2)/(X^2-1)", ResolverSimplificarFunciónRacional},
    Orden{"Factorizar función racional", Simbólico, "Factorizar función racional",
          FormaFunciónYExtremos, "(X^2-1)/(X^2+X),-10,10", ResolverFactorizarFunciónRacional},
    Orden{"Máximo común divisor función racional", Simbólico,
          "Máximo común divisor funciones racionales", FormaRacionales, "X^3-1,X^2-1",
          ResolverMáximoComúnDivisorFunciónRacional},
    Orden{"Mínimo común múltiplo función racional", Simbólico,
          "Mínimo común múltiplo funciones racionales", FormaRacionales, "X^3-1,X^2-1",
          ResolverMínimoComúnMúltiploFunciónRacional},
    Orden{"Desarrollo completo multivariable", Multivariable, "Desarrollar totalmente",
          FormaMultivariable, "(a+b)^2*(x-y)", ResolverDesarrolloCompletoMultivariable},
    Orden{"Desarrollo simplificado multivariable", Multivariable, "Desarrollar simplificadamente",
          FormaMultivariable, "(a+b)^2*(x-y)", ResolverDesarrolloSimplificadoMultivariable},
    Orden{"Convertir coeficientes a fracción continua", Números,
          "Convertir coeficienes a fracción continua", FormaFunción, ".5*X^2+.125*X",
          ResoverConvertirCoeficientesFracciónContinua},
    Orden{"Hallar polinomio de Lagrange", Ecuaciones, "Hallar polinomio de Lagrange", FormaPuntos,
          "2,4,3,9,4,16,5,25", ResolverPolinomioLagrange},
};

} // namespace

std::span<const Orden> DevÓrdenes() {
    return Órdenes;
}

void EjecutaInstrucciones(Contexto& contexto, Hoja& hoja, std::string_view orden) {
    const auto encontrada = std::ranges::find(Órdenes, orden, &Orden::texto);
    if (encontrada == Órdenes.end())
        return;
    const std::size_t longitudAnterior = hoja.texto.size();
    hoja.líneaSeleccionada.reset();
    hoja.hallazgos.clear();
    try {
        EjecutaConTrampa(contexto, [&] {
            hoja.líneas = LeeTextBox(hoja.texto);
            encontrada->trabajador(contexto, hoja);
            contexto.Vigila(); // every command can be cancelled up to its end
        });
    } catch (const OrdenCancelada&) {
        hoja.texto.resize(longitudAnterior); // commands only append
        hoja.líneaSeleccionada.reset();
        hoja.hallazgos.clear();
    }
}

// Built in place: where memory is short, nothing may be asked for.
void MensajeErrorGeneral(Contexto& contexto, int número) {
    std::array<char, 512> búfer{};
    char* fin = búfer.data();
    const auto añade = [&](std::string_view pieza) {
        fin =
            std::copy_n(pieza.data(),
                        std::min(pieza.size(), static_cast<std::size_t>(&búfer.back() - fin)), fin);
    };
    añade("Se produjo el error número :");
    fin = std::to_chars(fin, &búfer.back(), número).ptr;
    añade(". Tipo de error :");
    añade(DescripciónError(número));
    añade(". Utilice valores diferentes para evitar este tipo de error. El proceso solicitado se "
          "cancelará.");
    contexto.mensajes.Muestra(Icono::Crítico, {búfer.data(), fin});
}

} // namespace quiralto
