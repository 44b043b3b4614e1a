#include "engine/desarrollo.h"

#include "engine/algebra_suma.h"
#include "engine/division_suma.h"
#include "engine/error_ejecucion.h"
#include "engine/escribe_suma.h"
#include "engine/numero.h"
#include "engine/semejantes.h"
#include "engine/separa.h"
#include "engine/sintaxis.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace quiralto {
namespace {

// A sum in a register: closed, or open while additions follow each other. `factores` are the sums
// of several terms that it was multiplied from, for the cancelling of quotients.
class Sumando {
public:
    Sumando() = default;
    Sumando(Términos suma) : suma_(std::move(suma)) {}

    const Términos& Cerrada() {
        if (abierta_) {
            suma_ = abierta_->Cierra();
            abierta_.reset();
        }
        return suma_;
    }
    std::size_t Cantidad() const { return abierta_ ? abierta_->Cantidad() : suma_.size(); }

    // *this + signo*b
    void Añade(TablaSímbolos& tabla, Sumando b, double signo) {
        factores.clear();
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
        factores.clear();
    }

    std::vector<Términos> factores;

private:
    void Abre(TablaSímbolos& tabla) {
        if (!abierta_)
            abierta_ = std::make_unique<SumaAbierta>(tabla, std::move(suma_));
    }

    Términos suma_;
    std::unique_ptr<SumaAbierta> abierta_;
};

constexpr std::size_t MáximosFactores = 32;
constexpr std::size_t MáximosTérminosDeFactor = 256;

// What a product of the two has as factors.
std::vector<Términos> DevFactores(Sumando& a, Sumando& b) {
    std::vector<Términos> factores;
    for (Sumando* const uno : {&a, &b}) {
        const Términos& suma = uno->Cerrada();
        if (uno->factores.empty() && suma.size() > 1 && suma.size() <= MáximosTérminosDeFactor)
            factores.push_back(suma);
        factores.insert(factores.end(), uno->factores.begin(), uno->factores.end());
    }
    if (factores.size() > MáximosFactores)
        factores.resize(MáximosFactores);
    return factores;
}

Términos Multiplica(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    Términos producto = MultiplicaSumas(tabla, a, b);
    if (a.size() > 1 || b.size() > 1)
        FundeSemejantes(tabla, producto);
    return producto;
}

Términos Eleva(TablaSímbolos& tabla, const Términos& base, const Términos& exponente) {
    Términos potencia = ElevaSuma(tabla, base, exponente);
    FundeSemejantes(tabla, potencia);
    return potencia;
}

// The symbol of a call; SLN of a whole number is a variable, in its place.
IdSímbolo DevLlamada(TablaSímbolos& tabla, Operación código, const std::string& argumento) {
    const auto función = std::ranges::find(TablaOperaciones, código, &DescripciónOperación::código);
    std::string texto(función->nombre);
    ((texto += '(') += argumento) += ')';
    constexpr double MáximoÍndice = 1e6;
    if (código == Operación::Sln &&
        argumento.find_first_not_of("0123456789") == std::string::npos && Val(argumento) >= 1 &&
        Val(argumento) <= MáximoÍndice)
        return tabla.DevVariable(Val(argumento), std::move(texto));
    return tabla.DevBase({.clase = ClaseBase::Función, .texto = std::move(texto)});
}

// The rules of the simplified expansion: every value is one sum.
class ReglasSimplificado {
public:
    using Valor = Sumando;

    explicit ReglasSimplificado(TablaSímbolos& tabla) : tabla_(tabla) {}

    Valor DeX() { return SumaSímbolo(tabla_.DevVariable('X', "X")); }
    static Valor DeNúmero(double valor) { return SumaNúmero(valor); }

    Valor Opera(Operación código, Valor a, Valor b) {
        switch (código) {
        case Operación::Suma:
        case Operación::Resta:
            a.Añade(tabla_, std::move(b), código == Operación::Suma ? 1 : -1);
            return a;
        case Operación::Producto: {
            Valor producto = Multiplica(tabla_, a.Cerrada(), b.Cerrada());
            producto.factores = DevFactores(a, b);
            return producto;
        }
        case Operación::Cociente: {
            const std::vector<Términos> divisores = DevFactores(a, b);
            Términos cociente = DevCociente(tabla_, a.Cerrada(), b.Cerrada(), divisores);
            FundeSemejantes(tabla_, cociente);
            return cociente;
        }
        case Operación::Potencia: {
            Valor potencia = Eleva(tabla_, a.Cerrada(), b.Cerrada());
            potencia.factores = DevFactores(a, a);
            return potencia;
        }
        default:
            return SumaSímbolo(
                DevLlamada(tabla_, código, EscribeSuma(tabla_, RedondeaSuma(tabla_, b.Cerrada()))));
        }
    }

    std::string Escribe(Valor valor) {
        return EscribeSuma(tabla_, RedondeaSuma(tabla_, valor.Cerrada()));
    }

private:
    TablaSímbolos& tabla_;
};

// The rules of the complete expansion: every value is one fraction.
class ReglasCompleto {
public:
    struct Valor {
        Sumando numerador;
        Términos denominador = SumaNúmero(1);
        std::vector<Términos> factoresDenominador = {};
    };

    explicit ReglasCompleto(TablaSímbolos& tabla) : tabla_(tabla) {}

    Valor DeX() { return {.numerador = SumaSímbolo(tabla_.DevVariable('X', "X"))}; }
    static Valor DeNúmero(double valor) { return {.numerador = SumaNúmero(valor)}; }

    Valor Opera(Operación código, Valor a, Valor b) {
        switch (código) {
        case Operación::Suma:
        case Operación::Resta:
            return Añade(std::move(a), std::move(b), código == Operación::Suma ? 1 : -1);
        case Operación::Producto:
            return Producto(a, b);
        case Operación::Cociente:
            return Cociente(a, b);
        case Operación::Potencia:
            return Potencia(a, b);
        default:
            return {.numerador = SumaSímbolo(DevLlamada(tabla_, código, Escribe(std::move(b))))};
        }
    }

    std::string Escribe(Valor valor) {
        Fracción f{valor.numerador.Cerrada(), valor.denominador};
        // What is scaled to whole numbers can have more digits than a text.
        constexpr int MáximasVueltas = 3;
        for (int vuelta = 0; vuelta < MáximasVueltas; ++vuelta) {
            f.numerador = RedondeaSuma(tabla_, std::move(f.numerador));
            if (!EsNúmero(f.denominador) || DevNúmero(f.denominador) > 1)
                f.denominador = RedondeaSuma(tabla_, std::move(f.denominador));
            f = ReduceFracción(tabla_, std::move(f.numerador), std::move(f.denominador));
            if (EstáRedondeada(tabla_, f.numerador) &&
                (EsNúmero(f.denominador) || EstáRedondeada(tabla_, f.denominador)))
                break;
        }
        if (EsNúmero(f.denominador) && !EsEntero(DevNúmero(f.denominador)))
            return EscribeSuma(tabla_, DevCociente(tabla_, f.numerador, f.denominador));
        if (EsNúmero(f.denominador) && DevNúmero(f.denominador) == 1)
            return EscribeSuma(tabla_, RedondeaSuma(tabla_, f.numerador));
        return EscribeFracción(tabla_, f.numerador, f.denominador);
    }

private:
    static bool EsUno(const Términos& suma) { return EsNúmero(suma) && DevNúmero(suma) == 1; }

    Valor Añade(Valor a, Valor b, double signo) {
        if (a.numerador.Cantidad() == 0 && EsUno(a.denominador) && signo > 0)
            return b;
        Términos común = LlevaAComún(a, b);
        a.numerador.Añade(tabla_, std::move(b.numerador), signo);
        if (EsNúmero(común)) // reduced once the whole sum is known
            return {.numerador = std::move(a.numerador), .denominador = std::move(común)};
        std::vector<Términos> divisores = {a.denominador, b.denominador};
        return Reducida(a.numerador.Cerrada(), común, divisores);
    }

    // Brings both numerators over one denominator and returns it: the one that the other divides,
    // or the product.
    Términos LlevaAComún(Valor& a, Valor& b) {
        if (EsNúmero(a.denominador) && EsNúmero(b.denominador)) {
            const double da = DevNúmero(a.denominador);
            const double db = DevNúmero(b.denominador);
            const double común =
                CompruebaFinito(EsEntero(da) && EsEntero(db) ? da / DevMcd(da, db) * db : da * db);
            Amplía(a, SumaNúmero(común / da));
            Amplía(b, SumaNúmero(común / db));
            return SumaNúmero(común);
        }
        if (const auto factor = DevMúltiplo(a.denominador, b.denominador)) {
            Amplía(b, *factor);
            return a.denominador;
        }
        if (const auto factor = DevMúltiplo(b.denominador, a.denominador)) {
            Amplía(a, *factor);
            return b.denominador;
        }
        Amplía(a, b.denominador);
        Amplía(b, a.denominador);
        return Multiplica(tabla_, a.denominador, b.denominador);
    }

    std::optional<Términos> DevMúltiplo(const Términos& múltiplo, const Términos& divisor) {
        const Fracción f = ReduceFracción(tabla_, múltiplo, divisor);
        if (!EsUno(f.denominador))
            return std::nullopt;
        return f.numerador;
    }

    void Amplía(Valor& valor, const Términos& factor) {
        if (!EsUno(factor))
            valor.numerador = Multiplica(tabla_, valor.numerador.Cerrada(), factor);
    }

    Valor Producto(Valor& a, Valor& b) {
        std::vector<Términos> factores = DevFactores(a.numerador, b.numerador);
        std::vector<Términos> divisores = factores;
        divisores.insert(divisores.end(), a.factoresDenominador.begin(),
                         a.factoresDenominador.end());
        divisores.insert(divisores.end(), b.factoresDenominador.begin(),
                         b.factoresDenominador.end());
        const Fracción x = Cancela(a.numerador.Cerrada(), b.denominador, divisores);
        const Fracción y = Cancela(b.numerador.Cerrada(), a.denominador, divisores);
        Valor producto = Reducida(Multiplica(tabla_, x.numerador, y.numerador),
                                  Multiplica(tabla_, x.denominador, y.denominador), divisores);
        producto.numerador.factores = std::move(factores);
        producto.factoresDenominador = a.factoresDenominador;
        producto.factoresDenominador.insert(producto.factoresDenominador.end(),
                                            b.factoresDenominador.begin(),
                                            b.factoresDenominador.end());
        return producto;
    }

    Valor Cociente(Valor& a, Valor& b) {
        if (b.numerador.Cantidad() == 0)
            throw ErrorEjecución(DivisiónPorCero);
        Valor inverso = Inverso(b);
        return Producto(a, inverso);
    }

    static Valor Inverso(Valor& valor) {
        Valor inverso{.numerador = valor.denominador,
                      .denominador = valor.numerador.Cerrada(),
                      .factoresDenominador = valor.numerador.factores};
        inverso.numerador.factores = valor.factoresDenominador;
        if (inverso.factoresDenominador.empty() && inverso.denominador.size() > 1 &&
            inverso.denominador.size() <= MáximosTérminosDeFactor)
            inverso.factoresDenominador = {inverso.denominador};
        return inverso;
    }

    Valor Potencia(Valor& a, Valor& b) {
        const Términos exponente = ComoSuma(b);
        if (!EsNúmero(exponente) || !EsEntero(DevNúmero(exponente))) {
            const Términos base = ComoSuma(a);
            return Reducida(Eleva(tabla_, base, exponente), SumaNúmero(1), {});
        }
        double n = DevNúmero(exponente);
        if (n < 0) {
            if (a.numerador.Cantidad() == 0)
                throw ErrorEjecución(DivisiónPorCero);
            a = Inverso(a);
            n = -n;
        }
        if (!EsUno(a.denominador)) {
            const Fracción f = ReduceFracción(tabla_, a.numerador.Cerrada(), a.denominador);
            a.numerador = f.numerador;
            a.denominador = f.denominador;
        }
        std::vector<Términos> factores = DevFactores(a.numerador, a.numerador);
        Valor potencia = Reducida(Eleva(tabla_, a.numerador.Cerrada(), SumaNúmero(n)),
                                  Eleva(tabla_, a.denominador, SumaNúmero(n)), {});
        potencia.numerador.factores = std::move(factores);
        if (a.denominador.size() > 1)
            potencia.factoresDenominador = {a.denominador};
        return potencia;
    }

    Términos ComoSuma(Valor& valor) {
        if (EsUno(valor.denominador))
            return valor.numerador.Cerrada();
        return DevCociente(tabla_, valor.numerador.Cerrada(), valor.denominador);
    }

    Fracción Cancela(const Términos& numerador, const Términos& denominador,
                     const std::vector<Términos>& divisores) {
        if (EsUno(denominador))
            return {numerador, denominador};
        return ReduceFracción(tabla_, numerador, denominador, divisores);
    }

    // A fraction in lowest terms, without negative whole exponents.
    Valor Reducida(Términos numerador, Términos denominador,
                   const std::vector<Términos>& divisores) {
        Fracción f = SinNegativos(SinCocientes({std::move(numerador), std::move(denominador)}));
        f = Cancela(f.numerador, f.denominador, divisores);
        f = SinNegativos(std::move(f)); // cancelled variable exponents can leave some
        return {.numerador = std::move(f.numerador), .denominador = std::move(f.denominador)};
    }

    // A power of a quotient that has become whole leaves the quotient.
    Fracción SinCocientes(Fracción f) {
        if (!tabla_.HayCocientes())
            return f;
        const Fracción n = DevFracción(tabla_, f.numerador);
        const Fracción d = DevFracción(tabla_, f.denominador);
        return {EsUno(d.denominador) ? n.numerador : Multiplica(tabla_, n.numerador, d.denominador),
                EsUno(n.denominador) ? d.numerador
                                     : Multiplica(tabla_, d.numerador, n.denominador)};
    }

    Fracción SinNegativos(Fracción f) {
        for (const bool arriba : {true, false}) {
            const Términos inverso = DevInversoNegativos(arriba ? f.numerador : f.denominador);
            if (inverso.empty())
                continue;
            f.numerador = Multiplica(tabla_, f.numerador, inverso);
            f.denominador = Multiplica(tabla_, f.denominador, inverso);
        }
        return f;
    }

    // The term that makes the negative whole exponents of a sum vanish; an empty sum: there are
    // none.
    Términos DevInversoNegativos(const Términos& suma) const {
        Literal inverso;
        for (const Término& término : suma) {
            for (std::size_t i = 0; i < término.literal.size();) {
                const std::size_t fin = FinDeBase(tabla_, término.literal, i);
                const Factor& factor = término.literal[i];
                if (fin == i + 1 && tabla_.EsLlano(factor.símbolo) && factor.exponente < 0 &&
                    EsEntero(factor.exponente)) {
                    const auto suyo = std::ranges::find(inverso, factor.símbolo, &Factor::símbolo);
                    if (suyo == inverso.end())
                        inverso.push_back({factor.símbolo, -factor.exponente});
                    else
                        suyo->exponente = std::max(suyo->exponente, -factor.exponente);
                }
                i = fin;
            }
        }
        if (inverso.empty())
            return {};
        std::ranges::sort(inverso, [&](const Factor& a, const Factor& b) {
            return tabla_.Precede(a.símbolo, b.símbolo);
        });
        return {{1, std::move(inverso)}};
    }

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
        const bool binaria = instrucción.código <= Operación::Potencia;
        Valor izquierdo = binaria ? toma(instrucción.izquierdo) : Valor{};
        registros[static_cast<std::size_t>(instrucción.resultado)] =
            reglas.Opera(instrucción.código, std::move(izquierdo), toma(instrucción.derecho));
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
