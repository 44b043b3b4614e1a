// The value of a program at a point together with a bound of its error: the oracle by which two
// texts of one function are compared without guessing at tolerances. Two values that differ by more
// than their bounds together are not values of one function.
//
// The bound is a running error analysis (Higham, Accuracy and Stability of Numerical Algorithms,
// 3.3), carried through every instruction in long double.
#pragma once

#include "engine/lenguaje/programa.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace quiralto {

struct ValorAcotado {
    long double valor = 0;
    long double cota = 0; // the true value lies within valor ± cota

    bool EsExacto() const { return cota == 0; }
};

// Whether both can be values of one number.
inline bool SonCompatibles(const ValorAcotado& a, const ValorAcotado& b) {
    return std::fabs(a.valor - b.valor) <= a.cota + b.cota;
}

// How far the constants of a written text may be from the numbers that they stand for: half a unit
// of the last decimal place, and half a unit of the fifteenth significant digit.
struct Redondeo {
    long double mediaUnidad = 0; // 0: every constant is as it was typed
    bool tambiénEnteros = false; // whole constants too may have been rounded

    long double CotaDe(double constante) const {
        constexpr long double Relativa = 5e-15L;
        constexpr long double MáximoEntero = 0x1p53L;
        const long double tamaño = std::fabs(constante);
        const bool esEntera = constante == std::trunc(constante) && tamaño <= MáximoEntero;
        // A decimal is not the Double that it is read as.
        if (mediaUnidad == 0)
            return esEntera ? 0 : tamaño * 0x1p-53L;
        // The sides of a fraction are cut to fifteen digits before they are reduced.
        constexpr long double NuncaCortado = 1e6L;
        if (esEntera && tamaño > NuncaCortado)
            return Relativa * tamaño;
        return esEntera && !tambiénEnteros ? 0 : mediaUnidad + Relativa * tamaño;
    }
};

class EvaluadorAcotado {
public:
    EvaluadorAcotado(const Programa& programa, Redondeo redondeo)
        : programa_(programa), redondeo_(redondeo) {}

    // None where there is no value, or where the bound does not say whether there is one.
    std::optional<ValorAcotado> Evalúa(double x) const {
        std::vector<ValorAcotado> registros;
        registros.reserve(programa_.registros.size());
        for (const double constante : programa_.registros)
            registros.push_back({constante, redondeo_.CotaDe(constante)});
        registros.front() = {x, 0};
        for (const Instrucción& i : programa_.instrucciones) {
            const auto valor = Opera(i.código, registros[static_cast<std::size_t>(i.izquierdo)],
                                     registros[static_cast<std::size_t>(i.derecho)]);
            if (!valor || !std::isfinite(valor->valor) || !std::isfinite(valor->cota) ||
                std::fabs(valor->valor) > std::numeric_limits<double>::max())
                return std::nullopt;
            registros[static_cast<std::size_t>(i.resultado)] = *valor;
        }
        return registros[programa_.Resultado()];
    }

private:
    using Quizá = std::optional<ValorAcotado>;
    // Of the library's functions too, which are off by some units in the last place.
    static constexpr long double Épsilon = 16 * std::numeric_limits<long double>::epsilon();

    static Quizá Con(long double valor, long double cota) {
        return ValorAcotado{valor, cota + Épsilon * std::fabs(valor)};
    }
    static Quizá Divide(const ValorAcotado& a, const ValorAcotado& b) {
        const long double lejos = std::fabs(b.valor) - b.cota;
        if (!(lejos > 0))
            return std::nullopt;
        const long double cociente = a.valor / b.valor;
        return Con(cociente, (a.cota + std::fabs(cociente) * b.cota) / lejos);
    }
    static Quizá ElevaAEntero(const ValorAcotado& a, long double n) {
        if (n < 0) {
            const Quizá potencia = ElevaAEntero(a, -n);
            return potencia ? Divide({1, 0}, *potencia) : potencia;
        }
        const long double tamaño = std::fabs(a.valor);
        const long double potencia = std::pow(a.valor, n);
        return Con(potencia, std::pow(tamaño + a.cota, n) - std::pow(tamaño, n) +
                                 Épsilon * n * std::fabs(potencia));
    }
    static Quizá Eleva(const ValorAcotado& a, const ValorAcotado& b) {
        if (b.EsExacto() && b.valor == std::trunc(b.valor) && std::fabs(b.valor) < 1e6L) {
            if (b.valor < 0 && a.valor == 0)
                return std::nullopt;
            return ElevaAEntero(a, b.valor);
        }
        const Quizá logaritmo = Logaritmo(a);
        if (!logaritmo)
            return std::nullopt;
        const Quizá exponente = Multiplica(*logaritmo, b);
        return Exponencial(*exponente);
    }
    static Quizá Multiplica(const ValorAcotado& a, const ValorAcotado& b) {
        return Con(a.valor * b.valor,
                   std::fabs(a.valor) * b.cota + std::fabs(b.valor) * a.cota + a.cota * b.cota);
    }
    static Quizá Exponencial(const ValorAcotado& a) {
        const long double valor = std::exp(a.valor);
        return Con(valor, valor * std::expm1(a.cota + Épsilon * std::fabs(a.valor)));
    }
    static Quizá Logaritmo(const ValorAcotado& a) {
        if (!(a.valor - a.cota > 0))
            return std::nullopt;
        return Con(std::log(a.valor), a.cota / (a.valor - a.cota));
    }
    static Quizá Raíz(const ValorAcotado& a) {
        if (a.EsExacto() && a.valor == 0)
            return ValorAcotado{};
        if (!(a.valor - a.cota > 0))
            return std::nullopt;
        return Con(std::sqrt(a.valor), a.cota / std::sqrt(a.valor - a.cota));
    }
    static Quizá Seno(const ValorAcotado& a) {
        return Con(std::sin(a.valor), a.cota + Épsilon * std::fabs(a.valor));
    }
    static Quizá Coseno(const ValorAcotado& a) {
        return Con(std::cos(a.valor), a.cota + Épsilon * std::fabs(a.valor));
    }
    static Quizá Arcoseno(const ValorAcotado& a) {
        const long double lejos = 1 - std::fabs(a.valor) - a.cota;
        if (!(lejos > 0))
            return std::nullopt;
        return Con(std::asin(a.valor), a.cota / std::sqrt(lejos));
    }

    static Quizá Opera(Operación código, const ValorAcotado& a, const ValorAcotado& b) {
        switch (código) {
        case Operación::Suma:
            return Con(a.valor + b.valor, a.cota + b.cota);
        case Operación::Resta:
            return Con(a.valor - b.valor, a.cota + b.cota);
        case Operación::Producto:
            return Multiplica(a, b);
        case Operación::Cociente:
            return Divide(a, b);
        case Operación::Potencia:
            return Eleva(a, b);
        case Operación::Log:
            return Logaritmo(b);
        case Operación::Sin:
            return Seno(b);
        case Operación::Cos:
            return Coseno(b);
        case Operación::Tan:
            return Divide(*Seno(b), *Coseno(b));
        case Operación::Atn:
            return Con(std::atan(b.valor), b.cota);
        case Operación::Exp:
            return Exponencial(b);
        case Operación::Sqr:
            return Raíz(b);
        case Operación::Sec:
            return Divide({1, 0}, *Coseno(b));
        case Operación::Cosec:
            return Divide({1, 0}, *Seno(b));
        case Operación::Arcsin:
            return Arcoseno(b);
        case Operación::Sln:
            return b;
        }
        return std::nullopt;
    }

    const Programa& programa_;
    Redondeo redondeo_;
};

} // namespace quiralto
