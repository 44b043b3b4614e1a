#include "engine/numeros/producto_denso.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

using Lista = std::vector<std::int64_t>;

std::vector<Entero> MultiplicaIngenuo(const Lista& a, const Lista& b) {
    std::vector<Entero> producto(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j)
            producto[i + j] += Entero(a[i]) * Entero(b[j]);
    return producto;
}

TEST(ProductoDenso, EsElDeSusTérminos) {
    constexpr std::uint64_t Semilla = 5;
    std::mt19937_64 azar(Semilla);
    for (const std::size_t longitud : {1U, 2U, 63U, 64U, 65U, 100U, 200U}) {
        for (const int bits : {3, 30, 54}) {
            const auto sortea = [&](std::size_t n) {
                Lista lista;
                for (std::size_t i = 0; i < n; ++i) {
                    const auto magnitud = static_cast<std::int64_t>(azar() >> (64 - bits));
                    lista.push_back(azar() % 2 == 0 ? magnitud : -magnitud);
                }
                return lista;
            };
            const Lista a = sortea(longitud);
            const Lista b = sortea(longitud + azar() % 70);
            const auto producto = MultiplicaDensos(a, b);
            ASSERT_TRUE(producto.has_value());
            EXPECT_EQ(*producto, MultiplicaIngenuo(a, b)) << longitud << ", " << bits;
        }
    }
}

TEST(ProductoDenso, NoMultiplicaLoQuePodríaNoCaber) {
    const Lista grandes(100, std::int64_t{1} << 60);
    EXPECT_FALSE(MultiplicaDensos(grandes, grandes).has_value());
    EXPECT_TRUE(MultiplicaDensos(grandes, Lista(100, 3)).has_value());
}

} // namespace
} // namespace quiralto
