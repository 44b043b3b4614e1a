// Runs the fuzz targets over files instead of a fuzzer's inputs: every seed and every former
// finding again, in a plain build. Usage: repaso TARGET FILE_OR_FOLDER...

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#define QUIRALTO_OBJETIVO(nombre)                                                                  \
    extern "C" int Repasa_##nombre(const std::uint8_t* datos, std::size_t longitud);
#include "objetivos.inc"
#undef QUIRALTO_OBJETIVO

namespace {

struct Objetivo {
    std::string_view nombre;
    int (*repasa)(const std::uint8_t*, std::size_t);
};

constexpr std::array Objetivos = {
#define QUIRALTO_OBJETIVO(nombre) Objetivo{#nombre, Repasa_##nombre},
#include "objetivos.inc"
#undef QUIRALTO_OBJETIVO
};

std::vector<std::filesystem::path> DevFicheros(std::span<char*> lugares) {
    std::vector<std::filesystem::path> ficheros;
    for (const char* lugar : lugares) {
        if (!std::filesystem::is_directory(lugar)) {
            ficheros.emplace_back(lugar);
            continue;
        }
        for (const auto& entrada : std::filesystem::directory_iterator(lugar))
            ficheros.push_back(entrada.path());
    }
    std::ranges::sort(ficheros);
    return ficheros;
}

} // namespace

int main(int argc, char** argv) {
    const std::span palabras(argv, static_cast<std::size_t>(argc));
    const auto* objetivo =
        palabras.size() < 3
            ? Objetivos.end()
            : std::ranges::find(Objetivos, std::string_view(palabras[1]), &Objetivo::nombre);
    if (objetivo == Objetivos.end()) {
        std::cerr << "usage: repaso TARGET FILE_OR_FOLDER...\n";
        return 2;
    }
    std::size_t cuántos = 0;
    for (const auto& fichero : DevFicheros(palabras.subspan(2))) {
        std::ifstream abierto(fichero, std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(abierto), {});
        std::cerr << fichero.filename().string()
                  << '\n'; // the last one named is the one that fails
        objetivo->repasa(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++cuántos;
    }
    std::cerr << cuántos << " inputs\n";
    return cuántos > 0 ? 0 : 1;
}
