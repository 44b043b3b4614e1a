// Everything that the graph view shows, composed in one go from the view, the functions and the
// options: whatever shows a value, a text or a curve copies it from here, so that two places never
// show two answers.
#pragma once

#include "ui/grafica/funciones.h"
#include "ui/grafica/hallados.h"
#include "ui/grafica/opciones.h"

#include <memory>
#include <string>
#include <vector>

namespace quiralto {

using ListaPuntos = std::vector<Punto>;

// The points of a function; none where it has no curve.
struct Curva {
    std::shared_ptr<const ListaPuntos> puntos;
    bool atenuada = false; // of a text that is being typed: on the screen alone

    bool operator==(const Curva&) const = default;
};

// The paper: what is drawn anew where any of it changes.
struct Cuadro {
    Ventana ventana;
    MétodoDibujo método = MétodoDibujo::Líneas;
    PorFunción<Curva> curvas;
    std::shared_ptr<const Marcas> marcas; // null where there are none

    bool operator==(const Cuadro&) const = default;
};

// What moves over the paper.
struct Marcador {
    double PuntoX = 0;
    PorFunción<std::optional<double>> valores; // of the active functions at PuntoX

    bool operator==(const Marcador&) const = default;
};

// A switched-on function in the legend: "f0(X)=" and its text.
struct EntradaLeyenda {
    int índice = 0;
    std::string texto;

    bool operator==(const EntradaLeyenda&) const = default;
};

struct Escena {
    Cuadro cuadro;
    Marcador marcador;
    std::vector<EntradaLeyenda> leyenda;
    bool vacía = true; // no box holds anything

    std::string textoPuntoX;
    PorFunción<std::string> textosValor;       // rounded; empty where there is no value
    PorFunción<std::string> motivos;           // why a text is no formula, with a hint
    std::array<std::string, 4> textosExtremos; // right, left, upper, lower
    std::string textoVentana;                  // "X de -10 a 10 · Y de -10 a 10"
    std::array<std::string, 2> textosUnidad;   // what a step of the bars of X and Y is worth
    int barraX = 0;          // the point X in tenths of the drawing scale, within it
    std::string descripción; // the picture in words
};

// The curves that belong to the texts in the boxes: without those that are faded.
Cuadro SinAtenuadas(Cuadro cuadro);

// Composes scenes and keeps the points of the last one, so that a function is sampled only where
// its program, the window or the number of points has changed.
class Compositor {
public:
    // Fault: run-time error 6 where the window cannot be sampled.
    Escena Compone(Contexto& contexto, const Vista& vista, FuncionesGráficas& funciones,
                   Hallados& hallados, const Opciones& opciones);

private:
    struct Muestra {
        std::uint64_t versión = 0;
        Ventana ventana;
        int CantidadPuntos = 0;
        std::shared_ptr<const ListaPuntos> puntos;
    };
    const std::shared_ptr<const ListaPuntos>& DevPuntos(Contexto& contexto, const Muestra& pedida,
                                                        int índice, const Programa& programa);

    PorFunción<Muestra> muestras_;
};

} // namespace quiralto
