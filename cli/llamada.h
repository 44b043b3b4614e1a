// What a call of quiralto-cli asks for.
#pragma once

#include "engine/evaluacion/muestreo.h"

#include <optional>
#include <string>
#include <vector>

namespace quiralto::cli {

enum class Modo {
    Orden,
    Sintaxis,
    Evaluar,
    Derivar,
    Programa,
    Muestrear,
    Tabla,
    Listar,
    Ayuda,
    Versión
};

struct Opciones {
    Modo modo = Modo::Ayuda;
    int cifras = 8;
    std::string argumento;           // the command text, or the expression
    std::optional<std::string> hoja; // the worksheet's file; none: standard input
    bool soloResultado = false;      // of --orden
    bool json = false;
    bool pasos = false;        // of --derivar
    bool largo = false;        // of --listar
    std::vector<double> equis; // of --evaluar
    Ventana ventana;           // of --muestrear and, its X alone, of --tabla
    int puntos = CantidadPuntosInicial;
};

} // namespace quiralto::cli
