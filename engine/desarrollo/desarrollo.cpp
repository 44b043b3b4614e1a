#include "engine/desarrollo/desarrollo.h"

#include "engine/desarrollo/acumulada.h"
#include "engine/desarrollo/escribe.h"
#include "engine/desarrollo/forma_final.h"
#include "engine/desarrollo/reglas_completo.h"
#include "engine/desarrollo/reglas_simplificado.h"
#include "engine/desarrollo/semejantes.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/lenguaje/termino_texto.h"

#include <optional>

namespace quiralto {
namespace {

template <typename Reglas>
typename Reglas::Valor Suma(Reglas& reglas, typename Reglas::Valor a, typename Reglas::Valor b,
                            int signo) {
    if (b.producto && !a.producto && a.suma.Cantidad() == 0) { // a sign before a product
        if (signo < 0)
            b.producto->coeficiente.CambiaSigno();
        return b;
    }
    return reglas.Suma(std::move(a), std::move(b), signo);
}

template <typename Reglas>
typename Reglas::Valor Opera(Reglas& reglas, const DescripciónOperación& operación,
                             typename Reglas::Valor a, typename Reglas::Valor b) {
    switch (operación.familia) {
    case Familia::Suma:
        return Suma(reglas, std::move(a), std::move(b), 1);
    case Familia::Resta:
        return Suma(reglas, std::move(a), std::move(b), -1);
    case Familia::Producto:
        return reglas.Producto(a, b);
    case Familia::Cociente:
        return reglas.Cociente(a, b);
    case Familia::Potencia:
        return reglas.Potencia(a, b);
    case Familia::Función:
    case Familia::Símbolo:
        break;
    }
    return reglas.Llamada(operación, b);
}

// Runs the instructions over the values of the rules. Every register but X is an operand of at
// most one instruction, so values are moved out of it.
template <typename Reglas>
typename Reglas::Valor Ejecuta(TablaSímbolos& tabla, Reglas& reglas, const Programa& programa) {
    using Valor = typename Reglas::Valor;
    std::vector<std::optional<Valor>> registros(programa.registros.size());
    const auto toma = [&](std::int16_t registro) -> Valor {
        const auto r = static_cast<std::size_t>(registro);
        if (r == 0)
            return {.suma = SumaSímbolo(tabla.DevVariable('X', "X")), .producto = {}};
        if (!registros[r])
            return {.suma = SumaNúmero(Coeficiente::DesdeDouble(programa.registros[r])),
                    .producto = {}};
        Valor valor = std::move(*registros[r]);
        registros[r].reset();
        return valor;
    };
    for (const Instrucción& instrucción : programa.instrucciones) {
        tabla.contexto.Vigila();
        const DescripciónOperación& operación = *BuscaOperación(instrucción.código);
        Valor izquierdo = operación.EsBinaria() ? toma(instrucción.izquierdo) : Valor{};
        registros[static_cast<std::size_t>(instrucción.resultado)] =
            Opera(reglas, operación, std::move(izquierdo), toma(instrucción.derecho));
    }
    return std::move(*registros[programa.Resultado()]);
}

// A literal part as a text, a symbol of its own.
Literal DevOpaca(TablaSímbolos& tabla, std::string texto) {
    if (texto.empty())
        return {};
    return {{tabla.DevBase({.clase = ClaseBase::Opaca, .texto = std::move(texto)}), 1}};
}

Términos LeeSuma(TablaSímbolos& tabla, std::string_view texto) {
    Términos suma;
    RecorreTérminos(texto, [&](std::string_view término) {
        TérminoLeído leído = LeeTérmino(término);
        if (leído.coeficiente != 0)
            suma.push_back({Coeficiente::DesdeDouble(leído.coeficiente),
                            DevOpaca(tabla, std::move(leído.literal))});
    });
    return suma;
}

} // namespace

std::string DesarrollaCompleto(Contexto& contexto, const Programa& programa) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Completo);
    ReglasCompleto reglas(tabla);
    return reglas.Escribe(Ejecuta(tabla, reglas, programa));
}

std::string DesarrollaSimplificado(Contexto& contexto, const Programa& programa) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Simplificado);
    ReglasSimplificado reglas(tabla);
    return reglas.Escribe(Ejecuta(tabla, reglas, programa));
}

Términos DesarrollaEnTérminos(TablaSímbolos& tabla, const Programa& programa) {
    ReglasSimplificado reglas(tabla);
    auto valor = Ejecuta(tabla, reglas, programa);
    return reglas.ComoSuma(valor);
}

std::string SumaDesarrollo(Contexto& contexto, std::string_view a, std::string_view b) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Simplificado);
    Acumulada suma = LeeSuma(tabla, a);
    suma.Añade(tabla, LeeSuma(tabla, b), 1);
    return SimplificaSignos(EscribeSuma(tabla, DevFormaFinal(tabla, suma.Cerrada())));
}

bool MismaExpresión(Contexto& contexto, const std::string& p, const std::string& q) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Simplificado);
    return SonSemejantes(tabla, DevOpaca(tabla, p), DevOpaca(tabla, q));
}

} // namespace quiralto
