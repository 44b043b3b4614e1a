#include "engine/base/fallos.h"
#include "engine/numeros/primos.h"
#include "tests/criba.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <optional>
#include <pthread.h>
#include <random>

namespace quiralto {
namespace {

using Enteros = std::vector<std::int32_t>;
constexpr std::int32_t MáximoLargo = std::numeric_limits<std::int32_t>::max();

// The number of the run-time error that the work ends with, or 0.
template <typename Trabajo> int DevError(Trabajo trabajo) {
    try {
        trabajo();
        return 0;
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
}

TEST(Primos, LaTablaSeparaPrimosYCompuestos) {
    const Primos tabla = DevTablaDePrueba();
    for (const std::int32_t n : {2, 3, 5, 46337, 46349, 2147483629, MáximoLargo})
        EXPECT_TRUE(EsPrimoTabla(tabla, n)) << n;
    for (const std::int32_t n :
         {-7, -1, 0, 1, 4, 9, 25, 46337 * 46337, 46337 * 46339, 46340 * 46340, MáximoLargo - 1})
        EXPECT_FALSE(EsPrimoTabla(tabla, n)) << n;
}

TEST(Primos, CoincidenConEratóstenesYConMillerRabin) {
    const Primos tabla = DevTablaDePrueba();
    constexpr std::int32_t Hasta = 300000;
    const std::vector<bool> primo = CribaEratóstenes(Hasta);
    for (std::int32_t n = 0; n <= Hasta; ++n)
        ASSERT_EQ(EsPrimoTabla(tabla, n), primo[static_cast<std::size_t>(n)]) << n;
    std::mt19937 azar(52);
    std::uniform_int_distribution<std::int32_t> número(1, MáximoLargo);
    for (int i = 0; i < 20000; ++i) {
        const std::int32_t n = número(azar);
        ASSERT_EQ(EsPrimoTabla(tabla, n), EsPrimoMillerRabin(static_cast<std::uint32_t>(n))) << n;
    }
}

// The range one number after another; none where the table is too short.
std::optional<Enteros> DevPrimosUnoAUno(const Primos& tabla, std::int32_t desde,
                                        std::int32_t hasta) {
    Enteros primos;
    try {
        for (std::int64_t n = desde; n <= hasta; ++n)
            if (EsPrimoTabla(tabla, static_cast<std::int32_t>(n)))
                primos.push_back(static_cast<std::int32_t>(n));
    } catch (const ErrorEjecución&) {
        return std::nullopt;
    }
    return primos;
}

std::optional<Enteros> DevPrimosDeUnaVez(const Primos& tabla, std::int32_t desde,
                                         std::int32_t hasta) {
    try {
        return DevPrimosEntre(tabla, desde, hasta);
    } catch (const ErrorEjecución& error) {
        EXPECT_EQ(error.Número(), DivisiónPorCero);
        return std::nullopt;
    }
}

TEST(Primos, LaCribaDaLoMismoQueProbarCadaNúmero) {
    const Primos tabla = DevTablaDePrueba();
    const struct {
        std::int32_t desde;
        std::int32_t hasta;
    } casos[] = {
        {2, 2},
        {2, 3},
        {3, 3},
        {4, 4},
        {8, 10},
        {9, 9},
        {24, 28},
        {25, 25},
        {-10, 30},
        {0, 1},
        {7, 2},
        {2, 25002},
        {46300, 46400},
        {46337 * 46337 - 10, 46337 * 46337 + 10},
        {46337 * 46337, 46337 * 46337},
        {MáximoLargo - 1, MáximoLargo},
        {MáximoLargo, MáximoLargo},
        {2147458647, MáximoLargo},
    };
    for (const auto& [desde, hasta] : casos)
        EXPECT_EQ(DevPrimosDeUnaVez(tabla, desde, hasta), DevPrimosUnoAUno(tabla, desde, hasta))
            << desde << " a " << hasta;
}

TEST(Primos, LaCribaDaLoMismoEnTramosAlAzarYConTablasCortas) {
    std::mt19937 azar(521);
    for (const std::size_t leídos : {0U, 1U, 2U, 3U, 25U, 1000U, 4791U, 4792U}) {
        const Primos tabla = DevTablaDePrueba(leídos);
        for (int i = 0; i < 400; ++i) {
            // Small and large numbers alike, and ranges of every length.
            const int bits = std::uniform_int_distribution<int>(2, 30)(azar);
            const std::int32_t desde =
                std::uniform_int_distribution<std::int32_t>(2, 1 << bits)(azar);
            const int ancho = 1 << std::uniform_int_distribution<int>(0, 9)(azar);
            const std::int32_t hasta = desde + std::uniform_int_distribution<int>(0, ancho)(azar);
            ASSERT_EQ(DevPrimosDeUnaVez(tabla, desde, hasta), DevPrimosUnoAUno(tabla, desde, hasta))
                << leídos << " primos, " << desde << " a " << hasta;
        }
    }
}

TEST(Primos, UnaTablaCortaEsDivisiónPorCeroDondeHaceFalta) {
    const Primos vacía{};
    EXPECT_EQ(DevError([&] { EsPrimoTabla(vacía, 2); }), DivisiónPorCero);
    EXPECT_EQ(DevError([&] { DevPrimosEntre(vacía, 2, 2); }), DivisiónPorCero);
    EXPECT_EQ(DevError([&] { FactorizaConTabla(vacía, 360); }), DivisiónPorCero);
    EXPECT_EQ(DevError([&] { DevDivisores(vacía, 360); }), DivisiónPorCero);
    const Primos corta = DevTablaDePrueba(3); // 2, 3, 5
    EXPECT_EQ(DevPrimosEntre(corta, 20, 24), Enteros{23});
    EXPECT_EQ(DevError([&] { DevPrimosEntre(corta, 20, 29); }), DivisiónPorCero);
    EXPECT_EQ(DevDivisores(corta, 25), (Enteros{1, 5, 25}));
    EXPECT_EQ(DevError([&] { FactorizaConTabla(corta, 7); }), DivisiónPorCero);
    EXPECT_EQ(DevError([&] { FactorizaConTabla(corta, 49); }), DivisiónPorCero);
}

TEST(Factores, DescomponeLosCasosConocidos) {
    using Factores = std::vector<FactorPrimo>;
    const Primos tabla = DevTablaDePrueba();
    const struct {
        std::int32_t n;
        Factores factores;
    } casos[] = {
        {1, {}},
        {2, {{2, 1}}},
        {360, {{2, 3}, {3, 2}, {5, 1}}},
        {1 << 30, {{2, 30}}},
        {46337 * 46337, {{46337, 2}}},
        {2 * 1073741789, {{2, 1}, {1073741789, 1}}},
        {MáximoLargo, {{MáximoLargo, 1}}},
        {223092870, {{2, 1}, {3, 1}, {5, 1}, {7, 1}, {11, 1}, {13, 1}, {17, 1}, {19, 1}, {23, 1}}},
        {2095133040, {{2, 4}, {3, 4}, {5, 1}, {7, 1}, {11, 1}, {13, 1}, {17, 1}, {19, 1}}},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(FactorizaConTabla(tabla, caso.n), caso.factores) << caso.n;
    for (const std::int32_t n : {0, -1, -360, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(DevError([&] { FactorizaConTabla(tabla, n); }), ArgumentoInválido) << n;
}

TEST(Factores, SonPrimosCrecientesYSuProductoEsElNúmero) {
    const Primos tabla = DevTablaDePrueba();
    std::mt19937 azar(53);
    for (int i = 0; i < 20000; ++i) {
        const int bits = std::uniform_int_distribution<int>(1, 30)(azar);
        const std::int32_t n = std::uniform_int_distribution<std::int32_t>(
            1, i < 10000 ? MáximoLargo : 1 << bits)(azar);
        std::int64_t producto = 1;
        std::int32_t anterior = 1;
        for (const auto& [primo, exponente] : FactorizaConTabla(tabla, n)) {
            ASSERT_GT(primo, anterior) << n;
            ASSERT_GE(exponente, 1) << n;
            ASSERT_TRUE(EsPrimoMillerRabin(static_cast<std::uint32_t>(primo))) << n;
            anterior = primo;
            for (int k = 0; k < exponente; ++k)
                producto *= primo;
        }
        ASSERT_EQ(producto, n);
    }
}

// The walk through the whole table, entry by entry.
std::optional<std::vector<FactorPrimo>> FactorizaPasoAPaso(const Primos& tabla, std::int32_t n) {
    std::vector<FactorPrimo> factores;
    for (const std::int32_t p : tabla) {
        if (n == 1)
            break;
        if (p == 0)
            return std::nullopt;
        int exponente = 0;
        for (; n % p == 0; n /= p)
            ++exponente;
        if (exponente > 0)
            factores.push_back({p, exponente});
    }
    if (n != 1)
        factores.push_back({n, 1});
    return factores;
}

TEST(Factores, SonLosDeRecorrerTodaLaTablaTambiénSiEsCorta) {
    std::mt19937 azar(531);
    for (const std::size_t leídos : {0U, 1U, 2U, 3U, 25U, 1000U, 4791U, 4792U}) {
        const Primos tabla = DevTablaDePrueba(leídos);
        for (int i = 0; i < 2000; ++i) {
            const int bits = std::uniform_int_distribution<int>(1, 30)(azar);
            const std::int32_t n = std::uniform_int_distribution<std::int32_t>(1, 1 << bits)(azar);
            std::optional<std::vector<FactorPrimo>> factores;
            if (DevError([&] { factores = FactorizaConTabla(tabla, n); }) != 0)
                factores.reset();
            ASSERT_EQ(factores, FactorizaPasoAPaso(tabla, n)) << leídos << " primos, " << n;
        }
    }
}

TEST(Divisores, SonLosQueDividen) {
    const Primos tabla = DevTablaDePrueba();
    for (std::int32_t n = 1; n <= 3000; ++n) {
        Enteros divisores;
        for (std::int32_t d = 1; d <= n; ++d)
            if (n % d == 0)
                divisores.push_back(d);
        ASSERT_EQ(DevDivisores(tabla, n), divisores) << n;
    }
}

TEST(Divisores, SonTantosComoDiceElProductoDeExponentes) {
    const Primos tabla = DevTablaDePrueba();
    const struct {
        std::int32_t n;
        std::size_t cuántos;
    } casos[] = {{2095133040, 1600}, {MáximoLargo, 2}, {1 << 30, 31}, {46337 * 46337, 3}};
    for (const auto& [n, cuántos] : casos) {
        const Enteros divisores = DevDivisores(tabla, n);
        EXPECT_EQ(divisores.size(), cuántos) << n;
        EXPECT_EQ(divisores.front(), 1) << n;
        EXPECT_EQ(divisores.back(), n) << n;
        for (std::size_t i = 0; i < divisores.size(); ++i) {
            ASSERT_EQ(n % divisores[i], 0) << n;
            // The i-th from below and the i-th from above make n.
            ASSERT_EQ(n / divisores[i], divisores[divisores.size() - 1 - i]) << n;
            ASSERT_TRUE(i == 0 || divisores[i - 1] < divisores[i]) << n;
        }
    }
}

TEST(OrdenaEnteros, OrdenaCualquierLista) {
    std::mt19937 azar(54);
    std::vector<Enteros> listas = {
        {}, {1}, {2, 1}, {MáximoLargo, std::numeric_limits<std::int32_t>::min(), 0}};
    for (const std::size_t longitud : {3U, 10U, 1000U, 1001U, 200000U}) {
        for (const std::int32_t máximo : {0, 1, 10, MáximoLargo}) {
            Enteros lista(longitud);
            for (std::int32_t& entero : lista)
                entero = std::uniform_int_distribution<std::int32_t>(-máximo, máximo)(azar);
            listas.push_back(lista);
        }
        Enteros creciente(longitud);
        std::iota(creciente.begin(), creciente.end(), -5);
        listas.push_back(creciente);
        listas.emplace_back(creciente.rbegin(), creciente.rend());
    }
    for (Enteros& lista : listas) {
        Enteros ordenada = lista;
        std::ranges::sort(ordenada);
        OrdenaEnteros(lista);
        ASSERT_EQ(lista, ordenada);
    }
}

TEST(OrdenaEnteros, LaListaMásDesfavorableNoAgotaLaPila) {
    // The middle element is always the greatest: each step splits off no more than two.
    constexpr std::int32_t Mitad = 10000;
    Enteros lista;
    for (std::int32_t i = 0; i < Mitad; ++i)
        lista.push_back(i);
    for (std::int32_t i = Mitad; i > 0; --i)
        lista.push_back(i);
    Enteros ordenada = lista;
    std::ranges::sort(ordenada);
    // On a stack that has no room for as many calls.
    pthread_attr_t atributos;
    ASSERT_EQ(pthread_attr_init(&atributos), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&atributos, std::size_t{256} << 10), 0);
    pthread_t hilo{};
    const auto ordena = [](void* datos) -> void* {
        OrdenaEnteros(*static_cast<Enteros*>(datos));
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&hilo, &atributos, ordena, &lista), 0);
    ASSERT_EQ(pthread_join(hilo, nullptr), 0);
    pthread_attr_destroy(&atributos);
    EXPECT_EQ(lista, ordenada);
}

} // namespace
} // namespace quiralto
