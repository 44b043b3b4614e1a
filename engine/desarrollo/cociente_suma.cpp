// Quotients of sums: the form in which they stay, and sums of them as one fraction.

#include "engine/base/fallos.h"
#include "engine/desarrollo/algebra_suma.h"
#include "engine/desarrollo/division_suma.h"
#include "engine/desarrollo/escribe_suma.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// One term for a quotient whose denominator is not a number.
// It is written rounded and kept as it is.
Términos DevTérminoCociente(TablaSímbolos& tabla, Fracción redondeada, Fracción entera) {
    double coeficiente = 1;
    if (entera.numerador.size() == 1) {
        coeficiente = entera.numerador[0].coeficiente;
        redondeada.numerador[0].coeficiente = 1;
        entera.numerador[0].coeficiente = 1;
    } else if (redondeada.numerador[0].coeficiente < 0) {
        coeficiente = -1;
        EscalaSuma(redondeada.numerador, -1);
        EscalaSuma(entera.numerador, -1);
    }
    std::string texto = EscribeFracción(tabla, redondeada.numerador, redondeada.denominador);
    const IdSímbolo símbolo = tabla.DevBase({.clase = ClaseBase::Cociente,
                                             .texto = std::move(texto),
                                             .numerador = std::move(entera.numerador),
                                             .denominador = std::move(entera.denominador)});
    return {{coeficiente, {{símbolo, 1}}}};
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

bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayCocientes() && std::ranges::any_of(suma, [&](const Término& t) {
               return DevCocienteDe(tabla, t.literal) != nullptr;
           });
}

void EscalaSuma(Términos& suma, double factor) {
    for (Término& término : suma)
        término.coeficiente = CompruebaFinito(término.coeficiente * factor);
}

bool EstáReducido(const TablaSímbolos& tabla, double coeficiente, const Literal& literal) {
    const Base* const cociente = DevCocienteDe(tabla, literal);
    if (cociente == nullptr || std::fabs(coeficiente) == 1)
        return true;
    const double factor = DevFactorEntero(cociente->denominador);
    return cociente->numerador.size() == 1 &&
           (factor == 0 || !EsEntero(coeficiente) || DevMcd(coeficiente, factor) == 1);
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

Términos DevCociente(TablaSímbolos& tabla, Términos numerador, Términos denominador,
                     std::span<const Términos> divisores) {
    tabla.contexto.Vigila(); // nested quotients cost work that no long loop shows
    const GuardaProfundidad guarda(tabla);
    for (int vuelta = 0;; ++vuelta) {
        Fracción f = ReduceFracción(tabla, std::move(numerador), std::move(denominador), divisores);
        if (EsNúmero(f.denominador)) {
            const double divisor = DevNúmero(f.denominador);
            for (Término& término : f.numerador)
                término.coeficiente = LimpiaEntero(CompruebaFinito(término.coeficiente / divisor));
            return std::move(f.numerador);
        }
        Fracción redondeada{RedondeaNumerador(tabla, f.numerador),
                            RedondeaSuma(tabla, f.denominador)};
        const bool igual = redondeada.denominador.size() == f.denominador.size() &&
                           redondeada.numerador.size() == f.numerador.size();
        if (igual && !EsNúmero(redondeada.denominador))
            return DevTérminoCociente(tabla, std::move(redondeada), std::move(f));
        numerador = redondeada.numerador;
        denominador = redondeada.denominador;
        constexpr int MáximasVueltas = 3;
        if (vuelta >= MáximasVueltas && !numerador.empty() && !EsNúmero(denominador))
            return DevTérminoCociente(tabla, std::move(redondeada),
                                      {std::move(numerador), std::move(denominador)});
    }
}

} // namespace quiralto
