// Cancelling among the literal parts of a fraction: powers of one base, also those of a root and
// its argument, come to stand on one side.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

namespace quiralto {

enum class Lado : std::uint8_t { Arriba, Abajo };

// Multiplies one side by the literal part.
void PonLiteral(TablaSímbolos& tabla, FracciónAbierta& f, Lado lado, const Literal& literal);

// Multiplies by a power of a symbol, which goes where its exponent is not negative.
void PonFactor(TablaSímbolos& tabla, FracciónAbierta& f, IdSímbolo símbolo,
               const Exponente& exponente);

// Powers below that are negative go above.
void SubeNegativos(TablaSímbolos& tabla, FracciónAbierta& f);

void CancelaPotencias(TablaSímbolos& tabla, FracciónAbierta& f);

// One function or group below takes the name of one above to which only its values show it to be
// equal, so that they cancel. Whether there was one.
bool CancelaPorValores(TablaSímbolos& tabla, FracciónAbierta& f);

// Whether one of the symbols is a root and the other its argument.
bool SonRaízYBase(const TablaSímbolos& tabla, IdSímbolo a, IdSímbolo b);

} // namespace quiralto
