// Writes the primes file: the first CantidadPrimos primes, each as four bytes, the lowest first.
// Run by the build: genera_primos FILE
// Tested by fichero_primos_test.cpp.

#include "engine/numeros/primos.h"

#include <fstream>
#include <iostream>

namespace quiralto {
namespace {

bool Escribe(const char* fichero) {
    std::ofstream salida(fichero, std::ios::binary);
    for (const std::int32_t primo : DevPrimerosPrimos())
        for (int bits = 0; bits < 32; bits += 8)
            salida.put(static_cast<char>(primo >> bits & 0xFF));
    salida.close();
    return salida.good();
}

} // namespace
} // namespace quiralto

int main(int argc, char** argv) {
    if (argc != 2 || !quiralto::Escribe(argv[1])) {
        std::cerr << "genera_primos: cannot write " << (argc == 2 ? argv[1] : "without a file")
                  << '\n';
        return 1;
    }
    return 0;
}
