// The command line of quiralto-cli.
#pragma once

#include "engine/evaluacion/muestreo.h"

#include <optional>
#include <string>
#include <vector>

namespace quiralto::cli {

enum class Modo { Orden, Sintaxis, Evaluar, Derivar, Muestrear, Listar, Ayuda, Versión };

struct Opciones {
    Modo modo = Modo::Ayuda;
    int cifras = 8;
    std::string argumento;           // the command text, or the expression
    std::optional<std::string> hoja; // the worksheet's file; none: standard input
    std::vector<double> equis;       // of --evaluar
    Ventana ventana;                 // of --muestrear
    int puntos = CantidadPuntosInicial;
};

// Reads the words behind the program's name. None: they are not a valid call, and `error` says in
// one line what was expected.
std::optional<Opciones> LeeOpciones(const std::vector<std::string>& palabras, std::string& error);

// What --ayuda prints.
std::string_view TextoAyuda();

} // namespace quiralto::cli
