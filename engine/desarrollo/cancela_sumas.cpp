#include "engine/desarrollo/cancela_sumas.h"

#include "engine/desarrollo/cancela_potencias.h"
#include "engine/desarrollo/division_exacta.h"
#include "engine/desarrollo/producto.h"

#include <algorithm>

namespace quiralto {
namespace {

// The group that a factor below is a power of; that of a root is its argument.
const Base* BuscaGrupo(const TablaSímbolos& tabla, const Factor& factor) {
    if (!tabla.EsLlano(factor.símbolo) || !factor.exponente.EsEntero() ||
        factor.exponente.Signo() <= 0)
        return nullptr;
    const Base* base = &tabla.BaseDe(factor.símbolo);
    if (EsRaíz(*base))
        base = &tabla.BaseDe(base->radicando);
    return base->clase == ClaseBase::Grupo && base->contenido.size() > 1 ? base : nullptr;
}

void QuitaSuma(FracciónAbierta& f, std::size_t k, std::int64_t veces) {
    if ((f.sumas[k].exponente -= veces) == 0)
        f.sumas.erase(f.sumas.begin() + static_cast<std::ptrdiff_t>(k));
}

void QuitaAbajo(FracciónAbierta& f, std::size_t i, std::int64_t veces) {
    f.abajo[i].exponente = f.abajo[i].exponente + Exponente(-veces);
    if (f.abajo[i].exponente.Signo() == 0)
        f.abajo.erase(f.abajo.begin() + static_cast<std::ptrdiff_t>(i));
}

Literal DevElevado(Literal literal, std::int64_t veces) {
    for (Factor& factor : literal)
        factor.exponente = factor.exponente * veces;
    return literal;
}

void PonSumaArriba(TablaSímbolos& tabla, FracciónAbierta& f, const Términos& suma,
                   std::int64_t veces) {
    if (suma.size() > 1)
        return PonPotencia(f, suma, veces);
    f.coeficiente *= suma[0].coeficiente.Potencia(veces);
    PonLiteral(tabla, f, Lado::Arriba, DevElevado(suma[0].literal, veces));
}

void PonSumaAbajo(TablaSímbolos& tabla, FracciónAbierta& f, const Términos& suma,
                  std::int64_t veces) {
    Literal literal = suma[0].literal;
    Coeficiente número = suma[0].coeficiente;
    if (suma.size() > 1) {
        const ConNúmero grupo = DevGrupo(tabla, suma);
        literal = {{grupo.grupo, 1}};
        número = grupo.número;
    }
    f.coeficiente /= número.Potencia(veces);
    PonLiteral(tabla, f, Lado::Abajo, DevElevado(std::move(literal), veces));
}

// The sum k is the group that a root below has as its argument, times `cociente`: u/SQR(u) is
// SQR(u).
void CancelaEnRaíz(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t k, std::size_t i,
                   const Términos& cociente) {
    const Factor factor = f.abajo[i];
    QuitaSuma(f, k, 1);
    std::erase(f.abajo, factor);
    const ConRaíz total = JuntaRaíz(1, -factor.exponente);
    PonFactor(tabla, f, tabla.BaseDe(factor.símbolo).radicando, total.base);
    PonFactor(tabla, f, factor.símbolo, total.raíz);
    PonSumaArriba(tabla, f, cociente, 1);
}

// The sum k and the group i, which are one a multiple of the other, as often as both are there:
// `cociente` stays on the side of the multiple.
void CancelaPareja(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t k, std::size_t i,
                   Lado lado, const Términos& cociente) {
    const std::int64_t veces = std::min(f.sumas[k].exponente, f.abajo[i].exponente.Numerador());
    QuitaSuma(f, k, veces);
    QuitaAbajo(f, i, veces);
    if (lado == Lado::Arriba)
        PonSumaArriba(tabla, f, cociente, veces);
    else
        PonSumaAbajo(tabla, f, cociente, veces);
}

// The sum that times `grupo` is `suma`, or none.
std::optional<Términos> DevVeces(const TablaSímbolos& tabla, const Términos& suma,
                                 const Términos& grupo) {
    if (const auto proporción = DevProporción(suma, grupo))
        return SumaNúmero(*proporción);
    return DivideExacta(tabla, suma, grupo);
}

bool CancelaSuma(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t k, std::size_t i,
                 const Base& grupo) {
    const Términos& suma = f.sumas[k].suma;
    const bool esRaíz = tabla.BaseDe(f.abajo[i].símbolo).clase == ClaseBase::Función;
    std::optional<Términos> cociente = DevVeces(tabla, suma, grupo.contenido);
    if (cociente) {
        if (esRaíz)
            CancelaEnRaíz(tabla, f, k, i, *cociente);
        else
            CancelaPareja(tabla, f, k, i, Lado::Arriba, *cociente);
        return true;
    }
    if (!esRaíz)
        cociente = DivideExacta(tabla, grupo.contenido, suma);
    if (cociente)
        CancelaPareja(tabla, f, k, i, Lado::Abajo, *cociente);
    return cociente.has_value();
}

// The powers of symbols that all terms share, as far as their exponents are more than 0 and a
// symbol of the other side has to do with them.
Literal DevComunes(const TablaSímbolos& tabla, const Términos& suma, const Literal& otroLado) {
    const auto seRelaciona = [&](IdSímbolo símbolo) {
        return std::ranges::any_of(otroLado, [&](const Factor& f) {
            return tabla.IdDe(f.símbolo) == tabla.IdDe(símbolo) ||
                   SonRaízYBase(tabla, f.símbolo, símbolo);
        });
    };
    Literal comunes;
    for (const Factor& factor : suma[0].literal) {
        if (tabla.BaseDe(factor.símbolo).clase == ClaseBase::Cociente ||
            !seRelaciona(factor.símbolo))
            continue;
        Exponente mínimo = factor.exponente;
        const bool todos = std::ranges::all_of(suma, [&](const Término& t) {
            const auto suyo = std::ranges::find(t.literal, factor.símbolo, &Factor::símbolo);
            if (suyo == t.literal.end())
                return false;
            mínimo = std::min(mínimo, suyo->exponente);
            return true;
        });
        if (todos)
            comunes.push_back({factor.símbolo, mínimo});
    }
    return comunes;
}

Términos Divide(const TablaSímbolos& tabla, const Términos& suma, const Literal& comunes) {
    const Literal inverso = DevElevado(comunes, -1);
    Términos cociente;
    for (const Término& término : suma) {
        Literal literal;
        MultiplicaLiterales(tabla, término.literal, inverso, literal);
        JuntaRaíces(tabla, literal);
        cociente.push_back({término.coeficiente, std::move(literal)});
    }
    return cociente;
}

bool SacaComunesDeSuma(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t k) {
    const Literal comunes = DevComunes(tabla, f.sumas[k].suma, f.abajo);
    if (comunes.empty())
        return false;
    const Potencia potencia = f.sumas[k];
    QuitaSuma(f, k, potencia.exponente);
    PonPotencia(f, Divide(tabla, potencia.suma, comunes), potencia.exponente);
    PonLiteral(tabla, f, Lado::Arriba, DevElevado(comunes, potencia.exponente));
    return true;
}

bool SacaComunesDeGrupo(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t i) {
    const Base& base = tabla.BaseDe(f.abajo[i].símbolo);
    if (base.clase != ClaseBase::Grupo || BuscaGrupo(tabla, f.abajo[i]) == nullptr)
        return false;
    const Literal comunes = DevComunes(tabla, base.contenido, f.arriba);
    if (comunes.empty())
        return false;
    const std::int64_t veces = f.abajo[i].exponente.Numerador();
    QuitaAbajo(f, i, veces);
    PonSumaAbajo(tabla, f, Divide(tabla, base.contenido, comunes), veces);
    PonLiteral(tabla, f, Lado::Abajo, DevElevado(comunes, veces));
    return true;
}

} // namespace

bool CancelaSumas(TablaSímbolos& tabla, FracciónAbierta& f) {
    for (std::size_t k = 0; k < f.sumas.size(); ++k)
        for (std::size_t i = 0; i < f.abajo.size(); ++i)
            if (const Base* const grupo = BuscaGrupo(tabla, f.abajo[i]))
                if (CancelaSuma(tabla, f, k, i, *grupo))
                    return true;
    return false;
}

bool SacaComunes(TablaSímbolos& tabla, FracciónAbierta& f) {
    for (std::size_t k = 0; k < f.sumas.size(); ++k)
        if (SacaComunesDeSuma(tabla, f, k))
            return true;
    for (std::size_t i = 0; i < f.abajo.size(); ++i)
        if (SacaComunesDeGrupo(tabla, f, i))
            return true;
    return false;
}

} // namespace quiralto
