// The way back through the windows that have been seen, and the notches of the wheel.

#include "ui/grafica/historia.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

Vista::Estado Con(double mitad, double PuntoX = 0) {
    return {{mitad, -mitad, mitad, -mitad}, PuntoX};
}

TEST(HistoriaDeVistas, VuelvePasoAPaso) {
    Historia historia;
    EXPECT_FALSE(historia.Saca(Con(10)).has_value());
    historia.Anota(Con(10), Con(20), Gesto::Suelto);
    historia.Anota(Con(20), Con(40), Gesto::Suelto);
    historia.Anota(Con(40), Con(40, 3), Gesto::Suelto); // the window is the same
    EXPECT_EQ(historia.Saca(Con(40))->ventana, Con(20).ventana);
    historia.Anota(Con(40), Con(20), Gesto::Vuelta); // no step
    EXPECT_EQ(historia.Saca(Con(20))->ventana, Con(10).ventana);
    EXPECT_FALSE(historia.Saca(Con(10)).has_value());
}

TEST(HistoriaDeVistas, UnGestoEsUnPaso) {
    for (const Gesto gesto : {Gesto::Rueda, Gesto::Arrastre}) {
        Historia historia;
        historia.Anota(Con(10), Con(11), gesto);
        historia.Anota(Con(11), Con(12), gesto);
        historia.Corta();
        historia.Anota(Con(12), Con(13), gesto);
        historia.Anota(Con(13), Con(14), gesto == Gesto::Rueda ? Gesto::Arrastre : Gesto::Rueda);
        EXPECT_EQ(historia.Saca(Con(14))->ventana, Con(13).ventana);
        EXPECT_EQ(historia.Saca(Con(13))->ventana, Con(12).ventana);
        EXPECT_EQ(historia.Saca(Con(12))->ventana, Con(10).ventana);
    }
}

TEST(HistoriaDeVistas, ElPuntoXVuelveSiFueConLaVentana) {
    Historia historia;
    historia.Anota(Con(10, 4), Con(20, 8), Gesto::Suelto);
    EXPECT_EQ(historia.Saca(Con(20, 8))->PuntoX, 4);
    historia.Anota(Con(10, 4), Con(20, 8), Gesto::Suelto);
    EXPECT_EQ(historia.Saca(Con(20, -3))->PuntoX, -3);
}

TEST(HistoriaDeVistas, NoCreceSinFin) {
    Historia historia;
    for (int i = 1; i <= 1000; ++i)
        historia.Anota(Con(i), Con(i + 1), Gesto::Suelto);
    int pasos = 0;
    while (historia.Saca(Con(1)))
        ++pasos;
    EXPECT_EQ(pasos, 100);
}

constexpr Lugar Píxel{0.03, 0.05};

TEST(RuedaDeLaVista, DosMuescasSonUnZoomDeDos) {
    std::mt19937 azar(13);
    std::uniform_real_distribution<double> lugar(-10, 10);
    for (int i = 0; i < 500; ++i) {
        Vista vista;
        const Lugar centro{std::round(lugar(azar) * 100) / 100,
                           std::round(lugar(azar) * 100) / 100};
        const int sentido = i % 2 == 0 ? 1 : -1;
        ASSERT_TRUE(vista.Rueda(centro, sentido, Píxel));
        ASSERT_TRUE(vista.Rueda(centro, sentido, Píxel));
        Vista directa;
        ASSERT_TRUE(directa.ZoomEn(centro, sentido > 0 ? 2 : 0.5));
        EXPECT_EQ(vista.DevVentana(), directa.DevVentana());
    }
}

TEST(RuedaDeLaVista, UnaMuescaSeRedondeaPorDebajoDeUnPíxel) {
    Vista vista;
    ASSERT_TRUE(vista.Rueda({0, 0}, 1, Píxel));
    EXPECT_EQ(vista.DevVentana(), (Ventana{7.07, -7.07, 7.07, -7.07}));
    ASSERT_TRUE(vista.Rueda({0, 0}, 1, Píxel));
    EXPECT_EQ(vista.DevVentana(), (Ventana{5, -5, 5, -5}));
}

TEST(RuedaDeLaVista, ConElPunteroEnOtroLugarElFactorEsElMismo) {
    Vista vista;
    ASSERT_TRUE(vista.Rueda({3, -2}, 1, Píxel));
    ASSERT_TRUE(vista.Rueda({-4, 5}, 1, Píxel));
    const Ventana& v = vista.DevVentana();
    EXPECT_DOUBLE_EQ(v.XMáx - v.XMín, 10);
    EXPECT_DOUBLE_EQ(v.YMáx - v.YMín, 10);
    // what is under the pointer at the second notch stays there, but for less than a pixel
    Vista primera;
    ASSERT_TRUE(primera.Rueda({3, -2}, 1, Píxel));
    EXPECT_NEAR(DevXlógico(v, -4), DevXlógico(primera.DevVentana(), -4), 0.04);
    EXPECT_NEAR(DevYlógico(v, 5), DevYlógico(primera.DevVentana(), 5), 0.07);
}

TEST(RuedaDeLaVista, IdaYVueltaNoCambianLaAmplitud) {
    Vista vista;
    ASSERT_TRUE(vista.Rueda({3, -2}, 1, Píxel));
    ASSERT_TRUE(vista.Rueda({3, -2}, -1, Píxel));
    EXPECT_EQ(vista.DevVentana(), Ventana());
    ASSERT_TRUE(vista.Rueda({3, -2}, 1, Píxel));
    ASSERT_TRUE(vista.Rueda({-4, 5}, -1, Píxel));
    EXPECT_DOUBLE_EQ(vista.DevVentana().XMáx - vista.DevVentana().XMín, 20);
    Vista primera;
    ASSERT_TRUE(primera.Rueda({3, -2}, 1, Píxel));
    EXPECT_NEAR(DevXlógico(vista.DevVentana(), -4), DevXlógico(primera.DevVentana(), -4), 0.04);
}

TEST(RuedaDeLaVista, OtroCambioEntreMediasLaEmpiezaDeNuevo) {
    Vista vista;
    ASSERT_TRUE(vista.Rueda({0, 0}, 1, Píxel));
    ASSERT_TRUE(vista.ValoresPorDefecto());
    ASSERT_TRUE(vista.Rueda({0, 0}, 1, Píxel));
    EXPECT_EQ(vista.DevVentana(), (Ventana{7.07, -7.07, 7.07, -7.07}));
}

} // namespace
} // namespace quiralto
