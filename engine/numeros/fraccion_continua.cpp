#include "engine/numeros/fraccion_continua.h"

#include "engine/base/caracteres.h"
#include "engine/numeros/numero.h"

#include <cmath>
#include <limits>
#include <utility>

namespace quiralto {
namespace {

struct Convergente {
    double p;
    double q;
};

// The best convergent of x, which is written as mantisa / potencia, two integers that a Double
// holds exactly.
Convergente DevMejorConvergente(double x, double mantisa, double potencia) {
    Convergente anterior{0, 1};
    Convergente actual{1, 0};
    Convergente mejor{};
    double menorPeso = std::numeric_limits<double>::infinity();
    while (potencia >= 1) {
        const double cociente = std::trunc(mantisa / potencia);
        const Convergente siguiente{cociente * actual.p + anterior.p,
                                    cociente * actual.q + anterior.q};
        anterior = std::exchange(actual, siguiente);
        const double peso = std::fabs(x - actual.p / actual.q) * actual.q * actual.q;
        if (peso < menorPeso) {
            menorPeso = peso;
            mejor = actual;
        }
        mantisa = std::exchange(potencia, mantisa - potencia * cociente);
    }
    return mejor;
}

std::string TextoCociente(double p, double q) {
    return q == 1 ? TextoNúmero(p) : '(' + TextoNúmero(p) + '/' + TextoNúmero(q) + ')';
}

bool EmpiezaNúmero(char c) {
    return EsDígito(c) || c == '.';
}

} // namespace

std::string DevFracciónContinua(double x) {
    constexpr int MáximosDecimalesExactos = 15; // 10^15 is below 2^53
    const FormaEntera forma = DevFormaEntera(x);
    const int decimales = -forma.exponente;
    if (decimales <= 0 || decimales > std::numeric_limits<double>::max_exponent10)
        return TextoNúmero(x);
    const auto mantisa = static_cast<double>(forma.mantisa);
    const double potencia = DevDoble({1, decimales});
    const std::string signo = x < 0 ? "-" : "";
    if (decimales > MáximosDecimalesExactos)
        return signo + TextoCociente(mantisa, potencia);
    const auto [p, q] = DevMejorConvergente(std::fabs(x), mantisa, potencia);
    return signo + TextoCociente(p, q);
}

std::string ConvFrCont(Contexto& contexto, std::string_view expresión) {
    std::string convertida;
    while (!expresión.empty()) {
        const NúmeroLeído número =
            EmpiezaNúmero(expresión.front()) ? LeeNúmero(expresión) : NúmeroLeído{};
        if (número.longitud == 0) {
            convertida += expresión.front();
            expresión.remove_prefix(1);
            continue;
        }
        contexto.Vigila();
        convertida += DevFracciónContinua(número.valor);
        if (convertida.size() > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        expresión.remove_prefix(número.longitud);
    }
    return convertida;
}

} // namespace quiralto
