// The common factors of numerator and denominator of a fraction of sums.

#include "engine/base/fallos.h"
#include "engine/desarrollo/algebra_suma.h"
#include "engine/desarrollo/division_suma.h"
#include "engine/desarrollo/semejantes.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace quiralto {
namespace {

// Of one base in all terms of a sum: whether every term has it, whether its exponent is more than
// a number somewhere, and the least exponent of the plain symbol.
struct Presencia {
    std::size_t veces = 0;
    bool llana = true;
    double mínimo = 0;
};

using Presencias = std::map<IdBase, Presencia>;

Presencias DevPresencias(const TablaSímbolos& tabla, const Términos& suma) {
    Presencias presencias;
    for (const Término& término : suma) {
        for (std::size_t i = 0; i < término.literal.size();) {
            const std::size_t fin = FinDeBase(tabla, término.literal, i);
            Presencia& suya = presencias[tabla.IdDe(término.literal[i].símbolo)];
            const Factor& último = término.literal[fin - 1];
            suya.mínimo =
                suya.veces == 0 ? último.exponente : std::min(suya.mínimo, último.exponente);
            suya.llana = suya.llana && fin == i + 1 && tabla.EsLlano(último.símbolo);
            ++suya.veces;
            i = fin;
        }
    }
    return presencias;
}

// The bases that all terms have.
Presencias DevComunes(const TablaSímbolos& tabla, const Términos& suma) {
    Presencias presencias = DevPresencias(tabla, suma);
    std::erase_if(presencias, [&](const auto& par) { return par.second.veces != suma.size(); });
    return presencias;
}

class Reductor {
public:
    Reductor(TablaSímbolos& tabla, Fracción fracción, std::span<const Términos> divisores)
        : tabla_(tabla), n_(std::move(fracción.numerador)), d_(std::move(fracción.denominador)),
          divisores_(divisores) {}

    Fracción Reduce() {
        if (d_.empty())
            throw ErrorEjecución(DivisiónPorCero);
        if (n_.empty())
            return {};
        if (!EsNúmero(d_)) {
            AbreCociente();
            CancelaTérminos();
            CancelaPorValores();
            CancelaSumas();
        }
        CancelaEnteros();
        return {std::move(n_), std::move(d_)};
    }

private:
    // A lone quotient on one side: (a/b)/c is a/(b*c), a/(b/c) is a*c/b.
    void AbreCociente() {
        for (const bool arriba : {true, false}) {
            Términos& lado = arriba ? n_ : d_;
            Términos& otro = arriba ? d_ : n_;
            if (lado.size() != 1)
                continue;
            const Base* const cociente = DevCocienteDe(tabla_, lado[0].literal);
            if (cociente == nullptr)
                continue;
            const GuardaProfundidad guarda(tabla_);
            const Términos coeficiente = SumaNúmero(lado[0].coeficiente);
            lado = MultiplicaSumas(tabla_, coeficiente, cociente->numerador);
            otro = MultiplicaSumas(tabla_, otro, cociente->denominador);
        }
    }

    // The denominator's powers that become the numerator's: negative ones, and those of a base
    // that the numerator has too, where either exponent is more than a number. Whether there are
    // any.
    bool PasaAlNumerador() {
        const Presencias comunes = DevComunes(tabla_, n_);
        Literal queda;
        Literal pasa;
        const Literal& literal = d_[0].literal;
        for (std::size_t i = 0; i < literal.size();) {
            const std::size_t fin = FinDeBase(tabla_, literal, i);
            const auto común = comunes.find(tabla_.IdDe(literal[i].símbolo));
            const bool llana = fin == i + 1 && tabla_.EsLlano(literal[i].símbolo);
            bool negativa = true;
            for (std::size_t k = i; k < fin; ++k)
                negativa = negativa && literal[k].exponente < 0;
            const bool junta = común != comunes.end() && !(llana && común->second.llana);
            for (; i < fin; ++i) {
                if (negativa || junta)
                    pasa.push_back({literal[i].símbolo, -literal[i].exponente});
                else
                    queda.push_back(literal[i]);
            }
        }
        if (pasa.empty())
            return false;
        d_[0].literal = std::move(queda);
        n_ = MultiplicaSumas(tabla_, n_, {{1, std::move(pasa)}});
        return true;
    }

    void CancelaTérminos() {
        while (d_.size() == 1 && PasaAlNumerador()) {
        }
        CancelaPotencias();
    }

    void CancelaPotencias() {
        const Presencias deN = DevComunes(tabla_, n_);
        Literal común;
        for (const auto& [base, enD] : DevComunes(tabla_, d_)) {
            const auto enN = deN.find(base);
            if (enN != deN.end() && enD.llana && enN->second.llana)
                común.push_back(
                    {tabla_.SímboloDe(base), -std::min(enD.mínimo, enN->second.mínimo)});
        }
        std::erase_if(común, [](const Factor& factor) { return factor.exponente == 0; });
        if (común.empty())
            return;
        std::ranges::sort(común, [&](const Factor& a, const Factor& b) {
            return tabla_.Precede(a.símbolo, b.símbolo);
        });
        const Términos inverso = {{1, std::move(común)}};
        n_ = MultiplicaSumas(tabla_, n_, inverso);
        d_ = MultiplicaSumas(tabla_, d_, inverso);
    }

    // Functions and groups that only their values show to be equal.
    void CancelaPorValores() {
        if (n_.size() != 1 || d_.size() != 1)
            return;
        std::optional<Puntos> puntos;
        for (Factor& enD : d_[0].literal) {
            if (!EsComparable(enD))
                continue;
            for (const Factor& enN : n_[0].literal) {
                if (!EsComparable(enN))
                    continue;
                if (!puntos)
                    puntos.emplace(tabla_);
                if (puntos->SonElMismoFactor({{enD.símbolo, 1}}, {{enN.símbolo, 1}})) {
                    Literal literal = d_[0].literal;
                    std::erase(literal, enD);
                    Literal unido;
                    MultiplicaLiterales(tabla_, literal, {{enN.símbolo, enD.exponente}}, unido);
                    d_[0].literal = std::move(unido);
                    CancelaPotencias();
                    return CancelaPorValores();
                }
            }
        }
    }

    bool EsComparable(const Factor& factor) const {
        const ClaseBase clase = tabla_.BaseDe(factor.símbolo).clase;
        return tabla_.EsLlano(factor.símbolo) &&
               (clase == ClaseBase::Función || clase == ClaseBase::Grupo);
    }

    void CancelaSumas() {
        if (d_.size() < 2 || n_.size() < 2)
            return;
        if (CancelaProporcional() || HayCocientes(tabla_, n_) || HayCocientes(tabla_, d_))
            return;
        ConContenido n = SeparaContenido(n_);
        ConContenido d = SeparaContenido(d_);
        bool cancelado = false;
        if (auto cociente = DivideExacta(tabla_, n.primitiva, d.primitiva)) {
            n.primitiva = std::move(*cociente);
            d.primitiva = SumaNúmero(1);
            cancelado = true;
        } else {
            cancelado = CancelaDivisor(n.primitiva, d.primitiva, n.primitiva);
            for (const Términos& divisor : divisores_) {
                if (divisor.size() < 2)
                    continue;
                const Términos primitiva = SeparaContenido(divisor).primitiva;
                while (CancelaDivisor(n.primitiva, d.primitiva, primitiva))
                    cancelado = true;
            }
        }
        if (!cancelado)
            return;
        n_ = MultiplicaSumas(tabla_, n.primitiva, n.contenido);
        d_ = MultiplicaSumas(tabla_, d.primitiva, d.contenido);
        CancelaTérminos();
    }

    // Divides both sides by a sum that divides both.
    bool CancelaDivisor(Términos& n, Términos& d, const Términos& divisor) const {
        if (n.size() < 2 || d.size() < 2)
            return false;
        auto deD = DivideExacta(tabla_, d, divisor);
        if (!deD)
            return false;
        auto deN = DivideExacta(tabla_, n, divisor);
        if (!deN)
            return false;
        n = std::move(*deN);
        d = std::move(*deD);
        return true;
    }

    struct ConContenido {
        Términos primitiva;
        Términos contenido; // one term
    };

    // Takes the whole number and the powers that all terms share out of a sum.
    ConContenido SeparaContenido(Términos suma) const {
        const double factor = DevFactorEntero(suma);
        Término contenido{factor > 1 ? factor : 1, {}};
        for (const auto& [base, común] : DevComunes(tabla_, suma))
            if (común.llana && común.mínimo != 0)
                contenido.literal.push_back({tabla_.SímboloDe(base), común.mínimo});
        std::ranges::sort(contenido.literal, [&](const Factor& a, const Factor& b) {
            return tabla_.Precede(a.símbolo, b.símbolo);
        });
        Literal inverso = contenido.literal;
        for (Factor& f : inverso)
            f.exponente = -f.exponente;
        for (Término& término : suma) {
            Literal literal;
            MultiplicaLiterales(tabla_, término.literal, inverso, literal);
            término = {término.coeficiente / contenido.coeficiente, std::move(literal)};
        }
        return {std::move(suma), {std::move(contenido)}};
    }

    static void EscalaEntera(Términos& suma, double factor) {
        for (Término& término : suma)
            término.coeficiente /= factor;
    }

    // A numerator that is the denominator times a number, whatever their terms hold.
    bool CancelaProporcional() {
        if (n_.size() != d_.size())
            return false;
        std::map<Literal, double, OrdenPorSímbolos> deN;
        for (const Término& término : n_)
            deN.emplace(término.literal, término.coeficiente);
        const auto primera = deN.find(d_[0].literal);
        if (primera == deN.end())
            return false;
        const double arriba = primera->second;
        const double abajo = d_[0].coeficiente;
        for (const Término& término : d_) {
            const auto suyo = deN.find(término.literal);
            constexpr double Precisión = 1e-13;
            if (suyo == deN.end() ||
                std::fabs(suyo->second * abajo - término.coeficiente * arriba) >
                    Precisión * std::fabs(término.coeficiente * arriba))
                return false;
        }
        n_ = SumaNúmero(arriba);
        d_ = SumaNúmero(abajo);
        return true;
    }

    struct OrdenPorSímbolos {
        bool operator()(const Literal& a, const Literal& b) const {
            return std::ranges::lexicographical_compare(a, b, [](const Factor& x, const Factor& y) {
                return x.símbolo != y.símbolo ? x.símbolo < y.símbolo : x.exponente < y.exponente;
            });
        }
    };

    void CancelaEnteros() {
        HazEnteros();
        const double enN = DevFactorEntero(n_);
        const double enD = enN == 0 ? 0 : DevFactorEntero(d_);
        const double factor = enD == 0 ? 1 : DevMcd(enN, enD);
        const bool negativo =
            std::ranges::all_of(d_, [](const Término& t) { return t.coeficiente < 0; });
        if (factor != 1 || negativo) {
            EscalaEntera(n_, negativo ? -factor : factor);
            EscalaEntera(d_, negativo ? -factor : factor);
        }
        // A denominator that would be written as 0
        if (std::ranges::all_of(d_, [&](const Término& t) {
                return Redondea(t.coeficiente, tabla_.contexto.DígitosRedondeo) == 0;
            })) {
            const double inverso = CompruebaFinito(1 / d_[0].coeficiente);
            EscalaSuma(n_, inverso);
            EscalaSuma(d_, inverso);
        }
    }

    // Makes the coefficients of the denominator whole where it is one term, and those of both sides
    // where decimals would cut one of them short.
    void HazEnteros() {
        if (d_.size() == 1) {
            if (!EsEntero(d_[0].coeficiente))
                Escala(DevEscala(d_[0].coeficiente));
            return;
        }
        double escala = 1;
        bool cortado = false;
        for (const Términos* const lado : {&n_, &d_})
            for (const Término& término : *lado) {
                cortado = cortado || !EsDecimal(término.coeficiente);
                escala *= DevDenominador(término.coeficiente * escala);
                constexpr double MáximaEscala = 1e6;
                if (escala == 0 || escala > MáximaEscala)
                    return;
            }
        if (cortado)
            Escala(escala);
    }

    bool EsDecimal(double coeficiente) const {
        constexpr double Ruido = 1e-14;
        constexpr int MáximosDecimales = 12; // with more, a third would pass for one
        const double redondo = Redondea(coeficiente, tabla_.contexto.DígitosRedondeo);
        return std::fabs(redondo - coeficiente) <= Ruido * std::fabs(coeficiente) &&
               (EsEntero(redondo) || DecimalesNúmero(redondo) <= MáximosDecimales);
    }

    // The least small whole number that makes a coefficient whole, or 0.
    static double DevDenominador(double coeficiente) {
        constexpr double Ruido = 1e-11;
        if (EsEntero(coeficiente))
            return 1;
        const auto [numerador, denominador] = DevFracciónPequeña(coeficiente);
        const double resto = std::fabs(coeficiente * denominador - numerador);
        return resto < Ruido * std::fabs(numerador) ? denominador : 0;
    }

    // What makes a coefficient whole: a power of ten for a decimal, the denominator of a fraction,
    // or the inverse, which leaves 1.
    double DevEscala(double coeficiente) const {
        if (EsDecimal(coeficiente)) {
            const double escala = std::pow(10.0, DecimalesNúmero(coeficiente));
            const double entero = std::round(coeficiente * escala);
            constexpr double MáximoExacto = 9007199254740992.0; // 2^53
            if (entero != 0 && std::fabs(entero) < MáximoExacto)
                return escala;
        }
        const double denominador = DevDenominador(coeficiente);
        return denominador != 0 ? denominador : CompruebaFinito(1 / coeficiente);
    }

    void Escala(double escala) {
        for (Términos* const lado : {&n_, &d_})
            for (Término& término : *lado)
                término.coeficiente = LimpiaEntero(CompruebaFinito(término.coeficiente * escala));
    }

    TablaSímbolos& tabla_;
    Términos n_;
    Términos d_;
    std::span<const Términos> divisores_;
};

} // namespace

Fracción ReduceFracción(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                        std::span<const Términos> divisores) {
    return Reductor(tabla, {std::move(numerador), std::move(denominador)}, divisores).Reduce();
}

} // namespace quiralto
