// The commands on rational functions: what they write has the value of what was typed.

#include "engine/lenguaje/sintaxis.h"
#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

#include <algorithm>

using namespace quiralto;

// Whether no X stands behind a fraction bar.
static bool EsPolinomio(const std::string& texto) {
    const std::size_t barra = texto.rfind('/');
    return barra == std::string::npos || texto.find('X', barra) == std::string::npos;
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
    const Corrida simplificada(banco.contexto, f, "Simplificar función racional");
    for (const std::string_view principio : {"'Simplificación :", "Simplificación :"})
        if (const auto texto = simplificada.TextoTras(principio))
            ExigeMismoValor(normal, *texto, cifras, {.términos = EsPolinomio(*texto)});
    // The quotient by a factor whose root is rounded carries the rounding on.
    constexpr int CifrasDeMenos = 3;
    const Corrida factorizada(banco.contexto, f + ",-10,10", "Factorizar función racional");
    if (const auto texto = factorizada.TextoTras("'Factorización :"))
        ExigeMismoValor(
            normal, *texto, cifras - CifrasDeMenos,
            {.términos = EsPolinomio(*texto), .raíces = std::ranges::count(*texto, 'X')});
    Corrida(banco.contexto, f + "," + g, "Máximo común divisor función racional");
    Corrida(banco.contexto, f + "," + g, "Mínimo común múltiplo función racional");
    return 0;
}
