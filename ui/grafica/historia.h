// The windows that have been seen before, to go back to them.
#pragma once

#include "ui/grafica/vista.h"

#include <optional>
#include <vector>

namespace quiralto {

// What changes a window: changes of one gesture are one step back.
enum class Gesto { Suelto, Rueda, Arrastre, Vuelta };

class Historia {
public:
    // A change that went through; one that leaves the window alone, or goes back, is no step.
    void Anota(const Vista::Estado& antes, const Vista::Estado& después, Gesto gesto);

    // The gesture is at its end: the next one of its kind is another step.
    void Corta() { último_ = Gesto::Suelto; }

    // The view before the last step, which is taken out. The point X goes back with the window
    // where it has moved with it; one that was put somewhere since stays there.
    std::optional<Vista::Estado> Saca(const Vista::Estado& actual);
    bool EstáVacía() const { return pasos_.empty(); }

private:
    static constexpr std::size_t Máximo = 100;
    struct Paso {
        Vista::Estado antes;
        Vista::Estado después;
    };
    std::vector<Paso> pasos_;
    Gesto último_ = Gesto::Suelto;
};

} // namespace quiralto
