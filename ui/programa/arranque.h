// How the program starts: splash form, primes, two seconds, the view of the start.
#pragma once

#include "ui/formularios/frm_graficas.h"

#include <chrono>
#include <memory>

namespace quiralto {

inline constexpr std::chrono::milliseconds RetardoInicial = std::chrono::seconds(2);

// Waits, and handles events meanwhile, so that the splash form is painted and the window system
// does not take the program for hung.
void Retardo(std::chrono::nanoseconds tiempo);

// Runs the start-up order and returns the main form, not shown yet, with the splash form unloaded.
// The controls are made while the splash form stands. The arguments outlive the form.
std::unique_ptr<FrmGráficas> Form_Load(Contexto& contexto, VigilanteÓrdenes& vigilante,
                                       Impresora& impresora,
                                       std::chrono::milliseconds retardo = RetardoInicial);

} // namespace quiralto
