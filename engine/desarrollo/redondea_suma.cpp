// Sums as their texts will read: rounded, their exponents settled.

#include "engine/desarrollo/algebra_suma.h"
#include "engine/desarrollo/escribe_suma.h"
#include "engine/desarrollo/semejantes.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace quiralto {
namespace {

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

// Whether the exponents read as they would be expanded by themselves: their quotients reduced, and
// in a complete expansion over one denominator.
bool EstáAsentado(const TablaSímbolos& tabla, std::span<const Factor> factores) {
    return std::ranges::all_of(factores, [&](const Factor& factor) {
        const Literal& literal = tabla.LiteralExponente(factor.símbolo);
        return DevCocienteDe(tabla, literal) == nullptr ||
               (EstáReducido(tabla, factor.exponente, literal) &&
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
    const double redondo = LimpiaEntero(Redondea(coeficiente, tabla.contexto.DígitosRedondeo));
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
        if (EstáReducido(tabla, coeficiente, término.literal)) {
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

} // namespace

Términos AsientaSuma(TablaSímbolos& tabla, Términos suma) {
    for (Término& término : suma)
        if (!EstánAsentados(tabla, término.literal))
            término.literal = AsientaExponentes(tabla, término.literal);
    return suma;
}

bool EstáRedondeada(const TablaSímbolos& tabla, const Términos& suma) {
    return std::ranges::all_of(suma, [&](const Término& t) {
        return DevCoeficienteFinal(tabla, t.coeficiente) == t.coeficiente &&
               std::ranges::all_of(t.literal,
                                   [&](const Factor& f) {
                                       return DevExponenteFinal(tabla, f.exponente) == f.exponente;
                                   }) &&
               EstáReducido(tabla, t.coeficiente, t.literal) && EstánAsentados(tabla, t.literal);
    });
}

Términos RedondeaSuma(TablaSímbolos& tabla, Términos suma) {
    constexpr int MáximasVueltas = 4;
    for (int vuelta = 0; vuelta < MáximasVueltas && !EstáRedondeada(tabla, suma); ++vuelta)
        suma = RedondeaTérminos(tabla, std::move(suma));
    FundeSemejantes(tabla, suma);
    return suma;
}

} // namespace quiralto
