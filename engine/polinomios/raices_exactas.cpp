#include "engine/polinomios/raices_exactas.h"

#include "engine/base/fallos.h"
#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

constexpr std::size_t BitsDeRaíz = 112;

// The sign of p(numerador / denominador), by Horner's rule.
int DevSigno(Contexto& contexto, const Denso& p, const Entero& numerador,
             const Entero& denominador) {
    Entero valor = p.back();
    Entero potencia = 1;
    for (std::size_t i = p.size() - 1; i-- > 0;) {
        contexto.Vigila();
        potencia *= denominador;
        valor *= numerador;
        valor.SumaProducto(p[i], potencia);
    }
    return valor.Signo();
}

// The same of p(n / 2^BitsDeRaíz), where powers are no more than shifts.
int DevSigno(Contexto& contexto, const Denso& p, const Entero& n) {
    Entero valor = p.back();
    std::size_t bits = 0;
    for (std::size_t i = p.size() - 1; i-- > 0;) {
        contexto.Vigila();
        bits += BitsDeRaíz;
        valor *= n;
        if (!p[i].EsCero())
            valor += p[i].Desplazado(bits);
    }
    return valor.Signo();
}

// The fraction of least denominator from n1/d1 to n2/d2, 0 <= n1/d1 < n2/d2: the part of their
// continued fractions that both share, and one step more.
RaízExacta DevMásSimple(Entero n1, Entero d1, Entero n2, Entero d2) {
    RaízExacta anterior{0, 1, true};
    RaízExacta fracción{1, 0, true};
    for (;;) {
        auto [parte, resto] = Entero::Divide(n1, d1);
        const bool esEntero = resto.EsCero();
        const bool esÚltima = esEntero || ((parte + 1) * d2 - n2).Signo() <= 0;
        const Entero paso = esÚltima && !esEntero ? parte + 1 : parte;
        anterior.numerador.SumaProducto(paso, fracción.numerador);
        anterior.denominador.SumaProducto(paso, fracción.denominador);
        std::swap(anterior, fracción);
        if (esÚltima)
            return fracción;
        // The inverses of what is left stand the other way round.
        Entero restoAlto = n2 - parte * d2;
        n1 = std::exchange(d2, std::move(resto));
        n2 = std::exchange(d1, std::move(restoAlto));
    }
}

// Whole numbers n stand for n / 2^BitsDeRaíz.
class Buscador {
public:
    Buscador(Contexto& contexto, const Denso& p) : contexto_(contexto), p_(p) {}

    std::optional<RaízExacta> Busca(double x, double lejos) {
        const Entero centro = DevPunto(x);
        const Entero máximo = DevPunto(lejos);
        Entero lado = DevPunto(std::max(std::fabs(x) * 0x1p-50, 0x1p-60));
        for (;; lado = lado + lado) {
            bajo_ = centro - lado;
            alto_ = centro + lado;
            signoBajo_ = Signo(bajo_);
            const int signoAlto = Signo(alto_);
            if (signoBajo_ == 0)
                return Racional(bajo_, unidad_);
            if (signoAlto == 0)
                return Racional(alto_, unidad_);
            if (signoBajo_ != signoAlto)
                return Cierra();
            if ((lado - máximo).Signo() > 0)
                return std::nullopt;
        }
    }

private:
    int Signo(const Entero& n) { return DevSigno(contexto_, p_, n); }

    static Entero DevPunto(double x) {
        int exponente = 0;
        constexpr int BitsDeDouble = 53;
        const double mantisa = std::ldexp(std::frexp(x, &exponente), BitsDeDouble);
        exponente += static_cast<int>(BitsDeRaíz) - BitsDeDouble;
        const Entero entero = Entero::DesdeDouble(mantisa);
        if (exponente >= 0)
            return entero.Desplazado(static_cast<std::size_t>(exponente));
        return Entero::Divide(entero, Entero(1).Desplazado(static_cast<std::size_t>(-exponente)))
            .cociente;
    }

    static RaízExacta Racional(const Entero& numerador, const Entero& denominador) {
        const Entero común = DevMCD(numerador, denominador);
        return {Entero::Divide(numerador, común).cociente,
                Entero::Divide(denominador, común).cociente, true};
    }

    RaízExacta Cierra() {
        while (!(alto_ - bajo_).EsUno()) {
            Entero medio = Entero::Divide(bajo_ + alto_, 2).cociente;
            const int signo = Signo(medio);
            if (signo == 0)
                return Racional(medio, unidad_);
            (signo == signoBajo_ ? bajo_ : alto_) = std::move(medio);
        }
        // A root of any denominator up to 2^55 is the simplest fraction in so small an interval.
        const bool esNegativa = bajo_.Signo() < 0;
        RaízExacta raíz = esNegativa
                              ? DevMásSimple(Entero(0) - alto_, unidad_, Entero(0) - bajo_, unidad_)
                              : DevMásSimple(bajo_, unidad_, alto_, unidad_);
        if (esNegativa)
            raíz.numerador.CambiaSigno();
        if (DevSigno(contexto_, p_, raíz.numerador, raíz.denominador) == 0)
            return raíz;
        return {std::move(bajo_), unidad_, false};
    }

    Contexto& contexto_;
    const Denso& p_;
    Entero unidad_ = Entero(1).Desplazado(BitsDeRaíz);
    Entero bajo_, alto_;
    int signoBajo_ = 0;
};

// --- Division

// p (its coefficients n stand for n / escala) by X - r, from whichever end makes nothing grow.
void DivideEntreInexacta(Denso& p, const RaízExacta& r) {
    const std::size_t grado = p.size() - 1;
    Entero absoluto = r.numerador;
    if (absoluto.Signo() < 0)
        absoluto.CambiaSigno();
    Denso cociente(grado);
    if ((absoluto - r.denominador).Signo() <= 0) {
        cociente[grado - 1] = p[grado];
        for (std::size_t i = grado - 1; i-- > 0;)
            cociente[i] =
                p[i + 1] + Entero::Divide(cociente[i + 1] * r.numerador, r.denominador).cociente;
    } else {
        Entero anterior = 0;
        for (std::size_t i = 0; i < grado; ++i) {
            anterior = Entero::Divide((anterior - p[i]) * r.denominador, r.numerador).cociente;
            cociente[i] = anterior;
        }
    }
    p = std::move(cociente);
}

// p / (X - r), without a remainder while p is exact.
Polinomio DivideEntreRacional(Contexto& contexto, const Polinomio& p, const RaízExacta& r) {
    const Polinomio factor =
        DevExacto({{1, r.denominador}, {0, Entero(0) - r.numerador}}, r.denominador);
    if (auto cociente = DivideSiExacta(contexto, p, factor))
        return *std::move(cociente);
    return DividePolinomios(contexto, p, factor).cociente;
}

// p / (X - r) for the roots that are not rational.
Polinomio DivideEntreInexactas(Contexto& contexto, const PolinomioExacto& p,
                               const std::vector<RaízExacta>& raíces) {
    constexpr std::size_t BitsDeMás = 128;
    if (p.términos.front().exponente > static_cast<double>(MáximoTérminosPolinomio))
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    Denso denso(static_cast<std::size_t>(p.términos.front().exponente) + 1);
    for (const auto& [exponente, coeficiente] : p.términos)
        denso[static_cast<std::size_t>(exponente)] = coeficiente.Desplazado(BitsDeMás);
    for (const RaízExacta& r : raíces) {
        contexto.Vigila();
        if (!r.esRacional)
            DivideEntreInexacta(denso, r);
    }
    return DevPolinomio(std::move(denso), 0, 1, p.denominador.Desplazado(BitsDeMás));
}

} // namespace

std::optional<RaízExacta> DevRaízExacta(Contexto& contexto, const Denso& p, double x,
                                        double lejos) {
    return Buscador(contexto, p).Busca(x, lejos);
}

Polinomio DivideEntreRaíces(Contexto& contexto, const PolinomioExacto& p,
                            const std::vector<RaízExacta>& raíces) {
    Polinomio cociente = p;
    for (const RaízExacta& r : raíces)
        if (r.esRacional)
            cociente = DivideEntreRacional(contexto, cociente, r);
    const PolinomioExacto* const exacto = SiExacto(cociente);
    if (exacto == nullptr || std::ranges::all_of(raíces, &RaízExacta::esRacional))
        return cociente;
    return DivideEntreInexactas(contexto, *exacto, raíces);
}

} // namespace quiralto
