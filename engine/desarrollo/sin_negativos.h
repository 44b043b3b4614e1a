// Fractions without negative whole powers above.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/fraccion_abierta.h"

namespace quiralto {

// The fraction with the negative whole powers of its numerator below; the terms of its sums are all
// multiplied by what makes theirs vanish.
FracciónAbierta SinNegativos(TablaSímbolos& tabla, FracciónAbierta f);

// Whether the terms of a sum have such powers.
bool HayNegativos(const TablaSímbolos& tabla, const Términos& suma);

} // namespace quiralto
