// Everything that lives for the whole run of the program, in one object: made by main (or by a
// test) and handed down by reference. Cheap to make: the table of primes is its host's. Two contexts
// in one process do not know of each other.
#pragma once

#include "engine/base/azar.h"
#include "engine/base/fallos.h"
#include "engine/base/mensajes.h"
#include "engine/base/tabla_primos.h"
#include "engine/base/vigilante.h"

#include <cstdint>
#include <string>
#include <utility>

namespace quiralto {

inline constexpr int MáximoDígitosRedondeo = 15;

struct Contexto {
    Contexto(Mensajes& mensajesDelAnfitrión, Vigilante& vigilanteDelAnfitrión,
             Primos& tablaDelAnfitrión)
        : mensajes(mensajesDelAnfitrión), vigilante(vigilanteDelAnfitrión),
          TablaPrimos(tablaDelAnfitrión) {}

    Mensajes& mensajes;
    Vigilante& vigilante;

    // All 0 until it is filled from its file.
    Primos& TablaPrimos;

    // Decimal digits to which results and typed numbers are rounded, 0 to MáximoDígitosRedondeo.
    int DígitosRedondeo = 8;

    // One more function name that Sintaxis accepts ("SLN("); empty but for the few commands that
    // set it through a GuardaPrefijo.
    std::string PrefijoVariable;

    // Fault of the last failed evaluation or number reading. Whoever evaluates clears it before
    // and tests it after; the evaluator only ever sets it.
    std::int16_t ErrorCódigo = SinFallo;

    Azar generador;

    void Avisa(std::string_view texto) { mensajes.Muestra(Icono::Exclamación, texto); }

    // To be called at the edges of loops whose length the input decides.
    void Vigila() {
        if (!vigilante.Continúa())
            throw OrdenCancelada{};
    }
};

// Sets PrefijoVariable for as long as it lives, so that no way out of a command leaves it set.
class GuardaPrefijo {
public:
    GuardaPrefijo(Contexto& contexto, std::string prefijo)
        : contexto_(contexto),
          anterior_(std::exchange(contexto.PrefijoVariable, std::move(prefijo))) {}
    ~GuardaPrefijo() { contexto_.PrefijoVariable = std::move(anterior_); }
    GuardaPrefijo(const GuardaPrefijo&) = delete;
    GuardaPrefijo& operator=(const GuardaPrefijo&) = delete;

private:
    Contexto& contexto_;
    std::string anterior_;
};

} // namespace quiralto
