#include "engine/desarrollo/forma_final.h"

#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/desarrollo/potencia.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/recursion.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>

namespace quiralto {
namespace {

bool EsLlana(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde,
             std::size_t fin) {
    return fin == desde + 1 && tabla.EsLlano(literal[desde].símbolo) &&
           tabla.BaseDe(literal[desde].símbolo).clase != ClaseBase::Euler;
}

bool SeEscribe(const TablaSímbolos& tabla, const Exponente& exponente) {
    const Coeficiente valor = exponente.Valor();
    return DevEscritoDentro(tabla, valor) == valor;
}

// Whether the exponents of one base read as they would be written by themselves.
bool EstáAsentado(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde,
                  std::size_t fin) {
    if (EsLlana(tabla, literal, desde, fin))
        return true;
    bool hayCociente = false;
    bool seEscriben = true;
    for (std::size_t i = desde; i < fin; ++i) {
        const Base* const cociente =
            DevCocienteDe(tabla, tabla.LiteralExponente(literal[i].símbolo));
        if (cociente != nullptr && cociente->signoAbajo && literal[i].exponente.Signo() < 0)
            return false;
        hayCociente = hayCociente || cociente != nullptr;
        seEscriben = seEscriben && SeEscribe(tabla, literal[i].exponente);
    }
    return tabla.clase == ClaseDesarrollo::Completo ? !hayCociente || fin == desde + 1 : seEscriben;
}

bool EstánAsentados(const TablaSímbolos& tabla, const Literal& literal) {
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        if (!EstáAsentado(tabla, literal, i, fin))
            return false;
        i = fin;
    }
    return true;
}

Literal Asienta(TablaSímbolos& tabla, const Literal& literal) {
    Literal asentado;
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        if (EstáAsentado(tabla, literal, i, fin)) {
            asentado.insert(asentado.end(), literal.begin() + static_cast<std::ptrdiff_t>(i),
                            literal.begin() + static_cast<std::ptrdiff_t>(fin));
        } else {
            Términos exponente = DevExponente(tabla, literal, i, fin);
            exponente = tabla.clase == ClaseDesarrollo::Completo
                            ? DevUnCociente(tabla, exponente)
                            : DevFormaInterior(tabla, std::move(exponente));
            const Literal potencia =
                DevPotenciaDe(tabla, tabla.IdDe(literal[i].símbolo), exponente);
            asentado.insert(asentado.end(), potencia.begin(), potencia.end());
        }
        i = fin;
    }
    return asentado;
}

// The quotient of a term becomes another, whose text is not written yet.
void PonCociente(TablaSímbolos& tabla, Término& término, Base cociente) {
    const Términos denominador = {{cociente.signoAbajo ? -1 : 1, cociente.denominador}};
    cociente.texto = EscribeFracción(tabla, cociente.contenido, denominador);
    término.literal[0].símbolo = tabla.DevBase(std::move(cociente));
}

// A negative number times a quotient with a sign below is one without either. Whether it was.
bool QuitaSignos(TablaSímbolos& tabla, Término& término) {
    const Base* const cociente = DevCocienteDe(tabla, término.literal);
    if (cociente == nullptr || !cociente->signoAbajo || término.literal[0].exponente != 1 ||
        término.coeficiente.Signo() > 0)
        return false;
    Base sinSigno = *cociente;
    sinSigno.signoAbajo = false;
    PonCociente(tabla, término, std::move(sinSigno));
    término.coeficiente.CambiaSigno();
    return true;
}

// Whether the numerator of a quotient had to be cut.
bool CortaCociente(TablaSímbolos& tabla, Término& término) {
    const Base* const cociente = DevCocienteDe(tabla, término.literal);
    if (cociente == nullptr || término.literal[0].exponente != 1)
        return false;
    Base cortado = *cociente;
    if (!CortaNumerador(tabla, término.coeficiente, cortado.contenido))
        return false;
    PonCociente(tabla, término, std::move(cortado));
    return true;
}

} // namespace

bool CortaNumerador(const TablaSímbolos& tabla, Coeficiente& coeficiente, Términos& numerador) {
    for (bool algo = false;; algo = true) {
        const Coeficiente escrito = DevFracciónEscrita(coeficiente);
        const Coeficiente factor = Coeficiente(escrito.Numerador(), 1).Absoluto();
        Términos cortado = numerador;
        EscalaSuma(cortado, factor);
        bool corta = false;
        for (Término& suyo : cortado) {
            Coeficiente dicho = DevEscritoDentro(tabla, suyo.coeficiente);
            corta = corta || dicho != suyo.coeficiente;
            suyo.coeficiente = std::move(dicho);
        }
        if (!corta)
            return algo;
        coeficiente = escrito / factor * SacaContenido(cortado);
        numerador = std::move(cortado);
    }
}

Términos DevAsentada(TablaSímbolos& tabla, Términos suma) {
    bool otros = false; // literal parts have changed
    for (Término& término : suma) {
        for (const auto regla : {QuitaSignos, CortaCociente})
            otros = regla(tabla, término) || otros;
        if (!EstánAsentados(tabla, término.literal)) {
            const GuardaProfundidad guarda(tabla);
            término.literal = Asienta(tabla, término.literal);
            otros = true;
        }
    }
    if (!otros)
        return suma;
    // Rounded exponents can have made literal parts equal, and powers whole.
    suma = MultiplicaSumas(tabla, suma, SumaNúmero(1));
    FundeSemejantes(tabla, suma);
    return suma;
}

Términos DevFormaFinal(TablaSímbolos& tabla, Términos suma) {
    suma = DevAsentada(tabla, std::move(suma));
    for (Término& término : suma)
        término.coeficiente = DevCoeficienteEscrito(tabla, término);
    return suma;
}

Términos DevFormaInterior(TablaSímbolos& tabla, Términos suma) {
    // In a system it goes on as a value and is not written: TAN(TAN(1)) keeps its digits.
    if (tabla.SoloPorLetra() && EsNúmero(suma))
        return suma;
    suma = DevAsentada(tabla, std::move(suma));
    for (Término& término : suma)
        término.coeficiente = DevEscritoDentro(tabla, término.coeficiente);
    return suma;
}

} // namespace quiralto
