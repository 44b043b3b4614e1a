#include "ui/grafica/historia.h"

#include <utility>

namespace quiralto {

void Historia::Anota(const Vista::Estado& antes, const Vista::Estado& después, Gesto gesto) {
    if (antes.ventana == después.ventana || gesto == Gesto::Vuelta)
        return;
    const Gesto anterior = std::exchange(último_, gesto);
    if (gesto != Gesto::Suelto && gesto == anterior && !pasos_.empty()) {
        pasos_.back().después = después;
        return;
    }
    if (pasos_.size() == Máximo)
        pasos_.erase(pasos_.begin());
    pasos_.push_back({antes, después});
}

std::optional<Vista::Estado> Historia::Saca(const Vista::Estado& actual) {
    Corta();
    if (pasos_.empty())
        return std::nullopt;
    Paso paso = pasos_.back();
    pasos_.pop_back();
    if (actual.PuntoX != paso.después.PuntoX)
        paso.antes.PuntoX = actual.PuntoX;
    return paso.antes;
}

} // namespace quiralto
