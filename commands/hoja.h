// The worksheet: its text, the instruction lines that a command reads, and the line that a command
// has refused.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

struct Hoja {
    std::string texto; // UTF-8, lines separated by CR LF; commands only ever append to it
    std::vector<std::string> líneas; // the instruction lines, made anew for every command
    // A refused line, as it stands in the text without a trailing comment. Whoever shows the
    // worksheet selects its first occurrence.
    std::optional<std::string> líneaSeleccionada;
};

// The instruction lines of a worksheet text: every line but the empty ones and those whose first
// character behind blanks is an apostrophe, each up to its first apostrophe. Blanks stay.
std::vector<std::string> LeeTextBox(std::string_view texto);

// The lines of a text, cut at CR LF; a final CR LF yields a last, empty line.
std::vector<std::string_view> CortaLíneas(std::string_view texto);

// Marks a line as refused.
void SeleccionaLínea(Hoja& hoja, std::string_view línea);

// Text as it comes from outside (LF or CR LF) with CR LF, and back with LF.
std::string ConCrLf(std::string_view texto);
std::string ConLf(std::string_view texto);

} // namespace quiralto
