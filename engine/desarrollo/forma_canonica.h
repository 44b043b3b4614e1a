// The form that every sum of an expansion has, as it is asserted where one is made: no coefficient
// is 0, no exponent is 0, the factors of a literal part stand in their order, no two literal parts
// are equal.
// Tested by forma_canonica_test.cpp.
#pragma once

#include "engine/desarrollo/simbolos.h"

namespace quiralto {

// For long sums this looks at the first terms only.
bool EsCanónica(const TablaSímbolos& tabla, const Términos& suma);

} // namespace quiralto
