#include "engine/polinomios/evalua_racional.h"

#include "engine/evaluacion/evalua.h"

#include <utility>
#include <vector>

namespace quiralto {
namespace {

// The registers of the symbolic run.
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
    double DevValorEscrito(const Racional& r);

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
    const auto izquierdo = [&] { return Toma(instrucción.izquierdo); };
    switch (BuscaOperación(instrucción.código)->familia) {
    case Familia::Suma:
        return SumaRacional(contexto_, izquierdo(), derecho);
    case Familia::Resta:
        return RestaRacional(contexto_, izquierdo(), derecho);
    case Familia::Producto:
        return MultiplicaRacional(contexto_, izquierdo(), derecho);
    case Familia::Cociente:
        return DivideRacional(contexto_, izquierdo(), derecho);
    case Familia::Potencia:
        return PotenciaRacional(contexto_, izquierdo(), DevValorEscrito(derecho));
    case Familia::Función:
    case Familia::Símbolo:
        break;
    }
    return AplicaFunción(instrucción.código, derecho);
}

// The value of a constant in its display form. Fault: run-time error 129 where that holds an X.
double Ejecución::DevValorEscrito(const Racional& r) {
    const Racional legible = ConCoeficientesLegibles(contexto_, r);
    const Polinomio numerador = RedondeaPolinomio(contexto_, legible.numerador);
    const Polinomio denominador = RedondeaPolinomio(contexto_, legible.denominador);
    if (!EsConstante(numerador) || !EsConstante(denominador))
        throw ErrorEjecución(NoEsFunciónRacional);
    if (EsCero(denominador))
        throw ErrorEjecución(DivisiónPorCero);
    if (EsCero(numerador))
        return 0;
    return CompruebaFinito(AReal(numerador).front().coeficiente /
                           AReal(denominador).front().coeficiente);
}

Racional Ejecución::AplicaFunción(Operación código, const Racional& argumento) {
    const double valor = DevValorEscrito(argumento);
    Programa función{.registros = {0, valor, 0}, .instrucciones = {{0, código, 1, 2}}};
    contexto_.ErrorCódigo = SinFallo;
    const double resultado = EvalúaPrograma(contexto_, función, 0);
    if (contexto_.ErrorCódigo != SinFallo)
        throw ErrorEjecución(contexto_.ErrorCódigo);
    return {DevConstanteCalculada(contexto_, resultado)};
}

// None for what is no refusal.
std::optional<Motivo> DevMotivo(int número) {
    switch (número) {
    case ArgumentoInválido:
        return Motivo::ArgumentoDeFunciónInválido;
    case Desbordamiento:
        return Motivo::OperaciónDesbordada;
    case DivisiónPorCero:
        return Motivo::OperaciónEntreCero;
    case NoEsFunciónRacional:
        return Motivo::NoEsRacional;
    default:
        return std::nullopt;
    }
}

} // namespace

Racional CalculaRacional(Contexto& contexto, const Programa& programa) {
    return Ejecución(contexto, programa).Ejecuta();
}

std::variant<Racional, Rechazo> CompruebaRacional(Contexto& contexto, const Programa& programa) {
    try {
        return CalculaRacional(contexto, programa);
    } catch (const ErrorEjecución& error) {
        const std::optional<Motivo> motivo = DevMotivo(error.Número());
        if (!motivo)
            throw;
        return Rechazo{.motivo = *motivo};
    }
}

std::optional<Racional> EvalúaRacional(Contexto& contexto, const Programa& programa) {
    auto leído = CompruebaRacional(contexto, programa);
    contexto.ErrorCódigo = SinFallo;
    return Acepta(contexto, std::move(leído));
}

} // namespace quiralto
