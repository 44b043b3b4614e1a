// The axes: where their labels stand, and what is drawn of them.

#include "ui/dibujo/colores.h"
#include "ui/dibujo/ejes.h"
#include "ui/dibujo/rotulos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <sstream>

namespace quiralto {
namespace {

// Labels of a window on a canvas of logical pixels, in the font that the screen has.
Rótulos Coloca(const QSizeF& tamaño, int escala, const Ventana& ventana) {
    QImage imagen(16, 16, QImage::Format_RGB32);
    const QFontMetricsF medidas(DevFuenteRótulos(QFont(), escala), &imagen);
    const Lienzo lienzo{QRectF(QPointF(0, 0), tamaño * escala), static_cast<qreal>(escala)};
    return DevRótulos(medidas, lienzo, ventana,
                      DevMarcas(ventana.XMín, ventana.XMáx, tamaño.width()).mayores,
                      DevMarcas(ventana.YMín, ventana.YMáx, tamaño.height()).mayores);
}

std::string Describe(const QSizeF& tamaño, int escala, const Ventana& v) {
    std::ostringstream texto;
    texto.precision(17);
    texto << tamaño.width() << "x" << tamaño.height() << " ratio " << escala << " X " << v.XMín
          << ".." << v.XMáx << " Y " << v.YMín << ".." << v.YMáx;
    return texto.str();
}

TEST(RótulosDeLosEjes, HayMásDeTresEnCadaEjeYNingunoTapaAOtro) {
    const std::uint32_t semilla = 6;
    std::mt19937 azar(semilla);
    std::uniform_real_distribution<double> fracción(-1, 1);
    const auto rango = [&](double& mínimo, double& máximo) {
        const double ancho = std::pow(10, 12 * std::pow(fracción(azar), 3)) * 20;
        mínimo = ancho * fracción(azar) * std::pow(10, 8 * std::pow(fracción(azar), 5)) - ancho / 2;
        máximo = mínimo + ancho;
    };
    for (int vez = 0; vez < 3000; ++vez) {
        const QSizeF tamaño(280 + 1600 * std::pow(fracción(azar), 4),
                            200 + 800 * std::pow(fracción(azar), 4));
        const int escala = 1 + static_cast<int>(azar() % 3);
        Ventana ventana;
        if (vez > 0) {
            rango(ventana.XMín, ventana.XMáx);
            rango(ventana.YMín, ventana.YMáx);
        }
        const Rótulos rótulos = Coloca(tamaño, escala, ventana);
        const std::string caso = Describe(tamaño, escala, ventana);
        EXPECT_GT(rótulos.enX.size(), 3U) << caso;
        EXPECT_GT(rótulos.enY.size(), 3U) << caso;
        std::vector<Rótulo> todos = rótulos.enX;
        todos.insert(todos.end(), rótulos.enY.begin(), rótulos.enY.end());
        todos.push_back(rótulos.nombreX);
        todos.push_back(rótulos.nombreY);
        const QRectF área(QPointF(0, 0), tamaño * escala);
        for (std::size_t i = 0; i < todos.size(); ++i) {
            EXPECT_TRUE(área.contains(todos[i].marco))
                << todos[i].texto.toStdString() << " in " << caso;
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(todos[i].marco.intersects(todos[k].marco))
                    << todos[i].texto.toStdString() << " over " << todos[k].texto.toStdString()
                    << " in " << caso;
        }
        if (HasFailure())
            FAIL() << "seed " << semilla << " at " << vez;
    }
}

// Where both axes stand on the border as where they cross in the middle.
TEST(RótulosDeLosEjes, ElOrigenTieneUnSoloRótulo) {
    for (const double mínimo : {-10.0, 0.0, -20.0}) {
        const double máximo = mínimo + 20;
        const Rótulos rótulos =
            Coloca({400, 300}, 1, {.XMáx = máximo, .XMín = mínimo, .YMáx = máximo, .YMín = mínimo});
        std::vector<Rótulo> todos = rótulos.enX;
        todos.insert(todos.end(), rótulos.enY.begin(), rótulos.enY.end());
        EXPECT_EQ(std::ranges::count(todos, QStringLiteral("0"), &Rótulo::texto), 1) << mínimo;
    }
}

// Every so many, in round numbers; in a row no two come closer than twelve pixels.
TEST(RótulosDeLosEjes, SeRaleanSóloSiNoCaben) {
    const struct {
        double ancho;
        Ventana ventana;
        long long salto;
        std::size_t filas;
    } casos[] = {
        {800, {10, -10, 10, -10}, 1, 1},       {280, {10, -10, 10, -10}, 2, 1},
        {280, {1000000, 0, 10, -10}, 2, 2},    {400, {1000000.13, 1000000.1, 10, -10}, 2, 1},
        {280, {0.001, -0.001, 10, -10}, 2, 2},
    };
    for (const auto& caso : casos)
        for (const int escala : {1, 2}) {
            const QSizeF tamaño(caso.ancho, 300);
            SCOPED_TRACE(Describe(tamaño, escala, caso.ventana));
            std::string esperados;
            for (const Marca& marca :
                 DevMarcas(caso.ventana.XMín, caso.ventana.XMáx, caso.ancho).mayores)
                if (marca.número % caso.salto == 0)
                    esperados += marca.texto + ' ';
            std::string textos;
            std::map<qreal, qreal> filas; // how far each is written
            for (const Rótulo& rótulo : Coloca(tamaño, escala, caso.ventana).enX) {
                textos += rótulo.texto.toStdString() + ' ';
                const auto [fila, nueva] = filas.try_emplace(rótulo.base.y());
                EXPECT_TRUE(nueva || rótulo.marco.left() - fila->second >= 12 * escala) << textos;
                fila->second = rótulo.marco.right();
            }
            EXPECT_EQ(textos, esperados);
            EXPECT_EQ(filas.size(), caso.filas);
        }
}

class EjesDibujados : public testing::Test {
protected:
    EjesDibujados() : imagen(600, 400, QImage::Format_RGB32) {}
    enum class Parte { Todo, Rejilla, Ejes };

    void Dibuja(const Ventana& ventana, int escala = 1, Parte parte = Parte::Todo) {
        imagen.fill(Papel);
        QPainter pintor(&imagen);
        pintor.setFont(DevFuenteRótulos(pintor.font(), escala));
        const Lienzo lienzo{QRectF(imagen.rect()), static_cast<qreal>(escala)};
        Ejes ejes(pintor, lienzo, ventana);
        if (parte != Parte::Ejes)
            ejes.DibujaRejilla();
        if (parte != Parte::Rejilla)
            ejes.Dibuja();
    }
    int Cuenta(const QRect& zona, const QColor& color) const {
        int cuenta = 0;
        for (int y = zona.top(); y <= zona.bottom(); ++y)
            for (int x = zona.left(); x <= zona.right(); ++x)
                cuenta += imagen.pixelColor(x, y) == color ? 1 : 0;
        return cuenta;
    }
    // The row, or else the column, of that number.
    std::vector<QColor> DevLínea(int número, bool fila) const {
        std::vector<QColor> línea;
        for (int i = 0; i < (fila ? imagen.width() : imagen.height()); ++i)
            línea.push_back(fila ? imagen.pixelColor(i, número) : imagen.pixelColor(número, i));
        return línea;
    }
    // The first one that no line of the grid runs along.
    std::vector<QColor> DevLíneaLibre(bool fila) const {
        int número = 0;
        while (std::ranges::count(DevLínea(número, fila), Papel) == 0)
            ++número;
        return DevLínea(número, fila);
    }
    QImage imagen;
};

// Where the runs of colours that are wanted begin, all of which have that length.
template <typename Vale>
std::vector<int> DevComienzos(const std::vector<QColor>& línea, int largo, Vale vale) {
    std::vector<int> comienzos;
    int seguidos = 0;
    for (std::size_t i = 0; i <= línea.size(); ++i) {
        if (i < línea.size() && vale(línea[i])) {
            ++seguidos;
            continue;
        }
        if (seguidos > 0) {
            EXPECT_EQ(seguidos, largo) << "before " << i;
            comienzos.push_back(static_cast<int>(i) - seguidos);
        }
        seguidos = 0;
    }
    return comienzos;
}

// Lines of that width, each with its middle at its value, as near as whole pixels allow.
void EstánEn(const std::vector<int>& comienzos, int ancho, const std::vector<double>& lugares) {
    ASSERT_EQ(comienzos.size(), lugares.size());
    for (std::size_t i = 0; i < lugares.size(); ++i)
        EXPECT_NEAR(comienzos[i] + ancho / 2.0, lugares[i], 0.5 + 1e-9);
}

// What an axis of the test has, at places of the image in pixels of it.
struct Línea {
    std::vector<double> mayores;
    std::vector<double> menores;
    double eje;
};

// From a range at the left or the top to the other end; the outermost pixels are the ends.
Línea DevEsperada(double primero, double último, int tamaño, int escala) {
    const auto lugar = [&](double valor) {
        return escala / 2.0 + (valor - primero) / (último - primero) * escala * (tamaño - 1);
    };
    Línea línea{.mayores = {}, .menores = {}, .eje = lugar(0)};
    const MarcasEje marcas =
        DevMarcas(std::min(primero, último), std::max(primero, último), tamaño);
    for (const Marca& marca : marcas.mayores)
        línea.mayores.push_back(lugar(marca.valor));
    for (const double menor : marcas.menores)
        línea.menores.push_back(lugar(menor));
    std::ranges::sort(línea.mayores);
    std::ranges::sort(línea.menores);
    return línea;
}

// Also those on the ends of the view, where a line is as wide as anywhere.
TEST_F(EjesDibujados, CadaMarcaYCadaLíneaEstánEnSuLugarHastaLosExtremos) {
    const Ventana ventanas[] = {{10, -10, 10, -10}, {0.3, -0.3, 0.3, -0.3}, {7, -3, 2, -0.5}};
    for (const QSize& tamaño : {QSize(601, 401), QSize(640, 480), QSize(283, 207)})
        for (const int escala : {1, 2, 3})
            for (const Ventana& v : ventanas) {
                SCOPED_TRACE(Describe(tamaño, escala, v));
                imagen = QImage(tamaño * escala, QImage::Format_RGB32);
                const Línea x = DevEsperada(v.XMín, v.XMáx, tamaño.width(), escala);
                const Línea y = DevEsperada(v.YMáx, v.YMín, tamaño.height(), escala);
                for (const bool enX : {true, false}) {
                    const Línea& línea = enX ? x : y;
                    Dibuja(v, escala, Parte::Rejilla);
                    const auto libre = DevLíneaLibre(enX);
                    EstánEn(DevComienzos(libre, escala,
                                         [](const QColor& c) { return c == ColorRejilla; }),
                            escala, línea.mayores);
                    EstánEn(DevComienzos(libre, escala, [](const QColor& c) { return c != Papel; }),
                            escala, línea.menores);
                    // the outermost pixels of the marks, beside the axis itself
                    Dibuja(v, escala, Parte::Ejes);
                    const double eje = enX ? y.eje : x.eje;
                    const int lado = static_cast<int>(std::lround(eje - escala / 2.0)) - 3 * escala;
                    EstánEn(DevComienzos(DevLínea(lado, enX), escala,
                                         [](const QColor& c) { return c == ColorEje; }),
                            escala, línea.mayores);
                }
                EXPECT_EQ(x.mayores.front(), escala / 2.0);
                EXPECT_EQ(x.mayores.back(), imagen.width() - escala / 2.0);
            }
}

TEST_F(EjesDibujados, LlevanPuntaDondeCrecen) {
    Dibuja(Ventana());
    EXPECT_GT(Cuenta({592, 195, 8, 11}, ColorEje), 20); // 8 is the line alone
    EXPECT_LT(Cuenta({4, 195, 8, 11}, ColorEje), 9);
    EXPECT_GT(Cuenta({295, 0, 11, 8}, ColorEje), 20);
    Dibuja({30, 10, 30, 10}); // no axis is in view
    EXPECT_LT(Cuenta({592, 195, 8, 11}, ColorEje), 8);
}

TEST_F(EjesDibujados, LaRejillaTieneDosFinuras) {
    Dibuja({30, 10, 30, 10});
    const QRect fila(20, 23, 560, 1); // between two lines across
    EXPECT_GT(Cuenta(fila, ColorRejilla), 5);
    EXPECT_GT(Cuenta(fila, ColorRejillaMenor), 20);
}

} // namespace
} // namespace quiralto
