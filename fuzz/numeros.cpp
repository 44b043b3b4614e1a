// Lists of numbers to the commands on plain numbers, and to Lagrange's polynomial, which runs
// through its points.

#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

#include <vector>

using namespace quiralto;

namespace {

std::string DevEntero(Gramática& gramática) {
    const int valor = gramática.Octeto() - 100;
    return std::to_string(valor);
}

void CompruebaLagrange(BancoDeFuzz& banco, Gramática& gramática) {
    struct Punto {
        std::string x;
        std::string y;
    };
    std::vector<Punto> puntos;
    std::string hoja;
    for (int i = 0; i < 7 && gramática.QuedaAlgo(); ++i) {
        puntos.push_back({DevEntero(gramática), DevEntero(gramática)});
        hoja += (i > 0 ? "," : "") + puntos.back().x + "," + puntos.back().y;
    }
    const Corrida corrida(banco.contexto, hoja, "Hallar polinomio de Lagrange");
    const auto texto = corrida.TextoTras("'");
    if (!texto || texto->starts_with("Polinomio"))
        return;
    const std::optional<Programa> programa = CompilaEscrito(*texto);
    if (!programa)
        return;
    for (const Punto& punto : puntos) {
        const double x = std::stod(punto.x);
        const auto valor = EvaluadorAcotado(*programa, {}).Evalúa(x);
        // Every coefficient is rounded, those too that are then not written.
        long double cota = 0;
        for (std::size_t k = 0; k < puntos.size(); ++k)
            cota += DevRedondeo(8).mediaUnidad * std::pow(std::fabs(x), static_cast<double>(k));
        if (valor)
            Exige(SonCompatibles(*valor, {std::stold(punto.y), cota}),
                  "the polynomial meets a point", hoja + "  =>  " + *texto);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string entrada = LeeEntrada(datos, longitud);
    BancoDeFuzz banco(entrada);
    for (const std::string_view orden :
         {"Hallar máximo común divisor", "Hallar mínimo común múltiplo", "Hallar divisores",
          "Hallar factores primos", "Hallar números primos", "Hallar polinomio de Lagrange",
          "Convertir coeficientes a fracción continua"})
        Corrida(banco.contexto, entrada, orden);
    Gramática gramática({datos, longitud}, Gramática::Átomos::X);
    CompruebaLagrange(banco, gramática);
    return 0;
}
