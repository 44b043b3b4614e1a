// A second compiler and a second evaluator for the tests: the rewriting of the text, step by step,
// as slow and as plain as it can be. Shares no code with the engine.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

struct InstrucciónIngenua {
    int izquierdo; // -1 for a function
    int código;
    int derecho;
    int resultado;
};

class CompiladorIngenuo {
public:
    explicit CompiladorIngenuo(const std::string& texto) { Compila(texto); }

    std::vector<double> registros;
    std::vector<InstrucciónIngenua> instrucciones;

private:
    static bool EsDígito(char c) { return c >= '0' && c <= '9'; }
    static bool EsDígitoOPunto(char c) { return EsDígito(c) || c == '.'; }
    static bool EsExponente(const std::string& t, std::size_t signo) {
        return signo > 0 && t[signo - 1] == 'E';
    }

    std::string Compila(std::string t) {
        if (t.find('Z') == std::string::npos) {
            registros.assign(1, 0);
            instrucciones.clear();
        }
        if (t.empty())
            t = "0";
        std::string antes;
        std::string después;
        const bool hayGrupo = t.find('(') != std::string::npos;
        if (hayGrupo) {
            const std::size_t cierra = t.find(')', 2);
            const std::size_t abre = t.rfind('(', cierra);
            antes = t.substr(0, abre);
            después = t.substr(cierra + 1);
            t = t.substr(abre + 1, cierra - abre - 1);
        }
        if (t.starts_with('-'))
            t = "0" + t;
        CompilaFunciones(t);
        for (const std::string signo : {"^-", "/-", "*-"}) {
            for (std::size_t p; (p = t.find(signo)) != std::string::npos;) {
                std::string resto = "0" + t.substr(p + 1);
                CompilaBinaria(resto, 1);
                t.replace(p + 1, std::string::npos, resto);
            }
        }
        for (const char operador : {'^', '/', '*', '-', '+'}) {
            for (std::size_t p = t.find(operador); p != std::string::npos;) {
                if (!EsExponente(t, p)) {
                    CompilaBinaria(t, p);
                    p = t.find(operador);
                } else {
                    p = t.find(operador, p + 1);
                }
            }
        }
        if (!t.starts_with('Z')) {
            t = "0+" + t;
            CompilaBinaria(t, 1);
        }
        return hayGrupo ? Compila(antes + t + después) : t;
    }

    void CompilaFunciones(std::string& t) {
        const struct {
            std::string nombre;
            int código;
        } funciones[] = {{"ARCSIN", 15}, {"COSEC", 14}, {"LOG", 6},  {"SIN", 7},
                         {"COS", 8},     {"TAN", 9},    {"ATN", 10}, {"EXP", 11},
                         {"SQR", 12},    {"SEC", 13},   {"SLN", 128}};
        for (const auto& función : funciones) {
            for (std::size_t p; (p = t.find(función.nombre)) != std::string::npos;) {
                const std::size_t referencia = p + función.nombre.size();
                const std::size_t fin = FinDeOperando(t, referencia);
                const int derecho = Registro(t.substr(referencia, fin - referencia));
                t.replace(p, fin - p, Emite(-1, función.código, derecho));
            }
        }
    }

    void CompilaBinaria(std::string& t, std::size_t p) {
        const std::size_t principio = PrincipioDeOperando(t, p);
        const std::size_t fin = FinDeOperando(t, p + 1);
        const int izquierdo = Registro(t.substr(principio, p - principio));
        const int derecho = Registro(t.substr(p + 1, fin - p - 1));
        const int código = 1 + static_cast<int>(std::string_view("+-*/^").find(t[p]));
        t.replace(principio, fin - principio, Emite(izquierdo, código, derecho));
    }

    static std::size_t FinDeOperando(const std::string& t, std::size_t i) {
        if (t[i] == 'X')
            return i + 1;
        if (t[i] == 'Z')
            ++i;
        while (i < t.size() && EsDígitoOPunto(t[i]))
            ++i;
        if (i < t.size() && t[i] == 'E')
            for (i += 2; i < t.size() && EsDígito(t[i]);)
                ++i;
        return i;
    }
    // The longest operand that ends at `fin`.
    static std::size_t PrincipioDeOperando(const std::string& t, std::size_t fin) {
        for (std::size_t i = 0; i < fin; ++i) {
            const bool puede = i == 0 || (!EsDígitoOPunto(t[i - 1]) && t[i - 1] != 'Z');
            if (puede && t[i] != 'E' && FinDeOperando(t, i) == fin)
                return i;
        }
        return fin;
    }

    int Registro(const std::string& operando) {
        if (operando == "X")
            return 0;
        if (operando.starts_with('Z'))
            return std::stoi(operando.substr(1));
        registros.push_back(std::stod(operando));
        return static_cast<int>(registros.size()) - 1;
    }
    std::string Emite(int izquierdo, int código, int derecho) {
        registros.push_back(0);
        const int resultado = static_cast<int>(registros.size()) - 1;
        instrucciones.push_back({izquierdo, código, derecho, resultado});
        return "Z" + std::to_string(resultado);
    }
};

struct ValorIngenuo {
    double valor = 0;
    int fallo = 0;
};

// The base to a positive whole exponent, by products.
inline double ProductoIngenuo(double base, int exponente) {
    if (exponente == 1)
        return base;
    if (exponente % 2 != 0)
        return ProductoIngenuo(base, exponente - 1) * base;
    const double mitad = ProductoIngenuo(base, exponente / 2);
    return mitad * mitad;
}

// base^exponente: the whole exponents 2 to 8 are products, and -8 to -1 one over them where these
// are in range.
inline double PotenciaIngenua(double base, double exponente) {
    const int tamaño = std::fabs(exponente) <= 8 ? static_cast<int>(std::fabs(exponente)) : 0;
    if (tamaño == 0 || tamaño != std::fabs(exponente))
        return std::pow(base, exponente);
    const double producto = ProductoIngenuo(base, tamaño);
    if (exponente > 0)
        return producto;
    return std::isnormal(producto) ? 1 / producto : std::pow(base, exponente);
}

// One instruction; the faults are told by the operands, before the result is looked at.
inline ValorIngenuo OperaIngenuo(int código, double a, double b) {
    switch (código) {
    case 1:
        return {a + b};
    case 2:
        return {a - b};
    case 3:
        return {a * b};
    case 4:
        return {a / b, b == 0 ? 11 : 0};
    case 5:
        if (a == 0 && b < 0)
            return {0, 11};
        if (a < 0 && b != std::floor(b))
            return {0, 5};
        return {PotenciaIngenua(a, b)};
    case 6:
        return {std::log(b), b <= 0 ? 5 : 0};
    case 7:
        return {std::sin(b)};
    case 8:
        return {std::cos(b)};
    case 9:
        return {std::tan(b)};
    case 10:
        return {std::atan(b)};
    case 11:
        return {std::exp(b)};
    case 12:
        return {std::sqrt(b), b < 0 ? 5 : 0};
    case 13:
        return {1 / std::cos(b)};
    case 14:
        return {1 / std::sin(b), b == 0 ? 11 : 0};
    case 15:
        if (b == 1 || b == -1)
            return {0, 11};
        return {std::atan(b / std::sqrt(1 - b * b)), std::fabs(b) > 1 ? 5 : 0};
    default:
        return {b, código == 128 && b != 0 ? 0 : -1};
    }
}

inline ValorIngenuo EvalúaIngenuo(const CompiladorIngenuo& compilado, double x) {
    std::vector<double> registros = compilado.registros;
    registros[0] = x;
    double último = 0;
    for (const InstrucciónIngenua& i : compilado.instrucciones) {
        const double a = i.izquierdo < 0 ? 0 : registros[static_cast<std::size_t>(i.izquierdo)];
        ValorIngenuo valor =
            OperaIngenuo(i.código, a, registros[static_cast<std::size_t>(i.derecho)]);
        if (valor.fallo == 0 && !std::isfinite(valor.valor))
            valor.fallo = 6;
        if (valor.fallo != 0)
            return valor;
        último = registros[static_cast<std::size_t>(i.resultado)] = valor.valor;
    }
    return {último, 0};
}

} // namespace quiralto
