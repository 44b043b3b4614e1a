#include "engine/desarrollo/cociente.h"

#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/potencia.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/recolector.h"
#include "engine/desarrollo/reduccion.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

FracciónAbierta SinAbajo(FracciónAbierta f) {
    f.abajo.clear();
    f.signoAbajo = false;
    return f;
}

FracciónAbierta SoloAbajo(const FracciónAbierta& f) {
    FracciónAbierta divisor;
    divisor.abajo = f.abajo;
    divisor.signoAbajo = f.signoAbajo;
    return divisor;
}

// A lone group below whose sign is the fraction's takes it.
void MeteSigno(TablaSímbolos& tabla, FracciónAbierta& f) {
    if (!f.signoAbajo || f.abajo.size() != 1 || f.abajo[0].exponente != 1 ||
        !tabla.EsLlano(f.abajo[0].símbolo))
        return;
    const Base& base = tabla.BaseDe(f.abajo[0].símbolo);
    if (base.clase != ClaseBase::Grupo || base.contenido.size() < 2)
        return;
    Términos opuesta = base.contenido;
    EscalaSuma(opuesta, -1);
    f.abajo[0].símbolo = DevGrupo(tabla, opuesta).grupo;
    f.signoAbajo = false;
}

// A numerator as it is written: its content, which has gone into the coefficient, and the rest,
// which begins with a positive number.
struct NumeradorEscrito {
    Coeficiente coeficiente;
    Términos suma;
};

NumeradorEscrito DevNumeradorEscrito(TablaSímbolos& tabla, Términos numerador) {
    Coeficiente coeficiente = SacaContenido(numerador);
    if (numerador[0].coeficiente.Signo() < 0) {
        coeficiente.CambiaSigno();
        EscalaSuma(numerador, -1);
    }
    numerador = DevAsentada(tabla, std::move(numerador));
    coeficiente *= SacaContenido(numerador);
    CortaNumerador(tabla, coeficiente, numerador);
    return {std::move(coeficiente), std::move(numerador)};
}

// One term for a fraction whose denominator is not a number. A numerator that the text cuts is
// reduced as it is written, where that cancels something.
Términos DevTérminoCociente(TablaSímbolos& tabla, FracciónAbierta f, const Términos& entero) {
    const Términos abajo = DevAsentada(tabla, {{1, f.abajo}});
    if (abajo.size() != 1 || abajo[0].literal != f.abajo) {
        f.abajo.clear();
        f = Multiplica(tabla, std::move(f), DevInversa(tabla, Abre(tabla, abajo)));
        return Cierra(tabla, f);
    }
    auto [coeficiente, numerador] = DevNumeradorEscrito(tabla, entero);
    Términos escrito = numerador;
    EscalaSuma(escrito, coeficiente);
    if (escrito != entero) {
        FracciónAbierta cortada = Abre(tabla, escrito);
        cortada.abajo = f.abajo;
        cortada.signoAbajo = f.signoAbajo;
        Reduce(tabla, cortada);
        if (cortada.abajo != f.abajo)
            return Cierra(tabla, cortada);
    }
    if (numerador.size() == 1) {
        coeficiente *= numerador[0].coeficiente;
        numerador[0].coeficiente = 1;
    }
    MeteSigno(tabla, f);
    std::string texto = EscribeFracción(tabla, numerador, {{f.signoAbajo ? -1 : 1, f.abajo}});
    const IdSímbolo símbolo = tabla.DevBase({.clase = ClaseBase::Cociente,
                                             .texto = std::move(texto),
                                             .contenido = std::move(numerador),
                                             .denominador = std::move(f.abajo),
                                             .signoAbajo = f.signoAbajo});
    return {{std::move(coeficiente), {{símbolo, 1}}}};
}

// Terms that hold a whole power of a group with quotients in it, opened.
Términos ReabreGrupos(TablaSímbolos& tabla, Términos suma) {
    const auto porAbrir = [&](const Término& t) {
        for (std::size_t i = 0; i < t.literal.size(); ++i) {
            const Base& base = tabla.BaseDe(t.literal[i].símbolo);
            if (base.clase == ClaseBase::Grupo && EsPotenciaEntera(tabla, t.literal, i) &&
                (t.literal[i].exponente.Signo() > 0 || base.contenido.size() == 1) &&
                HayCocientes(tabla, base.contenido))
                return true;
        }
        return false;
    };
    if (!tabla.HayCocientes() || !std::ranges::any_of(suma, porAbrir))
        return suma;
    const GuardaProfundidad guarda(tabla);
    Recolector abierta(tabla.contexto);
    for (const Término& término : suma) {
        if (porAbrir(término))
            abierta.Añade(Cierra(tabla, Abre(tabla, {término})));
        else
            abierta.Añade(término.coeficiente, término.literal);
    }
    return abierta.Toma();
}

Términos ElevaConCocientes(TablaSímbolos& tabla, const Términos& base, std::int64_t n) {
    if (!HayCocientes(tabla, base))
        return ReabreGrupos(tabla, ElevaAEntero(tabla, base, n));
    Términos potencia = SumaNúmero(1);
    Términos cuadrado = base;
    for (; n > 0; n /= 2) {
        if (n % 2 == 1)
            potencia = MultiplicaConCocientes(tabla, potencia, cuadrado);
        if (n > 1)
            cuadrado = MultiplicaConCocientes(tabla, cuadrado, cuadrado);
    }
    return potencia;
}

// The exponents that a denominator must have to be divided by both: of every symbol the greater.
Literal DevDenominadorComún(const TablaSímbolos& tabla, const Literal& a, const Literal& b) {
    Literal común = a;
    for (const Factor& factor : b) {
        const auto suyo = std::ranges::find(común, factor.símbolo, &Factor::símbolo);
        if (suyo == común.end())
            común.push_back(factor);
        else
            suyo->exponente = std::max(suyo->exponente, factor.exponente);
    }
    tabla.Ordena(común);
    return común;
}

// What a numerator is multiplied by when its denominator becomes the common one.
FracciónAbierta DevAmpliación(TablaSímbolos& tabla, const Literal& común, const Literal& suyo) {
    Literal inverso = suyo;
    for (Factor& factor : inverso)
        factor.exponente = -factor.exponente;
    FracciónAbierta ampliación;
    MultiplicaLiterales(tabla, común, inverso, ampliación.arriba);
    AbreGrupos(tabla, ampliación);
    return ampliación;
}

Términos Amplía(TablaSímbolos& tabla, const FracciónAbierta& f, const Literal& común) {
    FracciónAbierta numerador = SinAbajo(f);
    if (f.signoAbajo)
        numerador.coeficiente.CambiaSigno();
    return DevNumerador(
        tabla, Multiplica(tabla, std::move(numerador), DevAmpliación(tabla, común, f.abajo)));
}

double EstimaTérminos(const FracciónAbierta& f) {
    double términos = 1;
    for (const auto& [suma, exponente] : f.sumas)
        términos *= std::pow(static_cast<double>(suma.size()), static_cast<double>(exponente));
    return términos;
}

// Whether a quotient holds another.
bool HayAnidados(const TablaSímbolos& tabla, const Base& cociente) {
    return HayCocientes(tabla, cociente.contenido) ||
           std::ranges::any_of(cociente.denominador, [&](const Factor& factor) {
               return HayCocientes(tabla, tabla.BaseDe(factor.símbolo).contenido);
           });
}

Términos CierraSuma(TablaSímbolos& tabla, const FracciónAbierta& f) {
    Términos suma = DevNumerador(tabla, f);
    if (f.signoAbajo)
        EscalaSuma(suma, -1);
    const bool esPropia = f.sumas.size() == 1 && f.sumas[0].exponente == 1 && f.arriba.empty();
    if (!esPropia)
        FundeSemejantes(tabla, suma);
    return suma;
}

// The fraction with its numerator multiplied out: factors of that can have met in one that cancels.
Términos CierraReducida(TablaSímbolos& tabla, const FracciónAbierta& f, Términos numerador) {
    FracciónAbierta entera = Abre(tabla, numerador);
    entera.abajo = f.abajo;
    entera.signoAbajo = f.signoAbajo;
    Reduce(tabla, entera);
    if (entera.abajo.empty())
        return Cierra(tabla, entera);
    if (entera.abajo != f.abajo)
        numerador = DevNumerador(tabla, SinAbajo(entera));
    return DevTérminoCociente(tabla, std::move(entera), numerador);
}

} // namespace

Términos MultiplicaConCocientes(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    if (!HayCocientes(tabla, a) && !HayCocientes(tabla, b))
        return ReabreGrupos(tabla, MultiplicaSumas(tabla, a, b));
    const GuardaProfundidad guarda(tabla);
    Recolector producto(tabla.contexto);
    for (const Término& ta : a)
        for (const Término& tb : b) {
            if (ta.literal.empty() || tb.literal.empty()) {
                producto.Añade(ta.coeficiente * tb.coeficiente,
                               ta.literal.empty() ? tb.literal : ta.literal);
                continue;
            }
            producto.Añade(Cierra(tabla, Multiplica(tabla, Abre(tabla, {ta}), Abre(tabla, {tb}))));
        }
    return producto.Toma();
}

Términos DevNumerador(TablaSímbolos& tabla, const FracciónAbierta& f) {
    if (f.coeficiente.EsCero())
        return {};
    const Término término{f.coeficiente, f.arriba};
    if (f.sumas.empty())
        return ReabreGrupos(tabla, MultiplicaPotencias(tabla, {término}));
    Términos producto;
    for (const auto& [suma, exponente] : f.sumas) {
        Términos potencia = ElevaConCocientes(tabla, suma, exponente);
        producto = producto.empty() ? std::move(potencia)
                                    : MultiplicaConCocientes(tabla, producto, potencia);
    }
    if (término.literal.empty())
        EscalaSuma(producto, término.coeficiente);
    else
        producto = MultiplicaConCocientes(tabla, {término}, producto);
    return producto;
}

Términos Cierra(TablaSímbolos& tabla, const FracciónAbierta& f) {
    if (f.abajo.empty())
        return CierraSuma(tabla, f);
    const GuardaProfundidad guarda(tabla);
    Términos numerador = DevNumerador(tabla, SinAbajo(f));
    const std::size_t términos = numerador.size();
    FundeSemejantes(tabla, numerador);
    if (numerador.empty())
        return {};
    if (HayCocientes(tabla, numerador)) { // of roots that have become whole
        FracciónAbierta una = SobreUnDenominadorSiCabe(tabla, numerador);
        if (!una.abajo.empty())
            return Cierra(tabla, Multiplica(tabla, std::move(una), SoloAbajo(f)));
    }
    const std::size_t factores = f.sumas.size() + (f.arriba.empty() ? 0U : 1U);
    return factores < 2 && numerador.size() == términos
               ? DevTérminoCociente(tabla, f, numerador)
               : CierraReducida(tabla, f, std::move(numerador));
}

FracciónAbierta SumaFracciones(TablaSímbolos& tabla, const FracciónAbierta& a,
                               const FracciónAbierta& b) {
    const Literal común = DevDenominadorComún(tabla, a.abajo, b.abajo);
    Recolector unido(tabla.contexto);
    unido.Añade(Amplía(tabla, a, común));
    unido.Añade(Amplía(tabla, b, común));
    Términos numerador = unido.Toma();
    FundeSemejantes(tabla, numerador);
    FracciónAbierta suma = Abre(tabla, numerador);
    if (suma.coeficiente.EsCero())
        return suma;
    FracciónAbierta denominador;
    denominador.abajo = común;
    return Multiplica(tabla, std::move(suma), std::move(denominador));
}

FracciónAbierta SobreUnDenominador(TablaSímbolos& tabla, const Términos& suma) {
    if (!HayCocientes(tabla, suma) || suma.size() < 2)
        return Abre(tabla, suma);
    const GuardaProfundidad guarda(tabla);
    // The terms that are no quotients are one numerator.
    Términos enteros;
    for (const Término& término : suma)
        if (DevCocienteDe(tabla, término.literal) == nullptr)
            enteros.push_back(término);
    FracciónAbierta total;
    bool hayTotal = false;
    bool hayEnteros = false;
    for (const Término& término : suma) {
        const bool esEntero = DevCocienteDe(tabla, término.literal) == nullptr;
        if (esEntero && hayEnteros)
            continue;
        hayEnteros = hayEnteros || esEntero;
        FracciónAbierta suya = Abre(tabla, esEntero ? enteros : Términos{término});
        total = hayTotal ? SumaFracciones(tabla, total, suya) : std::move(suya);
        hayTotal = true;
    }
    return total;
}

FracciónAbierta SobreUnDenominadorSiCabe(TablaSímbolos& tabla, const Términos& suma) {
    if (!HayCocientes(tabla, suma) || suma.size() < 2)
        return Abre(tabla, suma);
    FracciónAbierta anidada;
    anidada.sumas.push_back({suma, 1});
    Literal común;
    for (const Término& término : suma)
        if (const Base* const cociente = DevCocienteDe(tabla, término.literal)) {
            if (HayAnidados(tabla, *cociente))
                return anidada;
            común = DevDenominadorComún(tabla, común, cociente->denominador);
        }
    double términos = 0;
    for (const Término& término : suma) {
        const FracciónAbierta suya = Abre(tabla, {término});
        const FracciónAbierta ampliación = DevAmpliación(tabla, común, suya.abajo);
        términos += EstimaTérminos(suya) * EstimaTérminos(ampliación);
    }
    return términos > static_cast<double>(MáximosTérminosJuntados)
               ? anidada
               : SobreUnDenominador(tabla, suma);
}

} // namespace quiralto
