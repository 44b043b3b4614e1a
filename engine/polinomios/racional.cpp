#include "engine/polinomios/racional.h"

#include "engine/evaluacion/evalua.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"

#include <cmath>
#include <utility>
#include <vector>

namespace quiralto {
namespace {

bool EsPolinomio(const Racional& r) {
    return EsUno(r.denominador);
}

// The product, without work where a factor is 1.
Polinomio Por(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsUno(p))
        return q;
    if (EsUno(q))
        return p;
    return MultiplicaPolinomios(contexto, p, q);
}

using Suma = Polinomio (*)(const Polinomio&, const Polinomio&);

Racional Combina(Contexto& contexto, const Racional& a, const Racional& b, Suma suma) {
    if (EsPolinomio(a) && EsPolinomio(b))
        return {suma(a.numerador, b.numerador)};
    return {
        suma(Por(contexto, a.numerador, b.denominador), Por(contexto, b.numerador, a.denominador)),
        Por(contexto, a.denominador, b.denominador)};
}

// Repeated squaring; the exponent is whole and not negative.
Polinomio Potencia(Contexto& contexto, Polinomio base, double exponente) {
    Polinomio potencia = DevConstante(1);
    while (exponente > 0) {
        contexto.Vigila();
        const double mitad = std::floor(exponente / 2);
        if (exponente != 2 * mitad)
            potencia = Por(contexto, potencia, base);
        exponente = mitad;
        if (exponente > 0)
            base = Por(contexto, base, base);
    }
    return potencia;
}

// --- The registers of the symbolic run

class Ejecución {
public:
    Ejecución(Contexto& contexto, const Programa& programa)
        : contexto_(contexto), programa_(programa), valores_(programa.registros.size()) {}

    Racional Ejecuta() {
        for (const Instrucción& instrucción : programa_.instrucciones) {
            contexto_.Vigila();
            valores_[static_cast<std::size_t>(instrucción.resultado)] = Opera(instrucción);
        }
        return *std::move(valores_[programa_.Resultado()]);
    }

private:
    Racional Opera(const Instrucción& instrucción);
    Racional AplicaFunción(Operación código, const Racional& argumento);
    std::optional<double> DevValorEscrito(const Racional& r);

    // Every result is read once: it is taken from its register.
    Racional Toma(std::int16_t registro) {
        if (registro == 0)
            return {DevPotenciaDeX(1)};
        const auto r = static_cast<std::size_t>(registro);
        if (!valores_[r])
            return {DevConstante(programa_.registros[r])};
        return *std::exchange(valores_[r], std::nullopt);
    }

    Contexto& contexto_;
    const Programa& programa_;
    std::vector<std::optional<Racional>> valores_; // of the instructions that have run
};

Racional Ejecución::Opera(const Instrucción& instrucción) {
    const Racional derecho = Toma(instrucción.derecho);
    const DescripciónOperación& operación = *BuscaOperación(instrucción.código);
    const Racional izquierdo = operación.EsBinaria() ? Toma(instrucción.izquierdo) : Racional{};
    switch (operación.familia) {
    case Familia::Suma:
        return SumaRacional(contexto_, izquierdo, derecho);
    case Familia::Resta:
        return RestaRacional(contexto_, izquierdo, derecho);
    case Familia::Producto:
        return MultiplicaRacional(contexto_, izquierdo, derecho);
    case Familia::Cociente:
        return DivideRacional(contexto_, izquierdo, derecho);
    case Familia::Función:
    case Familia::Símbolo:
        return AplicaFunción(instrucción.código, derecho);
    case Familia::Potencia:
        break;
    }
    const std::optional<double> exponente = DevValorEscrito(derecho);
    if (!exponente)
        throw ErrorEjecución(NoEsFunciónRacional);
    return PotenciaRacional(contexto_, izquierdo, *exponente);
}

// The value of a constant in its display form; none where that holds an X.
std::optional<double> Ejecución::DevValorEscrito(const Racional& r) {
    const Polinomio numerador = RedondeaPolinomio(contexto_, r.numerador);
    const Polinomio denominador = RedondeaPolinomio(contexto_, r.denominador);
    if (!EsConstante(numerador) || !EsConstante(denominador))
        return std::nullopt;
    if (EsCero(denominador))
        throw ErrorEjecución(DivisiónPorCero);
    if (EsCero(numerador))
        return 0;
    return CompruebaFinito(AReal(numerador).front().coeficiente /
                           AReal(denominador).front().coeficiente);
}

Racional Ejecución::AplicaFunción(Operación código, const Racional& argumento) {
    const std::optional<double> valor = DevValorEscrito(argumento);
    if (!valor)
        throw ErrorEjecución(NoEsFunciónRacional);
    Programa función{.registros = {0, *valor, 0}, .instrucciones = {{0, código, 1, 2}}};
    contexto_.ErrorCódigo = SinFallo;
    const double resultado = EvalúaPrograma(contexto_, función, 0);
    if (contexto_.ErrorCódigo != SinFallo)
        throw ErrorEjecución(contexto_.ErrorCódigo);
    return {DevConstanteCalculada(contexto_, resultado)};
}

std::string_view DevAviso(int número) {
    switch (número) {
    case ArgumentoInválido:
        return "El argumento de una función es invalido, la operación solicitada será cancelada";
    case Desbordamiento:
        return "Se produjo un desbordamiento, la operación solicitada será cancelada";
    case DivisiónPorCero:
        return "Se intentó dividir por cero, la operación solicitada será cancelada";
    case NoEsFunciónRacional:
        return "Se esperaba una función racional de la variable X \r\n"
               "Ejemplo :\r\n"
               "12*X^3+(1/3)*X^2-2";
    default:
        return {};
    }
}

// --- Lowest terms

Entero DevContenido(const PolinomioExacto& p) {
    Entero contenido = 0;
    for (const TérminoPolinomio<Entero>& t : p.términos)
        if (!contenido.EsUno())
            contenido = DevMCD(contenido, t.coeficiente);
    return contenido;
}

// Both times the least whole number that leaves all coefficients whole.
void QuitaDenominadores(Polinomio& numerador, Polinomio& denominador) {
    auto n = std::get<PolinomioExacto>(numerador);
    auto d = std::get<PolinomioExacto>(denominador);
    for (TérminoPolinomio<Entero>& t : n.términos)
        t.coeficiente *= d.denominador;
    for (TérminoPolinomio<Entero>& t : d.términos)
        t.coeficiente *= n.denominador;
    numerador = DevExacto(std::move(n.términos), 1);
    denominador = DevExacto(std::move(d.términos), 1);
}

// What rounding and numbers that are not whole ask for, once no common factor is left.
void ArreglaCoeficientes(Contexto& contexto, Polinomio& numerador, Polinomio& denominador) {
    if (std::holds_alternative<PolinomioReal>(numerador) ||
        std::holds_alternative<PolinomioReal>(denominador)) {
        numerador = RedondeaPolinomio(contexto, numerador);
        denominador = RedondeaPolinomio(contexto, denominador);
        if (EsCero(denominador))
            throw ErrorEjecución(DivisiónPorCero);
    }
    if (EsDeCoeficientesEnteros(numerador) && EsDeCoeficientesEnteros(denominador))
        return;
    if (EsConstante(denominador)) {
        numerador = DividePolinomios(contexto, numerador, denominador).cociente;
        denominador = DevConstante(1);
    } else if (EsCero(QuitaNulos(contexto, denominador)) ||
               (!EsCero(QuitaNulos(contexto, numerador)) &&
                (HayNulos(contexto, numerador) || HayNulos(contexto, denominador)))) {
        QuitaDenominadores(numerador, denominador); // a term of it would be written as 0
    }
}

// The common factor with the leading coefficient 1.
Polinomio DevMónico(const Polinomio& común) {
    const PolinomioExacto* const exacto = SiExacto(común);
    return exacto == nullptr ? común
                             : DevExacto(exacto->términos, exacto->términos.front().coeficiente);
}

// To divide by where not all coefficients are whole: the gcd as it is written, unless that was
// scaled to whole coefficients.
Polinomio DevDivisorComún(Contexto& contexto, const Polinomio& p, const Polinomio& q,
                          const Polinomio& común) {
    Polinomio último = MCDPolinomios(contexto, p, q);
    const bool escalado = EscribePolinomio(contexto, último) == EscribePolinomio(contexto, común);
    return escalado ? DevMónico(común) : último;
}

// Without the common factor; where not all coefficients are whole, divided by the gcd as it is
// written if that leaves quotients that can be written in full.
Racional DivideEntreFactorComún(Contexto& contexto, const Racional& r) {
    const auto divide = [&](const Polinomio& común) -> Racional {
        return {DividePolinomios(contexto, r.numerador, común).cociente,
                DividePolinomios(contexto, r.denominador, común).cociente};
    };
    const Polinomio común = DevFactorComún(contexto, r.numerador, r.denominador);
    if (EsUno(común))
        return r;
    if (EsDeCoeficientesEnteros(r.numerador) && EsDeCoeficientesEnteros(r.denominador))
        return divide(común);
    Racional simple = divide(DevDivisorComún(contexto, r.numerador, r.denominador, común));
    if (EsDeDecimales(contexto, simple.numerador) && EsDeDecimales(contexto, simple.denominador))
        return simple;
    return divide(DevMónico(común));
}

// --- Lists

// The common factor so that the lcm of a function with itself is that function: with the greatest
// number that divides all coefficients, where they are whole.
Polinomio DevFactorComúnConContenido(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    Polinomio común = DevFactorComún(contexto, p, q);
    if (!EsDeCoeficientesEnteros(p) || !EsDeCoeficientesEnteros(q))
        return EsUno(común) ? común : DevDivisorComún(contexto, p, q, común);
    Entero contenido = DevMCD(DevContenido(*SiExacto(p)), DevContenido(*SiExacto(q)));
    return Por(contexto, común, DevExacto({{0, std::move(contenido)}}, 1));
}

Polinomio MCM(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsCero(p) || EsCero(q))
        return DevConstante(0);
    const Polinomio común = DevFactorComúnConContenido(contexto, p, q);
    if (EsUno(común))
        return Por(contexto, p, q);
    return Por(contexto, p, DividePolinomios(contexto, q, común).cociente);
}

using Reúne = Polinomio (*)(Contexto&, const Polinomio&, const Polinomio&);

Racional ReúneLista(Contexto& contexto, std::span<const Racional> funciones, Reúne numeradores,
                    Reúne denominadores) {
    Racional total = SimplificaRacional(contexto, funciones.front());
    for (const Racional& función : funciones.subspan(1)) {
        const Racional simple = SimplificaRacional(contexto, función);
        total = {numeradores(contexto, total.numerador, simple.numerador),
                 denominadores(contexto, total.denominador, simple.denominador)};
    }
    return SimplificaRacional(contexto, total);
}

} // namespace

Racional LeeRacional(const Contexto& contexto, std::string_view texto) {
    const auto lee = [&](std::string_view parte) {
        return ReduceTérminos(contexto, LeePolinomio(parte));
    };
    constexpr std::string_view Barra = ")/(";
    const std::size_t barra = texto.find(Barra);
    if (barra == std::string_view::npos)
        return {lee(texto)};
    const std::string_view trasBarra = texto.substr(barra + Barra.size());
    return {lee(texto.substr(1, barra - 1)), lee(trasBarra.substr(0, trasBarra.size() - 1))};
}

std::string SeparaRacional(const Contexto& contexto, const Racional& r) {
    std::string numerador = EscribePolinomio(contexto, r.numerador);
    if (EsPolinomio(r))
        return numerador;
    return "(" + numerador + ")/(" + EscribePolinomio(contexto, r.denominador) + ")";
}

Racional SumaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return Combina(contexto, a, b, SumaPolinomios);
}

Racional RestaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return Combina(contexto, a, b, RestaPolinomios);
}

Racional MultiplicaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return {Por(contexto, a.numerador, b.numerador), Por(contexto, a.denominador, b.denominador)};
}

Racional DivideRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    if (EsCero(b.numerador))
        throw ErrorEjecución(DivisiónPorCero);
    Racional cociente{Por(contexto, a.numerador, b.denominador),
                      Por(contexto, a.denominador, b.numerador)};
    if (auto exacto = DivideSiExacta(contexto, cociente.numerador, cociente.denominador))
        return {*std::move(exacto)};
    return cociente;
}

Racional PotenciaRacional(Contexto& contexto, const Racional& base, double exponente) {
    // 2.5E+20 is whole, but not written as a whole number.
    if (exponente != std::floor(exponente) || TextoNúmero(exponente).find('.') != std::string::npos)
        throw ErrorEjecución(NoEsFunciónRacional);
    if (exponente >= 0)
        return {Potencia(contexto, base.numerador, exponente),
                Potencia(contexto, base.denominador, exponente)};
    if (EsCero(base.numerador))
        throw ErrorEjecución(DivisiónPorCero);
    return {Potencia(contexto, base.denominador, -exponente),
            Potencia(contexto, base.numerador, -exponente)};
}

void NormalizaFracción(Polinomio& numerador, Polinomio& denominador) {
    if (!EsDeCoeficientesEnteros(numerador) || !EsDeCoeficientesEnteros(denominador))
        return;
    auto& n = std::get<PolinomioExacto>(numerador).términos;
    auto& d = std::get<PolinomioExacto>(denominador).términos;
    Entero común = 0;
    for (const auto* const términos : {&n, &d})
        for (const TérminoPolinomio<Entero>& t : *términos)
            if (!común.EsUno())
                común = DevMCD(común, t.coeficiente);
    if (común.EsCero() || común.EsUno())
        return;
    for (auto* const términos : {&n, &d})
        for (TérminoPolinomio<Entero>& t : *términos)
            t.coeficiente = Entero::Divide(t.coeficiente, común).cociente;
}

Racional SimplificaRacional(Contexto& contexto, const Racional& r) {
    if (EsCero(r.denominador))
        throw ErrorEjecución(DivisiónPorCero);
    if (EsCero(r.numerador))
        return {DevConstante(0)};
    Racional simple = DivideEntreFactorComún(contexto, r);
    auto& [numerador, denominador] = simple;
    ArreglaCoeficientes(contexto, numerador, denominador);
    if (EsCero(RedondeaPolinomio(contexto, numerador)))
        return {DevConstante(0)};
    NormalizaFracción(numerador, denominador);
    if (SignoPrincipal(denominador) < 0) {
        numerador = CambiaSigno(std::move(numerador));
        denominador = CambiaSigno(std::move(denominador));
    }
    return simple;
}

Racional DevMCDRacionales(Contexto& contexto, std::span<const Racional> funciones) {
    return ReúneLista(contexto, funciones, MCDPolinomios, MCM);
}

Racional DevMCMRacionales(Contexto& contexto, std::span<const Racional> funciones) {
    return ReúneLista(contexto, funciones, MCM, DevFactorComúnConContenido);
}

Racional CalculaRacional(Contexto& contexto, const Programa& programa) {
    return Ejecución(contexto, programa).Ejecuta();
}

Racional ConDenominadorLegible(const Contexto& contexto, Racional r) {
    if (SiExacto(r.numerador) != nullptr && SiExacto(r.denominador) != nullptr &&
        HayNulos(contexto, r.denominador))
        QuitaDenominadores(r.numerador, r.denominador);
    return r;
}

std::optional<Racional> EvalúaRacional(Contexto& contexto, const Programa& programa) {
    contexto.ErrorCódigo = SinFallo;
    try {
        return CalculaRacional(contexto, programa);
    } catch (const ErrorEjecución& error) {
        const std::string_view aviso = DevAviso(error.Número());
        if (aviso.empty())
            throw;
        contexto.ErrorCódigo = static_cast<std::int16_t>(error.Número());
        contexto.Avisa(aviso);
        return std::nullopt;
    }
}

} // namespace quiralto
