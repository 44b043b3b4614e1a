// Two independent derivatives for the tests: the rewriting of marked pieces, written as plainly as
// it can be, and the derivative's value by arithmetic on pairs (value, derivative).
#pragma once

#include "engine/lenguaje/programa.h"
#include "engine/lenguaje/sintaxis.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quiralto {

class DerivadorIngenuo {
public:
    // Adds no parentheses around signed bases and results.
    static std::string Deriva(const std::string& f) {
        std::string e = Marca(f);
        for (std::size_t p; (p = e.find('D')) != std::string::npos;) {
            const std::size_t q = e.find('D', p + 1);
            e = e.substr(0, p) + DerivaPieza(e.substr(p + 2, q - p - 3)) + e.substr(q + 1);
        }
        return SimplificaSignos(e);
    }

private:
    static std::string Marca(const std::string& u) { return "D(" + u + ")D"; }
    static bool ContieneX(const std::string& u) { return u.find('X') != std::string::npos; }

    // The places outside all parentheses that hold c.
    static std::vector<std::size_t> Fuera(const std::string& t, char c) {
        std::vector<std::size_t> lugares;
        int hondo = 0;
        for (std::size_t i = 0; i < t.size(); ++i) {
            hondo += t[i] == '(' ? 1 : t[i] == ')' ? -1 : 0;
            if (hondo == 0 && t[i] == c)
                lugares.push_back(i);
        }
        return lugares;
    }
    static bool TrasUnoDe(const std::string& t, std::size_t i, std::string_view conjunto) {
        return i > 0 && conjunto.find(t[i - 1]) != std::string_view::npos;
    }

    static std::string DerivaPieza(const std::string& t) {
        const auto con = [&](std::size_t p, auto regla) {
            return regla(t.substr(0, p), t.substr(p + 1));
        };
        for (const std::size_t p : Fuera(t, '+'))
            if (!TrasUnoDe(t, p, "E"))
                return con(p, Suma);
        std::vector<std::size_t> menos = Fuera(t, '-');
        std::ranges::reverse(menos);
        for (const std::size_t p : menos)
            if (p != 0 && !TrasUnoDe(t, p, "E*/^"))
                return con(p, Resta);
        if (const auto p = Fuera(t, '*'); !p.empty())
            return con(p.front(), Producto);
        if (const auto p = Fuera(t, '/'); !p.empty())
            return con(p.back(), Cociente);
        if (t.front() == '-')
            return ContieneX(t) ? "-" + Marca(t.substr(1)) : "0";
        if (const auto p = Fuera(t, '^'); !p.empty())
            return con(p.front(), Potencia);
        if (t.front() == '(' && t.back() == ')')
            return DerivaPieza(t.substr(1, t.size() - 2));
        if (t == "X")
            return "1";
        if (t.front() == '.' || (t.front() >= '0' && t.front() <= '9'))
            return "0";
        return Función(t);
    }
    static std::string Suma(const std::string& u, const std::string& v) {
        if (ContieneX(u) && ContieneX(v))
            return "(" + Marca(u) + "+" + Marca(v) + ")";
        return ContieneX(u) ? Marca(u) : ContieneX(v) ? Marca(v) : "0";
    }
    static std::string Resta(const std::string& u, const std::string& v) {
        if (ContieneX(u) && ContieneX(v))
            return "(" + Marca(u) + "-" + Marca(v) + ")";
        return ContieneX(u) ? Marca(u) : ContieneX(v) ? "-" + Marca(v) : "0";
    }
    static std::string Producto(const std::string& u, const std::string& v) {
        if (ContieneX(u) && ContieneX(v))
            return "(" + u + "*" + Marca(v) + "+" + v + "*" + Marca(u) + ")";
        return ContieneX(u) ? v + "*" + Marca(u) : ContieneX(v) ? u + "*" + Marca(v) : "0";
    }
    static std::string Cociente(const std::string& u, const std::string& v) {
        if (ContieneX(u) && ContieneX(v))
            return "(" + v + "*" + Marca(u) + "-" + u + "*" + Marca(v) + ")/" + v + "^2";
        if (ContieneX(u))
            return v + "*" + Marca(u) + "/" + v + "^2";
        return ContieneX(v) ? "-" + u + "*" + Marca(v) + "/" + v + "^2" : "0";
    }
    static std::string Potencia(const std::string& u, const std::string& v) {
        const std::string deExponente = u + "^" + v + "*" + Marca(v) + "*LOG(" + u + ")";
        const std::string deBase = v + "*" + u + "^(" + v + "-1)*" + Marca(u);
        if (ContieneX(u) && ContieneX(v))
            return "(" + deExponente + "+" + deBase + ")";
        return ContieneX(u) ? deBase : ContieneX(v) ? deExponente : "0";
    }
    static std::string Función(const std::string& t) {
        const std::size_t abre = t.find('(');
        const std::string nombre = t.substr(0, abre);
        const std::string u = t.substr(abre + 1, t.size() - abre - 2);
        if (!ContieneX(u))
            return "0";
        const std::pair<std::string_view, std::string> reglas[] = {
            {"SIN", Marca(u) + "*COS(" + u + ")"},
            {"COS", "-" + Marca(u) + "*SIN(" + u + ")"},
            {"TAN", Marca(u) + "/COS(" + u + ")^2"},
            {"ATN", Marca(u) + "/(1+(" + u + ")^2)"},
            {"LOG", Marca(u) + "/(" + u + ")"},
            {"EXP", Marca(u) + "*" + t},
            {"SQR", Marca(u) + "/(2*SQR(" + u + "))"},
            {"SEC", Marca("1/COS(" + u + ")")},
            {"COSEC", Marca("1/SIN(" + u + ")")},
            {"ARCSIN", Marca("ATN((" + u + ")/SQR(-(" + u + ")*(" + u + ")+1))")},
        };
        for (const auto& [suNombre, resultado] : reglas)
            if (nombre == suNombre)
                return resultado;
        throw std::invalid_argument(t);
    }
};

struct Dual {
    long double valor;
    long double derivada;
};

inline std::optional<Dual> PotenciaDual(Dual a, Dual b) {
    const long double potencia = std::pow(a.valor, b.valor);
    if (b.derivada == 0)
        return Dual{potencia,
                    a.derivada == 0 ? 0 : b.valor * std::pow(a.valor, b.valor - 1) * a.derivada};
    if (a.valor <= 0)
        return std::nullopt; // defined for whole exponents only: not smooth
    return Dual{potencia,
                potencia * (b.derivada * std::log(a.valor) + b.valor * a.derivada / a.valor)};
}

inline std::optional<Dual> OperaDual(Operación código, Dual a, Dual b) {
    const auto función = [&](long double valor, long double derivada) {
        return Dual{valor, derivada * b.derivada};
    };
    const long double v = b.valor;
    switch (código) {
    case Operación::Suma:
        return Dual{a.valor + v, a.derivada + b.derivada};
    case Operación::Resta:
        return Dual{a.valor - v, a.derivada - b.derivada};
    case Operación::Producto:
        return Dual{a.valor * v, a.derivada * v + a.valor * b.derivada};
    case Operación::Cociente:
        return Dual{a.valor / v, (a.derivada - a.valor / v * b.derivada) / v};
    case Operación::Potencia:
        return PotenciaDual(a, b);
    case Operación::Log:
        return función(std::log(v), 1 / v);
    case Operación::Sin:
        return función(std::sin(v), std::cos(v));
    case Operación::Cos:
        return función(std::cos(v), -std::sin(v));
    case Operación::Tan:
        return función(std::tan(v), 1 + std::tan(v) * std::tan(v));
    case Operación::Atn:
        return función(std::atan(v), 1 / (1 + v * v));
    case Operación::Exp:
        return función(std::exp(v), std::exp(v));
    case Operación::Sqr:
        return función(std::sqrt(v), 0.5L / std::sqrt(v));
    case Operación::Sec:
        return función(1 / std::cos(v), std::tan(v) / std::cos(v));
    case Operación::Cosec:
        return función(1 / std::sin(v), -1 / std::tan(v) / std::sin(v));
    case Operación::Arcsin:
        return función(std::asin(v), 1 / std::sqrt((1 - v) * (1 + v)));
    case Operación::Sln:
        break;
    }
    return std::nullopt;
}

// The value and the derivative of the program at x; none where it is not smooth or not defined.
inline std::optional<Dual> EvalúaDual(const Programa& programa, double x) {
    std::vector<Dual> registros;
    for (const double registro : programa.registros)
        registros.push_back({registro, 0});
    registros[0] = {x, 1};
    const auto en = [&](std::int16_t r) -> Dual& { return registros[static_cast<std::size_t>(r)]; };
    for (const Instrucción& i : programa.instrucciones) {
        const std::optional<Dual> resultado = OperaDual(i.código, en(i.izquierdo), en(i.derecho));
        if (!resultado || !std::isfinite(resultado->valor) || !std::isfinite(resultado->derivada))
            return std::nullopt;
        en(i.resultado) = *resultado;
    }
    return registros[programa.Resultado()];
}

} // namespace quiralto
