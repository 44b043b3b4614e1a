#include "engine/desarrollo/cancela_potencias.h"

#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>

namespace quiralto {
namespace {

bool EsRaízDe(const TablaSímbolos& tabla, IdSímbolo raíz, IdSímbolo base) {
    const Base& suya = tabla.BaseDe(raíz);
    return EsRaíz(suya) && tabla.EsLlano(raíz) && suya.radicando == base;
}

bool HayBase(const TablaSímbolos& tabla, const Literal& literal, IdBase base) {
    return std::ranges::any_of(
        literal, [&](const Factor& factor) { return tabla.IdDe(factor.símbolo) == base; });
}

Literal SacaBase(const TablaSímbolos& tabla, Literal& literal, IdBase base) {
    const auto esSuyo = [&](const Factor& f) { return tabla.IdDe(f.símbolo) == base; };
    Literal suyos;
    std::ranges::copy_if(literal, std::back_inserter(suyos), esSuyo);
    std::erase_if(literal, esSuyo);
    return suyos;
}

Literal DevInverso(Literal literal) {
    for (Factor& factor : literal)
        factor.exponente = -factor.exponente;
    return literal;
}

// All powers of the base: below where they are numbers that add up to less than 0, or all less
// than 0, otherwise above.
void JuntaBase(TablaSímbolos& tabla, FracciónAbierta& f, IdBase base) {
    const Literal arriba = SacaBase(tabla, f.arriba, base);
    const Literal abajo = DevInverso(SacaBase(tabla, f.abajo, base));
    Literal total;
    MultiplicaLiterales(tabla, arriba, abajo, total);
    const bool baja =
        std::ranges::all_of(total, [](const Factor& t) { return t.exponente.Signo() < 0; });
    if (baja)
        PonLiteral(tabla, f, Lado::Abajo, DevInverso(std::move(total)));
    else
        PonLiteral(tabla, f, Lado::Arriba, total);
}

bool EsLlanaEnAmbos(const TablaSímbolos& tabla, const FracciónAbierta& f, IdSímbolo símbolo) {
    const IdBase base = tabla.IdDe(símbolo);
    return EsBaseLlana(tabla, f.arriba, base) && EsBaseLlana(tabla, f.abajo, base);
}

// A root below whose argument stands above, or an argument below whose root stands above. Whether
// the factor below was one of these.
bool CancelaRaíz(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t i) {
    if (!tabla.HayRaíces())
        return false;
    const Factor abajo = f.abajo[i];
    for (const Factor arriba : f.arriba) {
        const bool raízAbajo = EsRaízDe(tabla, abajo.símbolo, arriba.símbolo);
        if ((!raízAbajo && !EsRaízDe(tabla, arriba.símbolo, abajo.símbolo)) ||
            !EsLlanaEnAmbos(tabla, f, abajo.símbolo) || !EsLlanaEnAmbos(tabla, f, arriba.símbolo))
            continue;
        const ConRaíz total = raízAbajo ? JuntaRaíz(arriba.exponente, -abajo.exponente)
                                        : JuntaRaíz(-abajo.exponente, arriba.exponente);
        std::erase(f.arriba, arriba);
        std::erase(f.abajo, abajo);
        PonFactor(tabla, f, raízAbajo ? arriba.símbolo : abajo.símbolo, total.base);
        PonFactor(tabla, f, raízAbajo ? abajo.símbolo : arriba.símbolo, total.raíz);
        return true;
    }
    return false;
}

bool EsComparable(const TablaSímbolos& tabla, const Factor& factor) {
    const ClaseBase clase = tabla.BaseDe(factor.símbolo).clase;
    return tabla.EsLlano(factor.símbolo) &&
           (clase == ClaseBase::Función || clase == ClaseBase::Grupo);
}

} // namespace

void PonLiteral(TablaSímbolos& tabla, FracciónAbierta& f, Lado lado, const Literal& literal) {
    Literal& suyo = lado == Lado::Abajo ? f.abajo : f.arriba;
    Literal unido;
    MultiplicaLiterales(tabla, suyo, literal, unido);
    JuntaRaíces(tabla, unido);
    suyo = std::move(unido);
    AbreGrupos(tabla, f);
}

void PonFactor(TablaSímbolos& tabla, FracciónAbierta& f, IdSímbolo símbolo,
               const Exponente& exponente) {
    if (exponente.Signo() < 0)
        PonLiteral(tabla, f, Lado::Abajo, {{símbolo, -exponente}});
    else if (exponente.Signo() > 0)
        PonLiteral(tabla, f, Lado::Arriba, {{símbolo, exponente}});
}

void SubeNegativos(TablaSímbolos& tabla, FracciónAbierta& f) {
    Literal suben;
    for (std::size_t i = 0; i < f.abajo.size();) {
        const std::size_t fin = FinDeBase(tabla, f.abajo, i);
        bool negativa = true;
        for (std::size_t k = i; k < fin; ++k)
            negativa = negativa && f.abajo[k].exponente.Signo() < 0;
        for (; i < fin; ++i)
            if (negativa)
                suben.push_back({f.abajo[i].símbolo, -f.abajo[i].exponente});
    }
    if (suben.empty())
        return;
    std::erase_if(f.abajo, [&](const Factor& factor) {
        return std::ranges::find(suben, factor.símbolo, &Factor::símbolo) != suben.end();
    });
    PonLiteral(tabla, f, Lado::Arriba, suben);
}

void CancelaPotencias(TablaSímbolos& tabla, FracciónAbierta& f) {
    for (std::size_t i = 0; i < f.abajo.size();) {
        const IdBase base = tabla.IdDe(f.abajo[i].símbolo);
        if (HayBase(tabla, f.arriba, base)) {
            JuntaBase(tabla, f, base);
            i = 0;
        } else if (CancelaRaíz(tabla, f, i)) {
            i = 0;
        } else {
            ++i;
        }
    }
}

bool CancelaPorValores(TablaSímbolos& tabla, FracciónAbierta& f) {
    if (tabla.SoloPorLetra())
        return false;
    for (const Factor abajo : f.abajo)
        for (const Factor arriba : f.arriba)
            if (EsComparable(tabla, abajo) && EsComparable(tabla, arriba) &&
                SonSemejantes(tabla, {{abajo.símbolo, 1}}, {{arriba.símbolo, 1}})) {
                std::erase(f.abajo, abajo);
                PonLiteral(tabla, f, Lado::Abajo, {{arriba.símbolo, abajo.exponente}});
                return true;
            }
    return false;
}

bool SonRaízYBase(const TablaSímbolos& tabla, IdSímbolo a, IdSímbolo b) {
    return EsRaízDe(tabla, a, b) || EsRaízDe(tabla, b, a);
}

} // namespace quiralto
