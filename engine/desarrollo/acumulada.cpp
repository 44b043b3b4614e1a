#include "engine/desarrollo/acumulada.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/desarrollo/potencia.h"
#include "engine/desarrollo/producto.h"
#include "engine/lenguaje/aritmetica.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

// A power of a number or of one base to a fraction, or none of the rules below.
std::optional<Términos> ElevaUno(TablaSímbolos& tabla, const Términos& base,
                                 const Coeficiente& exponente) {
    if (EsNúmero(base) && (base.empty() || DevNúmero(base).EsUno())) {
        if (base.empty() && exponente.Signo() < 0)
            throw ErrorEjecución(DivisiónPorCero);
        return base;
    }
    if (EsNúmero(base) && tabla.SoloPorLetra())
        return SumaNúmero(
            tabla.DevRedondeado(DevPotencia(DevNúmero(base).ADouble(), exponente.ADouble())));
    if (base.size() != 1 || !base[0].coeficiente.EsUno())
        return std::nullopt;
    const Literal& literal = base[0].literal;
    // EXP(u)^c is EXP(c*u), where its text loses nothing by it.
    if (FinDeBase(tabla, literal, 0) == literal.size() &&
        tabla.BaseDe(literal[0].símbolo).clase == ClaseBase::Euler) {
        Literal potencia = literal;
        for (Factor& factor : potencia)
            factor.exponente = factor.exponente * Exponente(exponente);
        if (std::ranges::all_of(potencia, [&](const Factor& f) {
                const Coeficiente valor = f.exponente.Valor();
                return DevEscritoDentro(tabla, valor) == valor;
            }))
            return Términos{{1, potencia}};
        return std::nullopt;
    }
    // (X^.5)^.5 is X^.25; (X^2)^.5 is not X.
    if (literal.size() == 1 && tabla.EsLlano(literal[0].símbolo) &&
        !literal[0].exponente.EsEntero())
        return MultiplicaSumas(
            tabla, SumaSímbolo(literal[0].símbolo, literal[0].exponente * Exponente(exponente)),
            SumaNúmero(1));
    return std::nullopt;
}

} // namespace

const Términos& Acumulada::Cerrada() & {
    if (abierta_) {
        suma_ = abierta_->Cierra();
        abierta_.reset();
    }
    return suma_;
}

void Acumulada::Añade(TablaSímbolos& tabla, Acumulada b, int signo) {
    if (b.Cantidad() == 0)
        return;
    if (Cantidad() == 0 && signo > 0) {
        *this = std::move(b);
    } else if (Cantidad() >= b.Cantidad()) {
        Abre(tabla);
        abierta_->AñadeDetrás(b.Cerrada(), signo);
    } else {
        b.Abre(tabla);
        b.abierta_->AñadeDelante(Cerrada(), signo);
        *this = std::move(b);
    }
}

void Acumulada::Abre(TablaSímbolos& tabla) {
    if (!abierta_)
        abierta_ = std::make_unique<SumaAbierta>(tabla, std::move(suma_));
}

Términos DevLlamada(TablaSímbolos& tabla, const DescripciónOperación& función,
                    const Términos& argumento, const std::string& texto) {
    const bool seEvalúa = tabla.SoloPorLetra() && EsNúmero(argumento);
    if (función.código == Operación::Exp && !argumento.empty() && !seEvalúa)
        return {{1, DevPotenciaDe(tabla, tabla.DevEuler(), argumento)}};
    std::string llamada(función.nombre);
    ((llamada += '(') += texto) += ')';
    constexpr std::int64_t MáximoÍndice = 1'000'000;
    if (función.familia == Familia::Símbolo) {
        const Coeficiente número = EsNúmero(argumento) ? DevNúmero(argumento) : Coeficiente();
        if (número.EsEnteroPequeño() && número.EnteroPequeño() >= 1 &&
            número.EnteroPequeño() <= MáximoÍndice)
            return SumaSímbolo(tabla.DevVariable(número.ADouble(), std::move(llamada)));
    } else if (seEvalúa) {
        const double valor = DevNúmero(argumento).ADouble();
        if (const Fallo fallo = función.fallo(0, valor); fallo != SinFallo)
            throw ErrorEjecución(fallo);
        return SumaNúmero(tabla.DevRedondeado(función.valor(0, valor, nullptr)));
    }
    Base base{.clase = ClaseBase::Función,
              .texto = std::move(llamada),
              .contenido = argumento,
              .función = &función};
    if (EsRaíz(base))
        base.radicando = DevBaseDe(tabla, argumento);
    return SumaSímbolo(tabla.DevBase(std::move(base)));
}

std::optional<std::int64_t> DevExponenteEntero(const Términos& exponente) {
    if (!EsNúmero(exponente) || !DevNúmero(exponente).EsEntero())
        return std::nullopt;
    const Coeficiente n = DevNúmero(exponente);
    if (!n.EsEnteroPequeño())
        throw ErrorEjecución(Desbordamiento);
    return n.EnteroPequeño();
}

Términos ElevaAlFinal(TablaSímbolos& tabla, const Términos& base, const Términos& exponente) {
    if (EsNúmero(exponente)) {
        if (auto potencia = ElevaUno(tabla, base, DevNúmero(exponente)))
            return *std::move(potencia);
        return SumaSímbolo(DevBaseDe(tabla, base), Exponente(DevNúmero(exponente)));
    }
    if (EsNúmero(base) && DevNúmero(base).EsUno())
        return base;
    return {{1, DevPotenciaDe(tabla, tabla.IdDe(DevBaseDe(tabla, base)), exponente)}};
}

} // namespace quiralto
