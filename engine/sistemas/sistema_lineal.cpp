#include "engine/sistemas/sistema_lineal.h"

#include "engine/sistemas/matriz_exacta.h"
#include "engine/sistemas/matriz_real.h"

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

bool EsExacta(const EcuaciónLineal& ecuación) {
    return ecuación.independiente.EsExacto() &&
           std::ranges::all_of(ecuación.términos, [](const TérminoSln& término) {
               return término.coeficiente.EsExacto();
           });
}

} // namespace

SistemaLineal::SistemaLineal(Contexto& contexto, std::span<const EcuaciónLineal> ecuaciones)
    : contexto_(contexto), ecuaciones_(ecuaciones), líderes_(DevIncógnitas(ecuaciones)) {
}

// The elimination on Doubles comes first: it tells how long the exact numbers would be, so that an
// exact one is not begun where it would be given up.
void SistemaLineal::Elimina() {
    auto real = std::make_unique<MatrizReal>(contexto_, ecuaciones_);
    const MatrizReal& pulso = *real;
    if (!EliminaCon(std::move(real)) || !pulso.EsFinita())
        throw ErrorEjecución(Desbordamiento);
    const auto máximo = static_cast<double>(MatrizExacta::MáximosBits(ecuaciones_.size()));
    if (pulso.DevBitsExactos() <= máximo && std::ranges::all_of(ecuaciones_, EsExacta)) {
        std::unique_ptr<MatrizSln> enReal = std::move(matriz_);
        auto exacta = std::make_unique<MatrizExacta>(contexto_, ecuaciones_);
        if (!exacta->Cabe() || !EliminaCon(std::move(exacta)))
            matriz_ = std::move(enReal);
    }
    BuscaLíderes();
}

bool SistemaLineal::EliminaCon(std::unique_ptr<MatrizSln> matriz) {
    matriz_ = std::move(matriz);
    usadas_.assign(matriz_->Filas(), false);
    for (std::size_t columna = 0; columna < matriz_->Incógnitas(); ++columna)
        if (const auto pivote = CoeficienteSln(columna))
            if (!TrasformarSln(columna, *pivote))
                return false;
    return true;
}

std::optional<std::size_t> SistemaLineal::CoeficienteSln(std::size_t columna) {
    for (std::size_t fila = 0; fila < usadas_.size(); ++fila) {
        if (usadas_[fila] || matriz_->EsNulo(fila, columna))
            continue;
        usadas_[fila] = true;
        return fila;
    }
    return std::nullopt;
}

bool SistemaLineal::SistemaCompatibleSln(std::size_t& fila) const {
    const std::size_t incógnitas = matriz_->Incógnitas();
    for (std::size_t i = 0; i < matriz_->Filas(); ++i) {
        std::size_t c = 0;
        while (c < incógnitas && matriz_->EsNulo(i, c))
            ++c;
        if (c == incógnitas && !matriz_->EsNulo(i, incógnitas)) {
            fila = i + 1;
            return false;
        }
    }
    return true;
}

void SistemaLineal::BuscaLíderes() {
    std::ranges::fill(líderes_, std::nullopt);
    for (std::size_t fila = 0; fila < matriz_->Filas(); ++fila)
        for (std::size_t c = 0; c < matriz_->Incógnitas(); ++c)
            if (!matriz_->EsNulo(fila, c)) {
                if (!líderes_[c])
                    líderes_[c] = fila;
                break;
            }
}

} // namespace quiralto
