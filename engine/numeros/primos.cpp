#include "engine/numeros/primos.h"

#include "engine/base/fallos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

std::uint32_t DevRaízEntera(std::uint32_t n) {
    return static_cast<std::uint32_t>(std::sqrt(static_cast<double>(n)));
}

// How many entries the table has before its first 0.
std::size_t DevCantidadLeída(const Primos& tabla) {
    return static_cast<std::size_t>(std::ranges::find(tabla, 0) - tabla.begin());
}

// The odd numbers primero, primero + 2, ... as flags: 1 until a factor is found.
using Criba = std::vector<unsigned char>;

// Clears the multiples of p, a prime other than 2, from its square on.
void TachaMúltiplos(Criba& criba, std::uint32_t primero, std::uint32_t p) {
    const std::uint32_t resto = primero % p;
    std::size_t i = 0;
    if (p * p >= primero)
        i = (p * p - primero) / 2;
    else if (resto % 2 == 1)
        i = (p - resto) / 2;
    else if (resto != 0)
        i = p - resto / 2; // the next multiple is even
    for (; i < criba.size(); i += p)
        criba[i] = 0;
}

// Sieves the odd numbers from `primero`, at least 3, to `hasta`.
Criba CribaImpares(const Primos& tabla, std::uint32_t primero, std::uint32_t hasta) {
    Criba criba(primero > hasta ? 0 : (hasta - primero) / 2 + 1, 1);
    const std::uint32_t raíz = DevRaízEntera(hasta);
    const std::size_t leídos = DevCantidadLeída(tabla);
    for (std::size_t k = 1; k < leídos; ++k) {
        const auto p = static_cast<std::uint32_t>(tabla[k]);
        if (p > raíz)
            return criba;
        TachaMúltiplos(criba, primero, p);
    }
    if (leídos == CantidadPrimos)
        return criba;
    // The table was too short for whatever is left from the square of its last prime on.
    const auto último = static_cast<std::uint32_t>(tabla[leídos - 1]);
    for (std::size_t i = 0; i < criba.size(); ++i)
        if (criba[i] != 0 && último <= DevRaízEntera(primero + 2 * static_cast<std::uint32_t>(i)))
            throw ErrorEjecución(DivisiónPorCero);
    return criba;
}

} // namespace

Primos DevPrimerosPrimos() {
    constexpr std::size_t Último = 46337;
    std::array<bool, Último + 1> compuesto{};
    Primos primos{};
    std::size_t cantidad = 0;
    for (std::size_t n = 2; n <= Último; ++n) {
        if (compuesto[n])
            continue;
        primos[cantidad++] = static_cast<std::int32_t>(n);
        for (std::size_t múltiplo = n * n; múltiplo <= Último; múltiplo += n)
            compuesto[múltiplo] = true;
    }
    return primos;
}

bool EsPrimoTabla(const Primos& tabla, std::int32_t n) {
    return !DevPrimosEntre(tabla, n, n).empty();
}

std::vector<std::int32_t> DevPrimosEntre(const Primos& tabla, std::int32_t desde,
                                         std::int32_t hasta) {
    std::vector<std::int32_t> primos;
    if (hasta < 2 || hasta < desde)
        return primos;
    if (tabla[0] == 0)
        throw ErrorEjecución(DivisiónPorCero);
    const std::int32_t primero = std::max(desde, 3) | 1;
    const Criba criba =
        CribaImpares(tabla, static_cast<std::uint32_t>(primero), static_cast<std::uint32_t>(hasta));
    // One place more than there are, so that the loop may write first and count afterwards.
    const std::size_t impares = std::accumulate(criba.begin(), criba.end(), std::size_t{0});
    std::size_t k = desde <= 2 ? 1 : 0;
    primos.resize(k + impares + 1);
    primos[0] = 2;
    for (std::size_t i = 0; i < criba.size(); ++i) {
        primos[k] = primero + 2 * static_cast<std::int32_t>(i);
        k += criba[i];
    }
    primos.resize(k);
    return primos;
}

std::vector<FactorPrimo> FactorizaConTabla(const Primos& tabla, std::int32_t n) {
    if (n < 1)
        throw ErrorEjecución(ArgumentoInválido);
    std::vector<FactorPrimo> factores;
    auto resto = static_cast<std::uint32_t>(n);
    for (const std::int32_t entrada : tabla) {
        if (resto == 1)
            return factores;
        const auto p = static_cast<std::uint32_t>(entrada);
        if (p == 0)
            throw ErrorEjecución(DivisiónPorCero);
        if (p > resto / p) // what is left is a prime
            break;
        int exponente = 0;
        for (; resto % p == 0; resto /= p)
            ++exponente;
        if (exponente > 0)
            factores.push_back({entrada, exponente});
    }
    if (resto == 1)
        return factores;
    // A table that was cut short answers for no prime that it does not hold.
    const std::size_t leídos = DevCantidadLeída(tabla);
    if (leídos < CantidadPrimos && resto > static_cast<std::uint32_t>(tabla[leídos - 1]))
        throw ErrorEjecución(DivisiónPorCero);
    factores.push_back({static_cast<std::int32_t>(resto), 1});
    return factores;
}

std::vector<std::int32_t> DevDivisores(const Primos& tabla, std::int32_t n) {
    std::vector<std::int32_t> divisores{1};
    for (const auto& [primo, exponente] : FactorizaConTabla(tabla, n)) {
        const std::size_t sinPrimo = divisores.size();
        divisores.reserve(sinPrimo * static_cast<std::size_t>(exponente + 1));
        // Each power from the products with the one below it.
        for (std::size_t i = 0; i < sinPrimo * static_cast<std::size_t>(exponente); ++i)
            divisores.push_back(divisores[i] * primo);
    }
    OrdenaEnteros(divisores);
    return divisores;
}

void OrdenaEnteros(std::span<std::int32_t> lista) {
    while (lista.size() > 1) {
        const std::int32_t pivote = lista[lista.size() / 2];
        std::ptrdiff_t i = 0;
        auto j = std::ssize(lista) - 1;
        while (i <= j) {
            while (lista[static_cast<std::size_t>(i)] < pivote)
                ++i;
            while (lista[static_cast<std::size_t>(j)] > pivote)
                --j;
            if (i <= j)
                std::swap(lista[static_cast<std::size_t>(i++)],
                          lista[static_cast<std::size_t>(j--)]);
        }
        // The longer part goes on in this loop, so that the recursion stays shallow.
        std::span<std::int32_t> menores = lista.first(static_cast<std::size_t>(j + 1));
        std::span<std::int32_t> mayores = lista.subspan(static_cast<std::size_t>(i));
        if (menores.size() > mayores.size())
            std::swap(menores, mayores);
        OrdenaEnteros(menores);
        lista = mayores;
    }
}

} // namespace quiralto
