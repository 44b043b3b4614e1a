// Both expansions, in one variable and in several: one text whatever random numbers are drawn, of
// the language, that expanding again does not change, with the value of what was typed.

#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/sintaxis.h"
#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

using namespace quiralto;

namespace {

constexpr std::string_view Prefijo = "SLN(";

std::string DevAtómica(const std::string& fórmula) {
    std::string texto;
    for (std::size_t i = 0; i < fórmula.size(); ++i) {
        const char c = fórmula[i];
        const bool esNombre = i + 1 < fórmula.size() && std::isalpha(c) != 0 &&
                              (std::isalpha(fórmula[i + 1]) != 0 || fórmula[i + 1] == '(');
        const bool enNombre = i > 0 && std::isalpha(fórmula[i - 1]) != 0;
        if (std::isalpha(c) != 0 && c != 'X' && c != 'E' && !esNombre && !enNombre)
            texto += std::string(Prefijo) + std::to_string(static_cast<int>(c)) + ")";
        else
            texto += c;
    }
    return texto;
}

// Letters take values of their own.
std::string ConValores(std::string texto) {
    int numerador = 37;
    for (const char letra : {'A', 'B', 'Y', 'a', 'b', 'x'})
        texto = Cambia(texto, std::string(Prefijo) + std::to_string(static_cast<int>(letra)) + ")",
                       "(" + std::to_string(numerador += 21) + "/64)");
    return texto;
}

std::optional<std::string> Desarrolla(Contexto& contexto, const std::string& texto, bool completo) {
    try {
        const Programa programa = CompilaExpresión(texto);
        return completo ? DesarrollaCompleto(contexto, programa)
                        : DesarrollaSimplificado(contexto, programa);
    } catch (const ErrorEjecución&) {
        return std::nullopt; // too large, or without a value
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string entrada = LeeEntrada(datos, longitud);
    BancoDeFuzz banco(entrada);
    Gramática gramática({datos, longitud}, longitud > 0 && datos[0] % 3 == 2
                                               ? Gramática::Átomos::Letras
                                               : Gramática::Átomos::X);
    const std::uint8_t opciones = gramática.Octeto();
    const bool completo = opciones % 2 == 1;
    constexpr std::array Cifras = {8, 8, 15, 4, 0};
    banco.contexto.DígitosRedondeo = Cifras[opciones / 8 % Cifras.size()];
    const GuardaPrefijo guarda(banco.contexto, std::string(Prefijo));
    std::string texto = DevAtómica(gramática.Fórmula());
    if (!Sintaxis(banco.contexto, texto))
        return 0;
    try {
        const auto desarrollo = Desarrolla(banco.contexto, texto, completo);
        if (!desarrollo)
            return 0;
        for (const std::uint64_t semilla : {1U, 2U, 3U}) {
            banco.contexto.generador.Siembra(semilla);
            Exige(Desarrolla(banco.contexto, texto, completo) == desarrollo, "one text", texto);
        }
        std::string aceptado = *desarrollo;
        Exige(Sintaxis(banco.contexto, aceptado), "an expansion is accepted", texto);
        if (!CompilaEscrito(*desarrollo))
            return 0;
        Exige(Desarrolla(banco.contexto, *desarrollo, completo) == desarrollo,
              "expanding again changes nothing", texto + "  =>  " + *desarrollo);
        if (banco.contexto.DígitosRedondeo > 0)
            ExigeMismoValor(ConValores(texto), ConValores(*desarrollo),
                            banco.contexto.DígitosRedondeo);
    } catch (const OrdenCancelada&) {
        return 0;
    }
    return 0;
}
