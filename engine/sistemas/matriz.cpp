#include "engine/sistemas/matriz.h"

#include <algorithm>

namespace quiralto {

std::size_t DevIncógnitas(std::span<const EcuaciónLineal> ecuaciones) {
    int mayor = 0;
    for (const EcuaciónLineal& ecuación : ecuaciones)
        for (const TérminoSln& término : ecuación.términos)
            mayor = std::max(mayor, término.índice);
    return static_cast<std::size_t>(mayor);
}

} // namespace quiralto
