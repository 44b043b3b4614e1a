// Linear systems: whatever is written as a solution solves the equations.

#include "engine/lenguaje/sintaxis.h"
#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

#include <vector>

using namespace quiralto;

namespace {

constexpr std::size_t MáximaIncógnita = 5; // of the grammar

// The unknowns by what was found for them, the free ones by numbers.
std::string Sustituye(std::string texto, const std::vector<std::string>& soluciones) {
    for (std::size_t i = 0; i < soluciones.size(); ++i)
        texto = Cambia(texto, "X(" + std::to_string(i + 1) + ")", "(" + soluciones[i] + ")");
    // Those that no solution names have cancelled.
    for (std::size_t i = 1; i <= MáximaIncógnita; ++i)
        for (const std::string_view nombre : {"SLN(", "X("})
            texto = Cambia(texto, std::string(nombre) + std::to_string(i) + ")",
                           "(" + std::to_string(2 * i + 3) + "/4)");
    return texto;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    BancoDeFuzz banco(LeeEntrada(datos, longitud));
    Gramática gramática({datos, longitud}, Gramática::Átomos::Incógnitas);
    std::vector<std::string> ecuaciones;
    std::string hoja;
    for (int i = 1 + gramática.Octeto() % 5; i > 0 && gramática.QuedaAlgo(); --i) {
        ecuaciones.push_back(gramática.Fórmula(6) + "=" + gramática.Fórmula(2));
        hoja += ecuaciones.back() + "\n";
    }
    const Corrida corrida(banco.contexto, hoja, "Resolver sistema lineal");
    std::vector<std::string> soluciones;
    for (int i = 1;; ++i) {
        const auto texto = corrida.TextoTras("'X(" + std::to_string(i) + ")=");
        if (!texto)
            break;
        soluciones.push_back(*texto);
    }
    if (soluciones.empty())
        return 0;
    for (const std::string& ecuación : ecuaciones) {
        const std::size_t igual = ecuación.find('=');
        const std::string resta =
            ecuación.substr(0, igual) + "-(" + ecuación.substr(igual + 1) + ")";
        const auto programa = CompilaEscrito(SimplificaSignos(Sustituye(resta, soluciones)));
        if (!programa)
            continue;
        const auto valor = EvaluadorAcotado(*programa, DevRedondeo(8, true)).Evalúa(0);
        // Coefficients that round to 0 are none; what is left of them is below this.
        constexpr long double Resto = 1e-6L;
        if (valor)
            Exige(std::fabs(valor->valor) <= valor->cota + Resto, "a solution solves",
                  hoja + "  =>  " + ecuación);
    }
    return 0;
}
