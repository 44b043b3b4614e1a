#include "engine/evaluacion/nucleos.h"

#include "engine/lenguaje/operaciones.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace quiralto {
namespace {

// Everything that runs over a row is inlined into a function for each instruction set, of which
// Varios are the values that it takes at once; these go by reference, since to hand them over is
// not the same with each set.
#define QUIRALTO_EN_LÍNEA [[gnu::always_inline]] inline

// The operations that may stand inside another, by a number; 0 is none.
constexpr std::array<Operación, 5> Internas = {Nada, Operación::Suma, Operación::Resta,
                                               Operación::Producto, Operación::Cociente};
constexpr std::size_t CantidadInternas = Internas.size();

// One value or several.
template <Operación Código, typename Valor>
QUIRALTO_EN_LÍNEA void Combina(const Valor& a, const Valor& b, Valor& resultado) {
    if constexpr (Código == Operación::Suma)
        resultado = a + b;
    else if constexpr (Código == Operación::Resta)
        resultado = a - b;
    else if constexpr (Código == Operación::Producto)
        resultado = a * b;
    else if constexpr (Código == Operación::Cociente)
        resultado = a / b;
    else if constexpr (Código == Operación::Sqr)
        for (std::size_t k = 0; k < sizeof(Valor) / sizeof(double); ++k)
            resultado[k] = std::sqrt(a[k]);
    else
        resultado = a;
}

QUIRALTO_EN_LÍNEA const double* Desde(const Fuente& fuente, std::size_t i) {
    return fuente.datos + (i & fuente.máscara);
}

template <typename Varios> QUIRALTO_EN_LÍNEA void Lee(const double* desde, Varios& varios) {
    std::memcpy(&varios, desde, sizeof(Varios));
}

template <typename Varios>
constexpr auto Lugares = std::make_index_sequence<Carriles * sizeof(double) / sizeof(Varios)>{};

// v * 0 is 0 for a finite v and not a number for any other: the sum over all tells.
template <typename Varios, std::size_t Cantidad>
QUIRALTO_EN_LÍNEA bool SonFinitos(const std::array<Varios, Cantidad>& sumas) {
    Varios suma = sumas[0];
    for (std::size_t i = 1; i < Cantidad; ++i)
        suma += sumas[i];
    double total = 0;
    for (std::size_t k = 0; k < sizeof(Varios) / sizeof(double); ++k)
        total += suma[k];
    return total == 0;
}

template <typename Varios, std::size_t... Lugar>
QUIRALTO_EN_LÍNEA bool SonFinitos(std::size_t cantidad, const double* fila,
                                  std::index_sequence<Lugar...>) {
    std::array<Varios, sizeof...(Lugar)> sumas;
    std::array<Varios, sizeof...(Lugar)> leídos;
    ((sumas[Lugar] = Varios{}), ...);
    for (std::size_t i = 0; i < cantidad; i += Carriles) {
        (Lee(fila + i + Lugar * sizeof(Varios) / sizeof(double), leídos[Lugar]), ...);
        ((sumas[Lugar] += leídos[Lugar] * Varios{}), ...);
    }
    return SonFinitos(sumas);
}

// The operands of a step at a place of its rows.
struct Operandos {
    const double* a;
    const double* b;
    const double* c;
    const double* d;
};

QUIRALTO_EN_LÍNEA Operandos DevOperandos(const std::array<Fuente, 4>& fuentes, std::size_t i) {
    return {Desde(fuentes[0], i), Desde(fuentes[1], i), Desde(fuentes[2], i), Desde(fuentes[3], i)};
}

// `desde`[0] interna `desde`[1], at a place.
template <Operación Interna, typename Valor>
QUIRALTO_EN_LÍNEA void LeeOperando(const double* primero, const double* segundo, Valor& resultado) {
    if constexpr (Interna == Nada) {
        Lee(primero, resultado);
    } else {
        Valor a;
        Valor b;
        Lee(primero, a);
        Lee(segundo, b);
        Combina<Interna>(a, b, resultado);
    }
}

// (a interna b) operación (c interna d), several values at a time.
template <typename Varios, Operación Código, Operación Izquierda, Operación Derecha>
QUIRALTO_EN_LÍNEA void EjecutaVarios(double* destino, const Operandos& desde, std::size_t lugar,
                                     Varios& suma) {
    Varios izquierdo;
    Varios derecho{}; // which a root has not
    Varios resultado;
    LeeOperando<Izquierda>(desde.a + lugar, desde.b + lugar, izquierdo);
    if constexpr (Código != Operación::Sqr)
        LeeOperando<Derecha>(desde.c + lugar, desde.d + lugar, derecho);
    Combina<Código>(izquierdo, derecho, resultado);
    std::memcpy(destino + lugar, &resultado, sizeof(Varios));
    suma += resultado * Varios{};
}

template <typename Varios, Operación Código, Operación Izquierda, Operación Derecha,
          std::size_t... Lugar>
QUIRALTO_EN_LÍNEA bool EjecutaAritmética(std::size_t cantidad, const FilasDePaso& filas,
                                         std::index_sequence<Lugar...>) {
    std::array<Varios, sizeof...(Lugar)> sumas;
    ((sumas[Lugar] = Varios{}), ...);
    double* const destino = filas.destino;
    const std::array<Fuente, 4> fuentes = filas.fuentes;
    for (std::size_t i = 0; i < cantidad; i += Carriles) {
        const Operandos desde = DevOperandos(fuentes, i);
        (EjecutaVarios<Varios, Código, Izquierda, Derecha>(
             destino + i, desde, Lugar * sizeof(Varios) / sizeof(double), sumas[Lugar]),
         ...);
    }
    return SonFinitos(sumas);
}

// One over the products that a power to -Exponente is made of; false where one of them is not in
// range, and such a power then another.
template <int Exponente>
bool InvierteProductos(std::size_t cantidad, const double* bases, double* __restrict destino) {
    bool enRango = true;
    for (std::size_t i = 0; i < cantidad; ++i) {
        const double producto = PotenciaEntera<Exponente>(bases[i]);
        enRango &= std::isnormal(producto);
        destino[i] = 1 / producto;
    }
    return enRango;
}

// The powers of a row to one constant, where that is whole, small and negative and no power is out
// of range; false where the general loop is to be run.
template <int... UnoMenos>
bool PotenciasNegativas(std::size_t cantidad, const FilasDePaso& filas,
                        std::integer_sequence<int, UnoMenos...>) {
    const Fuente& exponente = filas.fuentes[2];
    return exponente.máscara == 0 &&
           ((*exponente.datos == -(UnoMenos + 1) &&
             InvierteProductos<UnoMenos + 1>(cantidad, filas.fuentes[0].datos, filas.destino)) ||
            ...);
}

// A power, or a function of (a interna b): value by value.
template <typename Varios, std::size_t Fila, Operación Interna>
QUIRALTO_EN_LÍNEA bool EjecutaUnoAUno(std::size_t cantidad, const FilasDePaso& filas) {
    double* const __restrict destino = filas.destino;
    const std::array<Fuente, 4> fuentes = filas.fuentes;
    if (TablaOperaciones[Fila].código == Operación::Potencia &&
        PotenciasNegativas(cantidad, filas,
                           std::make_integer_sequence<int, MáximoExponenteProducto>{})) {
        std::fill(destino + cantidad, destino + EnCarriles(cantidad), destino[cantidad - 1]);
        return true;
    }
    for (std::size_t i = 0; i < cantidad; ++i) {
        double izquierdo = 0;
        LeeOperando<Interna>(Desde(fuentes[0], i), Desde(fuentes[1], i), izquierdo);
        destino[i] = TablaOperaciones[Fila].EsBinaria()
                         ? TablaOperaciones[Fila].valor(izquierdo, *Desde(fuentes[2], i), nullptr)
                         : TablaOperaciones[Fila].valor(0, izquierdo, nullptr);
    }
    std::fill(destino + cantidad, destino + EnCarriles(cantidad), destino[cantidad - 1]);
    return SonFinitos<Varios>(cantidad, destino, Lugares<Varios>);
}

// The compiler makes one call of the two, which gives the bits of both.
template <typename Varios>
QUIRALTO_EN_LÍNEA bool EjecutaSenoYCoseno(std::size_t cantidad, const FilasDePaso& filas) {
    double* const __restrict seno = filas.destino;
    double* const __restrict coseno = filas.coseno;
    const Fuente ángulos = filas.fuentes[0];
    for (std::size_t i = 0; i < cantidad; ++i) {
        const double ángulo = *Desde(ángulos, i);
        seno[i] = std::sin(ángulo);
        coseno[i] = std::cos(ángulo);
    }
    std::fill(seno + cantidad, seno + EnCarriles(cantidad), seno[cantidad - 1]);
    std::fill(coseno + cantidad, coseno + EnCarriles(cantidad), coseno[cantidad - 1]);
    return SonFinitos<Varios>(cantidad, seno, Lugares<Varios>); // where one is, so is the other
}

template <typename Varios, std::size_t Fila, Operación Izquierda, Operación Derecha>
QUIRALTO_EN_LÍNEA bool Ejecuta(std::size_t cantidad, const FilasDePaso& filas) {
    constexpr Operación Código = TablaOperaciones[Fila].código;
    if constexpr (EsAritmética(Código) || Código == Operación::Sqr)
        return EjecutaAritmética<Varios, Código, Izquierda, Derecha>(cantidad, filas,
                                                                     Lugares<Varios>);
    else
        return EjecutaUnoAUno<Varios, Fila, Izquierda>(cantidad, filas);
}

// What a plan makes: SLN is never planned, a power and a divisor take in nothing.
consteval bool SePlanea(const DescripciónOperación& operación, Operación izquierda,
                        Operación derecha) {
    switch (operación.familia) {
    case Familia::Símbolo:
        return false;
    case Familia::Potencia:
        return izquierda == Nada && derecha == Nada;
    case Familia::Función:
        return derecha == Nada;
    default:
        return operación.código != Operación::Cociente || derecha == Nada;
    }
}

template <std::size_t Bytes> using Vector [[gnu::vector_size(Bytes)]] = double;

struct Base {
    template <std::size_t Fila, Operación Izquierda, Operación Derecha>
    static bool Ejecuta(std::size_t cantidad, const FilasDePaso& filas) {
        return quiralto::Ejecuta<Vector<16>, Fila, Izquierda, Derecha>(cantidad, filas);
    }
    static bool SenoYCoseno(std::size_t cantidad, const FilasDePaso& filas) {
        return EjecutaSenoYCoseno<Vector<16>>(cantidad, filas);
    }
};

#if defined(__x86_64__)
// Twice as many values an instruction where the processor can; the results are the same bits.
struct Avx2 {
    template <std::size_t Fila, Operación Izquierda, Operación Derecha>
    [[gnu::target("avx2")]] static bool Ejecuta(std::size_t cantidad, const FilasDePaso& filas) {
        return quiralto::Ejecuta<Vector<32>, Fila, Izquierda, Derecha>(cantidad, filas);
    }
    [[gnu::target("avx2")]] static bool SenoYCoseno(std::size_t cantidad,
                                                    const FilasDePaso& filas) {
        return EjecutaSenoYCoseno<Vector<32>>(cantidad, filas);
    }
};
#endif

constexpr std::size_t CantidadNúcleos =
    TablaOperaciones.size() * CantidadInternas * CantidadInternas;

template <typename Juego, std::size_t Número> consteval Núcleo DevUno() {
    constexpr std::size_t Fila = Número / (CantidadInternas * CantidadInternas);
    constexpr Operación Izquierda = Internas[Número / CantidadInternas % CantidadInternas];
    constexpr Operación Derecha = Internas[Número % CantidadInternas];
    if constexpr (SePlanea(TablaOperaciones[Fila], Izquierda, Derecha))
        return &Juego::template Ejecuta<Fila, Izquierda, Derecha>;
    else
        return nullptr;
}

template <typename Juego, std::size_t... Número>
consteval std::array<Núcleo, CantidadNúcleos> DevTodos(std::index_sequence<Número...>) {
    return {DevUno<Juego, Número>()...};
}

template <typename Juego>
constexpr std::array<Núcleo, CantidadNúcleos>
    Núcleos = DevTodos<Juego>(std::make_index_sequence<CantidadNúcleos>{});

template <typename Juego> Núcleo DevNúcleoDe(const Paso& paso) {
    if (paso.destinoCoseno != 0)
        return &Juego::SenoYCoseno;
    const auto número = [](Operación interna) {
        return static_cast<std::size_t>(std::ranges::find(Internas, interna) - Internas.begin());
    };
    const auto fila =
        static_cast<std::size_t>(BuscaOperación(paso.código) - TablaOperaciones.data());
    return Núcleos<Juego>[(fila * CantidadInternas + número(paso.internas[0])) * CantidadInternas +
                          número(paso.internas[1])];
}

} // namespace

Núcleo DevNúcleo(const Paso& paso) {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2"))
        return DevNúcleoDe<Avx2>(paso);
#endif
    return DevNúcleoDe<Base>(paso);
}

} // namespace quiralto
