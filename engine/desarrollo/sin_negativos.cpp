#include "engine/desarrollo/sin_negativos.h"

#include "engine/desarrollo/producto.h"

#include <algorithm>

namespace quiralto {
namespace {

bool EsNegativo(const TablaSímbolos& tabla, const Literal& literal, std::size_t i) {
    return EsPotenciaEntera(tabla, literal, i) && literal[i].exponente.Signo() < 0 &&
           tabla.BaseDe(literal[i].símbolo).clase != ClaseBase::Euler;
}

// Into `inverso` what makes the negative powers of the literal part vanish, beside what it holds.
void Anota(const TablaSímbolos& tabla, const Literal& literal, Literal& inverso) {
    for (std::size_t i = 0; i < literal.size(); ++i) {
        if (!EsNegativo(tabla, literal, i))
            continue;
        const auto suyo = std::ranges::find(inverso, literal[i].símbolo, &Factor::símbolo);
        if (suyo == inverso.end())
            inverso.push_back({literal[i].símbolo, -literal[i].exponente});
        else
            suyo->exponente = std::max(suyo->exponente, -literal[i].exponente);
    }
}

FracciónAbierta Entre(TablaSímbolos& tabla, FracciónAbierta f, Literal abajo) {
    FracciónAbierta divisor;
    divisor.abajo = std::move(abajo);
    return Multiplica(tabla, std::move(f), std::move(divisor));
}

// Whether there were such powers in its literal part.
bool BajaDelLiteral(TablaSímbolos& tabla, FracciónAbierta& f) {
    Literal inverso;
    Anota(tabla, f.arriba, inverso);
    if (inverso.empty())
        return false;
    tabla.Ordena(inverso);
    Literal arriba;
    MultiplicaLiterales(tabla, f.arriba, inverso, arriba);
    f.arriba = std::move(arriba);
    f = Entre(tabla, std::move(f), std::move(inverso));
    return true;
}

// Whether there were such powers in one of its sums.
bool BajaDeUnaSuma(TablaSímbolos& tabla, FracciónAbierta& f) {
    for (Potencia& potencia : f.sumas) {
        Literal inverso;
        for (const Término& término : potencia.suma)
            Anota(tabla, término.literal, inverso);
        if (inverso.empty())
            continue;
        tabla.Ordena(inverso);
        potencia.suma = MultiplicaSumas(tabla, potencia.suma, {{1, inverso}});
        for (Factor& factor : inverso)
            factor.exponente = factor.exponente * potencia.exponente;
        f = Entre(tabla, std::move(f), std::move(inverso));
        return true;
    }
    return false;
}

} // namespace

FracciónAbierta SinNegativos(TablaSímbolos& tabla, FracciónAbierta f) {
    while (BajaDelLiteral(tabla, f) || BajaDeUnaSuma(tabla, f)) {
    }
    return f;
}

bool HayNegativos(const TablaSímbolos& tabla, const Términos& suma) {
    return std::ranges::any_of(suma, [&](const Término& t) {
        for (std::size_t i = 0; i < t.literal.size(); ++i)
            if (EsNegativo(tabla, t.literal, i))
                return true;
        return false;
    });
}

} // namespace quiralto
