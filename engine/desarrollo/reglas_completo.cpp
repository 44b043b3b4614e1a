#include "engine/desarrollo/reglas_completo.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/cociente.h"
#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/potencia.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>

namespace quiralto {
namespace {

// a*b/gcd(a, b) of two whole numbers above 0.
Coeficiente DevMcm(const Coeficiente& a, const Coeficiente& b) {
    return a / DevMCD(a, b) * b;
}

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

} // namespace

using Valor = ReglasCompleto::Valor;

Valor ReglasCompleto::DeX() {
    return {.suma = SumaSímbolo(tabla_.DevVariable('X', "X")), .producto = {}};
}

Valor ReglasCompleto::DeNúmero(double valor) {
    return {.suma = SumaNúmero(Coeficiente::DesdeDouble(valor)), .producto = {}};
}

Valor ReglasCompleto::Opera(const DescripciónOperación& operación, Valor a, Valor b) {
    switch (operación.familia) {
    case Familia::Suma:
        return Suma(std::move(a), std::move(b), 1);
    case Familia::Resta:
        return Suma(std::move(a), std::move(b), -1);
    case Familia::Producto:
        return Producto(a, b);
    case Familia::Cociente:
        return Cociente(a, b);
    case Familia::Potencia:
        return Potencia(a, b);
    case Familia::Función:
    case Familia::Símbolo:
        break;
    }
    return Llamada(operación, b);
}

// A product without a denominator becomes a sum.
void ReglasCompleto::Cierra(Valor& valor) {
    if (!valor.producto || !valor.producto->abajo.empty())
        return;
    valor.suma = quiralto::Cierra(tabla_, *valor.producto);
    valor.producto.reset();
}

FracciónAbierta ReglasCompleto::ComoProducto(Valor& valor) {
    return valor.producto ? std::move(*valor.producto) : Abre(tabla_, valor.suma.Cerrada());
}

Valor ReglasCompleto::Suma(Valor a, Valor b, int signo) {
    if (b.producto && !a.producto && a.suma.Cantidad() == 0) { // a sign alone
        if (signo < 0)
            b.producto->coeficiente.CambiaSigno();
        return b;
    }
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
    Valor suma{.suma = {}, .producto = SumaFracciones(tabla_, ComoProducto(a), fb)};
    suma.divisor = divisor;
    return SinNegativos(std::move(suma));
}

Valor ReglasCompleto::Producto(Valor& a, Valor& b) {
    Valor producto{.suma = {}, .producto = Multiplica(tabla_, ComoProducto(a), ComoProducto(b))};
    producto.divisor = a.divisor * b.divisor;
    return SinNegativos(std::move(producto));
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
    Valor cociente{.suma = {}, .producto = std::nullopt, .divisor = a.divisor};
    // A number below stays below: it is what makes the fraction.
    const auto baja = [&](FracciónAbierta& f) {
        if (!f.coeficiente.EsExacto())
            return;
        const Coeficiente abajo(f.coeficiente.Denominador(), 1);
        f.coeficiente *= abajo;
        cociente.divisor *= abajo;
    };
    if (esNúmero)
        baja(inversa);
    cociente.producto = Multiplica(tabla_, ComoProducto(a), std::move(inversa));
    if (!esNúmero)
        baja(*cociente.producto);
    return SinNegativos(std::move(cociente));
}

Valor ReglasCompleto::Potencia(Valor& a, Valor& b) {
    const Términos exponente = ComoSuma(b);
    const auto entero = DevExponenteEntero(exponente);
    if (!entero) {
        const Términos base = DevFormaFinal(tabla_, ComoSuma(a));
        Valor potencia{.suma = ElevaAlFinal(tabla_, base, DevAsentada(tabla_, exponente)),
                       .producto = {}};
        return SinNegativos(std::move(potencia));
    }
    if (*entero < 0) {
        Valor uno = DeNúmero(1);
        a = Cociente(uno, a);
    }
    const std::int64_t n = *entero < 0 ? -*entero : *entero;
    Valor potencia{.suma = {}, .producto = Eleva(tabla_, ComoProducto(a), n)};
    potencia.divisor = a.divisor.Potencia(n);
    return SinNegativos(std::move(potencia));
}

Valor ReglasCompleto::Llamada(const DescripciónOperación& función, Valor& argumento) {
    Valor copia{.suma = argumento.suma.Cerrada(),
                .producto = argumento.producto,
                .divisor = argumento.divisor};
    const std::string texto = Escribe(std::move(copia));
    Términos suma = ComoSuma(argumento);
    suma = función.código == Operación::Exp ? DevAsentada(tabla_, std::move(suma))
                                            : DevFormaFinal(tabla_, std::move(suma));
    return {.suma = DevLlamada(tabla_, función, suma, texto), .producto = {}};
}

FracciónAbierta ReglasCompleto::DevFracción(const Lados& lados) const {
    FracciónAbierta f = DevInversa(tabla_, Abre(tabla_, lados.denominador));
    if (f.signoAbajo) {
        f.signoAbajo = false;
        f.coeficiente.CambiaSigno();
    }
    return Multiplica(tabla_, Abre(tabla_, lados.numerador), std::move(f));
}

// The value as a sum, for an exponent or an argument: a quotient in it is one term.
Términos ReglasCompleto::ComoSuma(Valor& valor) {
    if (valor.producto) {
        const Lados lados = DevLados(valor);
        if (lados.numerador.empty())
            return {};
        return quiralto::Cierra(tabla_, DevFracción(lados));
    }
    Términos suma = valor.suma.Cerrada();
    EscalaSuma(suma, valor.divisor.Inverso());
    return suma;
}

// Negative whole powers of the numerator go below; in its sums, all terms are multiplied by what
// makes them vanish.
Valor ReglasCompleto::SinNegativos(Valor valor) {
    if (!valor.producto)
        valor.producto = Abre(tabla_, valor.suma.Cerrada());
    FracciónAbierta& f = *valor.producto;
    const auto esNegativo = [&](const Literal& literal, std::size_t i) {
        const Factor& factor = literal[i];
        return tabla_.EsLlano(factor.símbolo) && factor.exponente.EsEntero() &&
               factor.exponente.Signo() < 0 &&
               (i == 0 || tabla_.IdDe(literal[i - 1].símbolo) != tabla_.IdDe(factor.símbolo));
    };
    Literal inverso;
    const auto anota = [&](const Literal& literal) {
        for (std::size_t i = 0; i < literal.size(); ++i) {
            if (!esNegativo(literal, i))
                continue;
            const auto suyo = std::ranges::find(inverso, literal[i].símbolo, &Factor::símbolo);
            if (suyo == inverso.end())
                inverso.push_back({literal[i].símbolo, -literal[i].exponente});
            else
                suyo->exponente = std::max(suyo->exponente, -literal[i].exponente);
        }
    };
    anota(f.arriba);
    if (!inverso.empty()) {
        FracciónAbierta abajo;
        Literal arriba;
        MultiplicaLiterales(tabla_, f.arriba, inverso, arriba);
        f.arriba = std::move(arriba);
        abajo.abajo = std::move(inverso);
        tabla_.Ordena(abajo.abajo);
        f = Multiplica(tabla_, std::move(f), std::move(abajo));
        inverso.clear();
    }
    for (quiralto::Potencia& potencia : f.sumas) {
        inverso.clear();
        for (const Término& término : potencia.suma)
            anota(término.literal);
        if (inverso.empty())
            continue;
        tabla_.Ordena(inverso);
        potencia.suma = MultiplicaSumas(tabla_, potencia.suma, {{1, inverso}});
        FracciónAbierta abajo{.abajo = inverso};
        for (Factor& factor : abajo.abajo)
            factor.exponente = factor.exponente * potencia.exponente;
        f = Multiplica(tabla_, std::move(f), std::move(abajo));
        return SinNegativos(std::move(valor));
    }
    return valor;
}

ReglasCompleto::Lados ReglasCompleto::DevLados(Valor& valor) {
    FracciónAbierta numerador = ComoProducto(valor);
    FracciónAbierta denominador{.arriba = numerador.abajo};
    if (numerador.signoAbajo)
        numerador.coeficiente.CambiaSigno();
    numerador.abajo.clear();
    numerador.signoAbajo = false;
    AbreGrupos(tabla_, denominador);
    denominador.coeficiente = valor.divisor;
    return {quiralto::Cierra(tabla_, numerador), quiralto::Cierra(tabla_, denominador)};
}

// One fraction in lowest terms of the numbers of both sides.
void ReglasCompleto::Iguala(Lados& lados) const {
    auto& [numerador, denominador] = lados;
    const Coeficiente comúnN = DevDenominadorComún(numerador);
    const Coeficiente comúnD = DevDenominadorComún(denominador);
    if (comúnN.EsCero() || comúnD.EsCero())
        return;
    const Coeficiente escala = DevMcm(comúnN, comúnD);
    const auto cortado = [&](const Término& t) { return !EsDecimal(tabla_, t.coeficiente); };
    const bool deUno = denominador.size() == 1;
    const bool esSuma = deUno && EsNúmero(denominador) && DevNúmero(denominador).EsUno();
    const bool hayCero = std::ranges::any_of(numerador, [&](const Término& t) {
        return t.coeficiente.Escrito(tabla_.contexto.DígitosRedondeo).EsCero();
    });
    if (esSuma ? hayCero
               : deUno || std::ranges::any_of(numerador, cortado) ||
                     std::ranges::any_of(denominador, cortado)) {
        EscalaSuma(numerador, escala);
        EscalaSuma(denominador, escala);
    }
    const auto entero = [](const Término& t) { return t.coeficiente.EsEntero(); };
    if (std::ranges::all_of(numerador, entero) && std::ranges::all_of(denominador, entero)) {
        const Coeficiente mcd = DevMCD(DevContenido(numerador), DevContenido(denominador));
        EscalaSuma(numerador, mcd.Inverso());
        EscalaSuma(denominador, mcd.Inverso());
    }
    // A number below that would not keep its digits becomes decimals.
    const auto largo = [](const Término& t) {
        return DevFracciónEscrita(t.coeficiente) != t.coeficiente;
    };
    if (EsNúmero(denominador) && (largo(denominador[0]) || std::ranges::any_of(numerador, largo))) {
        EscalaSuma(numerador, DevNúmero(denominador).Inverso());
        denominador = SumaNúmero(1);
    }
    if (std::ranges::all_of(denominador,
                            [](const Término& t) { return t.coeficiente.Signo() < 0; })) {
        EscalaSuma(numerador, -1);
        EscalaSuma(denominador, -1);
    }
}

// Numbers that the text cuts can make one side a multiple of the other: what is written is reduced.
void ReglasCompleto::DaFormaFinal(Lados& lados) {
    Iguala(lados);
    const Lados exactos = lados;
    lados.numerador = DevFormaFinal(tabla_, std::move(lados.numerador));
    lados.denominador = DevFormaFinal(tabla_, std::move(lados.denominador));
    const bool esIgual =
        lados.numerador == exactos.numerador && lados.denominador == exactos.denominador;
    if (esIgual || lados.numerador.empty() || EsNúmero(lados.denominador))
        return;
    Valor escrito{.suma = {}, .producto = DevFracción(lados)};
    lados = DevLados(escrito);
    Iguala(lados);
    lados.numerador = DevFormaFinal(tabla_, std::move(lados.numerador));
    lados.denominador = DevFormaFinal(tabla_, std::move(lados.denominador));
}

std::string ReglasCompleto::Escribe(Valor valor) {
    Lados lados = DevLados(valor);
    if (lados.numerador.empty())
        return "0";
    DaFormaFinal(lados);
    if (EsNúmero(lados.denominador) && DevNúmero(lados.denominador).EsUno())
        return EscribeSuma(tabla_, lados.numerador);
    return EscribeFracción(tabla_, lados.numerador, lados.denominador);
}

} // namespace quiralto
