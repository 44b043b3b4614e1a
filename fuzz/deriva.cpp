// The derivative of an accepted text is an accepted text, or too large for one.

#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "fuzz/entrada.h"

using namespace quiralto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    std::string texto = LeeEntrada(datos, longitud);
    BancoDeFuzz banco(texto);
    if (!Sintaxis(banco.contexto, texto))
        return 0;
    std::string derivada;
    try {
        derivada = Deriva(banco.contexto, texto);
    } catch (const ErrorEjecución& error) {
        Exige(error.Número() == EspacioDeCadenasInsuficiente, "only a large one is refused", texto);
        return 0;
    }
    std::string aceptada = derivada;
    Exige(Sintaxis(banco.contexto, aceptada), "the derivative is accepted", texto);
    try {
        CompilaExpresión(derivada);
    } catch (const ErrorEjecución& error) {
        Exige(error.Número() == Desbordamiento, "only a long one does not compile", texto);
    }
    return 0;
}
