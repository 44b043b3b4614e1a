// Any text through Sintaxis and the compiler: a scalar and a block run agree to the bit.

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "fuzz/entrada.h"

#include <array>
#include <bit>

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    std::string texto = LeeEntrada(datos, longitud);
    BancoDeFuzz banco(texto);
    if (!Sintaxis(banco.contexto, texto))
        return 0;
    std::string otraVez = texto;
    Exige(Sintaxis(banco.contexto, otraVez), "an accepted text is accepted again", texto);
    Programa programa;
    try {
        programa = CompilaExpresión(texto);
    } catch (const ErrorEjecución& error) {
        Exige(error.Número() == Desbordamiento, "only a long text is refused", texto);
        return 0;
    }
    constexpr std::array Equis = {-1e300, -10.5, -1.0, -0.0, 0.0, 1e-320, 0.5, 1.0, 2.0, 710.0};
    std::array<double, Equis.size()> valores{};
    std::array<std::int16_t, Equis.size()> fallos{};
    EvalúaBloque(banco.contexto, programa, Equis, valores, fallos);
    for (std::size_t i = 0; i < Equis.size(); ++i) {
        banco.contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(banco.contexto, programa, Equis[i]);
        Exige(banco.contexto.ErrorCódigo == fallos[i], "the same faults", texto);
        const bool iguales =
            std::bit_cast<std::uint64_t>(valor) == std::bit_cast<std::uint64_t>(valores[i]);
        Exige(fallos[i] != SinFallo || iguales, "the same bits", texto);
    }
    return 0;
}
