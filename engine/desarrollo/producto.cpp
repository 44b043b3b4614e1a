#include "engine/desarrollo/producto.h"

#include "engine/desarrollo/forma_canonica.h"
#include "engine/desarrollo/producto_empaquetado.h"
#include "engine/desarrollo/recolector.h"
#include "engine/desarrollo/recursion.h"

#include <algorithm>
#include <cassert>

namespace quiralto {
namespace {

// A factor that does not stay a power. Its position, or the end.
std::size_t BuscaReducible(const TablaSímbolos& tabla, const Literal& literal) {
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        const Factor& factor = literal[i];
        if (fin == i + 1 && tabla.EsLlano(factor.símbolo) && factor.exponente.EsEntero()) {
            const Base& base = tabla.BaseDe(factor.símbolo);
            if (base.clase == ClaseBase::Número ||
                (base.clase == ClaseBase::Grupo && !HayCocientes(tabla, base.contenido) &&
                 (factor.exponente.Signo() > 0 || base.contenido.size() == 1)))
                return i;
        }
        i = fin;
    }
    return literal.size();
}

bool HayReducibles(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayBasesReducibles() && std::ranges::any_of(suma, [&](const Término& t) {
               return BuscaReducible(tabla, t.literal) < t.literal.size();
           });
}

Términos MultiplicaSinReducir(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    constexpr std::size_t ProductoCorto = 8;
    if (a.size() * b.size() > ProductoCorto)
        if (auto producto = MultiplicaEmpaquetados(tabla, a, b))
            return *std::move(producto);
    Recolector producto(tabla.contexto);
    Literal literal;
    for (const Término& ta : a)
        for (const Término& tb : b) {
            MultiplicaLiterales(tabla, ta.literal, tb.literal, literal);
            JuntaRaíces(tabla, literal);
            producto.Añade(ta.coeficiente * tb.coeficiente, literal);
        }
    return producto.Toma();
}

} // namespace

// Ends because what a group holds is final: only joining it to the rest of its term can make
// another group whole.
Términos MultiplicaPotencias(TablaSímbolos& tabla, Términos suma) {
    while (HayReducibles(tabla, suma)) {
        const GuardaProfundidad guarda(tabla);
        Recolector reducida(tabla.contexto);
        for (Término& término : suma) {
            const std::size_t i = BuscaReducible(tabla, término.literal);
            if (i == término.literal.size()) {
                reducida.Añade(término.coeficiente, término.literal);
                continue;
            }
            const Factor factor = término.literal[i];
            término.literal.erase(término.literal.begin() + static_cast<std::ptrdiff_t>(i));
            const Términos potencia = ElevaAEntero(tabla, tabla.BaseDe(factor.símbolo).contenido,
                                                   factor.exponente.Numerador());
            reducida.Añade(MultiplicaSinReducir(tabla, {término}, potencia));
        }
        suma = reducida.Toma();
    }
    return suma;
}

void MultiplicaLiterales(const TablaSímbolos& tabla, const Literal& a, const Literal& b,
                         Literal& producto) {
    producto.clear();
    producto.reserve(a.size() + b.size());
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() && j != b.end()) {
        if (i->símbolo == j->símbolo) {
            const Exponente exponente = i->exponente + j->exponente;
            if (exponente.Signo() != 0)
                producto.push_back({i->símbolo, exponente});
            ++i;
            ++j;
        } else if (tabla.Precede(i->símbolo, j->símbolo)) {
            producto.push_back(*i++);
        } else {
            producto.push_back(*j++);
        }
    }
    producto.insert(producto.end(), i, a.end());
    producto.insert(producto.end(), j, b.end());
}

ConRaíz JuntaRaíz(const Exponente& base, const Exponente& raíz) {
    const Exponente total = base + raíz * Exponente(Coeficiente(Entero(1), Entero(2)));
    if (total.Denominador() == 2)
        return {total.Numerador() / 2, total.Signo()};
    return {total, 0};
}

void JuntaRaíces(const TablaSímbolos& tabla, Literal& literal) {
    if (!tabla.HayRaíces())
        return;
    for (std::size_t i = 0; i < literal.size(); ++i) {
        const Factor raíz = literal[i];
        const Base& base = tabla.BaseDe(raíz.símbolo);
        if (!EsRaíz(base) || !tabla.EsLlano(raíz.símbolo) || !raíz.exponente.EsEntero() ||
            !EsBaseLlana(tabla, literal, tabla.IdDe(raíz.símbolo)) ||
            !EsBaseLlana(tabla, literal, tabla.IdDe(base.radicando)))
            continue;
        const auto suya = std::ranges::find(literal, base.radicando, &Factor::símbolo);
        const Exponente deBase = suya == literal.end() ? Exponente(0) : suya->exponente;
        const ConRaíz juntas = JuntaRaíz(deBase, raíz.exponente);
        if (juntas.base == deBase && juntas.raíz == raíz.exponente)
            continue;
        literal[i].exponente = juntas.raíz;
        if (suya != literal.end())
            suya->exponente = juntas.base;
        else if (juntas.base.Signo() != 0)
            literal.push_back({base.radicando, juntas.base});
        std::erase_if(literal, [](const Factor& f) { return f.exponente.Signo() == 0; });
        tabla.Ordena(literal);
        return JuntaRaíces(tabla, literal);
    }
}

Términos MultiplicaSumas(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    Términos producto = MultiplicaPotencias(tabla, MultiplicaSinReducir(tabla, a, b));
    assert(EsCanónica(tabla, producto));
    return producto;
}

} // namespace quiralto
