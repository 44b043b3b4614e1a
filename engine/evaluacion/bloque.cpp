#include "engine/evaluacion/bloque.h"

#include "engine/lenguaje/operaciones.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// Everything that runs over a row is inlined into the two copies of EjecutaPaso below, so that each
// of them is compiled for its own instruction set.
#define QUIRALTO_EN_LÍNEA [[gnu::always_inline]] inline

// The rows' values that a run is over: a whole number of lanes.
constexpr std::size_t Carriles = 16;

QUIRALTO_EN_LÍNEA std::size_t EnCarriles(std::size_t cantidad) {
    return cantidad / Carriles * Carriles; // says to the compiler what Ejecuta has seen to
}

template <typename F>
QUIRALTO_EN_LÍNEA void Aplica(std::size_t n, double* __restrict destino, const double* __restrict a,
                              F f) {
    for (std::size_t i = 0; i < EnCarriles(n); ++i)
        destino[i] = f(a[i]);
}

// A row never is its own operand: the plan takes the result's row before it gives theirs back.
template <typename F>
QUIRALTO_EN_LÍNEA void AplicaBinaria(std::size_t n, const Filas& filas, const Paso& paso, F f) {
    double* const __restrict destino = filas[paso.destino];
    const double* const a = filas[paso.izquierdo.fila];
    const double* const b = filas[paso.derecho.fila];
    const double constante = paso.derecho.esFila ? paso.izquierdo.valor : paso.derecho.valor;
    if (!paso.derecho.esFila) {
        for (std::size_t i = 0; i < EnCarriles(n); ++i)
            destino[i] = f(a[i], constante);
    } else if (!paso.izquierdo.esFila) {
        for (std::size_t i = 0; i < EnCarriles(n); ++i)
            destino[i] = f(constante, b[i]);
    } else {
        for (std::size_t i = 0; i < EnCarriles(n); ++i)
            destino[i] = f(a[i], b[i]);
    }
}

// The compiler makes one call of the two, which gives the bits of both.
QUIRALTO_EN_LÍNEA void AplicaSenoYCoseno(std::size_t n, double* __restrict seno,
                                         double* __restrict coseno, const double* __restrict a) {
    for (std::size_t i = 0; i < EnCarriles(n); ++i) {
        seno[i] = std::sin(a[i]);
        coseno[i] = std::cos(a[i]);
    }
}

// The loop of one row of the table. SLN is never planned.
template <std::size_t Índice>
QUIRALTO_EN_LÍNEA void EjecutaOperación(std::size_t n, const Filas& filas, const Paso& paso) {
    constexpr const DescripciónOperación& Operador = TablaOperaciones[Índice];
    [[maybe_unused]] const double* const argumento = filas[paso.derecho.fila];
    if constexpr (Operador.familia == Familia::Símbolo)
        return;
    else if constexpr (Operador.EsBinaria())
        AplicaBinaria(n, filas, paso, [](double a, double b) {
            return TablaOperaciones[Índice].valor(a, b, nullptr);
        });
    else if (Operador.código == Operación::Sin && paso.destinoCoseno != 0)
        AplicaSenoYCoseno(n, filas[paso.destino], filas[paso.destinoCoseno], argumento);
    else
        Aplica(n, filas[paso.destino], argumento,
               [](double a) { return TablaOperaciones[Índice].valor(0, a, nullptr); });
}

template <std::size_t... Índice>
QUIRALTO_EN_LÍNEA void EjecutaPasoGenérico(std::index_sequence<Índice...>, std::size_t n,
                                           const Filas& filas, const Paso& paso) {
    static_cast<void>(((paso.código == TablaOperaciones[Índice].código &&
                        (EjecutaOperación<Índice>(n, filas, paso), true)) ||
                       ...));
}

constexpr std::make_index_sequence<TablaOperaciones.size()> Índices;

// v - v is 0 for a finite v and not a number for any other.
QUIRALTO_EN_LÍNEA bool TodosFinitosGenérico(std::size_t n, const double* fila) {
    std::array<double, Carriles> sumas{};
    for (std::size_t i = 0; i < EnCarriles(n); i += Carriles)
        for (std::size_t k = 0; k < Carriles; ++k)
            sumas[k] += fila[i + k] - fila[i + k];
    double total = 0;
    for (const double suma : sumas)
        total += suma;
    return total == 0;
}

void EjecutaPasoBase(std::size_t n, const Filas& filas, const Paso& paso) {
    EjecutaPasoGenérico(Índices, n, filas, paso);
}

bool TodosFinitosBase(std::size_t n, const double* fila) {
    return TodosFinitosGenérico(n, fila);
}

#if defined(__x86_64__)
// Twice as many values an instruction where the processor can; the results are the same bits.
[[gnu::target("avx2")]] void EjecutaPasoAvx2(std::size_t n, const Filas& filas, const Paso& paso) {
    EjecutaPasoGenérico(Índices, n, filas, paso);
}

[[gnu::target("avx2")]] bool TodosFinitosAvx2(std::size_t n, const double* fila) {
    return TodosFinitosGenérico(n, fila);
}
#endif

} // namespace

EjecutorDeBloques::Procesador EjecutorDeBloques::DevProcesador() {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2"))
        return {EjecutaPasoAvx2, TodosFinitosAvx2};
#endif
    return {EjecutaPasoBase, TodosFinitosBase};
}

EjecutorDeBloques::EjecutorDeBloques(const Plan& plan)
    : plan_(plan), propias_(std::make_unique_for_overwrite<double[]>(plan.filas * TamañoFila)),
      filas_(plan.filas) {
    for (std::size_t i = 0; i < filas_.size(); ++i)
        filas_[i] = propias_.get() + i * TamañoFila;
}

void EjecutorDeBloques::Ejecuta(std::span<const double> equis, std::span<double> valores) {
    // Whole lanes are read and written where the caller has it.
    const bool entero = equis.size() % Carriles == 0;
    cantidad_ = (equis.size() + Carriles - 1) / Carriles * Carriles;
    double* const equisPropias = propias_.get();
    if (!entero)
        std::fill(std::ranges::copy(equis, equisPropias).out, equisPropias + cantidad_,
                  equis.back());
    // Row 0 is never written.
    filas_[0] = entero ? const_cast<double*>(equis.data()) : equisPropias;
    hayFallos_ = false;
    for (auto paso = plan_.pasos.begin(); paso != plan_.pasos.end() - 1; ++paso) {
        procesador_.EjecutaPaso(cantidad_, filas_, *paso);
        Comprueba(*paso);
    }
    const Paso& último = plan_.pasos.back();
    double* const suya = filas_[plan_.resultado];
    if (entero)
        filas_[plan_.resultado] = valores.data();
    procesador_.EjecutaPaso(cantidad_, filas_, último);
    Comprueba(último);
    filas_[plan_.resultado] = suya;
    if (!entero)
        std::copy_n(suya, valores.size(), valores.begin());
}

void EjecutorDeBloques::Comprueba(const Paso& paso) {
    if (!paso.vigilado)
        return;
    for (const std::size_t fila : {paso.destino, paso.destinoCoseno})
        if (fila != 0 && !procesador_.TodosFinitos(cantidad_, filas_[fila]))
            AnotaFallos(filas_[fila]);
}

void EjecutorDeBloques::AnotaFallos(const double* fila) {
    if (!std::exchange(hayFallos_, true))
        fallos_.fill(false);
    for (std::size_t i = 0; i < cantidad_; ++i)
        fallos_[i] = fallos_[i] || !std::isfinite(fila[i]);
}

} // namespace quiralto
