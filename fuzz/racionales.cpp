// The commands on rational functions: what they write has the value of what was typed.

#include "engine/lenguaje/sintaxis.h"
#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

using namespace quiralto;

// Whether no X stands behind a fraction bar.
static bool EsPolinomio(const std::string& texto) {
    const std::size_t barra = texto.rfind('/');
    return barra == std::string::npos || texto.find('X', barra) == std::string::npos;
}

// Whether an exponent is not whole: rounded it can be that of another power, and 1 is not written.
static bool HayExponentesPartidos(const std::string& texto) {
    for (std::size_t i = texto.find('^'); i != std::string::npos; i = texto.find('^', i + 1)) {
        const std::size_t fin = texto.find_first_not_of(".0123456789", i + 1);
        if (texto.substr(i + 1, fin - i - 1).find('.') != std::string::npos)
            return true;
    }
    return false;
}

static std::optional<std::string> Simplifica(Contexto& contexto, const std::string& f, int cifras) {
    const int antes = std::exchange(contexto.DígitosRedondeo, cifras);
    const Corrida corrida(contexto, f, "Simplificar función racional");
    contexto.DígitosRedondeo = antes;
    const auto texto = corrida.TextoTras("'Simplificación :");
    return texto ? texto : corrida.TextoTras("Simplificación :");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    BancoDeFuzz banco(LeeEntrada(datos, longitud));
    Gramática gramática({datos, longitud}, Gramática::Átomos::X, false);
    constexpr std::array Cifras = {8, 8, 15, 4};
    banco.contexto.DígitosRedondeo = Cifras[gramática.Octeto() % Cifras.size()];
    std::string f = gramática.Fórmula(16);
    std::string g = gramática.Fórmula(6);
    std::string normal = f;
    if (!Sintaxis(banco.contexto, normal))
        return 0;
    const int cifras = banco.contexto.DígitosRedondeo;
    constexpr int TodasLasCifras = 15;
    const auto entera = Simplifica(banco.contexto, f, TodasLasCifras);
    const bool seJuzga = entera && !HayExponentesPartidos(*entera);
    const auto simplificada = Simplifica(banco.contexto, f, cifras);
    if (simplificada && seJuzga)
        ExigeMismoValor(normal, *simplificada, cifras, {.términos = EsPolinomio(*simplificada)});
    // The quotient by a factor whose root is rounded carries the rounding on.
    constexpr int CifrasDeMenos = 3;
    const Corrida factorizada(banco.contexto, f + ",-10,10", "Factorizar función racional");
    if (const auto texto = factorizada.TextoTras("'Factorización :"); texto && seJuzga)
        ExigeMismoValor(
            normal, *texto, cifras - CifrasDeMenos,
            {.términos = EsPolinomio(*texto), .raíces = std::ranges::count(*texto, 'X')});
    Corrida(banco.contexto, f + "," + g, "Máximo común divisor función racional");
    Corrida(banco.contexto, f + "," + g, "Mínimo común múltiplo función racional");
    return 0;
}
