// How the tests of the terminal program call it and tell what has come of it.
#pragma once

#include "tests/proceso.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace quiralto {

inline Final LlamaAlTerminal(std::vector<std::string> palabras, std::string entrada = {}) {
    palabras.insert(palabras.begin(), QUIRALTO_CLI);
    return Ejecuta({.palabras = std::move(palabras), .entrada = std::move(entrada), .entorno = {}});
}

// EXPECT_TRUE(Termina(final, status, standard output, standard error))
inline testing::AssertionResult Termina(const Final& final, int estado, const std::string& salida,
                                        const std::string& errores) {
    if (!final.agotado && final.señal == 0 && final.estado == estado && final.salida == salida &&
        final.errores == errores)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << (final.agotado ? "its time was over; " : "") << "status " << final.estado
           << ", expected " << estado << "; signal " << final.señal << "\nstandard output \""
           << final.salida << "\", expected \"" << salida << "\"\nstandard error \""
           << final.errores << "\", expected \"" << errores << '"';
}

// A wrong call: status 2, nothing on standard output, one line on standard error, which names
// --ayuda.
inline testing::AssertionResult EsMalUso(const Final& final) {
    const bool unaLínea = final.errores.find('\n') == final.errores.size() - 1 &&
                          final.errores.ends_with(" (véase --ayuda)\n");
    if (!final.agotado && final.señal == 0 && final.estado == 2 && final.salida.empty() && unaLínea)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "status " << final.estado << ", signal " << final.señal << "\nstandard output \""
           << final.salida << "\"\nstandard error \"" << final.errores << '"';
}

// A file that is gone at the end of the test.
class FicheroTemporal {
public:
    explicit FicheroTemporal(const std::string& texto)
        : ruta_(std::filesystem::path(testing::TempDir()) /
                ("quiralto-" + std::to_string(::getpid()) + ".txt")) {
        std::ofstream(ruta_, std::ios::binary) << texto;
    }
    ~FicheroTemporal() {
        std::error_code sinImportancia;
        std::filesystem::remove(ruta_, sinImportancia);
    }
    FicheroTemporal(const FicheroTemporal&) = delete;
    FicheroTemporal& operator=(const FicheroTemporal&) = delete;

    std::string Ruta() const { return ruta_.string(); }

private:
    std::filesystem::path ruta_;
};

} // namespace quiralto
