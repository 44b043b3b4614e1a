#include "engine/desarrollo/division_exacta.h"

#include "engine/desarrollo/producto.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace quiralto {
namespace {

constexpr std::size_t MáximoPasos = 2'000'000;

// Descending lexicographic order by the exponents of the symbols in their order.
class OrdenLéxico {
public:
    explicit OrdenLéxico(const TablaSímbolos& tabla) : tabla_(&tabla) {}

    bool operator()(const Literal& a, const Literal& b) const {
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
            if (a[i] == b[i])
                continue;
            if (a[i].símbolo == b[i].símbolo)
                return b[i].exponente < a[i].exponente;
            return tabla_->Precede(a[i].símbolo, b[i].símbolo) ? a[i].exponente.Signo() > 0
                                                               : b[i].exponente.Signo() < 0;
        }
        if (a.size() == b.size())
            return false;
        return a.size() > b.size() ? a[b.size()].exponente.Signo() > 0
                                   : b[a.size()].exponente.Signo() < 0;
    }

private:
    const TablaSímbolos* tabla_;
};

struct Extremos {
    Exponente mínimo = 0;
    Exponente máximo = 0;
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
        suyos.mínimo = std::min(suyos.mínimo, Exponente(0));
        suyos.máximo = std::max(suyos.máximo, Exponente(0));
    }
    return extremos;
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
          delDividendo_(DevExtremos(dividendo)), delDivisor_(DevExtremos(divisor)) {
        for (const Término& término : dividendo)
            resto_.emplace(término.literal, término.coeficiente);
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
            constexpr std::size_t EntreVigilias = 64;
            if (cociente.size() % EntreVigilias == EntreVigilias - 1)
                tabla_.contexto.Vigila();
            MultiplicaLiterales(tabla_, resto_.begin()->first, inverso, literal);
            const Coeficiente coeficiente = resto_.begin()->second / guía.coeficiente;
            if (!coeficiente.EsExacto() || !Cabe(literal))
                return std::nullopt;
            cociente.push_back({coeficiente, literal});
            Resta(cociente.back());
        }
        return cociente;
    }

private:
    // In a product the extremes of the exponents add up.
    bool PuedeCaber() const {
        return std::ranges::all_of(delDivisor_, [&](const auto& par) {
            const auto suyos = delDividendo_.find(par.first);
            const Extremos n = suyos == delDividendo_.end() ? Extremos{} : suyos->second;
            return !(n.máximo + -n.mínimo < par.second.máximo + -par.second.mínimo);
        });
    }

    bool Cabe(const Literal& literal) const {
        return std::ranges::all_of(literal, [&](const Factor& factor) {
            const auto n = delDividendo_.find(factor.símbolo);
            const auto d = delDivisor_.find(factor.símbolo);
            const Extremos en = n == delDividendo_.end() ? Extremos{} : n->second;
            const Extremos ed = d == delDivisor_.end() ? Extremos{} : d->second;
            return !(factor.exponente < en.mínimo + -ed.mínimo) &&
                   !(en.máximo + -ed.máximo < factor.exponente);
        });
    }

    void Resta(const Término& término) {
        Literal literal;
        for (const Término& d : divisor_) {
            MultiplicaLiterales(tabla_, término.literal, d.literal, literal);
            const auto [lugar, nuevo] = resto_.try_emplace(literal);
            lugar->second -= término.coeficiente * d.coeficiente;
            if (lugar->second.EsCero())
                resto_.erase(lugar);
        }
    }

    const TablaSímbolos& tabla_;
    const Términos& divisor_;
    OrdenLéxico orden_;
    std::map<Literal, Coeficiente, OrdenLéxico> resto_;
    std::map<IdSímbolo, Extremos> delDividendo_;
    std::map<IdSímbolo, Extremos> delDivisor_;
};

// A polynomial of one symbol as a dense list: coefficient i is that of the symbol to the i.
struct UnaVariable {
    std::optional<IdSímbolo> símbolo;
    std::vector<Coeficiente> coeficientes;
};

std::optional<UnaVariable> DevUnaVariable(const TablaSímbolos& tabla, const Términos& suma) {
    constexpr std::int64_t MáximoGrado = 1 << 18;
    UnaVariable p;
    for (const auto& [coeficiente, literal] : suma) {
        if (literal.size() > 1)
            return std::nullopt;
        std::size_t grado = 0;
        if (!literal.empty()) {
            const auto& [símbolo, exponente] = literal[0];
            if (!exponente.EsEntero() || exponente.Signo() < 0 ||
                exponente.Numerador() > MáximoGrado || EsRaíz(tabla.BaseDe(símbolo)) ||
                (p.símbolo && *p.símbolo != símbolo))
                return std::nullopt;
            p.símbolo = símbolo;
            grado = static_cast<std::size_t>(exponente.Numerador());
        }
        if (p.coeficientes.size() <= grado)
            p.coeficientes.resize(grado + 1);
        p.coeficientes[grado] = coeficiente;
    }
    return p;
}

// The division of two of these, by the terms of the divisor that are not 0; none where it is not
// exact.
std::optional<Términos> DivideUnaVariable(const TablaSímbolos& tabla, UnaVariable dividendo,
                                          const UnaVariable& divisor) {
    std::vector<Coeficiente>& resto = dividendo.coeficientes;
    const std::vector<Coeficiente>& d = divisor.coeficientes;
    if (resto.size() < d.size())
        return std::nullopt;
    std::vector<std::size_t> grados; // of the divisor's other terms
    for (std::size_t i = 0; i + 1 < d.size(); ++i)
        if (!d[i].EsCero())
            grados.push_back(i);
    const Coeficiente inverso = d.back().Inverso();
    Términos cociente;
    std::size_t pasos = 0;
    for (std::size_t i = resto.size(); i-- > d.size() - 1;) {
        if (resto[i].EsCero())
            continue;
        if ((pasos += grados.size() + 1) > MáximoPasos)
            return std::nullopt;
        if (i % 1024 == 0)
            tabla.contexto.Vigila();
        const std::size_t grado = i - (d.size() - 1);
        const Coeficiente coeficiente = resto[i] * inverso;
        if (!coeficiente.EsExacto())
            return std::nullopt;
        for (const std::size_t k : grados)
            resto[grado + k] -= coeficiente * d[k];
        cociente.push_back({coeficiente, grado == 0 ? Literal{}
                                                    : Literal{{*dividendo.símbolo,
                                                               static_cast<std::int64_t>(grado)}}});
    }
    for (std::size_t i = 0; i + 1 < d.size(); ++i)
        if (!resto[i].EsCero())
            return std::nullopt;
    return cociente;
}

} // namespace

std::optional<Términos> DivideExacta(const TablaSímbolos& tabla, const Términos& dividendo,
                                     const Términos& divisor) {
    const auto inexacto = [](const Término& t) { return !t.coeficiente.EsExacto(); };
    if (dividendo.size() * divisor.size() > MáximoPasos || HayCocientes(tabla, dividendo) ||
        HayCocientes(tabla, divisor) || std::ranges::any_of(dividendo, inexacto) ||
        std::ranges::any_of(divisor, inexacto))
        return std::nullopt;
    if (auto n = DevUnaVariable(tabla, dividendo))
        if (auto d = DevUnaVariable(tabla, divisor); d && n->símbolo && n->símbolo == d->símbolo)
            return DivideUnaVariable(tabla, *std::move(n), *d);
    return Divisor(tabla, dividendo, divisor).Divide();
}

std::optional<Coeficiente> DevProporción(const Términos& suma, const Términos& otra) {
    if (suma.size() != otra.size() || suma.empty())
        return std::nullopt;
    const auto coeficienteDe = [](const Términos& s, const Literal& literal) {
        const auto suyo = std::ranges::find(s, literal, &Término::literal);
        return suyo == s.end() ? Coeficiente() : suyo->coeficiente;
    };
    const Coeficiente primero = coeficienteDe(suma, otra[0].literal);
    if (primero.EsCero())
        return std::nullopt;
    const Coeficiente proporción = primero / otra[0].coeficiente;
    constexpr std::size_t MáximosTérminos = 64; // the search goes with their square
    for (std::size_t i = 0; i < suma.size(); ++i) {
        const bool enSuLugar = suma[i].literal == otra[i].literal;
        if (!enSuLugar && suma.size() > MáximosTérminos)
            return std::nullopt;
        const Coeficiente suyo =
            enSuLugar ? suma[i].coeficiente : coeficienteDe(suma, otra[i].literal);
        if (suyo != otra[i].coeficiente * proporción)
            return std::nullopt;
    }
    return proporción;
}

} // namespace quiralto
