#include "engine/base/fallos.h"

#include <cmath>

namespace quiralto {

std::string_view DescripciónError(int número) {
    switch (número) {
    case ArgumentoInválido:
        return "Argumento o llamada a procedimiento no válida";
    case Desbordamiento:
        return "Desbordamiento";
    case MemoriaInsuficiente:
        return "Memoria insuficiente";
    case DivisiónPorCero:
        return "División por cero";
    case EspacioDeCadenasInsuficiente:
        return "Espacio de cadenas insuficiente";
    default:
        return "Error definido por la aplicación";
    }
}

const char* ErrorEjecución::what() const noexcept {
    return DescripciónError(número_).data(); // every description is a literal
}

double CompruebaFinito(double valor) {
    if (!std::isfinite(valor))
        throw ErrorEjecución(std::isnan(valor) ? ArgumentoInválido : Desbordamiento);
    return valor;
}

} // namespace quiralto
