// Every action of the window, made once with its caption, its full caption, its icon and its
// shortcut. Menus, toolbar and context menus only show them.
#pragma once

#include "commands/ordenes.h"

#include <QAction>

#include <array>
#include <vector>

namespace quiralto {

// The six entries that every zoom menu has: X2, X4, X8, /2, /4, /8.
using Zooms = std::array<QAction*, 6>;

inline constexpr int CantidadesPuntos = 6;  // 150, 300, ... 4800
inline constexpr int CantidadesCifras = 16; // 0 to 15

struct Acciones {
    Zooms ZoomGráfica;
    Zooms ZoomEjeX;
    Zooms ZoomEjeY;
    Zooms ZoomEjesXY;
    QAction* ValoresPorDefectoEjes;
    QAction* FijarPuntosExtremos;
    QAction* AjustarEjeY;
    QAction* EjesIguales;
    QAction* VistaAnterior;
    QAction* OrdenMenúPuntos;
    QAction* OrdenMenúLíneas;
    std::array<QAction*, CantidadesPuntos> NúmeroPuntos;
    std::array<QAction*, CantidadesCifras> RedondeoNúmeros;
    QAction* ImprimirGráfica;
    QAction* ImprimirTexto;
    QAction* ImprimirEnfocada;
    QAction* PrevisualizarGráfica;
    QAction* PrevisualizarTexto;
    QAction* Salir;
    QAction* Deshacer;
    QAction* Rehacer;
    QAction* Cortar;
    QAction* Copiar;
    QAction* Pegar;
    QAction* CopiarTodo;
    QAction* RepetirOrden;
    QAction* ComentarLíneas;
    QAction* ComentarDatosAnteriores;
    QAction* BuscarOrden;
    QAction* QuitarMarcas;
    QAction* CopiarGráfica;
    QAction* CopiarTabla;
    QAction* Contenido;
    QAction* Manual;
    QAction* AcercaDe;
    std::vector<QAction*> órdenes; // one for each command, in the order of their table
};

// Makes them as children of `padre`, under their names: the handler's for those of the program
// (ZoomEjeX_0), the caption in one word for the commands (HallarPuntosInflexión).
Acciones CreaAcciones(QObject& padre);

// The command's example in one line.
QString DevEjemplo(const Orden& orden);

// What a command expects, what there is, and an example: the tip of its entry.
QString DevExplicación(const Orden& orden, const QString& hay);

} // namespace quiralto
