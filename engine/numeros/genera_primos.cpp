// Writes the primes file: the first CantidadPrimos primes, each as four bytes, the lowest first.
// Run by the build: genera_primos FILE

#include "engine/base/tabla_primos.h"

#include <fstream>
#include <iostream>

namespace quiralto {
namespace {

Primos HallaPrimos() {
    Primos primos{};
    std::size_t cantidad = 0;
    for (std::int32_t n = 2; cantidad < CantidadPrimos; ++n) {
        bool primo = true;
        for (std::size_t i = 0; primo && i < cantidad && primos[i] * primos[i] <= n; ++i)
            primo = n % primos[i] != 0;
        if (primo)
            primos[cantidad++] = n;
    }
    return primos;
}

bool Escribe(const char* fichero) {
    std::ofstream salida(fichero, std::ios::binary);
    for (const std::int32_t primo : HallaPrimos())
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
