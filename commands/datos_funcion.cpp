#include "commands/datos_funcion.h"

namespace quiralto {

std::optional<DatosFunción> CargaDatosFunción(Contexto& contexto, Hoja& hoja, TipoDatos tipo) {
    const Forma& forma = tipo == TipoDatos::Función         ? FormaFunción
                         : tipo == TipoDatos::FunciónYPunto ? FormaFunciónYPunto
                                                            : FormaFunciónYExtremos;
    return CargaDatos<DatosFunción>(contexto, hoja, forma);
}

} // namespace quiralto
