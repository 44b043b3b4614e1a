#include "engine/desarrollo/suma.h"

#include "engine/base/fallos.h"

#include <algorithm>

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

Coeficiente SacaContenido(Términos& suma) {
    const Coeficiente contenido = DevContenido(suma);
    EscalaSuma(suma, contenido.Inverso());
    return contenido;
}

} // namespace quiralto
