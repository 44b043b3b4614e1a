#include "engine/base/rechazo.h"

#include <string_view>

namespace quiralto {
namespace {

struct FilaMotivo {
    Motivo motivo;
    std::string_view texto;
    Fallo fallo = SinFallo;
    Icono icono = Icono::Exclamación;
};

// By motive, in the order of the enumeration.
constexpr FilaMotivo Motivos[] = {
    {Motivo::Callado, ""},

    {Motivo::SinFórmula, "No ha escrito ninguna función o valor numérico "},
    {Motivo::CarácterExtraño, "Error de sintáxis: '{0}'"},
    {Motivo::ParéntesisDesiguales, "Desequilibrio de paréntesis abiertos y cerrados"},
    {Motivo::FinalNoPermitido, "No está permitido terminar con: {0}"},
    {Motivo::ComienzoNoPermitido, "No está permitido comenzar con:{0}"},
    {Motivo::FaltaDeLógica, "Error de lógica en la expresión, verifique la sintaxis"},
    {Motivo::NúmeroFueraDeRango, "Un número de doble precisión está fuera del rango permitido",
     Desbordamiento},
    {Motivo::NúmeroIlegible,
     "Error inesperado en la función Sintaxis contacte con el proveedor del programa",
     ArgumentoInválido},
    {Motivo::FunciónDemasiadoLarga, "La función es demasiado larga"},

    {Motivo::NoEsEnteroLargo, "Se requiere un número en el rango de los enteros largos"},
    {Motivo::EsNegativo, "No se permiten valores negativos"},
    {Motivo::EsCero, "No está permitido el número cero"},
    {Motivo::NoEsMayor, "El primer número debe ser mayor que el segundo"},
    {Motivo::NoEsMenor, "El primer número debe ser menor que el segundo"},
    {Motivo::DatoConX, "Este dato no admite la variable X"},
    {Motivo::ArgumentoFueraDeRango,
     "El argumento dado a la función está fuera de rango, pruebe otro valor"},

    {Motivo::ArgumentoDeFunciónInválido,
     "El argumento de una función es invalido, la operación solicitada será cancelada",
     ArgumentoInválido},
    {Motivo::OperaciónDesbordada,
     "Se produjo un desbordamiento, la operación solicitada será cancelada", Desbordamiento},
    {Motivo::OperaciónEntreCero,
     "Se intentó dividir por cero, la operación solicitada será cancelada", DivisiónPorCero},
    {Motivo::NoEsRacional,
     "Se esperaba una función racional de la variable X \r\n"
     "Ejemplo :\r\n"
     "12*X^3+(1/3)*X^2-2",
     NoEsFunciónRacional},

    {Motivo::NoEsEcuaciónLineal,
     "Se ha hallado una expresión que no es una ecuación lineal o esta no tiene solución"},
    {Motivo::ÍndiceFueraDeRango, "El índice de una variable no está en el rango 1 a 256"},
    {Motivo::SinIgualdad, "Esta expresión carece del signo de igualdad"},
    {Motivo::IgualEnUnExtremo, "No se permite comenzar o terninar con el signo '='"},
    {Motivo::VariasIgualdades, "Sólo se permite un sólo signo igual"},

    {Motivo::UsoFunción, "Se esperaba una línea con la forma : f(x), en donde "
                         " f(x) es una función de la variable x.\r\n"
                         "Ejemplo : \r\n"
                         "(1/3)*X^2+LOG(X-3)+COS(X+11)-3"},
    {Motivo::UsoFunciónYPunto, "Se esperaba una línea con el formato: f(x),punto, en donde "
                               " el primer parámetro es una función de la variable x, "
                               "y el segundo, un valor de doble precisión, que indica "
                               "el punto donde se aplicará la operación solicitada.\r\n"
                               "Ejemplo : \r\n"
                               "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3"},
    {Motivo::UsoFunciónYExtremos,
     "Se esperaba una línea con el formato: f(x),extremo1,extremo2, en donde "
     " el primer parámetro es una función de la variable x, "
     " el segundo, un valor de doble precisión, que indica "
     "el punto inicial de aplicación de la operación solicitada, "
     "y el tercero el punto final.\r\n"
     "Ejemplo : \r\n"
     "(1/3)*X^2+LOG(X-3)+COS(X+11)-3,3,7"},
    {Motivo::NoEsDoblePrecisión, "Se esperaba un número de doble precisión"},
    {Motivo::ExtremosDesordenados,
     "Se esperaba que el extremo superior fuera mayor que el inferior"},
    {Motivo::NoEsNúmeroDelRango,
     "Error de sintaxis , se esperaba un número en el rango de los {0}"},
    {Motivo::NoEsUnNúmero, "Se esperaba 1 número en el rango de los {0}"},
    {Motivo::NoSonNúmeros, "Se esperaba una lista de {0} números, separados por comas,  ó "
                           "separados por al menos una línea  en el rango de los {1}"},
    {Motivo::UsoMultivariable, "Se esperaba una función multivariable del tipo "
                               "f(...,x,y,z,...,s), por ejemplo :(a+b)^2*(x-y)"},
    {Motivo::SobranLíneas, "Se esperaba unas sola línea de datos", SinFallo, Icono::Ninguno},
    {Motivo::UsoRacionales, "Se eperabán una lista de funciones racionales "
                            "separadas por comas, en la forma f(x),g(x),..., o bien "
                            "separadas una o más líneas una de otra."},
    {Motivo::UsoParesLagrange, "Se esperaban una lista con un número par de datos, en la forma "
                               "x1,y1,x2,y2,.....,xn,yn; ejemplo : \r\n"
                               "2,4,3,9,4,16,5,25"},
    {Motivo::FaltanParesLagrange, "Se esperaban por lo menos dos parejas de valores "
                                  " en la forma x1,y1,x2,y2,....; ejemplo : \r\n"
                                  "2,8,6,216"},
    {Motivo::UsoSistema, "Se requiere al menos una ecuación lineal, el formato de la "
                         "las incógnitas debe ser X(i), donde i es un valor entre 1 y 256 "
                         " por ejemplo :\r\n\r\n2*X(1)+X(2)=3\r\nX(1)-X(2)=-3/2"},
    {Motivo::PrimosDemasiadoSeparados,
     "La diferencia máxima permitida entre los valores es de 25000 unidades "
     "utilize diferencias más pequeñas y halle lo números en varias veces"},
};

constexpr bool EstánTodosEnOrden() {
    if (std::size(Motivos) != static_cast<std::size_t>(Motivo::Cantidad))
        return false;
    for (std::size_t i = 0; i < std::size(Motivos); ++i)
        if (Motivos[i].motivo != static_cast<Motivo>(i))
            return false;
    return true;
}
static_assert(EstánTodosEnOrden(), "each motive needs its row, in the order of the enumeration");

const FilaMotivo& Fila(const Rechazo& rechazo) {
    return Motivos[static_cast<std::size_t>(rechazo.motivo)];
}

} // namespace

std::string TextoRechazo(const Rechazo& rechazo) {
    const std::string_view plantilla = Fila(rechazo).texto;
    std::string texto;
    for (std::size_t i = 0; i < plantilla.size(); ++i) {
        const std::string_view resto = plantilla.substr(i);
        if (resto.starts_with("{0}") || resto.starts_with("{1}")) {
            texto += rechazo.argumentos.at(resto[1] == '0' ? 0 : 1);
            i += 2;
        } else {
            texto += plantilla[i];
        }
    }
    return texto;
}

void MuestraRechazo(Contexto& contexto, const Rechazo& rechazo) {
    const FilaMotivo& fila = Fila(rechazo);
    if (fila.fallo != SinFallo)
        contexto.ErrorCódigo = fila.fallo;
    if (!fila.texto.empty())
        contexto.mensajes.Muestra(fila.icono, TextoRechazo(rechazo));
}

} // namespace quiralto
