#include "ui/grafica/funcion_linea.h"

#include "commands/lineas.h"
#include "engine/lenguaje/sintaxis.h"

#include <algorithm>

namespace quiralto {
namespace {

std::string_view DevParte(std::string_view línea) {
    const Línea leída = ClasificaLínea(línea);
    if (leída.clase == ClaseLínea::Datos && !EsDelPrograma(línea))
        return leída.datos;
    return línea.substr(línea.find_last_of(":='") + 1); // all of it where there is none
}

char EnMayúscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// The variable; the X of EXP is none.
bool TieneX(std::string_view fórmula) {
    for (std::size_t i = fórmula.find('X'); i != std::string_view::npos;
         i = fórmula.find('X', i + 1))
        if (i == 0 || fórmula[i - 1] != 'E')
            return true;
    return false;
}

} // namespace

std::optional<std::string> DevFunciónDeLínea(const Contexto& contexto, std::string_view línea) {
    std::string función(CortaCampos(DevParte(línea), 1).front());
    std::erase(función, ' ');
    std::ranges::transform(función, función.begin(), EnMayúscula); // as if it were typed
    if (!TieneX(función) || CompruebaSintaxis(contexto, función))
        return std::nullopt;
    return función;
}

} // namespace quiralto
