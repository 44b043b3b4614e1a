// A quick proof that an equation is not linear, for those whose expansion would have no end.
#pragma once

#include "engine/lenguaje/programa.h"

namespace quiralto {

// True where the formula is certainly no polynomial of degree 1 or less in its unknowns SLN(i): its
// values at three places in a row, modulo a prime, do not lie on a line. False says nothing; it is
// always false for short formulas, which are expanded anyway, and for those with functions or with
// powers other than small whole ones, of which the residues know too little.
bool PasaDeGradoUno(const Programa& programa);

} // namespace quiralto
