// The strokes of the curves, pixel by pixel.

#include "ui/dibujo/cobertura.h"
#include "ui/dibujo/colores.h"
#include "ui/dibujo/grafica.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace quiralto {
namespace {

// A curve of the drawing scale in blue, on paper of that many logical pixels a side.
class Papelito {
public:
    Papelito(int lado, int escala)
        : escala_(escala), imagen_(lado * escala, lado * escala, QImage::Format_RGB32) {
        imagen_.fill(Papel);
    }

    void Traza(int índice, const ListaPuntos& puntos) {
        cuadro_.curvas.at(static_cast<std::size_t>(índice)).puntos =
            std::make_shared<const ListaPuntos>(puntos);
        QPainter pintor(&imagen_);
        pintor.fillRect(imagen_.rect(), Papel);
        DibujaCurvas(pintor, DevLienzo(), cuadro_);
    }

    void PonMétodo(MétodoDibujo método) { cuadro_.método = método; }
    Lienzo DevLienzo() const { return {QRectF(imagen_.rect()), static_cast<qreal>(escala_)}; }
    const QImage& DevImagen() const { return imagen_; }

    // How much of a pixel is covered by blue: what it takes off the red of the paper.
    double DevParte(int x, int y) const { return 1 - qRed(imagen_.pixel(x, y)) / 255.0; }
    double DevAnchura(int columna) const {
        double anchura = 0;
        for (int y = 0; y < imagen_.height(); ++y)
            anchura += DevParte(columna, y);
        return anchura;
    }

private:
    int escala_;
    QImage imagen_;
    Cuadro cuadro_;
};

template <typename Función> ListaPuntos DevPuntos(int pasos, Función f) {
    ListaPuntos puntos;
    for (int i = 0; i <= pasos; ++i) {
        const double x = -MediaEscala + 2 * MediaEscala * i / pasos;
        puntos.push_back({static_cast<float>(x), static_cast<float>(f(x))});
    }
    return puntos;
}

TEST(Trazo, EsDePíxelYMedioConElNúcleoDeSuColor) {
    for (const int escala : {1, 2, 3})
        for (const int pasos : {2, 150, 4800}) {
            Papelito papel(401, escala);
            papel.Traza(3, DevPuntos(pasos, [](double) { return 5; }));
            for (const int columna : {3, 4, 100, 127, 128, 380 * escala}) {
                EXPECT_NEAR(papel.DevAnchura(columna), 1.5 * escala, 0.01 * escala)
                    << "ratio " << escala << ", " << pasos << " steps, column " << columna;
                const int centro = static_cast<int>(papel.DevLienzo().DevLugar(0, 5).y());
                EXPECT_EQ(papel.DevImagen().pixelColor(columna, centro), QColor(0, 0, 255));
            }
        }
}

// However many points a straight line is made of, and wherever they lie among the pixels, it is as
// wide and as dark at its joints as between them.
TEST(Trazo, NoTieneMotasEnLasJuntas) {
    for (const double pendiente : {0.0, 0.02, 0.3, 1.0, 3.7, 25.0})
        for (const int pasos : {7, 150, 333, 4800}) {
            const auto recta = [&](double x) { return pendiente * x + 0.013; };
            Papelito entera(400, 1);
            entera.Traza(3, DevPuntos(1, recta));
            Papelito unida(400, 1);
            unida.Traza(3, DevPuntos(pasos, recta));
            for (int y = 0; y < 400; ++y)
                for (int x = 0; x < 400; ++x)
                    ASSERT_NEAR(unida.DevParte(x, y), entera.DevParte(x, y), 0.06)
                        << "slope " << pendiente << ", " << pasos << " steps at " << x << ", " << y;
        }
}

// Against the distance to the very curve, not to the segments that are drawn.
TEST(Trazo, UnaCurvaTieneLaMismaAnchuraEnTodasPartes) {
    for (const int escala : {1, 2}) {
        Papelito papel(300, escala);
        const auto f = [](double x) { return 3 * std::sin(x / 2); };
        papel.Traza(3, DevPuntos(4800, f));
        const Lienzo lienzo = papel.DevLienzo();
        for (int columna = 20 * escala; columna < 280 * escala; ++columna) {
            const double s = lienzo.DevS(columna + 0.5);
            const double derivada = 1.5 * std::cos(s / 2); // the pixels are square
            EXPECT_NEAR(papel.DevAnchura(columna),
                        1.5 * escala * std::sqrt(1 + derivada * derivada), 0.2 * escala)
                << columna;
        }
    }
}

TEST(Trazo, LaÚltimaCurvaQuedaEncima) {
    Papelito papel(201, 1);
    const auto plana = DevPuntos(150, [](double) { return 1; });
    papel.Traza(1, plana);
    papel.Traza(3, plana);
    const int fila = static_cast<int>(papel.DevLienzo().DevLugar(0, 1).y());
    EXPECT_EQ(papel.DevImagen().pixelColor(60, fila), QColor(0, 0, 255));
}

TEST(Trazo, UnSoloPuntoSeVe) {
    Papelito papel(200, 1);
    papel.Traza(3, {{2, 2}});
    double todo = 0;
    for (int x = 0; x < 200; ++x)
        todo += papel.DevAnchura(x);
    EXPECT_NEAR(todo, std::numbers::pi * 0.75 * 0.75, 0.4);
}

TEST(Trazo, PorPuntosSóloHayPíxelesEnterosDeSuColor) {
    for (const int escala : {1, 2}) {
        Papelito papel(401, escala);
        papel.PonMétodo(MétodoDibujo::Puntos);
        papel.Traza(3, DevPuntos(100, [](double x) { return x / 3; }));
        int enteros = 0;
        for (int y = 0; y < papel.DevImagen().height(); ++y)
            for (int x = 0; x < papel.DevImagen().width(); ++x) {
                const double parte = papel.DevParte(x, y);
                ASSERT_TRUE(parte == 0 || parte == 1) << x << ", " << y;
                enteros += parte == 1 ? 1 : 0;
            }
        EXPECT_EQ(enteros, 101 * escala * escala);
    }
}

// A function that leaps from sample to sample keeps its leaps.
TEST(Trazo, LosSaltosNoSePierden) {
    const std::uint32_t semilla = 20;
    std::mt19937 azar(semilla);
    std::uniform_real_distribution<double> altura(-11, 11);
    Papelito papel(500, 1);
    const ListaPuntos puntos = DevPuntos(100, [&](double) { return altura(azar); });
    papel.Traza(3, puntos);
    for (const Punto& punto : puntos) {
        if (std::fabs(punto.y) > 9.9F || std::fabs(punto.x) > 9.9F)
            continue;
        const QPointF lugar = papel.DevLienzo().DevLugar(punto.x, punto.y);
        EXPECT_GT(papel.DevParte(static_cast<int>(lugar.x()), static_cast<int>(lugar.y())), 0.3)
            << punto.x << ", " << punto.y << " seed " << semilla;
    }
}

TEST(Cobertura, LoDeFueraNoSePinta) {
    Cobertura cobertura(QSize(10, 10));
    QImage capa(10, 10, QImage::Format_ARGB32_Premultiplied);
    capa.fill(Qt::transparent);
    for (const QLineF& fuera :
         {QLineF(-50, -50, 60, -40), QLineF(-50, 0, -40, 10), QLineF(5, 13, 5, 90),
          QLineF(13, -5, 90, 20), QLineF(-1e30, -1e30, -1e30, 1e30)})
        cobertura.Traza(fuera, 2);
    cobertura.Vierte(capa, Qt::black);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(capa.pixel(i % 10, i / 10), 0U);
    cobertura.Traza({-1e4, 5, 1e4, 5}, 2);
    cobertura.Vierte(capa, Qt::black);
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(capa.pixel(x, 5), qRgba(0, 0, 0, 255));
    capa.fill(Qt::transparent);
    cobertura.Vierte(capa, Qt::black); // what was poured is gone
    EXPECT_EQ(capa.pixel(5, 5), 0U);
}

} // namespace
} // namespace quiralto
