#include "engine/desarrollo/reglas_completo.h"

#include "engine/desarrollo/cociente.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/lados.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/desarrollo/sin_negativos.h"

namespace quiralto {

using Valor = ReglasCompleto::Valor;

// A product without a denominator becomes a sum.
void ReglasCompleto::Cierra(Valor& valor) {
    if (!valor.producto || !valor.producto->abajo.empty())
        return;
    valor.suma = quiralto::Cierra(tabla_, *valor.producto);
    valor.producto.reset();
}

Valor ReglasCompleto::DeProducto(FracciónAbierta f, Coeficiente divisor) {
    return {
        .suma = {}, .producto = SinNegativos(tabla_, std::move(f)), .divisor = std::move(divisor)};
}

FracciónAbierta ReglasCompleto::ComoProducto(Valor& valor) {
    return valor.producto ? std::move(*valor.producto)
                          : Abre(tabla_, std::move(valor.suma).Cerrada());
}

Valor ReglasCompleto::Suma(Valor a, Valor b, int signo) {
    Cierra(a);
    Cierra(b);
    const Coeficiente divisor = DevMcm(a.divisor, b.divisor);
    const auto amplía = [&](Valor& valor) {
        const Coeficiente factor = divisor / valor.divisor;
        if (valor.producto) {
            valor.producto->coeficiente *= factor;
        } else if (!factor.EsUno()) {
            Términos suma = valor.suma.Cerrada();
            EscalaSuma(suma, factor);
            valor.suma = std::move(suma);
        }
        valor.divisor = divisor;
    };
    amplía(a);
    amplía(b);
    if (!a.producto && !b.producto) {
        a.suma.Añade(tabla_, std::move(b.suma), signo);
        return a;
    }
    FracciónAbierta fb = ComoProducto(b);
    if (signo < 0)
        fb.coeficiente.CambiaSigno();
    return DeProducto(SumaFracciones(tabla_, ComoProducto(a), fb), divisor);
}

Valor ReglasCompleto::Producto(Valor& a, Valor& b) {
    return DeProducto(Multiplica(tabla_, ComoProducto(a), ComoProducto(b)), a.divisor * b.divisor);
}

Valor ReglasCompleto::Cociente(Valor& a, Valor& b) {
    Cierra(b);
    const bool esNúmero = !b.producto && EsNúmero(b.suma.Cerrada());
    FracciónAbierta inversa = DevInversa(tabla_, ComoProducto(b));
    if (inversa.signoAbajo) {
        inversa.signoAbajo = false;
        inversa.coeficiente.CambiaSigno();
    }
    inversa.coeficiente *= b.divisor;
    Coeficiente divisor = a.divisor;
    // A number below stays below: it is what makes the fraction.
    const auto baja = [&](FracciónAbierta& f) {
        if (!f.coeficiente.EsExacto())
            return;
        const Coeficiente abajo(f.coeficiente.Denominador(), 1);
        f.coeficiente *= abajo;
        divisor *= abajo;
    };
    if (esNúmero)
        baja(inversa);
    FracciónAbierta cociente = Multiplica(tabla_, ComoProducto(a), std::move(inversa));
    if (!esNúmero)
        baja(cociente);
    return DeProducto(std::move(cociente), std::move(divisor));
}

Valor ReglasCompleto::Potencia(Valor& a, Valor& b) {
    const Términos exponente = ComoSuma(b);
    const auto entero = DevExponenteEntero(exponente);
    if (!entero) {
        const Términos base = DevFormaInterior(tabla_, ComoSuma(a));
        return DeProducto(Abre(tabla_, ElevaAlFinal(tabla_, base, DevAsentada(tabla_, exponente))),
                          1);
    }
    if (*entero < 0) {
        Valor uno{.suma = SumaNúmero(1), .producto = {}};
        a = Cociente(uno, a);
    }
    const std::int64_t n = *entero < 0 ? -*entero : *entero;
    return DeProducto(Eleva(tabla_, ComoProducto(a), n), a.divisor.Potencia(n));
}

Valor ReglasCompleto::Llamada(const DescripciónOperación& función, Valor& argumento) {
    const FracciónAbierta f =
        argumento.producto ? *argumento.producto : Abre(tabla_, argumento.suma.Cerrada());
    const std::string texto =
        EscribeLados(tabla_, DevLados(tabla_, f, argumento.divisor), Sitio::Dentro);
    Términos suma = ComoSuma(argumento);
    suma = función.código == Operación::Exp ? DevAsentada(tabla_, std::move(suma))
                                            : DevFormaInterior(tabla_, std::move(suma));
    return {.suma = DevLlamada(tabla_, función, suma, texto), .producto = {}};
}

// The value as a sum, for an exponent or an argument: a quotient in it is one term.
Términos ReglasCompleto::ComoSuma(Valor& valor) {
    if (valor.producto) {
        const Lados lados = DevLados(tabla_, ComoProducto(valor), valor.divisor);
        if (lados.numerador.empty())
            return {};
        return quiralto::Cierra(tabla_, DevFracción(tabla_, lados));
    }
    Términos suma = valor.suma.Cerrada();
    EscalaSuma(suma, valor.divisor.Inverso());
    return suma;
}

std::string ReglasCompleto::Escribe(Valor valor) {
    return EscribeLados(tabla_, DevLados(tabla_, ComoProducto(valor), valor.divisor), Sitio::Fuera);
}

} // namespace quiralto
