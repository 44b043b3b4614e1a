#include "engine/numeros/ancho128.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace quiralto {
namespace {

template <typename Ancho> std::uint64_t Alto(Ancho a) {
    return static_cast<std::uint64_t>(a >> 64);
}

TEST(Ancho128, LasOperacionesConSignoVanHaciaCero) {
    using A = Ancho128<true>;
    EXPECT_EQ(A(-7) / A(2), A(-3));
    EXPECT_EQ(A(-7) % A(2), A(-1));
    EXPECT_EQ(A(7) / A(-2), A(-3));
    EXPECT_EQ(A(7) % A(-2), A(1));
    EXPECT_EQ(A(-7) >> 1, A(-4));
    EXPECT_LT(A(-1), A(0));
    EXPECT_EQ((A(1) << 100) / (A(1) << 98), A(4));
    EXPECT_EQ(static_cast<std::int64_t>(A(-5) * A(3)), -15);
}

TEST(Ancho128, ElProductoDeDosPalabrasEstáEntero) {
    using A = Ancho128<false>;
    constexpr std::uint64_t Máxima = ~std::uint64_t{0};
    EXPECT_EQ(static_cast<std::uint64_t>(A(Máxima) * A(Máxima)), 1U);
    EXPECT_EQ(Alto(A(Máxima) * A(Máxima)), Máxima - 1);
}

#ifdef __SIZEOF_INT128__
// The compiler's own numbers of 128 bits say what is right.
template <bool ConSigno, typename Propio> void PruebaContra() {
    const auto semilla = std::random_device{}();
    std::mt19937_64 generador(semilla);
    using A = Ancho128<ConSigno>;
    const auto DevA = [](Propio p) {
        return A(static_cast<std::uint64_t>(p >> 64)) << 64 | A(static_cast<std::uint64_t>(p));
    };
    const auto DevAzar = [&] { // of any length, often near a border
        const auto bits = static_cast<int>(generador() % 128);
        const auto p = static_cast<Propio>(generador()) << 64 | static_cast<Propio>(generador());
        const auto corto = static_cast<Propio>(p >> bits);
        return generador() % 4 == 0
                   ? static_cast<Propio>(corto | static_cast<Propio>(~generador() % 3))
                   : corto;
    };
    for (int i = 0; i < 100'000; ++i) {
        // Without the last bit of the range, so that no signed sum runs over.
        const Propio p = DevAzar() / 2;
        Propio q = DevAzar() / 2;
        const A a = DevA(p);
        const A b = DevA(q);
        ASSERT_TRUE(a + b == DevA(p + q)) << "seed " << semilla;
        ASSERT_TRUE(a - b == DevA(p - q)) << "seed " << semilla;
        ASSERT_TRUE((a | b) == DevA(p | q)) << "seed " << semilla;
        const auto corta = static_cast<std::int32_t>(p);
        const auto media = static_cast<std::int64_t>(q);
        ASSERT_TRUE(A(corta) * A(media) ==
                    DevA(static_cast<Propio>(corta) * static_cast<Propio>(media)))
            << "seed " << semilla;
        ASSERT_EQ(a < b, p < q) << "seed " << semilla;
        const auto bits = generador() % 128;
        ASSERT_TRUE(a >> bits == DevA(p >> bits)) << "seed " << semilla;
        if (q == 0)
            q = 1;
        ASSERT_TRUE(a / DevA(q) == DevA(p / q)) << "seed " << semilla;
        ASSERT_TRUE(a % DevA(q) == DevA(p % q)) << "seed " << semilla;
    }
}

TEST(Ancho128, HaceLoQueElCompilador) {
    __extension__ using Natural = unsigned __int128;
    __extension__ using Entero = __int128;
    PruebaContra<false, Natural>();
    PruebaContra<true, Entero>();
}

TEST(Ancho128, ElProductoSinSignoEsElDelCompilador) {
    __extension__ using Natural = unsigned __int128;
    const auto semilla = std::random_device{}();
    std::mt19937_64 generador(semilla);
    for (int i = 0; i < 100'000; ++i) {
        const std::uint64_t a = generador();
        const std::uint64_t b = generador();
        const std::uint64_t c = generador();
        const auto producto = (Ancho128<false>(a) << 64 | b) * Ancho128<false>(c);
        const Natural esperado = (static_cast<Natural>(a) << 64 | b) * c;
        ASSERT_EQ(static_cast<std::uint64_t>(producto), static_cast<std::uint64_t>(esperado))
            << semilla;
        ASSERT_EQ(Alto(producto), static_cast<std::uint64_t>(esperado >> 64)) << semilla;
    }
}
#endif

} // namespace
} // namespace quiralto
