// Any file in the place of the primes file: the table holds primes in their places, and 0 behind
// the first record that is not its prime.

#include "commands/fichero_primos.h"
#include "fuzz/entrada.h"

#include <filesystem>
#include <fstream>

#include <unistd.h>

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string entrada = LeeEntrada(datos, longitud);
    BancoDeFuzz banco(entrada);
    static const std::filesystem::path Fichero =
        std::filesystem::temp_directory_path() / ("primos_fuzz_" + std::to_string(getpid()));
    std::ofstream(Fichero, std::ios::binary) << entrada;
    CargaPrimos(banco.contexto, Fichero);
    std::filesystem::remove(Fichero);
    std::int32_t anterior = 1;
    for (const std::int32_t primo : banco.tabla) {
        if (primo == 0) {
            anterior = 0;
            continue;
        }
        Exige(anterior != 0 && primo > anterior, "increasing up to the first 0", entrada);
        for (std::int32_t d = anterior + 1; d < primo; ++d)
            Exige(
                anterior == 1 || d % 2 == 0 ||
                    [d] {
                        for (std::int32_t k = 3; k * k <= d; k += 2)
                            if (d % k == 0)
                                return true;
                        return false;
                    }(),
                "no prime is left out", entrada);
        for (std::int32_t k = 2; k * k <= primo; ++k)
            Exige(primo % k != 0, "only primes", entrada);
        anterior = primo;
    }
    return 0;
}
