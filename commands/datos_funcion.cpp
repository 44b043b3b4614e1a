#include "commands/datos_funcion.h"

#include "engine/evaluacion/validadores.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"

#include <limits>
#include <vector>

namespace quiralto {
namespace {

void MuestraUso(Contexto& contexto, TipoDatos tipo) {
    switch (tipo) {
    case TipoDatos::Función:
        contexto.Avisa("Se esperaba una línea con la forma : f(x), en donde "
                       " f(x) es una función de la variable x.\r\n"
                       "Ejemplo : \r\n"
                       "(1/3)*X^2+LOG(X-3)+COS(X+11)-3");
        break;
    case TipoDatos::FunciónYPunto:
        contexto.Avisa("Se esperaba una línea con el formato: f(x),punto, en donde "
                       " el primer parámetro es una función de la variable x, "
                       "y el segundo, un valor de doble precisión, que indica "
                       "el punto donde se aplicará la operación solicitada.\r\n"
                       "Ejemplo : \r\n"
                       "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3");
        break;
    case TipoDatos::FunciónYExtremos:
        contexto.Avisa("Se esperaba una línea con el formato: f(x),extremo1,extremo2, en donde "
                       " el primer parámetro es una función de la variable x, "
                       " el segundo, un valor de doble precisión, que indica "
                       "el punto inicial de aplicación de la operación solicitada, "
                       "y el tercero el punto final.\r\n"
                       "Ejemplo : \r\n"
                       "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3,7");
        break;
    }
}

// The fields of the line, no more of them than tell that there are too many for every form.
std::vector<std::string> CortaCampos(std::string_view línea) {
    constexpr std::size_t Demasiados = 4;
    std::vector<std::string> campos;
    for (;;) {
        const std::size_t coma = línea.find(',');
        campos.emplace_back(línea.substr(0, coma));
        if (coma == std::string_view::npos || campos.size() == Demasiados)
            return campos;
        línea.remove_prefix(coma + 1);
    }
}

bool EsDobleprecisión(Contexto& contexto, Hoja& hoja, std::string_view campo) {
    constexpr double Máximo = std::numeric_limits<double>::max();
    if (EsNúmeroEnRango(campo, -Máximo, Máximo))
        return true;
    contexto.Avisa("Se esperaba un número de doble precisión");
    SeleccionaLínea(hoja, hoja.líneas.front());
    return false;
}

} // namespace

std::optional<DatosFunción> CargaDatosFunción(Contexto& contexto, Hoja& hoja, TipoDatos tipo) {
    if (hoja.líneas.size() != 1) {
        MuestraUso(contexto, tipo);
        return std::nullopt;
    }
    std::vector<std::string> campos = CortaCampos(hoja.líneas.front());
    if (!Sintaxis(contexto, campos[0])) {
        SeleccionaLínea(hoja, hoja.líneas.front());
        return std::nullopt;
    }
    // Field by field, so that the first thing wrong is the one that is reported.
    const auto esperados = static_cast<std::size_t>(tipo);
    for (std::size_t i = 1; i < esperados && i < campos.size(); ++i)
        if (!EsDobleprecisión(contexto, hoja, campos[i]))
            return std::nullopt;
    if (campos.size() != esperados) {
        MuestraUso(contexto, tipo);
        return std::nullopt;
    }
    DatosFunción datos{.función = std::move(campos[0])};
    if (esperados >= 2)
        datos.primero = Val(campos[1]);
    if (esperados >= 3)
        datos.segundo = Val(campos[2]);
    if (tipo == TipoDatos::FunciónYExtremos && !(datos.primero < datos.segundo)) {
        contexto.Avisa("Se esperaba que el extremo superior fuera mayor que el inferior");
        SeleccionaLínea(hoja, hoja.líneas.front());
        return std::nullopt;
    }
    return datos;
}

} // namespace quiralto
