#include "commands/lineas.h"

#include <algorithm>
#include <array>

namespace quiralto {
namespace {

// What the results of the commands begin with.
constexpr std::array<std::string_view, 31> TextosDelPrograma = {
    "Simplificación :",
    "'Simplificación :",
    "'Factorización :",
    "'Máximo común divisor hallado :",
    "'Mínimo común múltiplo hallado :",
    "'Se han hallado ",
    "'Divisores hallados :",
    "'(Sólo se muestran ",
    "'Encontrados ",
    "'Hallados ",
    "'Solución en X=",
    "'Máximo en X=",
    "'Mínimo en X=",
    "'Punto de inflexión en X=",
    "'Area=",
    "'No se hallaron soluciones",
    "'No se hallaron máximos",
    "'No se hallaron mínimos",
    "'No se hallaron puntos de inflexión",
    "'Derivada : ",
    "'Tangente :",
    "'No existe tangente en el punto",
    "'Secante :",
    "'No se puede trazar la secante pués para ",
    "'Desarrollo :",
    "'Expresión convertida : ",
    "'Polinomio de Lagrange: ",
    "'Soluciones halladas :",
    "'X(",
    "'SLN(i), indica ",
    "'El sistema anterior es imcompatible en la ecuación : ",
};

} // namespace

Línea ClasificaLínea(std::string_view línea) {
    const std::size_t primero = línea.find_first_not_of(' ');
    if (primero == std::string_view::npos)
        return {ClaseLínea::Vacía, {}};
    if (línea[primero] == '\'')
        return {ClaseLínea::Comentario, {}};
    return {ClaseLínea::Datos, línea.substr(0, línea.find('\''))};
}

bool EsDelPrograma(std::string_view línea) {
    return std::ranges::any_of(TextosDelPrograma,
                               [&](std::string_view texto) { return línea.starts_with(texto); });
}

std::vector<std::string_view> CortaLíneas(std::string_view texto) {
    std::vector<std::string_view> líneas;
    RecorreLíneas(texto, [&](std::string_view línea) { líneas.push_back(línea); });
    return líneas;
}

std::vector<std::string_view> CortaCampos(std::string_view línea, std::size_t máximo) {
    std::vector<std::string_view> campos;
    for (;;) {
        const std::size_t coma = línea.find(',');
        campos.push_back(línea.substr(0, coma));
        if (coma == std::string_view::npos || campos.size() == máximo)
            return campos;
        línea.remove_prefix(coma + 1);
    }
}

} // namespace quiralto
