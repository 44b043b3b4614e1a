// How the program starts: splash form, primes, two seconds, the view of the start.
#pragma once

#include "ui/frm_graficas.h"

#include <chrono>

namespace quiralto {

inline constexpr std::chrono::milliseconds RetardoInicial = std::chrono::seconds(2);

// Waits, and handles events meanwhile, so that the splash form is painted and the window system
// does not take the program for hung.
void Retardo(std::chrono::milliseconds tiempo);

// Runs the start-up order on the form, which is not shown yet, and returns with the splash form
// unloaded.
void Arranca(Contexto& contexto, frmGráficas& formulario,
             std::chrono::milliseconds retardo = RetardoInicial);

} // namespace quiralto
