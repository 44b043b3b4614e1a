#include "engine/desarrollo/desarrollo.h"

#include "engine/desarrollo/algebra_suma.h"
#include "engine/desarrollo/escribe_suma.h"
#include "engine/desarrollo/reglas_completo.h"
#include "engine/desarrollo/semejantes.h"
#include "engine/desarrollo/separa.h"
#include "engine/desarrollo/sumando.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"

#include <cmath>
#include <optional>

namespace quiralto {
namespace {

// The rules of the simplified expansion: every value is one sum.
class ReglasSimplificado {
public:
    using Valor = Sumando;

    explicit ReglasSimplificado(TablaSímbolos& tabla) : tabla_(tabla) {}

    Valor DeX() { return SumaSímbolo(tabla_.DevVariable('X', "X")); }
    static Valor DeNúmero(double valor) { return SumaNúmero(valor); }

    Valor Opera(const DescripciónOperación& operación, Valor a, Valor b) {
        switch (operación.familia) {
        case Familia::Suma:
        case Familia::Resta:
            a.Añade(tabla_, std::move(b), operación.familia == Familia::Suma ? 1 : -1);
            return a;
        case Familia::Producto: {
            Valor producto = MultiplicaYFunde(tabla_, a.Cerrada(), b.Cerrada());
            producto.factores = DevFactores(a, b);
            return producto;
        }
        case Familia::Cociente: {
            const std::vector<Términos> divisores = DevFactores(a, b);
            Términos cociente = DevCociente(tabla_, a.Cerrada(), b.Cerrada(), divisores);
            FundeSemejantes(tabla_, cociente);
            return cociente;
        }
        case Familia::Potencia: {
            Valor potencia = ElevaYFunde(tabla_, a.Cerrada(), b.Cerrada());
            potencia.factores = DevFactores(a, a);
            return potencia;
        }
        case Familia::Función:
        case Familia::Símbolo:
            break;
        }
        return SumaSímbolo(
            DevLlamada(tabla_, operación, EscribeSuma(tabla_, RedondeaSuma(tabla_, b.Cerrada()))));
    }

    std::string Escribe(Valor valor) {
        return EscribeSuma(tabla_, RedondeaSuma(tabla_, valor.Cerrada()));
    }

private:
    TablaSímbolos& tabla_;
};

// Runs the instructions over the values of the rules. Every register but X is an operand of at
// most one instruction, so values are moved out of it.
template <typename Reglas>
typename Reglas::Valor Ejecuta(Reglas& reglas, Contexto& contexto, const Programa& programa) {
    using Valor = typename Reglas::Valor;
    std::vector<std::optional<Valor>> registros(programa.registros.size());
    const auto toma = [&](std::int16_t registro) -> Valor {
        const auto r = static_cast<std::size_t>(registro);
        if (r == 0)
            return reglas.DeX();
        if (!registros[r])
            return Reglas::DeNúmero(programa.registros[r]);
        Valor valor = std::move(*registros[r]);
        registros[r].reset();
        return valor;
    };
    for (const Instrucción& instrucción : programa.instrucciones) {
        contexto.Vigila();
        const DescripciónOperación& operación = *BuscaOperación(instrucción.código);
        Valor izquierdo = operación.EsBinaria() ? toma(instrucción.izquierdo) : Valor{};
        registros[static_cast<std::size_t>(instrucción.resultado)] =
            reglas.Opera(operación, std::move(izquierdo), toma(instrucción.derecho));
    }
    return std::move(*registros[programa.Resultado()]);
}

// A text's terms, each literal part a symbol of its own.
Términos LeeSuma(TablaSímbolos& tabla, std::string_view texto) {
    Términos suma;
    for (const std::string& término : SeparaTérminos(texto)) {
        const TérminoSeparado separado = SeparaCoeficiente(término);
        const double coeficiente = Val(separado.coeficiente);
        if (coeficiente == 0)
            continue;
        Literal literal;
        if (!separado.literal.empty())
            literal.push_back(
                {tabla.DevBase({.clase = ClaseBase::Opaca, .texto = separado.literal}), 1});
        suma.push_back({coeficiente, std::move(literal)});
    }
    return suma;
}

} // namespace

std::string DesarrollaCompleto(Contexto& contexto, const Programa& programa) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Completo);
    ReglasCompleto reglas(tabla);
    return reglas.Escribe(Ejecuta(reglas, contexto, programa));
}

std::string DesarrollaSimplificado(Contexto& contexto, const Programa& programa) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Simplificado);
    ReglasSimplificado reglas(tabla);
    return reglas.Escribe(Ejecuta(reglas, contexto, programa));
}

Términos DesarrollaEnTérminos(TablaSímbolos& tabla, const Programa& programa) {
    ReglasSimplificado reglas(tabla);
    return Ejecuta(reglas, tabla.contexto, programa).Cerrada();
}

std::string SumaDesarrollo(Contexto& contexto, std::string_view a, std::string_view b) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::Simplificado);
    Sumando suma = LeeSuma(tabla, a);
    suma.Añade(tabla, LeeSuma(tabla, b), 1);
    std::string texto;
    for (const Término& término : suma.Cerrada()) {
        if (término.coeficiente > 0 && !texto.empty())
            texto += '+';
        if (término.literal.empty()) {
            texto += TextoNúmero(término.coeficiente);
            continue;
        }
        const std::string& literal = tabla.BaseDe(término.literal[0].símbolo).texto;
        if (término.coeficiente < 0)
            texto += '-';
        const double absoluto = std::fabs(término.coeficiente);
        if (absoluto == 1)
            texto += literal;
        else if (literal.starts_with("1/"))
            (texto += TextoNúmero(absoluto)).append(literal, 1);
        else
            ((texto += TextoNúmero(absoluto)) += '*') += literal;
    }
    return texto.empty() ? "0" : SimplificaSignos(texto);
}

bool MismaExpresión(Contexto& contexto, const std::string& p, const std::string& q) {
    if (p == q)
        return true;
    const auto puntos = SorteaPuntos(contexto);
    const ValoresDePrueba deP = EvalúaTexto(contexto, p, puntos);
    return !deP.SinNinguno() && deP == EvalúaTexto(contexto, q, puntos);
}

} // namespace quiralto
