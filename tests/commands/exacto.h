// An exact reading of formulas that are quotients of polynomials in X, for the tests alone: naive
// fractions of 128 bits, Euclid's algorithm, no code of the program. A number that outgrows them
// throws NoCabe.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quiralto::exacto {

struct NoCabe {};
struct EntreCero {};

__extension__ typedef __int128 Ancho; // NOLINT(modernize-use-using): no extension before "using"

inline Ancho Por(Ancho a, Ancho b) {
    Ancho producto = 0;
    if (__builtin_mul_overflow(a, b, &producto))
        throw NoCabe{};
    return producto;
}

inline Ancho MCD(Ancho a, Ancho b) {
    while (b != 0) {
        const Ancho resto = a % b;
        a = b;
        b = resto;
    }
    return a < 0 ? -a : a;
}

struct Fracción {
    Ancho n = 0;
    Ancho d = 1; // positive, no factor in common with n

    bool operator==(const Fracción&) const = default;
    double ADouble() const { return static_cast<double>(n) / static_cast<double>(d); }
};

inline Fracción Reducida(Ancho n, Ancho d) {
    if (d == 0)
        throw EntreCero{};
    const Ancho común = d < 0 ? -MCD(n, d) : MCD(n, d);
    return {n / común, d / común};
}
inline Fracción operator+(Fracción a, Fracción b) {
    Ancho suma = 0;
    if (__builtin_add_overflow(Por(a.n, b.d), Por(b.n, a.d), &suma))
        throw NoCabe{};
    return Reducida(suma, Por(a.d, b.d));
}
inline Fracción operator*(Fracción a, Fracción b) {
    return Reducida(Por(a.n, b.n), Por(a.d, b.d));
}
inline Fracción operator-(Fracción a) {
    return {-a.n, a.d};
}
inline Fracción operator/(Fracción a, Fracción b) {
    return a * Reducida(b.d, b.n);
}

// Coefficient i is that of X^i; the last one is not 0.
using Polinomio = std::vector<Fracción>;

inline Polinomio Limpio(Polinomio p) {
    while (!p.empty() && p.back().n == 0)
        p.pop_back();
    return p;
}
inline Polinomio operator+(const Polinomio& a, const Polinomio& b) {
    Polinomio suma = a.size() > b.size() ? a : b;
    const Polinomio& otro = a.size() > b.size() ? b : a;
    for (std::size_t i = 0; i < otro.size(); ++i)
        suma[i] = suma[i] + otro[i];
    return Limpio(suma);
}
inline Polinomio operator*(const Polinomio& a, const Polinomio& b) {
    if (a.empty() || b.empty())
        return {};
    Polinomio producto(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j)
            producto[i + j] = producto[i + j] + a[i] * b[j];
    return producto;
}

// The quotient; `resto` is left with the remainder.
inline Polinomio Divide(Polinomio& resto, const Polinomio& divisor) {
    if (divisor.empty())
        throw EntreCero{};
    Polinomio cociente(resto.size() < divisor.size() ? 0 : resto.size() - divisor.size() + 1);
    while (resto.size() >= divisor.size()) {
        const std::size_t salto = resto.size() - divisor.size();
        const Fracción factor = resto.back() / divisor.back();
        cociente[salto] = factor;
        for (std::size_t i = 0; i < divisor.size(); ++i)
            resto[salto + i] = resto[salto + i] + -(factor * divisor[i]);
        resto = Limpio(resto);
    }
    return cociente;
}
inline Polinomio Mónico(Polinomio p) {
    if (!p.empty())
        for (const Fracción principal = p.back(); Fracción & c : p)
            c = c / principal;
    return p;
}
inline Polinomio MCD(Polinomio a, Polinomio b) {
    while (!b.empty()) {
        Divide(a, b);
        a.swap(b);
        b = Mónico(b);
    }
    return Mónico(a);
}
inline Polinomio MCM(Polinomio a, const Polinomio& b) {
    if (a.empty() || b.empty())
        return {};
    const Polinomio común = MCD(a, b);
    a = a * b;
    return Mónico(Divide(a, común));
}

struct Cociente {
    Polinomio n;
    Polinomio d = {{1, 1}};
};

inline Cociente operator/(const Cociente& a, const Cociente& b) {
    if (b.n.empty())
        throw EntreCero{};
    return {a.n * b.d, a.d * b.n};
}

// In lowest terms, the denominator monic.
inline Cociente Reducido(Cociente c) {
    const Polinomio común = MCD(c.n, c.d);
    c = {Divide(c.n, común), Divide(c.d, común)};
    const Polinomio escala{Fracción{1, 1} / c.d.back()};
    return {c.n * escala, c.d * escala};
}

// Reads a formula of numbers, X, "+-*/^" and parentheses, with a whole number behind each "^" and
// no sign behind an operator but there.
class Lector {
public:
    explicit Lector(std::string_view texto) : texto_(texto) {}

    Cociente LeeSuma() {
        const Polinomio signo{{Mira() == '-' ? -1 : 1, 1}};
        if (Mira() == '-' || Mira() == '+')
            ++i_;
        Cociente suma = LeeProducto();
        suma.n = suma.n * signo;
        while (Mira() == '+' || Mira() == '-') {
            const Polinomio otro{{texto_[i_++] == '-' ? -1 : 1, 1}};
            const Cociente b = LeeProducto();
            suma = suma.d == b.d ? Cociente{suma.n + b.n * otro, suma.d}
                                 : Cociente{suma.n * b.d + b.n * otro * suma.d, suma.d * b.d};
        }
        return suma;
    }

private:
    char Mira() const { return i_ < texto_.size() ? texto_[i_] : '\0'; }
    bool EsCifra() const { return Mira() >= '0' && Mira() <= '9'; }

    Cociente LeeProducto() {
        Cociente producto = LeePotencia();
        while (Mira() == '*' || Mira() == '/') {
            const bool divide = texto_[i_++] == '/';
            const Cociente b = LeePotencia();
            producto = divide ? producto / b : Cociente{producto.n * b.n, producto.d * b.d};
        }
        return producto;
    }
    Cociente LeePotencia() {
        Cociente base = LeeOperando();
        if (Mira() != '^')
            return base;
        ++i_;
        const bool inversa = Mira() == '-';
        i_ += inversa ? 1 : 0;
        Cociente potencia{{{1, 1}}};
        for (Ancho veces = LeeNúmero().n; veces > 0; --veces)
            potencia = {potencia.n * base.n, potencia.d * base.d};
        return inversa ? Cociente{{{1, 1}}} / potencia : potencia;
    }
    Cociente LeeOperando() {
        if (Mira() == 'X') {
            ++i_;
            return {{{0, 1}, {1, 1}}};
        }
        if (Mira() != '(')
            return {Limpio({LeeNúmero()})};
        ++i_;
        Cociente grupo = LeeSuma();
        ++i_;
        return grupo;
    }
    Fracción LeeNúmero() {
        Ancho n = 0;
        int ceros = 0;
        const auto cifras = [&](int paso) {
            for (; EsCifra(); ++i_, ceros += paso)
                n = Por(n, 10) + (texto_[i_] - '0');
        };
        cifras(0);
        if (Mira() == '.') {
            ++i_;
            cifras(-1);
        }
        if (Mira() == 'E') {
            const int signo = texto_[i_ + 1] == '-' ? -1 : 1;
            int exponente = 0;
            for (i_ += 2; EsCifra(); ++i_)
                exponente = exponente * 10 + (texto_[i_] - '0');
            ceros += signo * exponente;
        }
        Ancho d = 1;
        for (; ceros < 0; ++ceros)
            d = Por(d, 10);
        for (; ceros > 0; --ceros)
            n = Por(n, 10);
        return Reducida(n, d);
    }

    std::string_view texto_;
    std::size_t i_ = 0;
};

inline Cociente Lee(std::string_view texto) {
    return Lector(texto).LeeSuma();
}

} // namespace quiralto::exacto
