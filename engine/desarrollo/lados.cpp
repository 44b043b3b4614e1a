#include "engine/desarrollo/lados.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/cociente.h"
#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/desarrollo/sin_negativos.h"

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

// The least number that makes all coefficients whole, or 0.
Coeficiente DevDenominadorComún(const Términos& suma) {
    Coeficiente común = 1;
    for (const Término& término : suma) {
        if (!término.coeficiente.EsExacto())
            return 0;
        común = DevMcm(común, {término.coeficiente.Denominador(), 1});
    }
    return común.EsExacto() ? común : Coeficiente(0);
}

void Escala(Lados& lados, const Coeficiente& factor) {
    EscalaSuma(lados.numerador, factor);
    EscalaSuma(lados.denominador, factor);
}

bool EsUno(const Términos& suma) {
    return suma.size() == 1 && suma[0].literal.empty() && suma[0].coeficiente.EsUno();
}

// Whether a number would be rounded to 0.
bool Hay0(const TablaSímbolos& tabla, const Términos& suma) {
    return std::ranges::any_of(suma, [&](const Término& t) {
        return t.coeficiente.Escrito(tabla.contexto.DígitosRedondeo).EsCero();
    });
}

// Whether the sides are to have whole numbers.
bool SeHaceEntera(const TablaSímbolos& tabla, const Lados& lados, Sitio sitio) {
    if (!EsUno(lados.denominador))
        return true;
    return sitio == Sitio::Fuera ? Hay0(tabla, lados.numerador)
                                 : std::ranges::any_of(lados.numerador, [&](const Término& t) {
                                       return !EsDecimal(tabla, t.coeficiente);
                                   });
}

// Outside, a number below that would not keep its digits becomes decimals, where none is 0.
void QuitaDivisorLargo(const TablaSímbolos& tabla, Lados& lados, Sitio sitio) {
    const auto largo = [](const Término& t) {
        return DevFracciónEscrita(t.coeficiente) != t.coeficiente;
    };
    if (sitio == Sitio::Dentro || !EsNúmero(lados.denominador) ||
        (!largo(lados.denominador[0]) && std::ranges::none_of(lados.numerador, largo)))
        return;
    Términos decimales = lados.numerador;
    EscalaSuma(decimales, DevNúmero(lados.denominador).Inverso());
    if (!Hay0(tabla, decimales))
        lados = {std::move(decimales), SumaNúmero(1)};
}

// One fraction in lowest terms of the numbers of both sides.
void Iguala(const TablaSímbolos& tabla, Lados& lados, Sitio sitio) {
    const Coeficiente comúnN = DevDenominadorComún(lados.numerador);
    const Coeficiente comúnD = DevDenominadorComún(lados.denominador);
    if (comúnN.EsCero() || comúnD.EsCero())
        return;
    if (SeHaceEntera(tabla, lados, sitio))
        Escala(lados, DevMcm(comúnN, comúnD));
    const auto entero = [](const Término& t) { return t.coeficiente.EsEntero(); };
    if (std::ranges::all_of(lados.numerador, entero) &&
        std::ranges::all_of(lados.denominador, entero))
        Escala(lados,
               DevMCD(DevContenido(lados.numerador), DevContenido(lados.denominador)).Inverso());
    QuitaDivisorLargo(tabla, lados, sitio);
    const auto negativo = [](const Término& t) { return t.coeficiente.Signo() < 0; };
    if (std::ranges::all_of(lados.denominador, negativo))
        Escala(lados, -1);
}

Lados DevEscritos(TablaSímbolos& tabla, Lados lados, Sitio sitio) {
    const auto final = sitio == Sitio::Fuera ? DevFormaFinal : DevFormaInterior;
    return {final(tabla, std::move(lados.numerador)), final(tabla, std::move(lados.denominador))};
}

FracciónAbierta SinSigno(FracciónAbierta f) {
    if (std::exchange(f.signoAbajo, false))
        f.coeficiente.CambiaSigno();
    return f;
}

// Whether sides that have been multiplied out hold nothing that belongs to the other.
bool EstánCerrados(const TablaSímbolos& tabla, const Lados& lados) {
    const auto cerrado = [&](const Términos& lado) {
        return !HayCocientes(tabla, lado) && !HayNegativos(tabla, lado);
    };
    return cerrado(lados.numerador) && cerrado(lados.denominador);
}

Lados MultiplicaLados(TablaSímbolos& tabla, FracciónAbierta f, const Coeficiente& divisor) {
    FracciónAbierta denominador{.coeficiente = 1, .arriba = std::move(f.abajo)};
    f = SinSigno(std::move(f));
    f.abajo.clear();
    AbreGrupos(tabla, denominador);
    denominador.coeficiente *= divisor;
    Lados lados{Cierra(tabla, f), Cierra(tabla, denominador)};
    if (lados.denominador.empty())
        throw ErrorEjecución(DivisiónPorCero);
    return lados;
}

// Whether a product of sums can have factors that none of them has: squares of roots.
bool HayQueReducir(const TablaSímbolos& tabla, const FracciónAbierta& f) {
    if (!tabla.HayRaíces() || f.abajo.empty() || f.sumas.empty())
        return false;
    return f.sumas.size() > 1 || f.sumas[0].exponente > 1 || !f.arriba.empty();
}

} // namespace

Lados DevLados(TablaSímbolos& tabla, FracciónAbierta f, const Coeficiente& divisor) {
    const bool hayQueReducir = HayQueReducir(tabla, f);
    Lados lados = MultiplicaLados(tabla, std::move(f), divisor);
    if (EstánCerrados(tabla, lados)) {
        if (!hayQueReducir || lados.numerador.empty())
            return lados;
        lados = MultiplicaLados(tabla, DevFracción(tabla, lados), 1);
        if (EstánCerrados(tabla, lados))
            return lados;
    }
    const GuardaProfundidad guarda(tabla);
    const auto cierra = [&](const Términos& lado) {
        return SinNegativos(tabla, SobreUnDenominador(tabla, lado));
    };
    return DevLados(tabla,
                    SinSigno(Multiplica(tabla, cierra(lados.numerador),
                                        DevInversa(tabla, cierra(lados.denominador)))),
                    1);
}

FracciónAbierta DevFracción(TablaSímbolos& tabla, const Lados& lados) {
    return Multiplica(tabla, Abre(tabla, lados.numerador),
                      SinSigno(DevInversa(tabla, Abre(tabla, lados.denominador))));
}

Términos DevUnCociente(TablaSímbolos& tabla, const Términos& suma) {
    if (!HayCocientes(tabla, suma))
        return suma;
    const Lados lados = DevLados(tabla, SobreUnDenominador(tabla, suma), 1);
    return lados.numerador.empty() ? Términos() : Cierra(tabla, DevFracción(tabla, lados));
}

// Numbers that the text cuts can make one side a multiple of the other: what is written is reduced,
// and cut again, until it stays. The passes are bounded: a side is cut as a group and as a sum of
// terms, which need not agree in the last digit.
std::string EscribeLados(TablaSímbolos& tabla, Lados lados, Sitio sitio) {
    if (lados.numerador.empty())
        return "0";
    Iguala(tabla, lados, sitio);
    Lados escritos = DevEscritos(tabla, lados, sitio);
    constexpr int MáximasPasadas = 64;
    for (int i = 0; escritos != lados && !escritos.numerador.empty() && i < MáximasPasadas; ++i) {
        lados = EsNúmero(escritos.denominador) ? escritos
                                               : DevLados(tabla, DevFracción(tabla, escritos), 1);
        Iguala(tabla, lados, sitio);
        Lados otros = DevEscritos(tabla, lados, sitio);
        if (otros == escritos)
            break;
        escritos = std::move(otros);
    }
    if (EsUno(escritos.denominador))
        return EscribeSuma(tabla, escritos.numerador);
    return EscribeFracción(tabla, escritos.numerador, escritos.denominador);
}

} // namespace quiralto
