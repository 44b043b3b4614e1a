#include "engine/desarrollo/potencia.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/multinomio.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/desarrollo/producto.h"

#include <bit>
#include <optional>

namespace quiralto {
namespace {

Términos ElevaTérmino(TablaSímbolos& tabla, const Término& término, std::int64_t n) {
    Literal literal = término.literal;
    for (Factor& factor : literal)
        factor.exponente = factor.exponente * n;
    JuntaRaíces(tabla, literal);
    return MultiplicaPotencias(tabla, {{término.coeficiente.Potencia(n), std::move(literal)}});
}

Términos ElevaProducto(TablaSímbolos& tabla, const Términos& base, std::int64_t n) {
    if (n > 1)
        if (auto potencia = ElevaPorMultinomio(tabla, base, n))
            return MultiplicaPotencias(tabla, *std::move(potencia));
    // From the highest binary digit of n down: square, and multiply by the base where it is 1.
    const auto exponente = static_cast<std::uint64_t>(n);
    Términos potencia = base;
    for (std::uint64_t dígito = std::bit_floor(exponente) / 2; dígito > 0; dígito /= 2) {
        potencia = MultiplicaSumas(tabla, potencia, potencia);
        if ((exponente & dígito) != 0)
            potencia = MultiplicaSumas(tabla, potencia, base);
    }
    return potencia;
}

// The plain symbol of a sum that is a base as it stands.
std::optional<IdSímbolo> DevBaseSimple(const TablaSímbolos& tabla, const Términos& suma) {
    if (suma.size() != 1 || !suma[0].coeficiente.EsUno() || suma[0].literal.size() != 1)
        return std::nullopt;
    const Factor& factor = suma[0].literal[0];
    const ClaseBase clase = tabla.BaseDe(factor.símbolo).clase;
    if (factor.exponente != 1 || !tabla.EsLlano(factor.símbolo) || clase == ClaseBase::Cociente ||
        clase == ClaseBase::Euler)
        return std::nullopt;
    return factor.símbolo;
}

} // namespace

Términos ElevaAEntero(TablaSímbolos& tabla, const Términos& base, std::int64_t exponente) {
    if (exponente == 0)
        return SumaNúmero(1);
    if (EsNúmero(base))
        return SumaNúmero(DevNúmero(base).Potencia(exponente));
    if (base.size() == 1)
        return ElevaTérmino(tabla, base[0], exponente);
    return ElevaProducto(tabla, base, exponente);
}

IdSímbolo DevBaseDe(TablaSímbolos& tabla, const Términos& suma) {
    if (const auto simple = DevBaseSimple(tabla, suma))
        return *simple;
    const std::string texto = EscribeDentro(tabla, suma);
    if (EsNúmero(suma) && EsDecimal(tabla, DevNúmero(suma)))
        return tabla.DevBase({.clase = ClaseBase::Número,
                              .texto = DevNúmero(suma).Signo() < 0 ? "(" + texto + ")" : texto,
                              .contenido = suma});
    return tabla.DevBase(
        {.clase = ClaseBase::Grupo, .texto = "(" + texto + ")", .contenido = suma});
}

Literal DevPotenciaDe(TablaSímbolos& tabla, IdBase base, const Términos& exponente) {
    Literal literal;
    for (const Término& término : exponente)
        literal.push_back(
            {tabla.ConExponente(base, término.literal, EscribeLiteral(tabla, término.literal)),
             Exponente(término.coeficiente)});
    tabla.Ordena(literal);
    return literal;
}

Términos DevExponente(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde,
                      std::size_t fin) {
    Términos exponente;
    for (std::size_t i = desde; i < fin; ++i)
        exponente.push_back(
            {literal[i].exponente.Valor(), tabla.LiteralExponente(literal[i].símbolo)});
    return exponente;
}

} // namespace quiralto
