#include "engine/numeros/mcd_decimales.h"

#include "engine/base/fallos.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

// a * 10^ceros modulo m, which is at most 2^53, so that ten times a remainder fits.
std::int64_t DevRestoConCeros(std::int64_t a, int ceros, std::int64_t m) {
    std::int64_t resto = a % m;
    for (; ceros > 0 && resto != 0; --ceros)
        resto = resto * 10 % m;
    return resto;
}

} // namespace

double DevMCDReales(double a, double b) {
    if (a == 0)
        return b;
    if (b == 0)
        return a;
    FormaEntera mayor = DevFormaEntera(a);
    FormaEntera menor = DevFormaEntera(b);
    if (mayor.exponente < menor.exponente)
        std::swap(mayor, menor);
    // In units of the smaller power of ten; its zeros never make the other number large.
    const std::int64_t resto =
        DevRestoConCeros(mayor.mantisa, mayor.exponente - menor.exponente, menor.mantisa);
    const double mcd = DevDoble({std::gcd(menor.mantisa, resto), menor.exponente});
    if (mcd == 0)
        throw ErrorEjecución(Desbordamiento);
    return mcd;
}

Decimal Decimal::DesdeDouble(double valor) {
    const FormaEntera forma = DevFormaEntera(valor);
    return {valor < 0 ? -forma.mantisa : forma.mantisa, forma.exponente};
}

double Decimal::ADouble() const {
    const Entero potencia = DevPotenciaDeDiez(std::abs(exponente));
    return CompruebaFinito(exponente < 0 ? DevCociente(mantisa, potencia)
                                         : (mantisa * potencia).ADouble());
}

Decimal DevMCMReales(const Decimal& a, const Decimal& b) {
    const int exponente = std::min(a.exponente, b.exponente);
    const Entero enteraA = a.mantisa * DevPotenciaDeDiez(a.exponente - exponente);
    const Entero enteraB = b.mantisa * DevPotenciaDeDiez(b.exponente - exponente);
    const Entero mcd = DevMCD(enteraA, enteraB);
    if (mcd.EsCero())
        throw ErrorEjecución(DivisiónPorCero);
    Decimal mcm{Entero::Divide(enteraA, mcd).cociente * enteraB, exponente};
    mcm.ADouble(); // a list whose multiple leaves the range ends there
    return mcm;
}

} // namespace quiralto
