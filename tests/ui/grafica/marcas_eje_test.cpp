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
    for (const Marca& marca : DevMarcas(mínimo, máximo, píxeles).mayores)
        textos.push_back(marca.texto);
    return textos;
}

using Textos = std::vector<std::string>;

TEST(MarcasEje, EstánEnValoresRedondos) {
    EXPECT_EQ(DevTextos(-10, 10, 700),
              (Textos{"−10", "−8", "−6", "−4", "−2", "0", "2", "4", "6", "8", "10"}));
    EXPECT_EQ(DevTextos(-1, 1, 500),
              (Textos{"−1", "−0.8", "−0.6", "−0.4", "−0.2", "0", "0.2", "0.4", "0.6", "0.8", "1"}));
    EXPECT_EQ(DevTextos(0, 100, 700),
              (Textos{"0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"}));
    EXPECT_EQ(DevTextos(-10, 10, 200),
              (Textos{"−10", "−8", "−6", "−4", "−2", "0", "2", "4", "6", "8", "10"}));
    EXPECT_EQ(DevTextos(1000000.1, 1000000.13, 250),
              (Textos{"1000000.1", "1000000.105", "1000000.11", "1000000.115", "1000000.12",
                      "1000000.125", "1000000.13"}));
}

// One form along the axis.
TEST(MarcasEje, LosTextosSonCortosEnVentanasEnormesYDiminutas) {
    EXPECT_EQ(DevTextos(0, 3e20, 600),
              (Textos{"0", "5E19", "1E20", "1.5E20", "2E20", "2.5E20", "3E20"}));
    EXPECT_EQ(DevTextos(-1e13, 1e13, 800), (Textos{"−1E13", "−8E12", "−6E12", "−4E12", "−2E12", "0",
                                                   "2E12", "4E12", "6E12", "8E12", "1E13"}));
    EXPECT_EQ(DevTextos(0, 5e-8, 500), (Textos{"0", "5E−9", "1E−8", "1.5E−8", "2E−8", "2.5E−8",
                                               "3E−8", "3.5E−8", "4E−8", "4.5E−8", "5E−8"}));
    EXPECT_EQ(DevTextos(-5e-5, 5e-5, 700), (Textos{"−5E−5", "−4E−5", "−3E−5", "−2E−5", "−1E−5", "0",
                                                   "1E−5", "2E−5", "3E−5", "4E−5", "5E−5"}));
    EXPECT_EQ(DevTextos(0, 1000000, 300),
              (Textos{"0", "100000", "200000", "300000", "400000", "500000", "600000", "700000",
                      "800000", "900000", "1000000"}));
    EXPECT_EQ(DevTextos(0, 0.01, 600), (Textos{"0", "0.001", "0.002", "0.003", "0.004", "0.005",
                                               "0.006", "0.007", "0.008", "0.009", "0.01"}));
}

TEST(MarcasEje, LasLíneasFinasPartenElPasoEnCuatroOCinco) {
    const struct {
        double máximo;
        double paso;
        int partes;
    } casos[] = {{10, 1, 5}, {20, 2, 4}, {50, 5, 5}};
    for (const auto& caso : casos) {
        const MarcasEje marcas = DevMarcas(0, caso.máximo, 800);
        ASSERT_EQ(marcas.mayores.size(), 11U);
        EXPECT_EQ(marcas.mayores[1].valor, caso.paso);
        ASSERT_EQ(marcas.menores.size(), static_cast<std::size_t>(10 * caso.partes + 1));
        EXPECT_DOUBLE_EQ(marcas.menores[1], caso.paso / caso.partes);
    }
}

// A mark on the very end of the view is in it, and one beyond it is not, however the quotients of
// range and step are rounded (0.3/0.1 is less than 3).
TEST(MarcasEje, LaDelExtremoEstáYLaSiguienteNo) {
    const struct {
        double extremo;
        int pasos; // from 0 to it
        const char* texto;
        int partes; // of a step
    } casos[] = {
        {10, 5, "10", 4},       {0.6, 6, "0.6", 5},       {0.7, 7, "0.7", 5},
        {0.3, 6, "0.3", 5},     {1.4, 7, "1.4", 4},       {0.0006, 6, "0.0006", 5},
        {6e-8, 6, "6E−8", 5},   {8e23, 8, "8E23", 5},     {35, 7, "35", 5},
        {1e300, 5, "1E300", 4}, {2.5e-6, 5, "2.5E−6", 5},
    };
    for (const auto& caso : casos) {
        const double dentro = std::nextafter(caso.extremo, 2 * caso.extremo);
        const double fuera = std::nextafter(caso.extremo, 0);
        const std::string negativo = std::string("−") + caso.texto;
        const double píxeles = 2.0 * 84 * caso.pasos;
        const auto mayores = static_cast<std::size_t>(2 * caso.pasos + 1);
        const auto menores = static_cast<std::size_t>(2 * caso.pasos * caso.partes + 1);
        for (const double extremo : {caso.extremo, dentro}) {
            const MarcasEje marcas = DevMarcas(-extremo, extremo, píxeles);
            EXPECT_EQ(marcas.mayores.size(), mayores) << caso.texto;
            EXPECT_EQ(marcas.mayores.front().texto, negativo);
            EXPECT_EQ(marcas.mayores.front().valor, -caso.extremo);
            EXPECT_EQ(marcas.mayores.back().texto, caso.texto);
            EXPECT_EQ(marcas.mayores.back().valor, caso.extremo);
            EXPECT_EQ(marcas.menores.size(), menores) << caso.texto;
            EXPECT_DOUBLE_EQ(marcas.menores.front(), -caso.extremo);
            EXPECT_DOUBLE_EQ(marcas.menores.back(), caso.extremo);
        }
        const MarcasEje menos = DevMarcas(-fuera, fuera, píxeles);
        EXPECT_EQ(menos.mayores.size(), mayores - 2) << caso.texto;
        EXPECT_EQ(menos.menores.size(), menores - 2) << caso.texto;
        EXPECT_LT(menos.mayores.back().valor, fuera);
        EXPECT_LT(menos.menores.back(), fuera);
    }
}

// Ends that are decimal multiples of the step, far from 0 as well.
TEST(MarcasEje, LosExtremosRedondosTienenSuMarca) {
    const std::uint32_t semilla = 8;
    std::mt19937 azar(semilla);
    std::uniform_int_distribution<long long> lugar(-100000, 100000);
    std::uniform_int_distribution<int> exponente(-30, 30);
    for (int vez = 0; vez < 20000; ++vez) {
        const long long n = lugar(azar);
        const std::string potencia = "E" + std::to_string(exponente(azar));
        const double mínimo = std::stod(std::to_string(n) + potencia);
        const double máximo = std::stod(std::to_string(n + 10) + potencia);
        const MarcasEje marcas = DevMarcas(mínimo, máximo, 1000); // a step of 1, 100 pixels apart
        ASSERT_EQ(marcas.mayores.size(), 11U) << "seed " << semilla << " at " << vez;
        EXPECT_EQ(marcas.mayores.front().valor, mínimo);
        EXPECT_EQ(marcas.mayores.back().valor, máximo);
        EXPECT_EQ(marcas.menores.size(), 51U);
        for (std::size_t i = 0; i < marcas.mayores.size(); ++i)
            EXPECT_EQ(marcas.mayores[i].número, n + static_cast<long long>(i));
    }
}

double ValorLeído(std::string texto) {
    for (std::size_t i = texto.find("−"); i != std::string::npos; i = texto.find("−"))
        texto.replace(i, std::string("−").size(), "-");
    return std::stod(texto);
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
        const double píxeles = 150 + 1050 * std::fabs(fracción(azar));
        const double máximo = mínimo + ancho;
        const std::vector<Marca> marcas = DevMarcas(mínimo, máximo, píxeles).mayores;
        ASSERT_GE(marcas.size(), 5U) << mínimo << ' ' << máximo;
        std::set<std::string> textos;
        for (std::size_t k = 0; k < marcas.size(); ++k) {
            ASSERT_TRUE(textos.insert(marcas[k].texto).second)
                << marcas[k].texto << " from " << mínimo << " to " << máximo;
            ASSERT_NEAR(ValorLeído(marcas[k].texto), marcas[k].valor,
                        1e-13 * std::fabs(marcas[k].valor));
            if (k == 0)
                continue;
            const double separación =
                (marcas[k].valor - marcas[k - 1].valor) / (máximo - mínimo) * píxeles;
            ASSERT_GT(separación, std::min(48.0, píxeles / 15)) << mínimo << ' ' << máximo;
            ASSERT_LT(separación, std::min(132.0, píxeles / 4)) << mínimo << ' ' << máximo;
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
