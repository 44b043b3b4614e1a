// The view: transforms, zooms, scrolls, and changes that are undone as a whole.

#include "tests/apoyo.h"
#include "ui/grafica/escena.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace quiralto {

std::ostream& operator<<(std::ostream& salida, const Ventana& v) {
    return salida << "X " << v.XMín << ".." << v.XMáx << ", Y " << v.YMín << ".." << v.YMáx;
}

namespace {

Ventana DevCuadrado(double mitad) {
    return {mitad, -mitad, mitad, -mitad};
}

class VistaGráfica : public testing::Test {
protected:
    void Define(int índice, const char* texto) {
        funciones.Escribe(índice, texto);
        ASSERT_TRUE(funciones.Asienta(índice));
        funciones.Enciende(índice);
    }
    bool ZoomGráfica(int índice) {
        return vista.ZoomGráfica(índice, funciones.DevPrimeraFunciónDefinida(vista.DevPuntoX()));
    }
    // Every function can be sampled with every number of points, quickly, whatever has been done.
    void CompruebaUtilizable() {
        const Ventana& v = vista.DevVentana();
        ASSERT_LT(v.XMín, v.XMáx);
        ASSERT_LT(v.YMín, v.YMáx);
        for (const int puntos : {150, 4800}) {
            const std::size_t n =
                CargaPuntos(banco.contexto, *funciones[0].programa, v, puntos).size();
            ASSERT_GT(n, 100U) << v;
            ASSERT_LT(n, 10000U) << v;
        }
    }

    Banco banco;
    Vista vista;
    FuncionesGráficas funciones{banco.contexto};
};

TEST_F(VistaGráfica, EmpiezaDe10EnDiez) {
    EXPECT_EQ(vista.DevVentana(), DevCuadrado(10));
    EXPECT_EQ(vista.DevPuntoX(), 0);
    EXPECT_EQ(vista.UnidadX(), 1);
    EXPECT_EQ(vista.UnidadY(), 1);
    EXPECT_EQ(DevXlógico(vista.DevVentana(), -10), -10);
    EXPECT_EQ(DevXlógico(vista.DevVentana(), 10), 10);
    EXPECT_EQ(DevXfísico(vista.DevVentana(), 0), 0);
    ASSERT_TRUE(vista.FijaExtremos({100, 0, 10, -10}));
    EXPECT_EQ(DevXlógico(vista.DevVentana(), 50), 0);
}

TEST_F(VistaGráfica, ElZoomDeLaGráficaAumentaEnTornoAlPuntoX) {
    Define(0, "X");
    const double mitades[] = {5, 2.5, 1.25, 20, 40, 80};
    for (int i = 0; i < 6; ++i) {
        ASSERT_TRUE(vista.ValoresPorDefecto());
        EXPECT_TRUE(ZoomGráfica(i));
        EXPECT_EQ(vista.DevVentana(), DevCuadrado(mitades[i])) << i;
    }
    ASSERT_TRUE(vista.ValoresPorDefecto());
    ASSERT_TRUE(vista.PonPuntoX(4));
    EXPECT_TRUE(ZoomGráfica(0));
    EXPECT_EQ(vista.DevVentana(), (Ventana{7, -3, 7, -3}));
    EXPECT_EQ(vista.DevPuntoX(), 4);
}

TEST_F(VistaGráfica, ElZoomDeLaGráficaTomaLaPrimeraFunciónConValor) {
    Define(0, "SQR(X)");
    Define(1, "X");
    Define(2, "7");
    funciones.Apaga(1);
    ASSERT_TRUE(vista.PonPuntoX(-2));
    ASSERT_TRUE(funciones.DevPrimeraFunciónDefinida(-2).has_value());
    EXPECT_EQ(funciones.DevPrimeraFunciónDefinida(-2)->x, -2);
    EXPECT_EQ(funciones.DevPrimeraFunciónDefinida(-2)->y, 7);
    funciones.Apaga(2);
    EXPECT_FALSE(funciones.DevPrimeraFunciónDefinida(-2).has_value());
    ASSERT_TRUE(vista.FijaExtremos({30, 10, 8, 0}));
    EXPECT_TRUE(ZoomGráfica(0)); // about the middle
    EXPECT_EQ(vista.DevVentana(), (Ventana{25, 15, 6, 2}));
}

TEST_F(VistaGráfica, LosZoomsDeEjeVanAlRevésYEnTornoAlCero) {
    const double factores[] = {2, 4, 8, 0.5, 0.25, 0.125};
    for (int i = 0; i < 6; ++i) {
        const double m = 10 * factores[i];
        ASSERT_TRUE(vista.ValoresPorDefecto() && vista.PonPuntoX(3));
        EXPECT_TRUE(vista.ZoomEjeX(i));
        EXPECT_EQ(vista.DevVentana(), (Ventana{m, -m, 10, -10}));
        EXPECT_EQ(vista.DevPuntoX(), 3 * factores[i]);
        ASSERT_TRUE(vista.ValoresPorDefecto() && vista.PonPuntoX(3));
        EXPECT_TRUE(vista.ZoomEjeY(i));
        EXPECT_EQ(vista.DevVentana(), (Ventana{10, -10, m, -m}));
        EXPECT_EQ(vista.DevPuntoX(), 3);
        ASSERT_TRUE(vista.ValoresPorDefecto());
        EXPECT_TRUE(vista.ZoomEjesXY(i));
        EXPECT_EQ(vista.DevVentana(), DevCuadrado(m));
        EXPECT_EQ(vista.DevPuntoX(), 3 * factores[i]);
    }
}

TEST_F(VistaGráfica, LasBarrasDesplazanPorUnidades) {
    ASSERT_TRUE(vista.FijaExtremos({20, -20, 10, -10}) && vista.PonPuntoX(1));
    EXPECT_TRUE(vista.DesplazaX(3));
    EXPECT_EQ(vista.DevVentana(), (Ventana{14, -26, 10, -10}));
    EXPECT_EQ(vista.DevPuntoX(), -5);
    EXPECT_TRUE(vista.DesplazaY(3));
    EXPECT_EQ(vista.DevVentana(), (Ventana{14, -26, 13, -7}));
    EXPECT_EQ(vista.DevPuntoX(), -5);
}

TEST_F(VistaGráfica, UnCambioQueDesbordaSeDeshaceEntero) {
    int veces = 0;
    Ventana anterior = vista.DevVentana();
    for (; veces < 2000 && vista.ZoomEjeX(2); ++veces)
        anterior = vista.DevVentana();
    EXPECT_LT(veces, 400);
    EXPECT_GT(veces, 300);
    EXPECT_EQ(vista.DevVentana(), anterior);
    EXPECT_FALSE(vista.ZoomEjesXY(2));
    EXPECT_EQ(vista.DevVentana(), anterior); // Y too
    EXPECT_FALSE(vista.PonPuntoX(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(vista.FijaExtremos({1, 1, 10, -10}));
    EXPECT_FALSE(vista.FijaExtremos({-1, 1, 10, -10}));
    EXPECT_FALSE(vista.FijaExtremos({1e300, -1e300, std::nan(""), -10}));
    EXPECT_EQ(vista.DevVentana(), anterior);
    EXPECT_TRUE(vista.ZoomEjeX(3));
}

TEST_F(VistaGráfica, RecuperaLoQueSeSalvó) {
    ASSERT_TRUE(vista.ZoomEjeX(0) && vista.PonPuntoX(2));
    vista.SalvaValores();
    ASSERT_TRUE(vista.ZoomEjeX(0));
    vista.RecuperaValores();
    EXPECT_EQ(vista.DevVentana(), (Ventana{20, -20, 10, -10}));
    EXPECT_EQ(vista.DevPuntoX(), 2);
}

TEST_F(VistaGráfica, MilZoomsDejanUnaVistaUtilizable) {
    Define(0, "1");
    const std::function<bool(int)> zooms[] = {
        [&](int i) { return ZoomGráfica(i); }, [&](int i) { return vista.ZoomEjeX(i); },
        [&](int i) { return vista.ZoomEjeY(i); }, [&](int i) { return vista.ZoomEjesXY(i); }};
    for (const auto& zoom : zooms)
        for (int índice = 0; índice < 6; ++índice) {
            ASSERT_TRUE(vista.ValoresPorDefecto() && vista.PonPuntoX(1 / 3.0));
            for (int i = 0; i < 1000; ++i)
                zoom(índice);
            CompruebaUtilizable();
        }
}

TEST_F(VistaGráfica, CambiosAlAzarDejanUnaVistaUtilizable) {
    Define(0, "1");
    std::mt19937 azar(7);
    const auto entre = [&](double a, double b) {
        return std::uniform_real_distribution<double>(a, b)(azar);
    };
    for (int i = 0; i < 3000; ++i) {
        const Ventana v = vista.DevVentana();
        switch (azar() % 7) {
        case 0:
            ZoomGráfica(static_cast<int>(azar() % 6));
            break;
        case 1:
            vista.ZoomEjeX(static_cast<int>(azar() % 6));
            break;
        case 2:
            vista.DesplazaX(static_cast<int>(azar() % 41) - 20);
            break;
        case 3:
            vista.DesplazaY(static_cast<int>(azar() % 41) - 20);
            break;
        case 4:
            vista.ZoomEn({entre(v.XMín, v.XMáx), entre(v.YMín, v.YMáx)}, azar() % 2 == 0 ? 2 : 0.5);
            break;
        case 5:
            vista.PonPuntoX(DevXfísico(v, entre(-10, 10)));
            break;
        default:
            vista.ZoomEn({entre(v.XMín, v.XMáx), entre(v.YMín, v.YMáx)}, 2);
        }
        if (i % 20 == 0)
            CompruebaUtilizable();
    }
}

TEST(LlevarElPuntoX, MueveLaVentanaSóloHastaDondeHaceFalta) {
    Vista vista;
    const Ventana inicial = vista.DevVentana();
    EXPECT_TRUE(vista.LlevaPuntoX({3, -10}));
    EXPECT_EQ(vista.DevPuntoX(), 3);
    EXPECT_EQ(vista.DevVentana(), inicial);
    EXPECT_TRUE(vista.LlevaPuntoX({25, 2}));
    EXPECT_EQ(vista.DevPuntoX(), 25);
    EXPECT_EQ(vista.DevVentana(), (Ventana{.XMáx = 35, .XMín = 15, .YMáx = 10, .YMín = -10}));
    EXPECT_TRUE(vista.LlevaPuntoX({15, -400}));
    EXPECT_EQ(vista.DevVentana(), (Ventana{.XMáx = 35, .XMín = 15, .YMáx = -390, .YMín = -410}));
}

TEST(LlevarElPuntoX, NoDejaUnaVistaQueNoSePuedeDibujar) {
    Vista vista;
    const Ventana inicial = vista.DevVentana();
    EXPECT_TRUE(vista.LlevaPuntoX({20, 1e300}));
    EXPECT_EQ(vista.DevVentana(), (Ventana{.XMáx = 30, .XMín = 10, .YMáx = 10, .YMín = -10}));
    EXPECT_TRUE(vista.ValoresPorDefecto());
    EXPECT_TRUE(vista.LlevaPuntoX({1e300, 0}));
    EXPECT_EQ(vista.DevPuntoX(), 1e300);
    EXPECT_EQ(vista.DevVentana(), inicial);
}

} // namespace
} // namespace quiralto
