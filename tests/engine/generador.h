// Expressions for the property tests: every short one over a small alphabet, and random larger
// ones from a seed. All are in the form in which Sintaxis leaves a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quiralto {

// Calls f with every expression of up to `máximo` tokens that the operands, the function names
// given, parentheses, operators and signs can form.
template <typename F> class Enumerador {
public:
    Enumerador(std::vector<std::string> operandos, std::vector<std::string> funciones, F f)
        : operandos_(std::move(operandos)), funciones_(std::move(funciones)), f_(std::move(f)) {}

    void Enumera(std::size_t máximo) { Operando(máximo, 0, true); }

private:
    template <typename G> void Con(std::string_view token, G sigue) {
        const std::size_t longitud = texto_.size();
        texto_ += token;
        sigue();
        texto_.resize(longitud);
    }
    // An operand is due; a sign may stand before it where `conSigno`.
    void Operando(std::size_t quedan, std::size_t abiertos, bool conSigno) {
        if (quedan <= abiertos) // each open parenthesis needs a token
            return;
        for (const std::string& operando : operandos_)
            Con(operando, [&] { Operador(quedan - 1, abiertos); });
        if (conSigno)
            Con("-", [&] { Operando(quedan - 1, abiertos, false); });
        Con("(", [&] { Operando(quedan - 1, abiertos + 1, true); });
        for (const std::string& función : funciones_)
            Con(función + "(", [&] { Operando(quedan - 1, abiertos + 1, true); });
    }
    void Operador(std::size_t quedan, std::size_t abiertos) {
        if (abiertos == 0)
            f_(texto_);
        else if (quedan > 0)
            Con(")", [&] { Operador(quedan - 1, abiertos - 1); });
        if (quedan < 2)
            return;
        for (const std::string_view operador : {"+", "-", "*", "/", "^"})
            Con(operador,
                [&] { Operando(quedan - 1, abiertos, operador != "+" && operador != "-"); });
    }

    std::vector<std::string> operandos_;
    std::vector<std::string> funciones_;
    F f_;
    std::string texto_;
};

// Random expressions. The same seed gives the same ones with every library.
class Generador {
public:
    explicit Generador(std::uint64_t semilla) : azar_(semilla) {}

    std::vector<std::string> números = {"0",  "1",   "2",     "3",       "4",       "7",   ".5",
                                        "10", "2.5", "1E+20", "1.5E-07", "123.456", "100", "8"};
    std::vector<std::string> funciones = {"ARCSIN", "COSEC", "SIN", "COS", "TAN",
                                          "ATN",    "LOG",   "EXP", "SQR", "SEC"};
    bool conCadenasDePotencias = true; // a^b^c

    // About `tamaño` operands.
    std::string Expresión(std::size_t tamaño) {
        std::string texto;
        Escribe(texto, tamaño);
        return texto;
    }

    std::size_t Hasta(std::size_t n) { return azar_() % n; }
    double Real(double desde, double hasta) {
        return desde + (hasta - desde) * static_cast<double>(azar_() >> 11U) * 0x1p-53;
    }
    template <typename T> const T& Elige(const std::vector<T>& lista) {
        return lista[Hasta(lista.size())];
    }

private:
    void Escribe(std::string& texto, std::size_t tamaño) {
        if (Hasta(5) == 0)
            texto += '-';
        char anterior = '\0';
        while (true) {
            const std::size_t suyo = 1 + Hasta(tamaño);
            EscribeOperando(texto, suyo);
            tamaño -= suyo;
            if (tamaño == 0)
                return;
            const bool sinPotencia = anterior == '^' && !conCadenasDePotencias;
            anterior = "+-*/^"[Hasta(sinPotencia ? 4 : 5)];
            texto += anterior;
            if (anterior != '+' && anterior != '-' && Hasta(5) == 0)
                texto += '-';
        }
    }
    void EscribeOperando(std::string& texto, std::size_t tamaño) {
        if (tamaño == 1 && Hasta(3) != 0) {
            texto += Hasta(2) == 0 ? Elige(números) : "X";
            return;
        }
        if (Hasta(2) == 0)
            texto += Elige(funciones);
        texto += '(';
        Escribe(texto, tamaño);
        texto += ')';
    }

    std::mt19937_64 azar_;
};

} // namespace quiralto
