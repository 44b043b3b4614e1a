#include "engine/desarrollo/reduccion.h"

#include "engine/desarrollo/division_exacta.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>
#include <map>
#include <optional>

namespace quiralto {
namespace {

class Reductor {
public:
    Reductor(TablaSímbolos& tabla, FracciónAbierta& f) : tabla_(tabla), f_(f) {}

    void Reduce() {
        AbreGrupos(tabla_, f_);
        SubeNegativos();
        CancelaPotencias();
        while (SacaComunes() || CancelaSumas())
            CancelaPotencias();
        if (CancelaPorValores())
            Reduce();
    }

private:
    struct Exponentes {
        Exponente arriba = 0;
        Exponente abajo = 0;
    };

    // The powers below that are negative belong above.
    void SubeNegativos() {
        Literal suben;
        for (std::size_t i = 0; i < f_.abajo.size();) {
            const std::size_t fin = FinDeBase(tabla_, f_.abajo, i);
            bool negativa = true;
            for (std::size_t k = i; k < fin; ++k)
                negativa = negativa && f_.abajo[k].exponente.Signo() < 0;
            for (; i < fin; ++i)
                if (negativa)
                    suben.push_back({f_.abajo[i].símbolo, -f_.abajo[i].exponente});
        }
        if (suben.empty())
            return;
        std::erase_if(f_.abajo, [&](const Factor& factor) {
            return std::ranges::find(suben, factor.símbolo, &Factor::símbolo) != suben.end();
        });
        Literal unido;
        MultiplicaLiterales(tabla_, f_.arriba, suben, unido);
        JuntaRaíces(tabla_, unido);
        f_.arriba = std::move(unido);
        AbreGrupos(tabla_, f_);
    }

    // Bases, and roots with their arguments, that stand on both sides come to stand on one.
    void CancelaPotencias() {
        for (std::size_t i = 0; i < f_.abajo.size();) {
            const IdBase base = tabla_.IdDe(f_.abajo[i].símbolo);
            if (HayBase(f_.arriba, base)) {
                JuntaBase(base);
                i = 0;
            } else if (CancelaRaíz(i)) {
                i = 0;
            } else {
                ++i;
            }
        }
    }

    bool HayBase(const Literal& literal, IdBase base) const {
        return std::ranges::any_of(
            literal, [&](const Factor& factor) { return tabla_.IdDe(factor.símbolo) == base; });
    }

    // All powers of the base: below where they are numbers that add up to less than 0, or all less
    // than 0, otherwise above.
    void JuntaBase(IdBase base) {
        const auto esSuyo = [&](const Factor& f) { return tabla_.IdDe(f.símbolo) == base; };
        Literal arriba;
        Literal abajo;
        std::ranges::copy_if(f_.arriba, std::back_inserter(arriba), esSuyo);
        std::ranges::copy_if(f_.abajo, std::back_inserter(abajo), esSuyo);
        std::erase_if(f_.arriba, esSuyo);
        std::erase_if(f_.abajo, esSuyo);
        for (Factor& factor : abajo)
            factor.exponente = -factor.exponente;
        Literal total;
        MultiplicaLiterales(tabla_, arriba, abajo, total);
        const bool baja =
            std::ranges::all_of(total, [](const Factor& f) { return f.exponente.Signo() < 0; });
        Pon(baja, total);
    }

    void Pon(bool abajo, Literal literal) {
        if (abajo)
            for (Factor& factor : literal)
                factor.exponente = -factor.exponente;
        Literal& lado = abajo ? f_.abajo : f_.arriba;
        Literal unido;
        MultiplicaLiterales(tabla_, lado, literal, unido);
        JuntaRaíces(tabla_, unido);
        lado = std::move(unido);
        AbreGrupos(tabla_, f_);
    }

    // A root below whose argument stands above, or an argument below whose root stands above.
    bool CancelaRaíz(std::size_t i) {
        if (!tabla_.HayRaíces())
            return false;
        const Factor deAbajo = f_.abajo[i];
        for (const Factor deArriba : f_.arriba) {
            const auto [raíz, base] = DevRaízYBase(deAbajo.símbolo, deArriba.símbolo);
            if (!raíz || !EsLlanaEnAmbos(*raíz) || !EsLlanaEnAmbos(base))
                continue;
            const bool raízAbajo = *raíz == deAbajo.símbolo;
            const ConRaíz total = raízAbajo ? JuntaRaíz(deArriba.exponente, -deAbajo.exponente)
                                            : JuntaRaíz(-deAbajo.exponente, deArriba.exponente);
            std::erase(f_.arriba, deArriba);
            std::erase(f_.abajo, deAbajo);
            PonUno(base, total.base);
            PonUno(*raíz, total.raíz);
            return true;
        }
        return false;
    }

    bool EsLlanaEnAmbos(IdSímbolo símbolo) const {
        const IdBase base = tabla_.IdDe(símbolo);
        return EsBaseLlana(tabla_, f_.arriba, base) && EsBaseLlana(tabla_, f_.abajo, base);
    }

    void PonUno(IdSímbolo símbolo, const Exponente& exponente) {
        if (exponente.Signo() != 0)
            Pon(exponente.Signo() < 0, {{símbolo, exponente}});
    }

    std::pair<std::optional<IdSímbolo>, IdSímbolo> DevRaízYBase(IdSímbolo a, IdSímbolo b) const {
        for (const auto& [raíz, base] : {std::pair(a, b), std::pair(b, a)}) {
            const Base& suya = tabla_.BaseDe(raíz);
            if (EsRaíz(suya) && tabla_.EsLlano(raíz) && suya.radicando == base)
                return {raíz, base};
        }
        return {std::nullopt, 0};
    }

    // The group that a factor below is a power of, and its exponent: that of a root counts as one
    // half, taken out whole.
    const Base* DevGrupo(const Factor& factor) const {
        if (!tabla_.EsLlano(factor.símbolo) || !factor.exponente.EsEntero() ||
            factor.exponente.Signo() <= 0)
            return nullptr;
        const Base* base = &tabla_.BaseDe(factor.símbolo);
        if (EsRaíz(*base))
            base = &tabla_.BaseDe(base->radicando);
        return base->clase == ClaseBase::Grupo && base->contenido.size() > 1 ? base : nullptr;
    }

    bool CancelaSumas() {
        for (std::size_t k = 0; k < f_.sumas.size(); ++k)
            for (std::size_t i = 0; i < f_.abajo.size(); ++i)
                if (const Base* const grupo = DevGrupo(f_.abajo[i]))
                    if (CancelaSuma(k, i, *grupo))
                        return true;
        return false;
    }

    bool CancelaSuma(std::size_t k, std::size_t i, const Base& grupo) {
        const Términos suma = f_.sumas[k].suma;
        if (const auto proporción = DevProporción(suma, grupo.contenido))
            return Cancela(k, i, grupo, SumaNúmero(*proporción));
        if (auto cociente = DivideExacta(tabla_, suma, grupo.contenido))
            return Cancela(k, i, grupo, std::move(*cociente));
        const bool esRaíz = tabla_.BaseDe(f_.abajo[i].símbolo).clase == ClaseBase::Función;
        if (esRaíz)
            return false;
        if (auto cociente = DivideExacta(tabla_, grupo.contenido, suma))
            return CancelaGrupo(k, i, std::move(*cociente));
        return false;
    }

    // The sum is the group times `cociente`: as many of both go as there are.
    bool Cancela(std::size_t k, std::size_t i, const Base& grupo, Términos cociente) {
        const Factor factor = f_.abajo[i];
        const bool esRaíz = tabla_.BaseDe(factor.símbolo).clase == ClaseBase::Función;
        const std::int64_t veces =
            esRaíz ? 1 : std::min(f_.sumas[k].exponente, factor.exponente.Numerador());
        QuitaSuma(k, veces);
        if (esRaíz) { // u/SQR(u) is SQR(u)
            std::erase(f_.abajo, factor);
            const ConRaíz total = JuntaRaíz(1, -factor.exponente);
            PonUno(grupo.símbolo, total.base);
            PonUno(factor.símbolo, total.raíz);
        } else {
            QuitaAbajo(i, veces);
        }
        PonArriba(std::move(cociente), veces);
        return true;
    }

    // The group is the sum times `cociente`.
    bool CancelaGrupo(std::size_t k, std::size_t i, const Términos& cociente) {
        const std::int64_t veces =
            std::min(f_.sumas[k].exponente, f_.abajo[i].exponente.Numerador());
        QuitaSuma(k, veces);
        QuitaAbajo(i, veces);
        PonAbajo(cociente, veces);
        return true;
    }

    void QuitaSuma(std::size_t k, std::int64_t veces) {
        if ((f_.sumas[k].exponente -= veces) == 0)
            f_.sumas.erase(f_.sumas.begin() + static_cast<std::ptrdiff_t>(k));
    }

    void QuitaAbajo(std::size_t i, std::int64_t veces) {
        f_.abajo[i].exponente = f_.abajo[i].exponente + Exponente(-veces);
        if (f_.abajo[i].exponente.Signo() == 0)
            f_.abajo.erase(f_.abajo.begin() + static_cast<std::ptrdiff_t>(i));
    }

    void PonArriba(const Términos& suma, std::int64_t veces) {
        if (suma.size() > 1)
            return PonPotencia(f_, suma, veces);
        f_.coeficiente *= suma[0].coeficiente.Potencia(veces);
        Literal literal = suma[0].literal;
        for (Factor& factor : literal)
            factor.exponente = factor.exponente * veces;
        Pon(false, std::move(literal));
    }

    void PonAbajo(const Términos& suma, std::int64_t veces) {
        Literal literal = suma[0].literal;
        Coeficiente número = suma[0].coeficiente;
        if (suma.size() > 1) {
            const ConNúmero grupo = quiralto::DevGrupo(tabla_, suma);
            literal = {{grupo.grupo, 1}};
            número = grupo.número;
        }
        f_.coeficiente /= número.Potencia(veces);
        for (Factor& factor : literal)
            factor.exponente = factor.exponente * -veces;
        Pon(true, std::move(literal));
    }

    // The powers of symbols that all terms share, as far as their exponents are more than 0.
    Literal DevComunes(const Términos& suma) const {
        Literal comunes;
        for (const Factor& factor : suma[0].literal) {
            Exponente mínimo = factor.exponente;
            const bool todos = std::ranges::all_of(suma, [&](const Término& t) {
                const auto suyo = std::ranges::find(t.literal, factor.símbolo, &Factor::símbolo);
                if (suyo == t.literal.end())
                    return false;
                mínimo = std::min(mínimo, suyo->exponente);
                return true;
            });
            if (todos && tabla_.BaseDe(factor.símbolo).clase != ClaseBase::Cociente)
                comunes.push_back({factor.símbolo, mínimo});
        }
        return comunes;
    }

    // Takes out of a sum above or a group below what its terms share with the other side.
    bool SacaComunes() {
        for (std::size_t k = 0; k < f_.sumas.size(); ++k)
            if (SacaComunesDeSuma(k))
                return true;
        for (std::size_t i = 0; i < f_.abajo.size(); ++i)
            if (const Base& base = tabla_.BaseDe(f_.abajo[i].símbolo);
                base.clase == ClaseBase::Grupo && DevGrupo(f_.abajo[i]) != nullptr &&
                SacaComunesDeGrupo(i, base))
                return true;
        return false;
    }

    bool SeRelaciona(IdSímbolo símbolo, const Literal& lado) const {
        return std::ranges::any_of(lado, [&](const Factor& f) {
            return tabla_.IdDe(f.símbolo) == tabla_.IdDe(símbolo) ||
                   DevRaízYBase(f.símbolo, símbolo).first.has_value();
        });
    }

    Términos Divide(const Términos& suma, const Literal& comunes) const {
        Literal inverso = comunes;
        for (Factor& factor : inverso)
            factor.exponente = -factor.exponente;
        Términos cociente;
        for (const Término& término : suma) {
            Literal literal;
            MultiplicaLiterales(tabla_, término.literal, inverso, literal);
            JuntaRaíces(tabla_, literal);
            cociente.push_back({término.coeficiente, std::move(literal)});
        }
        return cociente;
    }

    bool SacaComunesDeSuma(std::size_t k) {
        Literal comunes = DevComunes(f_.sumas[k].suma);
        std::erase_if(comunes,
                      [&](const Factor& factor) { return !SeRelaciona(factor.símbolo, f_.abajo); });
        if (comunes.empty())
            return false;
        Potencia potencia = f_.sumas[k];
        QuitaSuma(k, potencia.exponente);
        PonPotencia(f_, Divide(potencia.suma, comunes), potencia.exponente);
        for (Factor& factor : comunes)
            factor.exponente = factor.exponente * potencia.exponente;
        Pon(false, std::move(comunes));
        return true;
    }

    bool SacaComunesDeGrupo(std::size_t i, const Base& base) {
        Literal comunes = DevComunes(base.contenido);
        std::erase_if(
            comunes, [&](const Factor& factor) { return !SeRelaciona(factor.símbolo, f_.arriba); });
        if (comunes.empty())
            return false;
        const std::int64_t veces = f_.abajo[i].exponente.Numerador();
        const Términos resto = Divide(base.contenido, comunes);
        QuitaAbajo(i, veces);
        PonAbajo(resto, veces);
        for (Factor& factor : comunes)
            factor.exponente = factor.exponente * -veces;
        Pon(true, std::move(comunes));
        return true;
    }

    bool EsComparable(const Factor& factor) const {
        const ClaseBase clase = tabla_.BaseDe(factor.símbolo).clase;
        return tabla_.EsLlano(factor.símbolo) &&
               (clase == ClaseBase::Función || clase == ClaseBase::Grupo);
    }

    // Functions and groups that only their values show to be equal: one takes the other's name.
    bool CancelaPorValores() {
        if (tabla_.SoloPorLetra())
            return false;
        for (Factor& deAbajo : f_.abajo)
            for (const Factor& deArriba : f_.arriba)
                if (EsComparable(deAbajo) && EsComparable(deArriba) &&
                    SonSemejantes(tabla_, {{deAbajo.símbolo, 1}}, {{deArriba.símbolo, 1}})) {
                    const Factor renombrado{deArriba.símbolo, -deAbajo.exponente};
                    std::erase(f_.abajo, Factor(deAbajo));
                    Pon(true, {renombrado});
                    return true;
                }
        return false;
    }

    TablaSímbolos& tabla_;
    FracciónAbierta& f_;
};

} // namespace

void Reduce(TablaSímbolos& tabla, FracciónAbierta& f) {
    if (f.abajo.empty())
        return;
    const GuardaProfundidad guarda(tabla);
    tabla.contexto.Vigila();
    Reductor(tabla, f).Reduce();
}

} // namespace quiralto
