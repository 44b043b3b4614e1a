#include "engine/polinomios/interpola.h"

#include "engine/numeros/mcd_decimales.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

// The coefficient of X^k for each k by Lagrange's own sum, over one huge denominator. The places
// are whole numbers.
std::vector<double> DevPorLagrange(const std::vector<double>& puntos) {
    const std::size_t n = puntos.size() / 2;
    std::vector<Entero> pesos(n, 1);
    Entero denominador = 1;
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            if (j != i)
                pesos[i] *= Entero::DesdeDouble(puntos[2 * i] - puntos[2 * j]);
    for (const Entero& peso : pesos)
        denominador *= peso;
    std::vector<Entero> sumas(n);
    for (std::size_t i = 0; i < n; ++i) {
        std::vector<Entero> producto{1};
        for (std::size_t j = 0; j < n; ++j) {
            if (j == i)
                continue;
            producto.insert(producto.begin(), 0);
            for (std::size_t k = 0; k + 1 < producto.size(); ++k)
                producto[k] -= Entero::DesdeDouble(puntos[2 * j]) * producto[k + 1];
        }
        const Entero factor =
            Entero::DesdeDouble(puntos[2 * i + 1]) * Entero::Divide(denominador, pesos[i]).cociente;
        for (std::size_t k = 0; k < n; ++k)
            sumas[k] += factor * producto[k];
    }
    std::vector<double> coeficientes;
    for (const Entero& suma : sumas)
        coeficientes.push_back(DevCociente(suma, denominador));
    return coeficientes;
}

TEST(Interpola, DaLosCoeficientesDeLagrangeEnLosDosCaminos) {
    constexpr std::uint64_t Semilla = 20310;
    std::mt19937_64 azar(Semilla);
    Banco banco;
    std::size_t exactos = 0;
    std::size_t reales = 0;
    for (int vez = 0; vez < 60; ++vez) {
        const std::size_t n = 1 + azar() % 24;
        const auto rango = static_cast<std::int64_t>(vez % 2 == 0 ? 200 : 1'000'000'000);
        std::vector<double> puntos;
        while (puntos.size() < 2 * n) {
            const auto x = static_cast<double>(static_cast<std::int64_t>(azar() >> 2) % rango);
            bool está = false;
            for (std::size_t i = 0; i < puntos.size(); i += 2)
                está = está || puntos[i] == x - static_cast<double>(rango / 2);
            if (está)
                continue;
            puntos.push_back(x - static_cast<double>(rango / 2));
            puntos.push_back(static_cast<double>(azar() % 2000) - 1000);
        }
        const Polinomio p = DevPolinomioPorPuntos(banco.contexto, puntos);
        ++(SiExacto(p) != nullptr ? exactos : reales);
        const std::vector<double> esperados = DevPorLagrange(puntos);
        std::vector<double> hallados(n);
        for (const auto& término : AReal(p))
            hallados.at(static_cast<std::size_t>(término.exponente)) = término.coeficiente;
        for (std::size_t k = 0; k < n; ++k)
            EXPECT_NEAR(hallados[k], esperados[k], 1e-30 + std::fabs(esperados[k]) * 0x1p-52)
                << "seed " << Semilla << ", " << vez << ", X^" << k;
    }
    EXPECT_GT(exactos, 10U);
    EXPECT_GT(reales, 10U);
}

TEST(Interpola, LosDecimalesSonLosEscritos) {
    Banco banco;
    const double puntos[] = {.1, .3, .2, .5, -.7, -1.3};
    EXPECT_EQ(EscribePolinomio(banco.contexto, DevPolinomioPorPuntos(banco.contexto, puntos)),
              "2*X+.1");
}

TEST(Interpola, RechazaLugaresIgualesYDemasiadosPuntos) {
    Banco banco;
    const auto error = [&](const std::vector<double>& puntos) {
        try {
            DevPolinomioPorPuntos(banco.contexto, puntos);
        } catch (const ErrorEjecución& fallo) {
            return fallo.Número();
        }
        return 0;
    };
    EXPECT_EQ(error({1, 2, 1, 3}), DivisiónPorCero);
    EXPECT_EQ(error({.1, 2, 5, 5, .1, 2}), DivisiónPorCero);
    std::vector<double> puntos;
    for (std::size_t i = 0; i < MáximosPuntosInterpolación; ++i)
        puntos.insert(puntos.end(), {static_cast<double>(i), 7});
    EXPECT_EQ(error(puntos), 0);
    puntos.insert(puntos.end(), {-1, 7});
    EXPECT_EQ(error(puntos), Desbordamiento);
}

} // namespace
} // namespace quiralto
