#include "engine/desarrollo/division_suma.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace quiralto {
namespace {

constexpr std::size_t MáximoPasos = 2'000'000;
constexpr double MáximoExacto = 9007199254740992.0; // 2^53

// Descending lexicographic order by the exponents of the symbols in their order.
class OrdenLéxico {
public:
    explicit OrdenLéxico(const TablaSímbolos& tabla) : tabla_(&tabla) {}

    bool operator()(const Literal& a, const Literal& b) const {
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
            if (a[i] == b[i])
                continue;
            if (a[i].símbolo == b[i].símbolo)
                return a[i].exponente > b[i].exponente;
            return tabla_->Precede(a[i].símbolo, b[i].símbolo) ? a[i].exponente > 0
                                                               : b[i].exponente < 0;
        }
        if (a.size() == b.size())
            return false;
        return a.size() > b.size() ? a[b.size()].exponente > 0 : b[a.size()].exponente < 0;
    }

private:
    const TablaSímbolos* tabla_;
};

struct Extremos {
    double mínimo = 0;
    double máximo = 0;
};

// The least and greatest exponent of every symbol over the terms; 0 counts where one lacks it.
std::map<IdSímbolo, Extremos> DevExtremos(const Términos& suma) {
    std::map<IdSímbolo, Extremos> extremos;
    std::map<IdSímbolo, std::size_t> veces;
    for (const Término& término : suma) {
        for (const Factor& factor : término.literal) {
            const auto [suyos, nuevos] =
                extremos.emplace(factor.símbolo, Extremos{factor.exponente, factor.exponente});
            suyos->second.mínimo = std::min(suyos->second.mínimo, factor.exponente);
            suyos->second.máximo = std::max(suyos->second.máximo, factor.exponente);
            ++veces[factor.símbolo];
        }
    }
    for (auto& [símbolo, suyos] : extremos) {
        if (veces[símbolo] == suma.size())
            continue;
        suyos.mínimo = std::min(suyos.mínimo, 0.0);
        suyos.máximo = std::max(suyos.máximo, 0.0);
    }
    return extremos;
}

bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayCocientes() && std::ranges::any_of(suma, [&](const Término& t) {
               return DevCocienteDe(tabla, t.literal) != nullptr;
           });
}

Literal DevInverso(const Literal& literal) {
    Literal inverso = literal;
    for (Factor& factor : inverso)
        factor.exponente = -factor.exponente;
    return inverso;
}

class Divisor {
public:
    Divisor(const TablaSímbolos& tabla, const Términos& dividendo, const Términos& divisor)
        : tabla_(tabla), divisor_(divisor), orden_(tabla), resto_(orden_),
          delDividendo_(DevExtremos(dividendo)), delDivisor_(DevExtremos(divisor)),
          enteros_(DevFactorEntero(dividendo) != 0 && DevFactorEntero(divisor) != 0) {
        double mayor = 0;
        for (const Término& término : dividendo) {
            resto_.emplace(término.literal, término.coeficiente);
            mayor = std::max(mayor, std::fabs(término.coeficiente));
        }
        constexpr double Precisión = 1e-11;
        tolerancia_ = enteros_ ? 0 : mayor * Precisión;
    }

    std::optional<Términos> Divide() {
        if (!PuedeCaber())
            return std::nullopt;
        const Término& guía =
            *std::ranges::min_element(divisor_, orden_, [](const Término& t) { return t.literal; });
        const Literal inverso = DevInverso(guía.literal);
        Términos cociente;
        Literal literal;
        for (std::size_t pasos = 0; !resto_.empty(); pasos += divisor_.size()) {
            if (pasos > MáximoPasos)
                return std::nullopt;
            tabla_.contexto.Vigila();
            MultiplicaLiterales(tabla_, resto_.begin()->first, inverso, literal);
            double coeficiente = resto_.begin()->second / guía.coeficiente;
            if (!std::isfinite(coeficiente) || (enteros_ && !EsEntero(coeficiente)) ||
                !Cabe(literal))
                return std::nullopt;
            cociente.push_back({coeficiente, literal});
            if (!Resta(cociente.back()))
                return std::nullopt;
        }
        return cociente;
    }

private:
    // In a product the extremes of the exponents add up.
    bool PuedeCaber() const {
        return std::ranges::all_of(delDivisor_, [&](const auto& par) {
            const auto suyos = delDividendo_.find(par.first);
            const Extremos n = suyos == delDividendo_.end() ? Extremos{} : suyos->second;
            return n.máximo - n.mínimo >= par.second.máximo - par.second.mínimo;
        });
    }

    bool Cabe(const Literal& literal) const {
        return std::ranges::all_of(literal, [&](const Factor& factor) {
            const auto n = delDividendo_.find(factor.símbolo);
            const auto d = delDivisor_.find(factor.símbolo);
            const Extremos en = n == delDividendo_.end() ? Extremos{} : n->second;
            const Extremos ed = d == delDivisor_.end() ? Extremos{} : d->second;
            return factor.exponente >= en.mínimo - ed.mínimo &&
                   factor.exponente <= en.máximo - ed.máximo;
        });
    }

    bool Resta(const Término& término) {
        Literal literal;
        for (const Término& d : divisor_) {
            MultiplicaLiterales(tabla_, término.literal, d.literal, literal);
            double& resto = resto_[literal];
            resto -= término.coeficiente * d.coeficiente;
            if (!std::isfinite(resto) || (enteros_ && std::fabs(resto) >= MáximoExacto))
                return false;
            if (std::fabs(resto) <= tolerancia_)
                resto_.erase(literal);
        }
        return true;
    }

    const TablaSímbolos& tabla_;
    const Términos& divisor_;
    OrdenLéxico orden_;
    std::map<Literal, double, OrdenLéxico> resto_;
    std::map<IdSímbolo, Extremos> delDividendo_;
    std::map<IdSímbolo, Extremos> delDivisor_;
    bool enteros_;
    double tolerancia_ = 0;
};

} // namespace

std::optional<Términos> DivideExacta(const TablaSímbolos& tabla, const Términos& dividendo,
                                     const Términos& divisor) {
    if (dividendo.size() * divisor.size() > MáximoPasos || HayCocientes(tabla, dividendo) ||
        HayCocientes(tabla, divisor))
        return std::nullopt;
    return Divisor(tabla, dividendo, divisor).Divide();
}

double DevMcd(double a, double b) {
    a = std::fabs(a);
    b = std::fabs(b);
    while (b != 0) {
        const double resto = std::fmod(a, b);
        a = b;
        b = resto;
    }
    return a;
}

double DevFactorEntero(const Términos& suma) {
    double mcd = 0;
    for (const Término& término : suma) {
        if (!EsEntero(término.coeficiente) || std::fabs(término.coeficiente) >= MáximoExacto)
            return 0;
        if (mcd != 1)
            mcd = DevMcd(mcd, término.coeficiente);
    }
    return mcd;
}

} // namespace quiralto
