#include "engine/desarrollo/suma.h"

#include "engine/base/fallos.h"

#include <algorithm>
#include <cmath>

namespace quiralto {

Exponente::Exponente(const Coeficiente& valor) {
    Coeficiente exacto = valor;
    if (!valor.EsExacto() || !valor.Numerador().EsPequeño() || !valor.Denominador().EsPequeño())
        exacto = Coeficiente::DesdeDouble(valor.ADouble());
    const Entero numerador = exacto.Numerador();
    const Entero denominador = exacto.Denominador();
    if (!numerador.EsPequeño() || !denominador.EsPequeño())
        throw ErrorEjecución(Desbordamiento);
    numerador_ = numerador.Pequeño();
    denominador_ = denominador.Pequeño();
}

std::uint64_t DevHash(const Literal& literal) {
    // The sum of the factors' own: the table takes the lowest bits.
    std::uint64_t hash = 0;
    for (const auto& [símbolo, exponente] : literal) {
        auto h = static_cast<std::uint64_t>(exponente.Numerador()) +
                 static_cast<std::uint64_t>(exponente.Denominador()) * 0xC2B2AE3D27D4EB4FU +
                 std::uint64_t{símbolo} * 0x9E3779B97F4A7C15U;
        h = (h ^ h >> 32) * 0xD6E8FEB86659FD93U;
        h = (h ^ h >> 32) * 0xD6E8FEB86659FD93U;
        hash += h ^ h >> 32;
    }
    return hash;
}

void EscalaSuma(Términos& suma, const Coeficiente& factor) {
    if (factor.EsUno())
        return;
    for (Término& término : suma)
        término.coeficiente *= factor;
}

Coeficiente DevContenido(const Términos& suma) {
    Coeficiente contenido;
    for (const Término& término : suma) {
        if (!término.coeficiente.EsExacto())
            return 1;
        contenido = DevMCD(contenido, término.coeficiente);
    }
    return contenido;
}

namespace {

constexpr int DígitosDeUnTexto = 15;

// The power of ten that leaves the greatest coefficient with the digits of a text; 1 where it has
// no more.
Coeficiente DevEscalaDeSobra(const Términos& suma) {
    std::size_t bits = 0;
    for (const Término& término : suma)
        bits = std::max(bits, término.coeficiente.Numerador().Bits());
    constexpr std::size_t BitsDeUnTexto = 49; // below 10^15
    constexpr double BitsPorDígito = 3.3219280948873623;
    if (bits <= BitsDeUnTexto)
        return 1;
    const double sobran = static_cast<double>(bits) / BitsPorDígito - DígitosDeUnTexto;
    return {DevPotenciaDeDiez(static_cast<int>(std::ceil(sobran))), 1};
}

} // namespace

Coeficiente SacaContenido(Términos& suma) {
    const auto inexacto = [](const Término& t) { return !t.coeficiente.EsExacto(); };
    if (std::ranges::any_of(suma, inexacto))
        return 1;
    const Coeficiente contenido = DevContenido(suma);
    EscalaSuma(suma, contenido.Inverso());
    const Coeficiente escala = DevEscalaDeSobra(suma);
    if (escala.EsUno())
        return contenido;
    Términos corta = suma;
    for (Término& término : corta) {
        término.coeficiente = (término.coeficiente / escala).Redondeado(0);
        if (término.coeficiente.EsCero())
            return contenido;
    }
    const Coeficiente deCorta = DevContenido(corta);
    EscalaSuma(corta, deCorta.Inverso());
    suma = std::move(corta);
    return contenido * escala * deCorta;
}

} // namespace quiralto
