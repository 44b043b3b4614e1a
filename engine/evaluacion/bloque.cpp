#include "engine/evaluacion/bloque.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {

EjecutorDeBloques::EjecutorDeBloques(const Plan& plan)
    : cantidadConstantes_(plan.constantes.size()),
      propias_(std::make_unique_for_overwrite<Línea[]>(
          ((plan.filas + 1) * TamañoFila + cantidadConstantes_ * Carriles) / 8)) {
    for (std::size_t i = 0; i < cantidadConstantes_; ++i)
        std::fill_n(DevLugar(1 + i), Carriles, plan.constantes[i]);
    pasos_.reserve(plan.pasos.size());
    for (const Paso& paso : plan.pasos) {
        FilasDePaso filas{.fuentes = {},
                          .destino = DevLugar(paso.destino),
                          .coseno =
                              paso.destinoCoseno != 0 ? DevLugar(paso.destinoCoseno) : nullptr};
        std::ranges::transform(paso.operandos, filas.fuentes.begin(),
                               [this](std::size_t operando) { return DevFuente(operando); });
        pasos_.push_back({DevNúcleo(paso), filas, paso.vigilado});
    }
    for (std::size_t i = 0; i < plan.pasos.size(); ++i)
        for (std::size_t k = 0; k < plan.pasos[i].operandos.size(); ++k)
            if (plan.pasos[i].operandos[k] == 0)
                equis_.push_back(&pasos_[i].filas.fuentes[k]);
}

double* EjecutorDeBloques::DevLugar(std::size_t lugar) {
    const std::size_t constantes = std::min(lugar - (lugar > 0 ? 1 : 0), cantidadConstantes_);
    const std::size_t filas = lugar - constantes;
    return propias_[(filas * TamañoFila + constantes * Carriles) / 8].valores.data();
}

Fuente EjecutorDeBloques::DevFuente(std::size_t operando) {
    const bool esConstante = operando >= 1 && operando <= cantidadConstantes_;
    return {.datos = DevLugar(operando), .máscara = esConstante ? 0 : ~std::size_t{0}};
}

void EjecutorDeBloques::Ejecuta(std::span<const double> equis, std::span<double> valores) {
    // Whole lanes are read and written where the caller has it.
    const bool entero = equis.size() % Carriles == 0;
    cantidad_ = equis.size();
    double* const equisPropias = DevLugar(0);
    if (!entero)
        std::fill(std::ranges::copy(equis, equisPropias).out, equisPropias + EnCarriles(cantidad_),
                  equis.back());
    for (Fuente* const fuente : equis_) // which is never written
        fuente->datos = entero ? const_cast<double*>(equis.data()) : equisPropias;
    PasoListo& último = pasos_.back();
    double* const suya = último.filas.destino;
    if (entero)
        último.filas.destino = valores.data();
    hayFallos_ = false;
    for (const PasoListo& paso : pasos_) {
        const bool finitos = paso.núcleo(cantidad_, paso.filas);
        if (!finitos && paso.vigilado)
            AnotaFallos(paso.filas.destino);
    }
    último.filas.destino = suya;
    if (!entero)
        std::copy_n(suya, valores.size(), valores.begin());
}

void EjecutorDeBloques::AnotaFallos(const double* fila) {
    if (!std::exchange(hayFallos_, true))
        fallos_.fill(false);
    for (std::size_t i = 0; i < cantidad_; ++i)
        fallos_[i] = fallos_[i] || !std::isfinite(fila[i]);
}

} // namespace quiralto
