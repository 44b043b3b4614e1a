#include "commands/datos_numeros.h"

#include "engine/evaluacion/validadores.h"
#include "engine/numeros/numero.h"

#include <array>
#include <string>
#include <string_view>

namespace quiralto {
namespace {

struct Rango {
    std::string_view texto;
    double mínimo;
    double máximo;
};

// In the order of ClaseNúmeros.
constexpr std::array Rangos = {
    Rango{"números de doble precisión : -1.79769313486231E+308 a 1.79769313486231E+308",
          -1.79769313486231E+308, 1.79769313486231E+308},
    Rango{"números enteros largos : -2147483648 a 2147483647", -2147483648.0, 2147483647},
    Rango{"números enteros cortos : -32768 a 32767", -32768, 32767},
    Rango{"números enteros positivos : 2 a 2147483647", 2, 2147483647},
};

// Appends the numbers of a line to the list; false at the first field that is not one.
bool CargaLínea(Contexto& contexto, std::string_view línea, const Rango& rango,
                std::vector<double>& números) {
    for (;;) {
        contexto.Vigila();
        const std::size_t coma = línea.find(',');
        const std::string_view campo = línea.substr(0, coma);
        if (!EsNúmeroEnRango(campo, rango.mínimo, rango.máximo))
            return false;
        números.push_back(Val(campo));
        if (coma == std::string_view::npos)
            return true;
        línea.remove_prefix(coma + 1);
    }
}

std::string TextoEsperado(std::size_t cantidad) {
    if (cantidad == 1)
        return "Se esperaba 1 número";
    // The count brings a leading blank of its own; without a count two blanks stay.
    const std::string cuenta = cantidad == 0 ? "" : ' ' + std::to_string(cantidad);
    return "Se esperaba una lista de " + cuenta +
           " números, separados por comas,  ó separados por al menos una línea ";
}

} // namespace

std::optional<std::vector<double>> CargaNúmeros(Contexto& contexto, Hoja& hoja, ClaseNúmeros clase,
                                                std::size_t cantidad) {
    const Rango& rango = Rangos[static_cast<std::size_t>(clase)];
    std::vector<double> números;
    for (const std::string& línea : hoja.líneas) {
        if (!CargaLínea(contexto, línea, rango, números)) {
            contexto.Avisa("Error de sintaxis , se esperaba un número en el rango de los " +
                           std::string(rango.texto));
            SeleccionaLínea(hoja, línea);
            return std::nullopt;
        }
    }
    if (números.empty() || (cantidad != 0 && números.size() != cantidad)) {
        contexto.Avisa(TextoEsperado(cantidad) + " en el rango de los " + std::string(rango.texto));
        return std::nullopt;
    }
    return números;
}

} // namespace quiralto
