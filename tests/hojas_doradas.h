// Golden worksheets: one small file a behaviour, with a command, the worksheet that was typed, the
// worksheet that the command leaves and the messages that it shows. The same files run in process,
// through the terminal program and through the window.
//
//     orden: Hallar soluciones ecuación
//     cifras: 8
//     --- hoja
//     X^2-4,-5,5
//     --- queda
//     ...
//     --- mensajes
//     exclamación: ...
//     línea: ...
//
// `cifras:` may be left out (8), and so may the last section where nothing is shown. A section is
// what stands between its marker and the next one (or the end of the file) without the last line
// break: a text that ends in a line break has an empty line before the next marker.
#pragma once

#include "tests/apoyo.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

struct HojaDorada {
    std::string orden;    // the command text
    int cifras = 8;       // DígitosRedondeo
    std::string hoja;     // what was typed, lines ended by LF
    std::string queda;    // the whole worksheet afterwards, likewise
    std::string mensajes; // as DevMensajes gives them; empty: none
};

// Every .hoja file under a folder, in alphabetical order.
std::vector<std::filesystem::path> DevFicherosDeHojas(const std::filesystem::path& carpeta);

// Reads the text of a golden file. Fault: std::runtime_error that says what is wrong with it.
HojaDorada LeeHojaDorada(std::string_view texto);

// The same from a file.
HojaDorada CargaHojaDorada(const std::filesystem::path& fichero);

// Messages and the selected line in the form in which they stand in a golden file, which is the one
// of the terminal program's standard error without its last line break.
std::string DevMensajes(const std::vector<Mensaje>& mensajes,
                        const std::optional<std::string>& líneaSeleccionada);

// A name for a test, letters, digits and "_": "analisis/una-hoja.hoja" gives "analisis_una_hoja".
std::string DevNombreDePrueba(const std::filesystem::path& fichero,
                              const std::filesystem::path& carpeta);

} // namespace quiralto
