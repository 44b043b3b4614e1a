// The view without a window: transforms, zooms, scrolls, and changes that are undone as a whole.

#include "tests/apoyo.h"
#include "ui/grafica/ventana_grafica.h"

#include <gtest/gtest.h>

#include <cmath>
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
    void Define(int índice, std::string texto) {
        ASSERT_TRUE(vista.DefineFunción(índice, texto));
        vista.Activa(índice, true);
    }

    Banco banco;
    VentanaGráfica vista{banco.contexto};
};

TEST_F(VistaGráfica, EmpiezaDe10EnDiezYCon300Puntos) {
    EXPECT_EQ(vista.DevVentana(), DevCuadrado(10));
    EXPECT_EQ(vista.DevPuntoX(), 0);
    EXPECT_EQ(vista.CantidadPuntos, 300);
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
        EXPECT_TRUE(vista.ZoomGráfica(i));
        EXPECT_EQ(vista.DevVentana(), DevCuadrado(mitades[i])) << i;
    }
    ASSERT_TRUE(vista.ValoresPorDefecto());
    ASSERT_TRUE(vista.PonPuntoX(4));
    EXPECT_TRUE(vista.ZoomGráfica(0));
    EXPECT_EQ(vista.DevVentana(), (Ventana{7, -3, 7, -3}));
    EXPECT_EQ(vista.DevPuntoX(), 4);
}

TEST_F(VistaGráfica, ElZoomDeLaGráficaTomaLaPrimeraFunciónConValor) {
    Define(0, "SQR(X)");
    Define(1, "X");
    Define(2, "7");
    vista.Activa(1, false);
    ASSERT_TRUE(vista.PonPuntoX(-2));
    EXPECT_EQ(vista.DevPrimeraFunciónDefinida().índice, 2);
    EXPECT_EQ(vista.DevPrimeraFunciónDefinida().valor, 7);
    vista.Activa(2, false);
    EXPECT_EQ(vista.DevPrimeraFunciónDefinida().índice, 4);
    ASSERT_TRUE(vista.FijaExtremos({30, 10, 8, 0}));
    EXPECT_TRUE(vista.ZoomGráfica(0)); // about the middle
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

// Every function can be sampled with every number of points, quickly, whatever has been done.
void CompruebaUtilizable(VentanaGráfica& vista) {
    const Ventana& v = vista.DevVentana();
    ASSERT_LT(v.XMín, v.XMáx);
    ASSERT_LT(v.YMín, v.YMáx);
    for (const int puntos : {150, 4800}) {
        vista.CantidadPuntos = puntos;
        const std::size_t n = vista.CargaPuntos(0).size();
        ASSERT_GT(n, 100U) << v;
        ASSERT_LT(n, 10000U) << v;
    }
}

TEST_F(VistaGráfica, MilZoomsDejanUnaVistaUtilizable) {
    Define(0, "1");
    using Zoom = bool (VentanaGráfica::*)(int);
    for (const Zoom zoom : {&VentanaGráfica::ZoomGráfica, &VentanaGráfica::ZoomEjeX,
                            &VentanaGráfica::ZoomEjeY, &VentanaGráfica::ZoomEjesXY})
        for (int índice = 0; índice < 6; ++índice) {
            ASSERT_TRUE(vista.ValoresPorDefecto() && vista.PonPuntoX(1 / 3.0));
            for (int i = 0; i < 1000; ++i)
                (vista.*zoom)(índice);
            CompruebaUtilizable(vista);
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
            vista.ZoomGráfica(static_cast<int>(azar() % 6));
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
            vista.ZoomEn(entre(v.XMín, v.XMáx), entre(v.YMín, v.YMáx), azar() % 2 == 0 ? 2 : 0.5);
            break;
        case 5:
            vista.PonPuntoX(DevXfísico(v, entre(-10, 10)));
            break;
        default:
            vista.ZoomEn(entre(v.XMín, v.XMáx), entre(v.YMín, v.YMáx), 2);
        }
        if (i % 20 == 0)
            CompruebaUtilizable(vista);
    }
}

TEST_F(VistaGráfica, UnaFunciónRechazadaQuedaApagada) {
    Define(1, "X");
    std::string mala = "X+";
    EXPECT_FALSE(vista.DefineFunción(1, mala));
    EXPECT_EQ(banco.TomaMensajes(),
              (std::vector{Mensaje{Icono::Exclamación, "No está permitido terminar con: +"}}));
    EXPECT_FALSE(vista.EstáActiva(1));
    EXPECT_EQ(vista.DevValor(1), std::nullopt);
}

TEST_F(VistaGráfica, UnPuntoSinValorNoDejaFallo) {
    Define(0, "1/X");
    EXPECT_EQ(vista.DevValor(0), std::nullopt);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
    vista.CargaPuntos(0);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST_F(VistaGráfica, MuestreaConLosPuntosPedidos) {
    Define(0, "X^2");
    Define(1, "SQR(X)");
    vista.CantidadPuntos = 4800;
    const std::vector<Punto> parábola = vista.CargaPuntos(0);
    EXPECT_NEAR(static_cast<double>(parábola.size()), 4801, 1);
    for (const Punto& punto : parábola)
        EXPECT_EQ(punto.y == 11.0F, std::fabs(punto.x) > std::sqrt(10.0F)) << punto.x;
    for (const Punto& punto : vista.CargaPuntos(1))
        EXPECT_GE(punto.x, 0);
    EXPECT_NEAR(static_cast<double>(vista.CargaPuntos(1).size()), 2401, 1);
}

} // namespace
} // namespace quiralto
