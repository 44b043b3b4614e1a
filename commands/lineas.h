// A line of the worksheet: what it is, said in one place for the commands, for the window's paper
// and for whoever prints or pastes lines.
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

namespace quiralto {

enum class ClaseLínea {
    Vacía,      // nothing but blanks
    Comentario, // its first character behind blanks is an apostrophe
    Datos,      // an instruction line, up to its first apostrophe
};

struct Línea {
    ClaseLínea clase;
    std::string_view datos; // of a line of data: what stands before the comment, blanks and all
};

Línea ClasificaLínea(std::string_view línea);

// Whether the program itself has written the line, told by the fixed text that it begins with. Only
// "Simplificación :" is written without an apostrophe and is thus a line of data.
bool EsDelPrograma(std::string_view línea);

// Calls visita(line) for the lines of a text, cut at CR LF; a final CR LF yields a last, empty
// line.
template <typename Visita> void RecorreLíneas(std::string_view texto, Visita visita) {
    for (;;) {
        const std::size_t fin = texto.find("\r\n");
        visita(texto.substr(0, fin));
        if (fin == std::string_view::npos)
            return;
        texto.remove_prefix(fin + 2);
    }
}

// The same lines as a list.
std::vector<std::string_view> CortaLíneas(std::string_view texto);

// The fields of a line of data, cut at its commas: one more than there are commas. With `máximo`
// (at least 1) no more than that are cut, and what follows them is left out.
std::vector<std::string_view>
CortaCampos(std::string_view línea, std::size_t máximo = std::numeric_limits<std::size_t>::max());

} // namespace quiralto
