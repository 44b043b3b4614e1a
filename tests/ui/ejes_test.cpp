// The axes: where their labels stand, and what is drawn of them.

#include "ui/dibujo/colores.h"
#include "ui/dibujo/ejes.h"
#include "ui/dibujo/rotulos.h"

#include <gtest/gtest.h>

#include <cmath>
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

class EjesDibujados : public testing::Test {
protected:
    EjesDibujados() : imagen(600, 400, QImage::Format_RGB32) {}
    void Dibuja(const Ventana& ventana) {
        imagen.fill(Papel);
        QPainter pintor(&imagen);
        const Lienzo lienzo{QRectF(imagen.rect()), 1};
        Ejes ejes(pintor, lienzo, ventana);
        ejes.DibujaRejilla();
        ejes.Dibuja();
    }
    int Cuenta(const QRect& zona, const QColor& color) const {
        int cuenta = 0;
        for (int y = zona.top(); y <= zona.bottom(); ++y)
            for (int x = zona.left(); x <= zona.right(); ++x)
                cuenta += imagen.pixelColor(x, y) == color ? 1 : 0;
        return cuenta;
    }
    QImage imagen;
};

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
