#include "commands/numeros.h"

#include "commands/datos_funcion.h"
#include "commands/formas.h"
#include "engine/evaluacion/validadores.h"
#include "engine/numeros/fraccion_continua.h"
#include "engine/numeros/mcd_decimales.h"
#include "engine/numeros/numero.h"
#include "engine/numeros/primos.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace quiralto {
namespace {

constexpr std::int64_t MáximaDiferencia = 25000; // of the ends of a range of primes

// The number as an integer, for the classes of integers of CargaNúmeros.
std::int64_t DevEntero(double número) {
    return static_cast<std::int64_t>(std::nearbyint(número));
}

// Joins all the numbers of the worksheet by one operation of two.
template <typename Número, typename Operación>
std::optional<Número> ReduceNúmeros(Contexto& contexto, Hoja& hoja, Número (*convierte)(double),
                                    Operación operación) {
    const auto números = CargaDatos<DatosNúmeros>(contexto, hoja, FormaEnteros);
    if (!números)
        return std::nullopt;
    Número resultado = convierte(números->front());
    for (const double número : std::span(*números).subspan(1)) {
        contexto.Vigila();
        resultado = operación(resultado, convierte(número));
    }
    return resultado;
}

double TalCual(double número) {
    return número;
}

// Neither 0 nor negative; false: a message has been shown. The class of the ends of a range begins
// at 2, but its bounds are not what the search for primes relies on.
bool EsPositivo(Contexto& contexto, std::int64_t entero) {
    const std::string texto = std::to_string(entero);
    return NoCero(contexto, texto) && NoNegativo(contexto, texto);
}

// The absolute value of the one integer on the worksheet, which may not be 0. Fault: run-time error
// 6 for -2147483648.
std::optional<std::int32_t> CargaEnteroPositivo(Contexto& contexto, Hoja& hoja) {
    const auto números = CargaDatos<DatosNúmeros>(contexto, hoja, FormaEntero);
    if (!números)
        return std::nullopt;
    const std::int64_t entero = DevEntero(números->front());
    if (!NoCero(contexto, std::to_string(entero)))
        return std::nullopt;
    const std::int64_t absoluto = std::abs(entero);
    if (absoluto > std::numeric_limits<std::int32_t>::max())
        throw ErrorEjecución(Desbordamiento);
    return static_cast<std::int32_t>(absoluto);
}

void BuscaDivisores(Contexto& contexto, Hoja& hoja, std::int32_t n) {
    const std::vector<std::int32_t> divisores = DevDivisores(contexto.TablaPrimos, n);
    hoja.texto += "\r\n\r\n'Se han hallado  " + std::to_string(divisores.size()) +
                  " divisores.\r\n'Divisores hallados :\r\n";
    for (const std::int32_t divisor : divisores) {
        contexto.Vigila();
        ((hoja.texto += '\'') += std::to_string(divisor)) += "\r\n";
    }
    hoja.texto += "\r\n'(Sólo se muestran divisores positivos.)";
}

void DescomposiciónPrimos(Contexto& contexto, Hoja& hoja, std::int32_t n) {
    const std::vector<FactorPrimo> factores = FactorizaConTabla(contexto.TablaPrimos, n);
    hoja.texto += "\r\n\r\n'Encontrados  " + std::to_string(factores.size()) +
                  " factores primos, descomposición : \r\n'";
    std::string_view separador;
    for (const auto& [primo, exponente] : factores) {
        (hoja.texto += separador) += '(' + std::to_string(primo);
        if (exponente > 1)
            hoja.texto += '^' + std::to_string(exponente);
        hoja.texto += ')';
        separador = "*";
    }
    hoja.texto += "\r\n\r\n'(Sólo se muestran los factores primos positivos.)";
}

void BuscaPrimos(Contexto& contexto, Hoja& hoja, std::int32_t desde, std::int32_t hasta) {
    const std::vector<std::int32_t> primos = DevPrimosEntre(contexto.TablaPrimos, desde, hasta);
    hoja.texto += "\r\n\r\n'Hallados  " + std::to_string(primos.size()) + " primos :\r\n";
    for (const std::int32_t primo : primos) {
        contexto.Vigila();
        ((hoja.texto += "' ") += std::to_string(primo)) += "\r\n";
    }
    hoja.texto += "\r\n'(Sólo se muestran los primos positivos)";
}

} // namespace

void ResolverMcdNúmeros(Contexto& contexto, Hoja& hoja) {
    if (const auto mcd = ReduceNúmeros(contexto, hoja, TalCual, DevMCDReales))
        hoja.texto += "\r\n\r\n'Máximo común divisor hallado :" + TextoNúmero(*mcd);
}

void ResolverMcmNúmeros(Contexto& contexto, Hoja& hoja) {
    // Exact all along, and rounded where it is written.
    if (const auto mcm = ReduceNúmeros(contexto, hoja, Decimal::DesdeDouble, DevMCMReales))
        hoja.texto += "\r\n\r\n'Mínimo común múltiplo hallado :" + TextoNúmero(mcm->ADouble());
}

void ResolverDivisoresNúmero(Contexto& contexto, Hoja& hoja) {
    if (const auto n = CargaEnteroPositivo(contexto, hoja))
        BuscaDivisores(contexto, hoja, *n);
}

void ResolverDescomposiciónEnFactoresPrimos(Contexto& contexto, Hoja& hoja) {
    if (const auto n = CargaEnteroPositivo(contexto, hoja))
        DescomposiciónPrimos(contexto, hoja, *n);
}

void ResolverNúmerosPrimos(Contexto& contexto, Hoja& hoja) {
    const auto números = CargaDatos<DatosNúmeros>(contexto, hoja, FormaDosEnteros);
    if (!números || !std::ranges::all_of(*números, [&](double número) {
            return EsPositivo(contexto, DevEntero(número));
        }))
        return;
    const auto [desde, hasta] = std::minmax({DevEntero(números->at(0)), DevEntero(números->at(1))});
    if (hasta - desde > MáximaDiferencia) {
        return MuestraRechazo(contexto, {.motivo = Motivo::PrimosDemasiadoSeparados});
    }
    BuscaPrimos(contexto, hoja, static_cast<std::int32_t>(desde), static_cast<std::int32_t>(hasta));
}

void ResoverConvertirCoeficientesFracciónContinua(Contexto& contexto, Hoja& hoja) {
    if (const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::Función))
        hoja.texto += "\r\n'Expresión convertida : \r\n" + ConvFrCont(contexto, datos->función);
}

} // namespace quiralto
