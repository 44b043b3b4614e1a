#include "engine/evalua.h"

#include "engine/aritmetica.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <limits>
#include <random>

namespace quiralto {
namespace {

double DevSln(Contexto& contexto, double a) {
    return a == 0 ? std::uniform_real_distribution<double>(0, 1)(contexto.generador) : a;
}

// Why an instruction gave `resultado`, which is not finite.
Fallo DevFallo(Operación código, double izquierdo, double derecho, double resultado) {
    const Fallo desbordaOInválido = std::isnan(resultado) ? ArgumentoInválido : Desbordamiento;
    switch (código) {
    case Operación::Cociente:
        return derecho == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Potencia:
        return izquierdo == 0 && derecho < 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Log:
    case Operación::Sqr:
        return ArgumentoInválido;
    case Operación::Sec:
        return std::cos(derecho) == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Cosec:
        return std::sin(derecho) == 0 ? DivisiónPorCero : desbordaOInválido;
    case Operación::Arcsin:
        return std::isnan(resultado) ? ArgumentoInválido : DivisiónPorCero;
    default:
        return desbordaOInválido;
    }
}

// One instruction on two values; a code outside the table leaves `actual` as it is.
inline double Opera(Contexto& contexto, Operación código, double izquierdo, double derecho,
                    double actual) {
    switch (código) {
    case Operación::Suma:
        return izquierdo + derecho;
    case Operación::Resta:
        return izquierdo - derecho;
    case Operación::Producto:
        return izquierdo * derecho;
    case Operación::Cociente:
        return izquierdo / derecho;
    case Operación::Potencia:
        return DevPotencia(izquierdo, derecho);
    case Operación::Log:
        return std::log(derecho);
    case Operación::Sin:
        return std::sin(derecho);
    case Operación::Cos:
        return std::cos(derecho);
    case Operación::Tan:
        return std::tan(derecho);
    case Operación::Atn:
        return std::atan(derecho);
    case Operación::Exp:
        return std::exp(derecho);
    case Operación::Sqr:
        return std::sqrt(derecho);
    case Operación::Sec:
        return DevSecante(derecho);
    case Operación::Cosec:
        return DevCosecante(derecho);
    case Operación::Arcsin:
        return DevArcoseno(derecho);
    case Operación::Sln:
        return DevSln(contexto, derecho);
    }
    return actual;
}

std::size_t Índice(std::int16_t registro) {
    return static_cast<std::size_t>(registro);
}

// The block run. The instructions that do not depend on X are done once; every other one runs over
// a row of TamañoFila values, and a row is given back as soon as its only reader has run.

constexpr std::size_t TamañoFila = 128;

// Rows in all that a run may hold; with more at a time the program runs value by value.
constexpr std::size_t MáximoFilas = 8192; // 8 MiB

using Fila = std::array<double, TamañoFila>;

struct Operando {
    bool esFila = false;
    std::size_t fila = 0;
    double valor = 0;
};

struct Paso {
    Operación código;
    Operando izquierdo;
    Operando derecho;
    std::size_t destino;
    bool vigilado; // its reader, or the end, could hide that a value is not finite
};

struct Plan {
    std::vector<Paso> pasos;
    std::size_t filas = 1; // row 0 is X
    std::size_t resultado = 0;
    bool posible = true; // false: run value by value
};

// Whether the operation can give a finite result for a right or left operand that is not finite.
bool EscondeFallos(Operación código, bool operandoDerecho) {
    switch (código) {
    case Operación::Potencia:
    case Operación::Atn:
    case Operación::Exp:
        return true;
    case Operación::Cociente:
        return operandoDerecho;
    default:
        return false;
    }
}

bool EstáEnLaTabla(Operación código) {
    return std::ranges::find(TablaOperaciones, código, &DescripciónOperación::código) !=
           TablaOperaciones.end();
}

class Planificador {
public:
    Planificador(Contexto& contexto, const Programa& programa)
        : contexto_(contexto), programa_(programa), operandos_(programa.registros.size()) {}

    Plan Planea() {
        for (std::size_t r = 1; r < operandos_.size(); ++r)
            operandos_[r].valor = programa_.registros[r];
        operandos_[0].esFila = true;
        for (const Instrucción& instrucción : programa_.instrucciones)
            if (!Añade(instrucción))
                return Imposible();
        const Operando& resultado = operandos_[programa_.Resultado()];
        if (!resultado.esFila)
            return Imposible();
        plan_.resultado = resultado.fila;
        if (!plan_.pasos.empty())
            plan_.pasos.back().vigilado = true;
        return std::move(plan_);
    }

private:
    static Plan Imposible() {
        Plan plan;
        plan.posible = false;
        return plan;
    }

    bool Añade(const Instrucción& instrucción) {
        if (!EstáEnLaTabla(instrucción.código))
            return true;
        const bool binaria = instrucción.código <= Operación::Potencia;
        const Operando izquierdo = binaria ? operandos_[Índice(instrucción.izquierdo)] : Operando{};
        const Operando derecho = operandos_[Índice(instrucción.derecho)];
        Operando& resultado = operandos_[Índice(instrucción.resultado)];
        if (instrucción.código == Operación::Sln)
            return false; // its random values have an order
        if (!izquierdo.esFila && !derecho.esFila) {
            resultado.valor = Opera(contexto_, instrucción.código, izquierdo.valor, derecho.valor,
                                    resultado.valor);
            return std::isfinite(resultado.valor);
        }
        Vigila(izquierdo, EscondeFallos(instrucción.código, false));
        Vigila(derecho, EscondeFallos(instrucción.código, true));
        resultado = {.esFila = true, .fila = TomaFila()};
        pasoDeFila_[resultado.fila] = plan_.pasos.size();
        plan_.pasos.push_back({.código = instrucción.código,
                               .izquierdo = izquierdo,
                               .derecho = derecho,
                               .destino = resultado.fila,
                               .vigilado = false});
        DevuelveFila(izquierdo);
        DevuelveFila(derecho);
        return plan_.filas <= MáximoFilas;
    }

    void Vigila(const Operando& operando, bool esconde) {
        if (esconde && operando.esFila && operando.fila != 0)
            plan_.pasos[pasoDeFila_[operando.fila]].vigilado = true;
    }

    std::size_t TomaFila() {
        if (!libres_.empty()) {
            const std::size_t fila = libres_.back();
            libres_.pop_back();
            return fila;
        }
        pasoDeFila_.resize(plan_.filas + 1);
        return plan_.filas++;
    }

    void DevuelveFila(const Operando& operando) {
        if (operando.esFila && operando.fila != 0)
            libres_.push_back(operando.fila);
    }

    Contexto& contexto_;
    const Programa& programa_;
    std::vector<Operando> operandos_;
    std::vector<std::size_t> libres_;
    std::vector<std::size_t> pasoDeFila_; // the step that wrote the row last
    Plan plan_;
};

template <typename F> void Aplica(Fila& destino, const Fila& a, F f) {
    for (std::size_t i = 0; i < TamañoFila; ++i)
        destino[i] = f(a[i]);
}

template <typename F> void AplicaBinaria(std::vector<Fila>& filas, const Paso& paso, F f) {
    // A row never is its own operand: the plan takes the result's row before it gives theirs back.
    double* __restrict destino = filas[paso.destino].data();
    if (!paso.derecho.esFila) {
        const double* a = filas[paso.izquierdo.fila].data();
        for (std::size_t i = 0; i < TamañoFila; ++i)
            destino[i] = f(a[i], paso.derecho.valor);
    } else if (!paso.izquierdo.esFila) {
        const double* b = filas[paso.derecho.fila].data();
        for (std::size_t i = 0; i < TamañoFila; ++i)
            destino[i] = f(paso.izquierdo.valor, b[i]);
    } else {
        const double* a = filas[paso.izquierdo.fila].data();
        const double* b = filas[paso.derecho.fila].data();
        for (std::size_t i = 0; i < TamañoFila; ++i)
            destino[i] = f(a[i], b[i]);
    }
}

void AplicaPotencia(std::vector<Fila>& filas, const Paso& paso) {
    Fila& destino = filas[paso.destino];
    const Fila& base = filas[paso.izquierdo.fila];
    switch (paso.derecho.esFila ? 0 : ExponenteProducto(paso.derecho.valor)) {
    case 2:
        return Aplica(destino, base, PotenciaEntera<2>);
    case 3:
        return Aplica(destino, base, PotenciaEntera<3>);
    case 4:
        return Aplica(destino, base, PotenciaEntera<4>);
    case 5:
        return Aplica(destino, base, PotenciaEntera<5>);
    case 6:
        return Aplica(destino, base, PotenciaEntera<6>);
    case 7:
        return Aplica(destino, base, PotenciaEntera<7>);
    case 8:
        return Aplica(destino, base, PotenciaEntera<8>);
    default:
        return AplicaBinaria(filas, paso, DevPotencia);
    }
}

void EjecutaPaso(std::vector<Fila>& filas, const Paso& paso) {
    Fila& destino = filas[paso.destino];
    const Fila& argumento = filas[paso.derecho.fila];
    switch (paso.código) {
    case Operación::Suma:
        return AplicaBinaria(filas, paso, [](double a, double b) { return a + b; });
    case Operación::Resta:
        return AplicaBinaria(filas, paso, [](double a, double b) { return a - b; });
    case Operación::Producto:
        return AplicaBinaria(filas, paso, [](double a, double b) { return a * b; });
    case Operación::Cociente:
        return AplicaBinaria(filas, paso, [](double a, double b) { return a / b; });
    case Operación::Potencia:
        return AplicaPotencia(filas, paso);
    case Operación::Log:
        return Aplica(destino, argumento, [](double a) { return std::log(a); });
    case Operación::Sin:
        return Aplica(destino, argumento, [](double a) { return std::sin(a); });
    case Operación::Cos:
        return Aplica(destino, argumento, [](double a) { return std::cos(a); });
    case Operación::Tan:
        return Aplica(destino, argumento, [](double a) { return std::tan(a); });
    case Operación::Atn:
        return Aplica(destino, argumento, [](double a) { return std::atan(a); });
    case Operación::Exp:
        return Aplica(destino, argumento, [](double a) { return std::exp(a); });
    case Operación::Sqr:
        return Aplica(destino, argumento, [](double a) { return std::sqrt(a); });
    case Operación::Sec:
        return Aplica(destino, argumento, DevSecante);
    case Operación::Cosec:
        return Aplica(destino, argumento, DevCosecante);
    case Operación::Arcsin:
        return Aplica(destino, argumento, DevArcoseno);
    case Operación::Sln:
        return; // never planned
    }
}

// v - v is 0 for a finite v and not a number for any other.
bool TodosFinitos(const Fila& fila) {
    constexpr std::size_t Carriles = 8;
    std::array<double, Carriles> sumas{};
    for (std::size_t i = 0; i < TamañoFila; i += Carriles)
        for (std::size_t k = 0; k < Carriles; ++k)
            sumas[k] += fila[i + k] - fila[i + k];
    return std::ranges::all_of(sumas, [](double suma) { return suma == 0; });
}

class EjecutorDeBloques {
public:
    EjecutorDeBloques(const Plan& plan) : plan_(plan), filas_(plan.filas) {}

    // Runs the plan over up to TamañoFila values and returns the row of the results; faulty(i)
    // afterwards tells whether value i has met a fault.
    const Fila& Ejecuta(std::span<const double> equis) {
        auto resto = std::ranges::copy(equis, filas_[0].begin()).out;
        std::fill(resto, filas_[0].end(), equis.back());
        hayFallos_ = false;
        for (const Paso& paso : plan_.pasos) {
            EjecutaPaso(filas_, paso);
            if (paso.vigilado && !TodosFinitos(filas_[paso.destino]))
                AnotaFallos(filas_[paso.destino]);
        }
        return filas_[plan_.resultado];
    }

    bool HayFallos() const { return hayFallos_; }
    bool HayFallo(std::size_t i) const { return fallos_[i]; }

private:
    void AnotaFallos(const Fila& fila) {
        if (!std::exchange(hayFallos_, true))
            fallos_.fill(false);
        for (std::size_t i = 0; i < TamañoFila; ++i)
            fallos_[i] = fallos_[i] || !std::isfinite(fila[i]);
    }

    const Plan& plan_;
    std::vector<Fila> filas_;
    std::array<bool, TamañoFila> fallos_{};
    bool hayFallos_ = false;
};

} // namespace

double EvalúaPrograma(Contexto& contexto, Programa& programa, double x) {
    double* const registros = programa.registros.data();
    registros[0] = x;
    for (const Instrucción& instrucción : programa.instrucciones) {
        const double izquierdo = registros[instrucción.izquierdo];
        const double derecho = registros[instrucción.derecho];
        double& resultado = registros[instrucción.resultado];
        resultado = Opera(contexto, instrucción.código, izquierdo, derecho, resultado);
        if (!std::isfinite(resultado)) {
            contexto.ErrorCódigo = DevFallo(instrucción.código, izquierdo, derecho, resultado);
            return std::numeric_limits<double>::quiet_NaN();
        }
    }
    return registros[programa.Resultado()];
}

void EvalúaBloque(Contexto& contexto, const Programa& programa, std::span<const double> equis,
                  std::span<double> valores, std::span<std::int16_t> fallos) {
    assert(valores.size() == equis.size() && fallos.size() == equis.size());
    const std::int16_t errorAnterior = contexto.ErrorCódigo;
    Programa copia; // for the values that need the scalar run
    const auto evalúaUno = [&](std::size_t i) {
        if (copia.registros.empty())
            copia = programa;
        contexto.ErrorCódigo = SinFallo;
        valores[i] = EvalúaPrograma(contexto, copia, equis[i]);
        fallos[i] = contexto.ErrorCódigo;
    };
    const Plan plan = Planificador(contexto, programa).Planea();
    EjecutorDeBloques ejecutor(plan);
    for (std::size_t desde = 0; desde < equis.size(); desde += TamañoFila) {
        contexto.Vigila();
        const std::size_t cantidad = std::min(TamañoFila, equis.size() - desde);
        if (!plan.posible) {
            for (std::size_t i = 0; i < cantidad; ++i)
                evalúaUno(desde + i);
            continue;
        }
        const Fila& resultado = ejecutor.Ejecuta(equis.subspan(desde, cantidad));
        std::copy_n(resultado.begin(), cantidad, valores.subspan(desde).begin());
        std::fill_n(fallos.subspan(desde).begin(), cantidad, std::int16_t{SinFallo});
        for (std::size_t i = 0; ejecutor.HayFallos() && i < cantidad; ++i)
            if (ejecutor.HayFallo(i))
                evalúaUno(desde + i);
    }
    contexto.ErrorCódigo = errorAnterior;
}

} // namespace quiralto
