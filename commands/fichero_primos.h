// The primes file: 4792 records of four bytes, the i-th prime a signed integer with its lowest byte
// first, and nothing else. The program only ever reads it.
#pragma once

#include "engine/base/contexto.h"

#include <filesystem>

namespace quiralto {

// The folder of the running program; empty where it cannot be told.
std::filesystem::path DevCarpetaPrograma();

// Where the primes file of a program in that folder is: beside the program or, where it is not
// there, in the data folder of an installed program.
std::filesystem::path DevFicheroPrimos(const std::filesystem::path& carpetaPrograma);

// Fills contexto.TablaPrimos from the file. What a missing or short file does not give stays 0, and
// so does everything from the first record on that is not its prime: the commands that need it
// report it.
void CargaPrimos(Contexto& contexto, const std::filesystem::path& fichero);

} // namespace quiralto
