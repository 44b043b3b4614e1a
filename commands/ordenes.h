// The commands of the worksheet, as data: the menus of the window, the terminal program and the
// documentation all come from this one table.
#pragma once

#include "commands/formas.h"
#include "commands/hoja.h"
#include "engine/base/contexto.h"
#include "engine/base/fallos.h"

#include <exception>
#include <new>
#include <span>
#include <string_view>

namespace quiralto {

struct Orden {
    std::string_view texto;               // the command text, which selects the worker
    std::string_view menú;                // the menu that it stands in
    std::string_view título;              // its caption there
    Forma forma;                          // of its data
    std::string_view ejemplo;             // a worksheet that it works on
    void (*trabajador)(Contexto&, Hoja&); // reads hoja.líneas, appends to hoja.texto
};

// Every command, in the order in which they are looked up.
std::span<const Orden> DevÓrdenes();

// Runs the command with that text (exact, case-sensitive) on the worksheet; an unknown text does
// nothing. Before it runs, hoja.líneas is made anew, hoja.líneaSeleccionada and hoja.hallazgos
// are cleared.
// A run-time error ends it with MensajeErrorGeneral, what it had written stays; cancelled by the
// watcher, the worksheet is as it was.
void EjecutaInstrucciones(Contexto& contexto, Hoja& hoja, std::string_view orden);

// The message for an unexpected run-time error (critical icon). Asks for no memory.
void MensajeErrorGeneral(Contexto& contexto, int número);

// The one place where run-time errors are caught: runs `trabajo`, shows MensajeErrorGeneral for an
// ErrorEjecución (std::bad_alloc is number 7, any other exception 5) and lets OrdenCancelada pass.
// True where nothing was caught.
template <typename Trabajo> bool EjecutaConTrampa(Contexto& contexto, Trabajo&& trabajo) {
    try {
        trabajo();
        return true;
    } catch (const ErrorEjecución& error) {
        MensajeErrorGeneral(contexto, error.Número());
    } catch (const std::bad_alloc&) {
        MensajeErrorGeneral(contexto, MemoriaInsuficiente);
    } catch (const std::exception&) {
        MensajeErrorGeneral(contexto, ArgumentoInválido);
    }
    return false;
}

} // namespace quiralto
