#include "engine/numeros/campo_primo.h"

namespace quiralto {
CampoPrimo::CampoPrimo(std::uint64_t primo) : primo_(primo) {
    // Newton's iteration doubles the correct bits, beginning with three.
    std::uint64_t inverso = primo;
    for (int bits = 3; bits < 64; bits *= 2)
        inverso *= 2 - primo * inverso;
    inverso_ = 0 - inverso;
    uno_ = static_cast<std::uint64_t>((Doble{1} << 64) % primo);
    cuadrado_ = static_cast<std::uint64_t>(Doble{uno_} * uno_ % primo);
}

CampoPrimo::Resto CampoPrimo::Potencia(Resto base, std::uint64_t exponente) const {
    Resto potencia = uno_;
    for (; exponente > 0; exponente >>= 1) {
        if ((exponente & 1) != 0)
            potencia = Producto(potencia, base);
        base = Producto(base, base);
    }
    return potencia;
}

} // namespace quiralto
