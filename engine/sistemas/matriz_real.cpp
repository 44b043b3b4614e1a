#include "engine/sistemas/matriz_real.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

// The bits of the common denominator of exact coefficients, more or less.
double DevEscala(const EcuaciónLineal& ecuación) {
    const auto bits = [](const Coeficiente& c) {
        return c.EsExacto() && !c.EsEntero() ? static_cast<double>(c.Denominador().Bits()) : 0;
    };
    double escala = bits(ecuación.independiente);
    for (const TérminoSln& término : ecuación.términos)
        escala = std::max(escala, bits(término.coeficiente));
    return escala;
}

} // namespace

MatrizReal::MatrizReal(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones)
    : MatrizSln(contexto, ecuaciones.size(), DevIncógnitas(ecuaciones)),
      elementos_(filas_ * ancho_), mezcla_(filas_) {
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        contexto_.Vigila();
        for (const TérminoSln& término : ecuaciones[fila].términos)
            elementos_[Lugar(fila, static_cast<std::size_t>(término.índice) - 1)] =
                término.coeficiente.ADouble();
        elementos_[Lugar(fila, Incógnitas())] = ecuaciones[fila].independiente.ADouble();
        escala_.push_back(DevEscala(ecuaciones[fila]));
    }
}

bool MatrizReal::EsNulo(std::size_t fila, std::size_t columna) const {
    return Redondea(elementos_[Lugar(fila, columna)], contexto_.DígitosRedondeo) == 0;
}

bool MatrizReal::Trasforma(std::size_t columna, std::size_t pivote) {
    constexpr std::size_t EntreVigilias = 64;
    const double* const delPivote = &elementos_[Lugar(pivote, 0)];
    // Left of its first entry that is not 0 the pivot's row changes nothing.
    const auto primera = static_cast<std::size_t>(
        std::find_if(delPivote, delPivote + columna, [](double x) { return x != 0; }) - delPivote);
    mezcla_[pivote].set(bitsPivote_.size());
    bitsPivote_.push_back(std::log2(std::fabs(delPivote[columna])) + escala_[pivote]);
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        if (fila % EntreVigilias == 0)
            contexto_.Vigila();
        double* const suya = &elementos_[Lugar(fila, 0)];
        if (fila == pivote || suya[columna] == 0)
            continue;
        const double factor = -suya[columna] / delPivote[columna];
        if (!std::isfinite(factor))
            return false;
        for (std::size_t c = primera; c < ancho_; ++c)
            suya[c] = factor * delPivote[c] + suya[c];
        suya[columna] = 0; // whatever rounding has left there
        mezcla_[fila] |= mezcla_[pivote];
    }
    return true;
}

Coeficiente MatrizReal::Cociente(std::size_t fila, std::size_t columna, std::size_t divisor) const {
    if (EsNulo(fila, columna))
        return 0; // what rounding has left
    return Coeficiente::Inexacto(
        CompruebaFinito(elementos_[Lugar(fila, columna)] / elementos_[Lugar(fila, divisor)]));
}

bool MatrizReal::EsFinita() const {
    return std::ranges::all_of(elementos_, [](double x) { return std::isfinite(x); });
}

double MatrizReal::DevBitsExactos() const {
    double mayor = 0;
    for (const Pivotes& pivotes : mezcla_) {
        double bits = 0;
        for (std::size_t i = 0; i < bitsPivote_.size(); ++i)
            bits += pivotes[i] ? bitsPivote_[i] : 0;
        mayor = std::max(mayor, bits);
    }
    return mayor;
}

} // namespace quiralto
