#include "commands/ordenes.h"

#include "commands/analisis.h"
#include "commands/numeros.h"

#include <algorithm>
#include <array>
#include <string>

namespace quiralto {
namespace {

constexpr std::string_view Números = "Números";
constexpr std::string_view Numérico = "Cálculo numérico con una variable";
constexpr std::string_view FunciónYExtremos = "f(x),extremo1,extremo2";

constexpr std::array Órdenes = {
    Orden{"Hallar máximo común divisor", Números, "Hallar máximo común divisor", "enteros", "12,18",
          ResolverMcdNúmeros},
    Orden{"Hallar mínimo común múltiplo", Números, "Hallar mínimo común múltiplo", "enteros",
          "12,18", ResolverMcmNúmeros},
    Orden{"Hallar divisores", Números, "Hallar divisores", "entero", "360",
          ResolverDivisoresNúmero},
    Orden{"Hallar factores primos", Números, "Descomponer en factores primos", "entero", "360",
          ResolverDescomposiciónEnFactoresPrimos},
    Orden{"Hallar números primos", Números, "Hallar números primos", "entero,entero", "2,100",
          ResolverNúmerosPrimos},
    Orden{"Hallar soluciones ecuación", Numérico, "Hallar soluciones", FunciónYExtremos,
          "X^2-4,-5,5", ResolverSolucionesEcuación},
    Orden{"Hallar máximos", Numérico, "Hallar máximos", FunciónYExtremos, "X^3-3*X,-5,5",
          ResolverMáximosEcuación},
    Orden{"Hallar mínimos", Numérico, "Hallar mínimos", FunciónYExtremos, "X^3-3*X,-5,5",
          ResolverMínimosEcuación},
    Orden{"Hallar puntos de inflexión", Numérico, "Hallar puntos de inflexión", FunciónYExtremos,
          "X^3,-1,1", ResolverPuntosInflexión},
    Orden{"Hallar área", Numérico, "Hallar área en un intervalo", FunciónYExtremos, "X,0,1",
          ResolverArea},
    Orden{"Convertir coeficientes a fracción continua", Números,
          "Convertir coeficienes a fracción continua", "f(x)", ".5*X^2+.125*X",
          ResoverConvertirCoeficientesFracciónContinua},
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
    try {
        EjecutaConTrampa(contexto, [&] {
            hoja.líneas = LeeTextBox(hoja.texto);
            encontrada->trabajador(contexto, hoja);
        });
    } catch (const OrdenCancelada&) {
        hoja.texto.resize(longitudAnterior); // commands only append
        hoja.líneaSeleccionada.reset();
    }
}

void MensajeErrorGeneral(Contexto& contexto, int número) {
    std::string texto = "Se produjo el error número :" + std::to_string(número);
    (texto += ". Tipo de error :") += DescripciónError(número);
    texto += ". Utilice valores diferentes para evitar este tipo de error. El proceso solicitado "
             "se cancelará.";
    contexto.mensajes.Muestra(Icono::Crítico, texto);
}

} // namespace quiralto
