#include "engine/sistemas/sistema_lineal.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>

namespace quiralto {

SistemaLineal::SistemaLineal(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones)
    : contexto_(contexto), filas_(ecuaciones.size()), usadas_(ecuaciones.size(), false) {
    for (const EcuaciónLineal& ecuación : ecuaciones)
        for (const TérminoSln& término : ecuación.términos)
            incógnitas_ = std::max(incógnitas_, static_cast<std::size_t>(término.índice));
    ancho_ = incógnitas_ + 1;
    elementos_.resize(filas_ * ancho_);
    for (std::size_t i = 0; i < filas_; ++i) {
        for (const TérminoSln& término : ecuaciones[i].términos)
            Fila(i)[término.índice - 1] = término.coeficiente;
        Fila(i)[incógnitas_] = ecuaciones[i].independiente;
    }
}

double SistemaLineal::Elemento(std::size_t fila, std::size_t columna) const {
    const double elemento = elementos_[fila * ancho_ + columna];
    return Redondea(elemento, contexto_.DígitosRedondeo) == 0 ? 0 : elemento;
}

void SistemaLineal::Elimina() {
    for (std::size_t columna = 0; columna < incógnitas_; ++columna)
        if (const auto pivote = CoeficienteSln(columna))
            TrasformarSln(columna, *pivote);
    for (const double elemento : elementos_)
        CompruebaFinito(elemento);
}

std::optional<std::size_t> SistemaLineal::CoeficienteSln(std::size_t columna) {
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        if (usadas_[fila] || Elemento(fila, columna) == 0)
            continue;
        usadas_[fila] = true;
        return fila;
    }
    return std::nullopt;
}

void SistemaLineal::TrasformarSln(std::size_t columna, std::size_t pivote) {
    const double* const delPivote = Fila(pivote);
    constexpr std::size_t EntreVigilias = 64;
    for (std::size_t fila = 0; fila < filas_; ++fila) {
        if (fila % EntreVigilias == 0)
            contexto_.Vigila();
        double* const suya = Fila(fila);
        if (fila == pivote || suya[columna] == 0)
            continue;
        const double factor = CompruebaFinito(-suya[columna] / delPivote[columna]);
        for (std::size_t c = 0; c < ancho_; ++c)
            suya[c] = factor * delPivote[c] + suya[c];
        suya[columna] = 0; // whatever rounding has left there
    }
}

bool SistemaLineal::SistemaCompatibleSln(std::size_t& fila) const {
    for (std::size_t i = 0; i < filas_; ++i) {
        std::size_t c = 0;
        while (c < incógnitas_ && Elemento(i, c) == 0)
            ++c;
        if (c == incógnitas_ && Independiente(i) != 0) {
            fila = i + 1;
            return false;
        }
    }
    return true;
}

std::vector<std::optional<std::size_t>> SistemaLineal::DevLíderes() const {
    std::vector<std::optional<std::size_t>> líderes(incógnitas_);
    for (std::size_t fila = 0; fila < filas_; ++fila)
        for (std::size_t c = 0; c < incógnitas_; ++c)
            if (Elemento(fila, c) != 0) {
                if (!líderes[c])
                    líderes[c] = fila;
                break;
            }
    return líderes;
}

} // namespace quiralto
