// Quotients of sums: the cancelling of common factors, and the form in which they stay.

#include "engine/algebra_suma.h"
#include "engine/division_suma.h"
#include "engine/error_ejecucion.h"
#include "engine/escribe_suma.h"
#include "engine/numero.h"
#include "engine/semejantes.h"

#include <algorithm>
#include <array>
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

bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayCocientes() && std::ranges::any_of(suma, [&](const Término& t) {
               return DevCocienteDe(tabla, t.literal) != nullptr;
           });
}

void EscalaSuma(Términos& suma, double factor) {
    for (Término& término : suma)
        término.coeficiente = CompruebaFinito(término.coeficiente * factor);
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
            while (d_.size() == 1 && PasaAlNumerador()) {
            }
            CancelaPotencias();
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
        auto [d, contenido] = SeparaContenido(d_);
        if (auto cociente = DivideExacta(tabla_, n_, d)) {
            n_ = std::move(*cociente);
            d_ = std::move(contenido);
            if (!EsNúmero(d_))
                CancelaPotencias();
            return;
        }
        if (CancelaDivisor(n_))
            return;
        for (const Términos& divisor : divisores_)
            while (n_.size() > 1 && d_.size() > 1 && CancelaDivisor(divisor)) {
            }
    }

    // Divides both sides by a sum that divides both.
    bool CancelaDivisor(Términos divisor) {
        if (divisor.size() < 2)
            return false;
        divisor = SeparaContenido(std::move(divisor)).primitiva;
        auto d = DivideExacta(tabla_, d_, divisor);
        if (!d)
            return false;
        auto n = DivideExacta(tabla_, n_, divisor);
        if (!n)
            return false;
        n_ = std::move(*n);
        d_ = std::move(*d);
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
        if (d_.size() == 1)
            HazEntero();
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

    // A decimal coefficient of a denominator of one term: both sides times a power of ten.
    void HazEntero() {
        double& coeficiente = d_[0].coeficiente;
        if (EsEntero(coeficiente))
            return;
        const double escala = std::pow(10.0, DecimalesNúmero(coeficiente));
        const double entero = std::round(coeficiente * escala);
        constexpr double MáximoExacto = 9007199254740992.0; // 2^53
        if (!std::isfinite(entero) || std::fabs(entero) >= MáximoExacto || entero == 0 ||
            std::fabs(coeficiente * escala - entero) > std::fabs(entero) * 1e-13)
            return;
        coeficiente = entero;
        for (Término& término : n_) {
            término.coeficiente = CompruebaFinito(término.coeficiente * escala);
            const double redondo = std::round(término.coeficiente);
            if (std::fabs(redondo - término.coeficiente) <= std::fabs(redondo) * 1e-14)
                término.coeficiente = redondo;
        }
    }

    TablaSímbolos& tabla_;
    Términos n_;
    Términos d_;
    std::span<const Términos> divisores_;
};

// One term for a quotient whose denominator is not a number.
Términos DevTérminoCociente(TablaSímbolos& tabla, Términos numerador, Términos denominador) {
    double coeficiente = 1;
    if (numerador.size() == 1) {
        coeficiente = std::exchange(numerador[0].coeficiente, 1);
    } else if (numerador[0].coeficiente < 0) {
        coeficiente = -1;
        EscalaSuma(numerador, -1);
    }
    std::string texto = EscribeFracción(tabla, numerador, denominador);
    const IdSímbolo símbolo = tabla.DevBase({.clase = ClaseBase::Cociente,
                                             .texto = std::move(texto),
                                             .numerador = std::move(numerador),
                                             .denominador = std::move(denominador)});
    return {{coeficiente, {{símbolo, 1}}}};
}

// The exponent of the factors of one base.
Términos DevExponente(const TablaSímbolos& tabla, std::span<const Factor> factores) {
    Términos exponente;
    for (const Factor& factor : factores)
        exponente.push_back({factor.exponente, tabla.LiteralExponente(factor.símbolo)});
    return exponente;
}

Términos JuntaCocientes(TablaSímbolos& tabla, const Términos& suma) {
    Fracción total = DevFracción(tabla, suma);
    return DevCociente(tabla, std::move(total.numerador), std::move(total.denominador));
}

// Whether a quotient with a coefficient is as it would be with the coefficient drawn into it.
bool EstáReducido(double coeficiente, const Base& cociente) {
    if (std::fabs(coeficiente) == 1)
        return true;
    const double factor = DevFactorEntero(cociente.denominador);
    return cociente.numerador.size() == 1 &&
           (factor == 0 || !EsEntero(coeficiente) || DevMcd(coeficiente, factor) == 1);
}

// Whether the exponents read as they would be expanded by themselves: their quotients reduced, and
// in a complete expansion over one denominator.
bool EstáAsentado(const TablaSímbolos& tabla, std::span<const Factor> factores) {
    return std::ranges::all_of(factores, [&](const Factor& factor) {
        const Base* const cociente = DevCocienteDe(tabla, tabla.LiteralExponente(factor.símbolo));
        return cociente == nullptr ||
               (EstáReducido(factor.exponente, *cociente) &&
                (factores.size() == 1 || tabla.clase == ClaseDesarrollo::Simplificado));
    });
}

bool EstánAsentados(const TablaSímbolos& tabla, const Literal& literal) {
    if (!tabla.HayCocientes())
        return true;
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        if (!EstáAsentado(tabla, std::span(literal).subspan(i, fin - i)))
            return false;
        i = fin;
    }
    return true;
}

Literal AsientaExponentes(TablaSímbolos& tabla, const Literal& literal) {
    Literal asentado;
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        const auto factores = std::span(literal).subspan(i, fin - i);
        if (EstáAsentado(tabla, factores)) {
            asentado.insert(asentado.end(), factores.begin(), factores.end());
        } else {
            const Términos exponente = DevExponente(tabla, factores);
            const Literal potencia = DevPotenciaDe(tabla, tabla.IdDe(literal[i].símbolo),
                                                   tabla.clase == ClaseDesarrollo::Completo
                                                       ? JuntaCocientes(tabla, exponente)
                                                       : RedondeaSuma(tabla, exponente));
            asentado.insert(asentado.end(), potencia.begin(), potencia.end());
        }
        i = fin;
    }
    return asentado;
}

// A coefficient as its text will read: with as many decimals and as many digits.
double DevCoeficienteFinal(const TablaSímbolos& tabla, double coeficiente) {
    constexpr double MáximoEntero = 1e15;   // whole numbers below are written in full
    constexpr double MáximoDecimales = 1e7; // below, so are 8 decimals
    const double absoluto = std::fabs(coeficiente);
    if (absoluto < MáximoEntero && EsEntero(coeficiente))
        return coeficiente;
    const double redondo = Redondea(coeficiente, tabla.contexto.DígitosRedondeo);
    return absoluto < MáximoDecimales ? redondo : Val(TextoNúmero(redondo));
}

Términos RedondeaTérminos(TablaSímbolos& tabla, Términos suma) {
    Recolector redondeada(tabla.contexto);
    for (Término& término : suma) {
        const double coeficiente = DevCoeficienteFinal(tabla, término.coeficiente);
        if (coeficiente == 0)
            continue;
        for (Factor& factor : término.literal)
            factor.exponente = DevExponenteFinal(tabla, factor.exponente);
        std::erase_if(término.literal, [](const Factor& f) { return f.exponente == 0; });
        if (!EstánAsentados(tabla, término.literal))
            término.literal = AsientaExponentes(tabla, término.literal);
        const Base* const cociente = DevCocienteDe(tabla, término.literal);
        const double absoluto = std::fabs(coeficiente);
        if (cociente == nullptr || EstáReducido(coeficiente, *cociente)) {
            redondeada.Añade(coeficiente, término.literal);
            continue;
        }
        Términos numerador = cociente->numerador;
        EscalaSuma(numerador, absoluto);
        redondeada.Añade(DevCociente(tabla, std::move(numerador), cociente->denominador),
                         coeficiente < 0 ? -1 : 1);
    }
    suma = redondeada.Toma();
    for (Término& término : suma)
        término.coeficiente = DevCoeficienteFinal(tabla, término.coeficiente);
    std::erase_if(suma, [](const Término& t) { return t.coeficiente == 0; });
    // Rounded exponents can have become whole.
    return MultiplicaSumas(tabla, suma, SumaNúmero(1));
}

// A lone term's coefficient stays as it is, to be rounded with the sum that the quotient joins.
Términos RedondeaNumerador(TablaSímbolos& tabla, Términos numerador) {
    if (numerador.size() > 1)
        return RedondeaSuma(tabla, std::move(numerador));
    const double coeficiente = std::exchange(numerador[0].coeficiente, 1);
    numerador = RedondeaSuma(tabla, std::move(numerador));
    for (Término& término : numerador)
        término.coeficiente *= coeficiente;
    return numerador;
}

} // namespace

Términos AsientaSuma(TablaSímbolos& tabla, Términos suma) {
    for (Término& término : suma)
        if (!EstánAsentados(tabla, término.literal))
            término.literal = AsientaExponentes(tabla, término.literal);
    return suma;
}

bool EstáRedondeada(const TablaSímbolos& tabla, const Términos& suma) {
    return std::ranges::all_of(suma, [&](const Término& t) {
        const Base* const cociente = DevCocienteDe(tabla, t.literal);
        return DevCoeficienteFinal(tabla, t.coeficiente) == t.coeficiente &&
               std::ranges::all_of(t.literal,
                                   [&](const Factor& f) {
                                       return DevExponenteFinal(tabla, f.exponente) == f.exponente;
                                   }) &&
               (cociente == nullptr || EstáReducido(t.coeficiente, *cociente)) &&
               EstánAsentados(tabla, t.literal);
    });
}

Fracción DevFracción(TablaSímbolos& tabla, const Términos& suma) {
    if (!HayCocientes(tabla, suma))
        return {suma};
    Fracción total{{}};
    for (const Término& término : suma) {
        const Base* const cociente = DevCocienteDe(tabla, término.literal);
        const Términos uno = SumaNúmero(1);
        const Términos& denominador = cociente != nullptr ? cociente->denominador : uno;
        const Términos numerador =
            cociente != nullptr
                ? MultiplicaSumas(tabla, SumaNúmero(término.coeficiente), cociente->numerador)
                : Términos{término};
        Recolector unido(tabla.contexto);
        unido.Añade(MultiplicaSumas(tabla, total.numerador, denominador));
        unido.Añade(MultiplicaSumas(tabla, numerador, total.denominador));
        const std::array divisores = {total.denominador, denominador};
        total = ReduceFracción(tabla, unido.Toma(),
                               MultiplicaSumas(tabla, total.denominador, denominador), divisores);
    }
    return total;
}

Fracción ReduceFracción(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                        std::span<const Términos> divisores) {
    return Reductor(tabla, {std::move(numerador), std::move(denominador)}, divisores).Reduce();
}

Términos DevCociente(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                     std::span<const Términos> divisores) {
    const GuardaProfundidad guarda(tabla);
    for (int vuelta = 0;; ++vuelta) {
        Fracción f = ReduceFracción(tabla, std::move(numerador), std::move(denominador), divisores);
        if (EsNúmero(f.denominador)) {
            const double divisor = DevNúmero(f.denominador);
            for (Término& término : f.numerador)
                término.coeficiente = CompruebaFinito(término.coeficiente / divisor);
            return std::move(f.numerador);
        }
        denominador = RedondeaSuma(tabla, f.denominador);
        numerador = RedondeaNumerador(tabla, f.numerador);
        constexpr int MáximasVueltas = 3;
        const bool igual =
            denominador.size() == f.denominador.size() && numerador.size() == f.numerador.size();
        if (!EsNúmero(denominador) && (igual || vuelta >= MáximasVueltas))
            return DevTérminoCociente(tabla, std::move(numerador), std::move(denominador));
    }
}

Términos RedondeaSuma(TablaSímbolos& tabla, Términos suma) {
    constexpr int MáximasVueltas = 4;
    for (int vuelta = 0; vuelta < MáximasVueltas && !EstáRedondeada(tabla, suma); ++vuelta)
        suma = RedondeaTérminos(tabla, std::move(suma));
    FundeSemejantes(tabla, suma);
    return suma;
}

} // namespace quiralto
