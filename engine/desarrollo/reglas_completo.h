// How a complete expansion computes: every value is one fraction.
#pragma once

#include "engine/base/fallos.h"
#include "engine/desarrollo/algebra_suma.h"
#include "engine/desarrollo/division_suma.h"
#include "engine/desarrollo/escribe_suma.h"
#include "engine/desarrollo/sumando.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quiralto {

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

    Valor Opera(const DescripciónOperación& operación, Valor a, Valor b) {
        switch (operación.familia) {
        case Familia::Suma:
        case Familia::Resta:
            return Añade(std::move(a), std::move(b), operación.familia == Familia::Suma ? 1 : -1);
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
        return {.numerador = SumaSímbolo(DevLlamada(tabla_, operación, Escribe(std::move(b))))};
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
        return MultiplicaYFunde(tabla_, a.denominador, b.denominador);
    }

    std::optional<Términos> DevMúltiplo(const Términos& múltiplo, const Términos& divisor) {
        const Fracción f = ReduceFracción(tabla_, múltiplo, divisor);
        if (!EsUno(f.denominador))
            return std::nullopt;
        return f.numerador;
    }

    void Amplía(Valor& valor, const Términos& factor) {
        if (!EsUno(factor))
            valor.numerador = MultiplicaYFunde(tabla_, valor.numerador.Cerrada(), factor);
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
        Valor producto =
            Reducida(MultiplicaYFunde(tabla_, x.numerador, y.numerador),
                     MultiplicaYFunde(tabla_, x.denominador, y.denominador), divisores);
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
            return Reducida(ElevaYFunde(tabla_, base, exponente), SumaNúmero(1), {});
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
        Valor potencia = Reducida(ElevaYFunde(tabla_, a.numerador.Cerrada(), SumaNúmero(n)),
                                  ElevaYFunde(tabla_, a.denominador, SumaNúmero(n)), {});
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
        return {EsUno(d.denominador) ? n.numerador
                                     : MultiplicaYFunde(tabla_, n.numerador, d.denominador),
                EsUno(n.denominador) ? d.numerador
                                     : MultiplicaYFunde(tabla_, d.numerador, n.denominador)};
    }

    Fracción SinNegativos(Fracción f) {
        for (const bool arriba : {true, false}) {
            const Términos inverso = DevInversoNegativos(arriba ? f.numerador : f.denominador);
            if (inverso.empty())
                continue;
            f.numerador = MultiplicaYFunde(tabla_, f.numerador, inverso);
            f.denominador = MultiplicaYFunde(tabla_, f.denominador, inverso);
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

} // namespace quiralto
