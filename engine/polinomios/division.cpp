#include "engine/polinomios/division.h"

#include "engine/numeros/numero.h"

#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace quiralto {
namespace {

template <typename C> using Resto = std::map<double, C, std::greater<>>;

template <typename C> Resto<C> DevResto(const Monomios<C>& términos) {
    Resto<C> resto;
    for (const Monomio<C>& t : términos)
        resto.emplace_hint(resto.end(), t.exponente, t.coeficiente);
    return resto;
}

template <typename C> Monomios<C> DevTérminos(const Resto<C>& resto) {
    Monomios<C> términos;
    términos.reserve(resto.size());
    for (const auto& [exponente, coeficiente] : resto)
        términos.push_back({exponente, coeficiente});
    return términos;
}

void AñadeProducto(Entero& suma, const Entero& a, const Entero& b) {
    suma.SumaProducto(a, b);
}
void AñadeProducto(double& suma, double a, double b) {
    Acumulado<double> acumulado;
    acumulado.Añade(suma, 1);
    acumulado.Añade(a, b);
    suma = acumulado.Toma();
}

// Subtracts factor * X^salto * divisor but for the leading term, which is gone already; `arregla`
// sees every coefficient that has changed.
template <typename C, typename Arregla>
void RestaMúltiplo(Resto<C>& resto, const Monomios<C>& divisor, double salto, const C& menosFactor,
                   Arregla arregla) {
    for (std::size_t i = 1; i < divisor.size(); ++i) {
        const auto lugar =
            resto.try_emplace(SumaExponentes(divisor[i].exponente, salto), C(0)).first;
        AñadeProducto(lugar->second, divisor[i].coeficiente, menosFactor);
        arregla(lugar->second);
        if (EsNulo(lugar->second))
            resto.erase(lugar);
    }
    CompruebaCantidad(resto.size());
}

// Every coefficient of a remainder goes through `redondea`.
template <typename F>
División DivideReales(Contexto& contexto, const PolinomioReal& dividendo,
                      const PolinomioReal& divisor, F redondea) {
    Resto<double> resto = DevResto(dividendo);
    PolinomioReal cociente;
    const Monomio<double>& principal = divisor.front();
    while (!resto.empty() && resto.begin()->first >= principal.exponente) {
        contexto.Vigila();
        const double exponente = resto.begin()->first;
        const double factor = CompruebaFinito(resto.begin()->second / principal.coeficiente);
        const double salto = SumaExponentes(exponente, -principal.exponente);
        resto.erase(resto.begin());
        if (cociente.empty()) {
            for (auto& [e, c] : resto)
                redondea(c);
            std::erase_if(resto, [](const auto& t) { return t.second == 0; });
        }
        cociente.push_back({salto, factor});
        CompruebaCantidad(cociente.size());
        RestaMúltiplo(resto, divisor, salto, -factor, redondea);
        // Real exponents may be too close together for a step to lower them.
        if (!resto.empty() && resto.begin()->first >= exponente)
            throw ErrorEjecución(Desbordamiento);
    }
    return {DevReal(std::move(cociente)), DevReal(DevTérminos(resto))};
}

// Makes `factor`, the remainder's leading coefficient, a multiple of the divisor's, by multiplying
// everything by the least whole number that does it, and divides it.
void DivideFactor(Entero& factor, const Entero& principal, Entero& escala, Resto<Entero>& resto,
                  Monomios<Entero>& cociente) {
    const Entero común = DevMCD(factor, principal);
    Entero sube = Entero::Divide(principal, común).cociente;
    factor = Entero::Divide(factor, común).cociente;
    if (sube.Signo() < 0) {
        sube.CambiaSigno();
        factor.CambiaSigno();
    }
    if (sube.EsUno())
        return;
    escala *= sube;
    for (auto& t : resto)
        t.second *= sube;
    for (auto& t : cociente)
        t.coeficiente *= sube;
}

// None where the coefficients outgrow what is held exactly.
std::optional<División> DivideExactos(Contexto& contexto, const PolinomioExacto& dividendo,
                                      const PolinomioExacto& divisor) {
    // escala * dividendo = divisor * cociente + resto, all over whole numbers.
    Resto<Entero> resto = DevResto(dividendo.términos);
    Monomios<Entero> cociente;
    Entero escala = 1;
    const auto& [exponentePrincipal, principal] = divisor.términos.front();
    while (!resto.empty() && resto.begin()->first >= exponentePrincipal) {
        contexto.Vigila();
        const double exponente = resto.begin()->first;
        Entero factor = resto.begin()->second;
        const double salto = SumaExponentes(exponente, -exponentePrincipal);
        resto.erase(resto.begin());
        DivideFactor(factor, principal, escala, resto, cociente);
        if (escala.Bits() > MáximoBitsExactos || factor.Bits() > MáximoBitsExactos)
            return std::nullopt;
        cociente.push_back({salto, factor});
        CompruebaCantidad(cociente.size());
        factor.CambiaSigno();
        RestaMúltiplo(resto, divisor.términos, salto, factor, [](const Entero&) {});
        if (!resto.empty() && resto.begin()->first >= exponente)
            throw ErrorEjecución(Desbordamiento);
    }
    Monomios<Entero> restoFinal = DevTérminos(resto);
    // dividendo / d1 = (divisor / d2) * (cociente * d2 / (d1 * escala)) + resto / (d1 * escala)
    const Entero denominador = escala * dividendo.denominador;
    for (auto& t : cociente)
        t.coeficiente *= divisor.denominador;
    return División{DevExacto(std::move(cociente), denominador),
                    DevExacto(std::move(restoFinal), denominador)};
}

template <typename F>
División Divide(Contexto& contexto, const Polinomio& dividendo, const Polinomio& divisor,
                F redondea) {
    if (EsCero(divisor))
        throw ErrorEjecución(DivisiónPorCero);
    const PolinomioExacto* const a = SiExacto(dividendo);
    const PolinomioExacto* const b = SiExacto(divisor);
    if (a != nullptr && b != nullptr)
        if (auto división = DivideExactos(contexto, *a, *b))
            return *std::move(división);
    return DivideReales(contexto, AReal(dividendo), AReal(divisor), redondea);
}

} // namespace

División DividePolinomios(Contexto& contexto, const Polinomio& dividendo,
                          const Polinomio& divisor) {
    return Divide(contexto, dividendo, divisor,
                  [&](double& c) { c = Redondea(CompruebaFinito(c), contexto.DígitosRedondeo); });
}

División DivideSinRedondear(Contexto& contexto, const Polinomio& dividendo,
                            const Polinomio& divisor) {
    return Divide(contexto, dividendo, divisor, [](double& c) { CompruebaFinito(c); });
}

} // namespace quiralto
