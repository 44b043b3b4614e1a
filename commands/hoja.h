// The worksheet: its text, the instruction lines that a command reads, the line that a command has
// refused, and what it has found.
#pragma once

#include "commands/hallazgos.h"
#include "commands/lineas.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quiralto {

struct Hoja {
    Hoja() = default;
    explicit Hoja(std::string escrito) : texto(std::move(escrito)) {}

    std::string texto; // UTF-8, lines separated by CR LF; commands only ever append to it
    std::vector<std::string> líneas; // the instruction lines, made anew for every command
    // A refused line, as it stands in the text without a trailing comment. Whoever shows the
    // worksheet selects its first occurrence.
    std::optional<std::string> líneaSeleccionada;
    // What the last command has found, in the order of its lines; made anew for every command.
    std::vector<Hallazgo> hallazgos;
};

// The instruction lines of a worksheet text: its lines of data, each without its comment.
std::vector<std::string> LeeTextBox(std::string_view texto);

// Marks a line as refused.
void SeleccionaLínea(Hoja& hoja, std::string_view línea);

// Appends the finding's line without its line break, and lists the finding.
void AñadeHallazgo(Hoja& hoja, Hallazgo hallazgo, int dígitos);

// Text as it comes from outside (LF or CR LF) with CR LF, and back with LF.
std::string ConCrLf(std::string_view texto);
std::string ConLf(std::string_view texto);

} // namespace quiralto
