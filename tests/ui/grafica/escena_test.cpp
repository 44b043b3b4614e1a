// The scene: one text for one value, and what is sampled anew.

#include "tests/apoyo.h"
#include "ui/grafica/escena.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

class ConEscena : public testing::Test {
protected:
    void Define(int índice, const char* texto) {
        funciones.Escribe(índice, texto);
        funciones.Enciende(índice);
    }
    Escena Compone() {
        return compositor.Compone(banco.contexto, vista, funciones, hallados, opciones);
    }
    const ListaPuntos& DevPuntos(const Escena& escena, std::size_t índice) {
        return *escena.cuadro.curvas.at(índice).puntos;
    }

    Banco banco;
    Vista vista;
    FuncionesGráficas funciones{banco.contexto};
    Hallados hallados;
    Opciones opciones;
    Compositor compositor;
};

TEST_F(ConEscena, MuestreaConLosPuntosPedidos) {
    Define(0, "X^2");
    Define(1, "SQR(X)");
    opciones.CantidadPuntos = 4800;
    const Escena escena = Compone();
    EXPECT_NEAR(static_cast<double>(DevPuntos(escena, 0).size()), 4801, 1);
    for (const Punto& punto : DevPuntos(escena, 0))
        EXPECT_EQ(punto.y == 11.0F, std::fabs(punto.x) > std::sqrt(10.0F)) << punto.x;
    for (const Punto& punto : DevPuntos(escena, 1))
        EXPECT_GE(punto.x, 0);
    EXPECT_NEAR(static_cast<double>(DevPuntos(escena, 1).size()), 2401, 1);
    EXPECT_EQ(escena.cuadro.curvas[2].puntos, nullptr);
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST_F(ConEscena, SóloMuestreaLoQueHaCambiado) {
    Define(0, "X^2");
    Define(1, "X");
    const Escena antes = Compone();
    banco.contexto.DígitosRedondeo = 3;
    ASSERT_TRUE(vista.PonPuntoX(1 / 3.0));
    funciones.Escribe(1, "X+1");
    const Escena después = Compone();
    EXPECT_EQ(antes.cuadro.curvas[0].puntos, después.cuadro.curvas[0].puntos); // the very same
    EXPECT_NE(antes.cuadro.curvas[1].puntos, después.cuadro.curvas[1].puntos);
    ASSERT_TRUE(vista.ZoomEjeX(0));
    EXPECT_NE(Compone().cuadro.curvas[0].puntos, después.cuadro.curvas[0].puntos);
}

TEST_F(ConEscena, LoMediaEscritoSóloEstáEnLaPantalla) {
    Define(0, "X^2");
    const Escena antes = Compone();
    funciones.Escribe(0, "X^2+");
    const Escena después = Compone();
    EXPECT_EQ(después.cuadro.curvas[0].puntos, antes.cuadro.curvas[0].puntos);
    EXPECT_TRUE(después.cuadro.curvas[0].atenuada);
    EXPECT_EQ(SinAtenuadas(después.cuadro).curvas[0].puntos, nullptr);
    EXPECT_TRUE(después.leyenda.empty());
    EXPECT_EQ(después.textosValor[0], "");
    EXPECT_EQ(después.marcador.valores[0], std::nullopt);
    EXPECT_EQ(después.descripción.find("f0"), std::string::npos);
    EXPECT_EQ(después.motivos[0], "No está permitido terminar con: +");
    funciones.Escribe(0, "2X");
    EXPECT_EQ(Compone().cuadro.curvas[0].puntos, nullptr);
    EXPECT_NE(Compone().motivos[0].find("falta * entre 2 y X"), std::string::npos);
}

TEST_F(ConEscena, LaLeyendaMuestraLoTecleadoHastaQueSeAsienta) {
    Define(2, "X--1");
    EXPECT_EQ(Compone().leyenda, (std::vector<EntradaLeyenda>{{2, "f2(X)=X--1"}}));
    funciones.Asienta(2);
    EXPECT_EQ(Compone().leyenda, (std::vector<EntradaLeyenda>{{2, "f2(X)=X+1"}}));
    funciones.Apaga(2);
    EXPECT_TRUE(Compone().leyenda.empty());
}

TEST_F(ConEscena, TrasLosValoresPorDefectoElPuntoXNoTieneRestos) {
    ASSERT_TRUE(vista.FijaExtremos({1e-11, -1e-11, 10, -10}));
    ASSERT_TRUE(vista.PonPuntoX(7.50333128963e-13));
    ASSERT_TRUE(vista.ValoresPorDefecto());
    const Escena escena = Compone();
    EXPECT_EQ(escena.textoPuntoX, "0");
    EXPECT_NE(escena.descripción.find("Punto X=0"), std::string::npos);
}

// Every text of a value appears in the description as it stands in its box.
TEST_F(ConEscena, UnValorNoSeMuestraDeDosManeras) {
    const std::uint32_t semilla = 991;
    std::mt19937 azar(semilla);
    Define(0, "1/X");
    Define(1, "SIN(X)*1E6");
    Define(2, "SQR(X)");
    for (int i = 0; i < 2000; ++i) {
        const int índice = static_cast<int>(azar() % 6);
        switch (azar() % 5) {
        case 0:
            vista.ZoomEjesXY(índice);
            break;
        case 1:
            vista.ValoresPorDefecto();
            break;
        case 2:
            vista.PonPuntoX(
                DevXfísico(vista.DevVentana(), static_cast<double>(azar() % 201) / 10 - 10));
            break;
        case 3:
            banco.contexto.DígitosRedondeo = static_cast<int>(azar() % 16);
            break;
        default:
            vista.DesplazaX(índice - 3);
        }
        const Escena escena = Compone();
        ASSERT_NE(escena.descripción.find("Punto X=" + escena.textoPuntoX + ". f0"),
                  std::string::npos)
            << "seed " << semilla;
        for (const EntradaLeyenda& entrada : escena.leyenda) {
            const std::string& valor =
                escena.textosValor.at(static_cast<std::size_t>(entrada.índice));
            const std::string esperado =
                entrada.texto + (valor.empty() ? ", sin valor en X" : ", en X vale " + valor);
            ASSERT_NE(escena.descripción.find(esperado), std::string::npos)
                << esperado << " in " << escena.descripción << " seed " << semilla;
        }
    }
}

} // namespace
} // namespace quiralto
