#include "commands/fichero_primos.h"

#include "engine/numeros/primos.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <span>
#include <system_error>

namespace quiralto {
namespace {

constexpr std::size_t TamañoRegistro = 4;

std::int32_t LeeRegistro(std::span<const char, TamañoRegistro> bytes) {
    std::uint32_t valor = 0;
    for (std::size_t i = TamañoRegistro; i-- > 0;)
        valor = valor << 8 | static_cast<unsigned char>(bytes[i]);
    return static_cast<std::int32_t>(valor);
}

} // namespace

std::filesystem::path DevCarpetaPrograma() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::filesystem::path DevFicheroPrimos(const std::filesystem::path& carpetaPrograma) {
    constexpr const char* Nombre = "Primos.Qto";
    std::filesystem::path alLado = carpetaPrograma / Nombre;
    std::error_code error;
    if (std::filesystem::is_regular_file(alLado, error))
        return alLado;
    return carpetaPrograma / QUIRALTO_CARPETA_DATOS / Nombre;
}

void CargaPrimos(Contexto& contexto, const std::filesystem::path& fichero) {
    contexto.TablaPrimos = {};
    std::error_code error;
    if (!std::filesystem::is_regular_file(fichero, error)) // a pipe would be waited for
        return;
    std::array<char, CantidadPrimos * TamañoRegistro> bytes{};
    std::ifstream entrada(fichero, std::ios::binary);
    entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const std::size_t registros = static_cast<std::size_t>(entrada.gcount()) / TamañoRegistro;
    const Primos verdaderos = DevPrimerosPrimos();
    for (std::size_t i = 0; i < registros; ++i) {
        const std::int32_t primo =
            LeeRegistro(std::span(bytes).subspan(i * TamañoRegistro).first<TamañoRegistro>());
        if (primo != verdaderos[i])
            return;
        contexto.TablaPrimos[i] = primo;
    }
}

} // namespace quiralto
