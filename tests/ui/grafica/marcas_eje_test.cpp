// Unit marks and coordinates: round, apart, and never two alike.

#include "ui/grafica/marcas_eje.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

namespace quiralto {
namespace {

std::vector<std::string> DevTextos(double mínimo, double máximo, double píxeles) {
    std::vector<std::string> textos;
    for (const Marca& marca : DevMarcas(mínimo, máximo, píxeles))
        textos.push_back(marca.texto);
    return textos;
}

using Textos = std::vector<std::string>;

TEST(MarcasEje, EstánEnValoresRedondos) {
    EXPECT_EQ(DevTextos(-10, 10, 700),
              (Textos{"-10", "-8", "-6", "-4", "-2", "0", "2", "4", "6", "8", "10"}));
    EXPECT_EQ(DevTextos(-1, 1, 400), (Textos{"-1", "-.5", "0", ".5", "1"}));
    EXPECT_EQ(DevTextos(0, 100, 500), (Textos{"0", "20", "40", "60", "80", "100"}));
    EXPECT_EQ(DevTextos(1000000.1, 1000000.13, 250),
              (Textos{"1000000.1", "1000000.11", "1000000.12", "1000000.13"}));
    EXPECT_EQ(DevTextos(0, 3e20, 300), (Textos{"0", "1E+20", "2E+20", "3E+20"}));
}

// 1, 2 and 5 lie up to 2.5 times apart, so 60 to 110 cannot always be met; it is never far off.
TEST(MarcasEje, EstánSeparadasYSonDistintasConCualquierZoom) {
    std::mt19937_64 azar(3);
    std::uniform_real_distribution<double> exponente(-290, 290);
    std::uniform_real_distribution<double> fracción(-1, 1);
    for (int i = 0; i < 20000; ++i) {
        const double ancho = std::pow(10, exponente(azar));
        // as far from 0 as a view that can be sampled lies
        const double mínimo = fracción(azar) * std::pow(10, 11 * std::fabs(fracción(azar))) * ancho;
        const double píxeles = 300 + 900 * std::fabs(fracción(azar));
        const double máximo = mínimo + ancho;
        const std::vector<Marca> marcas = DevMarcas(mínimo, máximo, píxeles);
        ASSERT_GE(marcas.size(), 2U) << mínimo << ' ' << máximo;
        std::set<std::string> textos;
        for (std::size_t k = 0; k < marcas.size(); ++k) {
            ASSERT_TRUE(textos.insert(marcas[k].texto).second)
                << marcas[k].texto << " from " << mínimo << " to " << máximo;
            if (k == 0)
                continue;
            const double separación =
                (marcas[k].valor - marcas[k - 1].valor) / (máximo - mínimo) * píxeles;
            ASSERT_GT(separación, 50) << mínimo << ' ' << máximo;
            ASSERT_LT(separación, 132) << mínimo << ' ' << máximo;
        }
    }
}

TEST(Coordenadas, TienenLasCifrasQueElZoomMerece) {
    const struct {
        double valor;
        double separación;
        const char* texto;
    } casos[] = {
        {1.23456789, 0.02, "1.23"},
        {1.23456789, 0.2, "1.2"},
        {-1.23456789, 0.00002, "-1.23457"},
        {123456.789, 20, "123460"},
        {0.001, 0.02, "0"},
        {-0.001, 0.02, "0"},
        {0, 0.02, "0"},
        {0.019, 0.02, ".02"},
        {1.23456e20, 1e18, "1.23E+20"},
        {1.23456e-20, 1e-22, "1.23E-20"},
        {9.999, 0.02, "10"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(TextoCoordenada(caso.valor, caso.separación), caso.texto);
}

} // namespace
} // namespace quiralto
