#include "commands/datos_numeros.h"

namespace quiralto {

std::optional<std::vector<double>> CargaNúmeros(Contexto& contexto, Hoja& hoja, ClaseNúmeros clase,
                                                std::size_t cantidad) {
    const Forma forma{ClaseForma::Números, {}, clase, cantidad};
    return CargaDatos<DatosNúmeros>(contexto, hoja, forma);
}

} // namespace quiralto
