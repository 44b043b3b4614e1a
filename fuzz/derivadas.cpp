// Derivatives of formulas of the grammar against forward differentiation of the compiled program,
// before and after the expansion that the command writes.

#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"
#include "fuzz/gramatica.h"
#include "fuzz/oraculos.h"

#include <vector>

using namespace quiralto;

namespace {

struct Dual {
    long double v = 0;
    long double d = 0;
};

Dual Eleva(const Dual& a, const Dual& b) {
    const long double p = std::pow(a.v, b.v);
    if (b.d == 0)
        return {p, a.d == 0 ? 0 : b.v * std::pow(a.v, b.v - 1) * a.d};
    return {p, p * (b.d * std::log(a.v) + b.v * a.d / a.v)};
}

Dual Aplica(Operación código, const Dual& a, const Dual& b) {
    switch (código) {
    case Operación::Suma:
        return {a.v + b.v, a.d + b.d};
    case Operación::Resta:
        return {a.v - b.v, a.d - b.d};
    case Operación::Producto:
        return {a.v * b.v, a.d * b.v + a.v * b.d};
    case Operación::Cociente:
        return {a.v / b.v, (a.d - a.v / b.v * b.d) / b.v};
    case Operación::Potencia:
        return Eleva(a, b);
    case Operación::Log:
        return {std::log(b.v), b.d / b.v};
    case Operación::Sin:
        return {std::sin(b.v), b.d * std::cos(b.v)};
    case Operación::Cos:
        return {std::cos(b.v), -b.d * std::sin(b.v)};
    case Operación::Tan:
        return {std::tan(b.v), b.d / (std::cos(b.v) * std::cos(b.v))};
    case Operación::Atn:
        return {std::atan(b.v), b.d / (1 + b.v * b.v)};
    case Operación::Exp:
        return {std::exp(b.v), b.d * std::exp(b.v)};
    case Operación::Sqr:
        return {std::sqrt(b.v), b.d == 0 ? 0 : b.d / (2 * std::sqrt(b.v))};
    case Operación::Sec:
        return {1 / std::cos(b.v), b.d * std::sin(b.v) / (std::cos(b.v) * std::cos(b.v))};
    case Operación::Cosec:
        return {1 / std::sin(b.v), -b.d * std::cos(b.v) / (std::sin(b.v) * std::sin(b.v))};
    case Operación::Arcsin:
        return {std::asin(b.v), b.d == 0 ? 0 : b.d / std::sqrt(1 - b.v * b.v)};
    case Operación::Sln:
        return b;
    }
    return {};
}

long double DevDerivada(const Programa& programa, double x) {
    std::vector<Dual> registros;
    registros.reserve(programa.registros.size());
    for (const double constante : programa.registros)
        registros.push_back({constante, 0});
    registros.front() = {x, 1};
    for (const Instrucción& i : programa.instrucciones)
        registros[static_cast<std::size_t>(i.resultado)] =
            Aplica(i.código, registros[static_cast<std::size_t>(i.izquierdo)],
                   registros[static_cast<std::size_t>(i.derecho)]);
    return registros[programa.Resultado()].d;
}

// Where both have a value and the bound says that the derivative's is known well.
void Compara(const Programa& f, const std::string& derivada, Redondeo redondeo,
             const std::string& texto) {
    const Programa d = CompilaExpresión(derivada);
    const EvaluadorAcotado fAcotada(f, {});
    const EvaluadorAcotado dAcotada(d, redondeo);
    for (const double x : PuntosDeOráculo) {
        const auto valor = dAcotada.Evalúa(x);
        const auto valorDeF = fAcotada.Evalúa(x);
        if (!valor || !valorDeF)
            continue;
        const long double otra = DevDerivada(f, x);
        // Where much cancels, what is left of it is noise on the size of f.
        constexpr long double Relativo = 1e-9L;
        constexpr long double DeF = 1e-12L;
        if (!std::isfinite(otra))
            continue;
        const long double margen = 1000 * valor->cota +
                                   Relativo * std::max(std::fabs(otra), std::fabs(valor->valor)) +
                                   DeF * (1 + std::fabs(valorDeF->valor));
        Exige(std::fabs(otra - valor->valor) <= margen, "the derivative at " + std::to_string(x),
              texto + "  =>  " + derivada);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    BancoDeFuzz banco(LeeEntrada(datos, longitud));
    Gramática gramática({datos, longitud}, Gramática::Átomos::X);
    std::string texto = gramática.Fórmula(12);
    if (!Sintaxis(banco.contexto, texto))
        return 0;
    const Programa f = CompilaExpresión(texto);
    const std::string derivada = Deriva(banco.contexto, texto);
    Compara(f, derivada, {}, texto);
    const Corrida corrida(banco.contexto, texto, "Derivar");
    if (const auto escrita = corrida.TextoTras("'"); escrita && *escrita != "Derivada : ")
        Compara(f, *escrita, DevRedondeo(8), texto);
    return 0;
}
