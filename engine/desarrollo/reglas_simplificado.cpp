#include "engine/desarrollo/reglas_simplificado.h"

#include "engine/desarrollo/cociente.h"
#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/semejantes.h"

namespace quiralto {

using Valor = ReglasSimplificado::Valor;

void ReglasSimplificado::Cierra(Valor& valor) {
    if (!valor.producto)
        return;
    valor.suma = quiralto::Cierra(tabla_, *valor.producto);
    valor.producto.reset();
}

Términos ReglasSimplificado::ComoSuma(Valor& valor) {
    Cierra(valor);
    return std::move(valor.suma).Cerrada();
}

FracciónAbierta ReglasSimplificado::ComoProducto(Valor& valor) {
    return valor.producto ? std::move(*valor.producto)
                          : Abre(tabla_, std::move(valor.suma).Cerrada());
}

FracciónAbierta ReglasSimplificado::ComoFracción(Valor& valor) {
    if (!valor.producto)
        return SobreUnDenominadorSiCabe(tabla_, valor.suma.Cerrada());
    FracciónAbierta f = std::move(*valor.producto);
    std::vector<quiralto::Potencia> sumas = std::move(f.sumas);
    f.sumas.clear();
    for (quiralto::Potencia& potencia : sumas) {
        if (!HayCocientes(tabla_, potencia.suma))
            f.sumas.push_back(std::move(potencia));
        else
            f = Multiplica(
                tabla_, std::move(f),
                Eleva(tabla_, SobreUnDenominadorSiCabe(tabla_, potencia.suma), potencia.exponente));
    }
    return f;
}

bool ReglasSimplificado::EsSumaConCocientes(Valor& valor) {
    return !valor.producto && valor.suma.Cantidad() > 1 &&
           HayCocientes(tabla_, valor.suma.Cerrada());
}

Valor ReglasSimplificado::Suma(Valor a, Valor b, int signo) {
    Cierra(a);
    Cierra(b);
    a.suma.Añade(tabla_, std::move(b.suma), signo);
    return a;
}

Valor ReglasSimplificado::Producto(Valor& a, Valor& b) {
    if (EsSumaConCocientes(a) || EsSumaConCocientes(b)) {
        Términos producto = MultiplicaConCocientes(tabla_, ComoSuma(a), ComoSuma(b));
        FundeSemejantes(tabla_, producto);
        return {.suma = std::move(producto), .producto = {}};
    }
    return {.suma = {}, .producto = Multiplica(tabla_, ComoProducto(a), ComoProducto(b))};
}

Valor ReglasSimplificado::Cociente(Valor& a, Valor& b) {
    if (!b.producto && EsNúmero(b.suma.Cerrada()) && EsSumaConCocientes(a)) {
        Términos suma = ComoSuma(a);
        EscalaSuma(suma, DevNúmero(b.suma.Cerrada()).Inverso());
        return {.suma = std::move(suma), .producto = {}};
    }
    FracciónAbierta inversa = DevInversa(tabla_, ComoFracción(b));
    if (inversa.abajo.empty() && inversa.signoAbajo) { // a number alone
        inversa.signoAbajo = false;
        inversa.coeficiente.CambiaSigno();
    }
    return {.suma = {}, .producto = Multiplica(tabla_, ComoFracción(a), std::move(inversa))};
}

Valor ReglasSimplificado::Potencia(Valor& a, Valor& b) {
    const Términos exponente = ComoSuma(b);
    const auto entero = DevExponenteEntero(exponente);
    if (!entero) {
        const Términos base = DevFormaInterior(tabla_, ComoSuma(a));
        return {.suma = ElevaAlFinal(tabla_, base,
                                     EsNúmero(exponente) ? exponente
                                                         : DevFormaInterior(tabla_, exponente)),
                .producto = {}};
    }
    FracciónAbierta base = *entero < 0 ? ComoFracción(a) : ComoProducto(a);
    return {.suma = {}, .producto = Eleva(tabla_, std::move(base), *entero)};
}

Valor ReglasSimplificado::Llamada(const DescripciónOperación& función, Valor& argumento) {
    const Términos dentro = DevFormaInterior(tabla_, ComoSuma(argumento));
    return {.suma = DevLlamada(tabla_, función, dentro, EscribeDentro(tabla_, dentro)),
            .producto = {}};
}

std::string ReglasSimplificado::Escribe(Valor valor) {
    return EscribeSuma(tabla_, DevFormaFinal(tabla_, ComoSuma(valor)));
}

} // namespace quiralto
