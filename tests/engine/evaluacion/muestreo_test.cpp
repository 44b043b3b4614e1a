#include "engine/evaluacion/muestreo.h"

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quiralto {
namespace {

std::vector<Punto> PuntosDe(const std::string& texto, const Ventana& ventana = {},
                            int cantidad = CantidadPuntosInicial) {
    Banco banco;
    banco.contexto.ErrorCódigo = 77;
    auto puntos = CargaPuntos(banco.contexto, CompilaExpresión(texto), ventana, cantidad);
    EXPECT_EQ(banco.contexto.ErrorCódigo, 77) << texto;
    EXPECT_TRUE(banco.TomaMensajes().empty());
    return puntos;
}

TEST(Muestreo, CambiaDeEscala) {
    const Ventana porDefecto;
    EXPECT_EQ(DevXlógico(porDefecto, -10), -10);
    EXPECT_EQ(DevXlógico(porDefecto, 10), 10);
    EXPECT_EQ(DevXlógico(porDefecto, 2.5), 2.5);
    EXPECT_EQ(DevYlógico(porDefecto, -10), -10);
    EXPECT_EQ(DevYlógico(porDefecto, 10), 10);
    EXPECT_EQ(DevXfísico(porDefecto, 0), 0);
    EXPECT_EQ(DevXfísico(porDefecto, -7), -7);
    const Ventana otra{.XMáx = 100, .XMín = 0, .YMáx = 3, .YMín = -1};
    EXPECT_EQ(DevXlógico(otra, 50), 0);
    EXPECT_EQ(DevXlógico(otra, 0), -10);
    EXPECT_EQ(DevXlógico(otra, 200), 30);
    EXPECT_EQ(DevYlógico(otra, 1), 0);
    EXPECT_EQ(DevYlógico(otra, 3), 10);
    EXPECT_EQ(DevXfísico(otra, 10), 100);
    EXPECT_EQ(DevXfísico(otra, -10), 0);
    for (int s = -10; s <= 10; ++s)
        EXPECT_NEAR(DevXlógico(otra, DevXfísico(otra, s)), s, 1e-13);
}

TEST(Muestreo, TomaUnaMuestraMásQueIntervalos) {
    for (const int cantidad : {150, 300, 600, 1200, 2400, 4800}) {
        const auto puntos = PuntosDe("X", {}, cantidad);
        ASSERT_NEAR(static_cast<double>(puntos.size()), cantidad + 1, 1);
        EXPECT_EQ(puntos.front().x, -10.0F);
        EXPECT_NEAR(puntos.back().x, 10, 20.0 / cantidad + 1e-6);
    }
    EXPECT_EQ(PuntosDe("X").size(), 301U);
    EXPECT_EQ(PuntosDe("X", {}, 4800).size(), 4801U);
    EXPECT_EQ(PuntosDe("X", {}, 1).size(), 2U);
    // A step that a Double holds exactly loses none.
    const Ventana exacta{.XMáx = 16, .XMín = -16, .YMáx = 10, .YMín = -10};
    EXPECT_EQ(PuntosDe("X", exacta, 1024).size(), 1025U);
}

TEST(Muestreo, SumaElPaso) {
    const Ventana ventana{.XMáx = 3, .XMín = -2, .YMáx = 10, .YMín = -10};
    const auto puntos = PuntosDe("X", ventana, 300);
    const double paso = 5.0 / 300;
    double x = -2;
    for (const Punto& punto : puntos) {
        EXPECT_EQ(punto.x, static_cast<float>(20 * (x + 2) / 5 - 10));
        EXPECT_EQ(punto.y, static_cast<float>(20 * (x + 10) / 20 - 10));
        x += paso;
    }
    EXPECT_GT(x, 3);
}

TEST(Muestreo, LoQueSaleDelMarcoQuedaJustoFuera) {
    std::size_t fuera = 0;
    for (const Punto& punto : PuntosDe("X^2")) {
        const double x = punto.x;
        if (std::fabs(x) > std::sqrt(10.0) + 1e-6) {
            EXPECT_EQ(punto.y, 11.0F) << x;
            ++fuera;
        } else {
            EXPECT_NEAR(punto.y, x * x, 1e-5) << x;
        }
    }
    EXPECT_EQ(fuera, 206U); // all but the 95 whose X lies within SQR(10)
    for (const Punto& punto : PuntosDe("-X^2-11"))
        EXPECT_EQ(punto.y, -11.0F);
    // The edges themselves are inside.
    for (const Punto& punto : PuntosDe("10+0*X"))
        EXPECT_EQ(punto.y, 10.0F);
    for (const Punto& punto : PuntosDe("-10+0*X"))
        EXPECT_EQ(punto.y, -10.0F);
    for (const Punto& punto : PuntosDe("1E+300*1E+8+0*X"))
        EXPECT_EQ(punto.y, 11.0F);
}

TEST(Muestreo, DejaFueraLosPuntosSinValor) {
    const auto raíz = PuntosDe("SQR(X)");
    EXPECT_NEAR(static_cast<double>(raíz.size()), 150, 1);
    for (const Punto& punto : raíz)
        EXPECT_GE(punto.x, 0.0F);
    // Four steps of .5 fall on 0 exactly, where 1/X has no value.
    const Ventana ventana{.XMáx = 1, .XMín = -1, .YMáx = 10, .YMín = -10};
    const auto polo = PuntosDe("1/X", ventana, 4);
    ASSERT_EQ(polo.size(), 4U);
    EXPECT_EQ(polo[1].x, -5.0F);
    EXPECT_EQ(polo[1].y, -2.0F);
    EXPECT_EQ(polo[2].x, 5.0F);
    EXPECT_EQ(polo[2].y, 2.0F);
    EXPECT_TRUE(PuntosDe("SQR(-1)+X").empty());
    EXPECT_TRUE(PuntosDe("LOG(-X^2-1)").empty());
}

TEST(Muestreo, UnaVentanaRotaEsDesbordamiento) {
    const double máximo = std::numeric_limits<double>::max();
    const double infinito = std::numeric_limits<double>::infinity();
    const Ventana casos[] = {
        {.XMáx = máximo, .XMín = -máximo, .YMáx = 10, .YMín = -10},
        {.XMáx = 10, .XMín = -10, .YMáx = máximo, .YMín = -máximo},
        {.XMáx = infinito, .XMín = -10, .YMáx = 10, .YMín = -10},
        // So wide that a place in it overflows on the way to the drawing scale.
        {.XMáx = 5e307, .XMín = -5e307, .YMáx = 10, .YMín = -10},
        {.XMáx = 10, .XMín = -10, .YMáx = 5e307, .YMín = -5e307},
        // So narrow that no step leads through it.
        {.XMáx = 10, .XMín = 10, .YMáx = 10, .YMín = -10},
        {.XMáx = 1e20, .XMín = 1e20 - 100000, .YMáx = 10, .YMín = -10},
        {.XMáx = 10, .XMín = -10, .YMáx = 3, .YMín = 3},
    };
    for (const Ventana& ventana : casos) {
        try {
            PuntosDe("X", ventana);
            ADD_FAILURE() << ventana.XMín << ' ' << ventana.YMín;
        } catch (const ErrorEjecución& error) {
            EXPECT_EQ(error.Número(), Desbordamiento) << ventana.XMín << ' ' << ventana.YMín;
        }
    }
}

TEST(Muestreo, LosPuntosDeUnaVentanaEnormeSonFinitos) {
    for (const double extremo : {1e-300, 1e100, 4e306}) {
        const Ventana ventana{.XMáx = extremo, .XMín = -extremo, .YMáx = extremo, .YMín = -extremo};
        const auto puntos = PuntosDe("X", ventana);
        ASSERT_GE(puntos.size(), 300U) << extremo;
        for (const Punto& punto : puntos) {
            EXPECT_LE(std::fabs(punto.x), 10.001F) << extremo;
            EXPECT_NEAR(punto.y, punto.x, 1e-5) << extremo;
        }
    }
}

} // namespace
} // namespace quiralto
