// Elimination, by equations made from their solutions.

#include "engine/sistemas/sistema_lineal.h"

#include "engine/sistemas/matriz_exacta.h"
#include "engine/sistemas/matriz_real.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

using Matriz = std::vector<std::vector<Coeficiente>>; // the constant last

std::vector<EcuaciónLineal> DevEcuaciones(const Matriz& matriz) {
    std::vector<EcuaciónLineal> ecuaciones;
    for (const auto& fila : matriz) {
        EcuaciónLineal& ecuación = ecuaciones.emplace_back();
        for (std::size_t j = 0; j + 1 < fila.size(); ++j)
            if (!fila[j].EsCero())
                ecuación.términos.push_back({static_cast<int>(j) + 1, fila[j]});
        ecuación.independiente = fila.back();
    }
    return ecuaciones;
}

// Rows with the solution 1, -2, 3, -4, ...
void PonConstantes(Matriz& matriz) {
    for (auto& fila : matriz) {
        Coeficiente suma;
        for (std::size_t j = 0; j < fila.size(); ++j)
            suma += fila[j] * Coeficiente((j % 2 == 0 ? 1 : -1) * static_cast<std::int64_t>(j + 1));
        fila.push_back(suma);
    }
}

TEST(SistemaLineal, EsExactoMientrasCabe) {
    // Hilbert's matrix, of which Doubles lose all digits from a dozen rows on.
    for (std::int64_t n = 1; n <= 12; ++n) {
        Matriz matriz;
        for (std::int64_t i = 0; i < n; ++i) {
            auto& fila = matriz.emplace_back();
            for (std::int64_t j = 0; j < n; ++j)
                fila.push_back(Coeficiente(1) / Coeficiente(i + j + 1) * 1000);
        }
        PonConstantes(matriz);
        Banco banco;
        banco.contexto.DígitosRedondeo = 15;
        const auto ecuaciones = DevEcuaciones(matriz);
        SistemaLineal sistema(banco.contexto, ecuaciones);
        sistema.Elimina();
        for (std::size_t j = 0; j < sistema.Incógnitas(); ++j) {
            const auto fila = sistema.EsLiderSln(j);
            ASSERT_TRUE(fila) << n;
            const Coeficiente x = sistema.Cociente(*fila, sistema.Incógnitas(), j);
            const auto esperada = (j % 2 == 0 ? 1 : -1) * static_cast<std::int64_t>(j + 1);
            EXPECT_TRUE(x.EsExacto()) << n;
            EXPECT_TRUE(x == Coeficiente(esperada)) << n << ", " << j;
        }
    }
}

TEST(SistemaLineal, PasadoElTamañoEmpiezaDeNuevoConDoubles) {
    constexpr std::uint32_t Semilla = 20302;
    std::mt19937 azar(Semilla);
    constexpr std::size_t N = 90;
    Matriz matriz;
    for (std::size_t i = 0; i < N; ++i) {
        auto& fila = matriz.emplace_back();
        for (std::size_t j = 0; j < N; ++j)
            fila.push_back(static_cast<int>(azar() % 19) - 9 + (i == j ? 100 : 0));
    }
    PonConstantes(matriz);
    Banco banco;
    const auto ecuaciones = DevEcuaciones(matriz);
    SistemaLineal sistema(banco.contexto, ecuaciones);
    sistema.Elimina();
    MatrizExacta exacta(banco.contexto, ecuaciones);
    bool cabe = exacta.Cabe();
    for (std::size_t c = 0; c < N && cabe; ++c)
        cabe = exacta.Trasforma(c, c);
    EXPECT_FALSE(cabe);
    for (std::size_t j = 0; j < N; ++j) {
        const Coeficiente x = sistema.Cociente(*sistema.EsLiderSln(j), N, j);
        EXPECT_FALSE(x.EsExacto());
        EXPECT_NEAR(x.ADouble(), (j % 2 == 0 ? 1 : -1) * static_cast<double>(j + 1), 1e-9)
            << "seed " << Semilla;
    }
}

TEST(SistemaLineal, MuchasEcuacionesSueltasCabenPorGrandesQueSean) {
    Matriz matriz(200, std::vector<Coeficiente>(200));
    for (std::size_t i = 0; i < matriz.size(); ++i)
        matriz[i][i] = Coeficiente(static_cast<std::int64_t>(1'000'003 + 2 * i));
    for (std::size_t i = 0; i < matriz.size(); ++i)
        matriz[i].emplace_back(1);
    Banco banco;
    const auto ecuaciones = DevEcuaciones(matriz);
    SistemaLineal sistema(banco.contexto, ecuaciones);
    sistema.Elimina();
    for (std::size_t j = 0; j < matriz.size(); ++j) {
        const Coeficiente x = sistema.Cociente(*sistema.EsLiderSln(j), matriz.size(), j);
        EXPECT_TRUE(x == Coeficiente(1) / matriz[j][j]) << j;
    }
}

TEST(SistemaLineal, LoQueRedondeaACeroNoEsPivoteNiContradicción) {
    Banco banco;
    banco.contexto.DígitosRedondeo = 2;
    // 3*X(1)+X(2)=1, X(1)+X(2)/3=.334: the second row leaves .334-1/3, which rounds to 0.
    const Matriz matriz = {{3, 1, 1}, {1, Coeficiente(1, 3), Coeficiente(334, 1000)}};
    const auto ecuaciones = DevEcuaciones(matriz);
    SistemaLineal sistema(banco.contexto, ecuaciones);
    sistema.Elimina();
    std::size_t fila = 0;
    EXPECT_TRUE(sistema.SistemaCompatibleSln(fila));
    EXPECT_EQ(sistema.EsLiderSln(0), std::optional<std::size_t>(0));
    EXPECT_EQ(sistema.EsLiderSln(1), std::nullopt);
    banco.contexto.DígitosRedondeo = 3;
    EXPECT_FALSE(sistema.SistemaCompatibleSln(fila));
    EXPECT_EQ(fila, 2U);
}

// Both eliminations of one system agree, whatever is zero in it, rank and all.
TEST(SistemaLineal, LasDosEliminacionesDicenLoMismo) {
    constexpr std::uint64_t Semilla = 20303;
    std::mt19937_64 azar(Semilla);
    for (int vez = 0; vez < 400; ++vez) {
        const std::size_t n = 1 + azar() % 6;
        const std::size_t filas = 1 + azar() % 7;
        Matriz matriz(filas, std::vector<Coeficiente>(n + 1));
        for (auto& fila : matriz)
            for (auto& elemento : fila)
                if (azar() % 3 != 0)
                    elemento = Coeficiente(static_cast<std::int64_t>(azar() % 9) - 4,
                                           static_cast<std::int64_t>(azar() % 4) + 1);
        if (filas > 1 && azar() % 2 == 0)
            matriz[filas - 1] = matriz[0];
        matriz[0][n - 1] = 1; // every unknown counts
        Banco banco;
        const auto ecuaciones = DevEcuaciones(matriz);
        MatrizReal real(banco.contexto, ecuaciones);
        MatrizExacta exacta(banco.contexto, ecuaciones);
        std::vector<bool> usadas(filas, false);
        for (std::size_t c = 0; c < n; ++c) {
            std::size_t pivote = 0;
            while (pivote < filas && (usadas[pivote] || exacta.EsNulo(pivote, c)))
                ++pivote;
            for (std::size_t f = 0; f < filas; ++f)
                ASSERT_EQ(real.EsNulo(f, c), exacta.EsNulo(f, c))
                    << "seed " << Semilla << ", " << vez;
            if (pivote == filas)
                continue;
            usadas[pivote] = true;
            ASSERT_TRUE(real.Trasforma(c, pivote));
            ASSERT_TRUE(exacta.Trasforma(c, pivote));
            for (std::size_t k = 0; k <= n; ++k)
                EXPECT_NEAR(real.Cociente(pivote, k, c).ADouble(),
                            exacta.Cociente(pivote, k, c).ADouble(), 1e-9)
                    << "seed " << Semilla << ", " << vez;
        }
    }
}

TEST(SistemaLineal, DesbordaConUnError) {
    Banco banco;
    const Matriz grande = {{1, Coeficiente::Inexacto(1e300), 1},
                           {Coeficiente::Inexacto(1e300), 1, 1}};
    const auto ecuaciones = DevEcuaciones(grande);
    SistemaLineal sistema(banco.contexto, ecuaciones);
    EXPECT_THROW(sistema.Elimina(), ErrorEjecución);
}

} // namespace
} // namespace quiralto
