#include "engine/sistemas/matriz_exacta.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

// Divides the numbers by what they all have in common, and returns it.
Entero QuitaContenido(std::span<Entero> fila) {
    Entero contenido;
    for (const Entero& elemento : fila) {
        if (!elemento.EsCero())
            contenido = DevMCD(std::move(contenido), elemento);
        if (contenido.EsUno())
            return contenido;
    }
    if (contenido.EsCero())
        return 1;
    for (Entero& elemento : fila)
        if (!elemento.EsCero())
            elemento = Entero::Divide(elemento, contenido).cociente;
    return contenido;
}

} // namespace

std::size_t MatrizExacta::MáximosBits(std::size_t filas) {
    // The words of a number times themselves times the cube of the equations.
    constexpr double Trabajo = 1 << 20;
    constexpr double BitsDePalabra = 64;
    constexpr double Menos = 256;
    constexpr double Más = 1000; // with its factor it stays an exact Coeficiente
    const auto n = static_cast<double>(std::max<std::size_t>(filas, 1));
    return static_cast<std::size_t>(
        std::clamp(BitsDePalabra * std::sqrt(Trabajo / (n * n * n)), Menos, Más));
}

MatrizExacta::MatrizExacta(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones)
    : MatrizSln(contexto, ecuaciones.size(), DevIncógnitas(ecuaciones)),
      elementos_(filas_ * ancho_), factor_(filas_),
      redondeada_(std::ranges::any_of(ecuaciones, &EcuaciónLineal::redondeada)) {
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        contexto_.Vigila();
        PonFila(fila, ecuaciones[fila]);
    }
}

void MatrizExacta::PonFila(std::size_t fila, const EcuaciónLineal& ecuación) {
    Entero escala = ecuación.independiente.Denominador();
    for (const TérminoSln& término : ecuación.términos) {
        const Entero denominador = término.coeficiente.Denominador();
        escala *= Entero::Divide(denominador, DevMCD(escala, denominador)).cociente;
    }
    const auto entero = [&](const Coeficiente& c) {
        return c.Numerador() * Entero::Divide(escala, c.Denominador()).cociente;
    };
    const std::span<Entero> suya(&elementos_[Lugar(fila, 0)], ancho_);
    for (const TérminoSln& término : ecuación.términos)
        suya[static_cast<std::size_t>(término.índice) - 1] = entero(término.coeficiente);
    suya.back() = entero(ecuación.independiente);
    const Entero contenido = QuitaContenido(suya);
    factor_[fila] = Coeficiente(contenido, std::move(escala));
}

bool MatrizExacta::Cabe() const {
    const std::size_t máximo = MáximosBits(filas_);
    return std::ranges::all_of(elementos_, [=](const Entero& e) { return e.Bits() <= máximo; });
}

bool MatrizExacta::EsNulo(std::size_t fila, std::size_t columna) const {
    const Entero& elemento = elementos_[Lugar(fila, columna)];
    if (elemento.EsCero())
        return true;
    const Coeficiente valor = Coeficiente(elemento, 1) * factor_[fila];
    return Redondea(valor.ADouble(), contexto_.DígitosRedondeo) == 0;
}

bool MatrizExacta::Trasforma(std::size_t columna, std::size_t pivote) {
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        if (fila == pivote || elementos_[Lugar(fila, columna)].EsCero())
            continue;
        contexto_.Vigila();
        if (!TrasformaFila(fila, columna, pivote))
            return false;
    }
    return true;
}

// Row times the pivot minus the pivot's row times the entry, both without what they share; the row
// has then been multiplied by the pivot, which its factor gives back.
bool MatrizExacta::TrasformaFila(std::size_t fila, std::size_t columna, std::size_t pivote) {
    const std::span<Entero> suya(&elementos_[Lugar(fila, 0)], ancho_);
    const std::span<const Entero> delPivote(&elementos_[Lugar(pivote, 0)], ancho_);
    const Entero común = DevMCD(suya[columna], delPivote[columna]);
    const Entero porSuya = Entero::Divide(delPivote[columna], común).cociente;
    const Entero porPivote = Entero::Divide(suya[columna], común).cociente;
    for (std::size_t c = 0; c < ancho_; ++c) {
        if (!suya[c].EsCero() && !porSuya.EsUno())
            suya[c] *= porSuya;
        if (!delPivote[c].EsCero())
            suya[c].RestaProducto(porPivote, delPivote[c]);
    }
    const Entero contenido = QuitaContenido(suya);
    factor_[fila] = factor_[fila] * Coeficiente(contenido, porSuya);
    const std::size_t máximo = MáximosBits(filas_);
    return std::ranges::all_of(suya, [=](const Entero& e) { return e.Bits() <= máximo; });
}

Coeficiente MatrizExacta::Cociente(std::size_t fila, std::size_t columna,
                                   std::size_t divisor) const {
    if (redondeada_ && EsNulo(fila, columna))
        return 0; // what the Doubles have left
    return {elementos_[Lugar(fila, columna)], elementos_[Lugar(fila, divisor)]};
}

} // namespace quiralto
