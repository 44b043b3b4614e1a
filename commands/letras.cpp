#include "commands/letras.h"

#include "engine/base/caracteres.h"
#include "engine/lenguaje/operaciones.h"

#include <algorithm>
#include <charconv>

namespace quiralto {
namespace {

char EnMayúscula(char c) {
    constexpr int Distancia = 'a' - 'A';
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - Distancia) : c;
}

constexpr bool EsLetra(int c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Whether the letter at i is the exponent letter of the number on its left: "2E8", "1.5D-3".
bool EsMarcaExponente(std::string_view texto, std::size_t i) {
    if ((texto[i] != 'D' && texto[i] != 'E') || i == 0 ||
        !(EsDígito(texto[i - 1]) || texto[i - 1] == '.'))
        return false;
    const std::size_t cifra = texto.find_first_not_of("+-", i + 1);
    return cifra != std::string_view::npos && cifra <= i + 2 && EsDígito(texto[cifra]);
}

} // namespace

std::string SustituyeVariables(std::string_view texto) {
    std::string mayúsculas(texto);
    std::ranges::transform(mayúsculas, mayúsculas.begin(), EnMayúscula);
    std::string sustituido;
    sustituido.reserve(texto.size() * 2);
    for (std::size_t i = 0; i < texto.size();) {
        const std::string_view resto = std::string_view(mayúsculas).substr(i);
        const std::size_t nombre = LongitudNombre(resto);
        if (nombre > 0)
            sustituido += resto.substr(0, nombre);
        else if (EsMarcaExponente(mayúsculas, i))
            sustituido += mayúsculas[i];
        else if (EsLetra(texto[i]) && texto[i] != 'X')
            ((sustituido += PrefijoSln) += std::to_string(static_cast<int>(texto[i]))) += ')';
        else
            sustituido += texto[i];
        i += std::max<std::size_t>(nombre, 1);
    }
    return sustituido;
}

std::string SustituyeSln(std::string_view texto) {
    std::string sustituido;
    sustituido.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        const std::string_view resto = texto.substr(i);
        if (resto.starts_with(PrefijoSln)) {
            int código = 0;
            const char* const fin = texto.data() + texto.size();
            const auto leído = std::from_chars(resto.data() + PrefijoSln.size(), fin, código);
            if (leído.ptr != fin && *leído.ptr == ')' && EsLetra(código)) {
                sustituido += static_cast<char>(código);
                i = static_cast<std::size_t>(leído.ptr - texto.data()) + 1;
                continue;
            }
        }
        sustituido += texto[i++];
    }
    return sustituido;
}

} // namespace quiralto
