#include "engine/desarrollo/numero_escrito.h"

namespace quiralto {

namespace {

// A whole number of 15 digits.
bool EsEnteroCorto(const Coeficiente& valor) {
    constexpr std::int64_t Máximo = 1'000'000'000'000'000;
    return valor.EsEnteroPequeño() && valor.EnteroPequeño() < Máximo &&
           valor.EnteroPequeño() > -Máximo;
}

} // namespace

bool SeEscribeEntero(const Entero& valor) {
    const Coeficiente entero(valor, 1);
    return EsEnteroCorto(entero) || entero.Escrito(0) == entero;
}

bool EsDecimal(const TablaSímbolos& tabla, const Coeficiente& valor) {
    return EsEnteroCorto(valor) || valor.Escrito(tabla.contexto.DígitosRedondeo) == valor;
}

Coeficiente DevFracciónEscrita(const Coeficiente& valor) {
    if (valor.EsExacto() && SeEscribeEntero(valor.Numerador()) &&
        SeEscribeEntero(valor.Denominador()))
        return valor;
    constexpr int Dígitos = 15;
    const bool pequeño = (valor.Absoluto() - 1).Signo() < 0;
    const double lado = pequeño ? valor.Inverso().ADouble() : valor.ADouble();
    const Coeficiente escrito = Coeficiente::DesdeDouble(lado).Escrito(Dígitos);
    return pequeño ? escrito.Inverso() : escrito;
}

Coeficiente DevEscritoDentro(const TablaSímbolos& tabla, const Coeficiente& valor) {
    return EsDecimal(tabla, valor) ? valor : DevFracciónEscrita(valor);
}

Coeficiente DevMcm(const Coeficiente& a, const Coeficiente& b) {
    return a / DevMCD(a, b) * b;
}

} // namespace quiralto
