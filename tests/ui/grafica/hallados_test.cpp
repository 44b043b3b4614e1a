// What a command has found, on the functions that are drawn.

#include "tests/apoyo.h"
#include "ui/grafica/hallados.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quiralto {
namespace {

class ConHallados : public testing::Test {
protected:
    void Define(int índice, const char* texto) {
        funciones.Escribe(índice, texto);
        funciones.Enciende(índice);
    }
    std::vector<std::string> DevTextos() {
        std::vector<std::string> textos;
        const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
        if (marcas == nullptr)
            return textos;
        for (const LugarHallado& lugar : marcas->lugares)
            textos.push_back(lugar.texto);
        for (const ÁreaHallada& área : marcas->áreas)
            textos.push_back(área.texto);
        return textos;
    }
    using Textos = std::vector<std::string>;

    Banco banco;
    FuncionesGráficas funciones{banco.contexto};
    Hallados hallados;
    const std::vector<Hallazgo> soluciones = {{ClaseHallazgo::Solución, "X^2-4", -5, 5, -2, 0},
                                              {ClaseHallazgo::Solución, "X^2-4", -5, 5, 2, 0}};
};

TEST_F(ConHallados, SeMarcanEnLaFunciónDelMismoTexto) {
    hallados.Pon(soluciones, 8);
    EXPECT_EQ(DevTextos(), Textos{});
    Define(2, "X^2-4");
    EXPECT_EQ(DevTextos(), (Textos{"Solución de f2(X) en X=-2", "Solución de f2(X) en X=2"}));
    Define(2, "X^2-5");
    EXPECT_EQ(DevTextos(), Textos{});
    Define(1, "X^2-4");
    EXPECT_EQ(DevTextos().size(), 2U);
    funciones.Apaga(1);
    EXPECT_EQ(DevTextos(), Textos{});
}

TEST_F(ConHallados, CadaClaseDiceLoQueEs) {
    Define(0, "SIN(X)");
    const auto textos = [&](ClaseHallazgo clase, double x, double y) {
        hallados.Pon({{clase, "SIN(X)", 0, 1.5, x, y}}, 8);
        return DevTextos();
    };
    EXPECT_EQ(textos(ClaseHallazgo::Máximo, -1, 2.123456789123),
              Textos{"Máximo de f0(X) en X=-1, vale 2.12345679"});
    EXPECT_EQ(textos(ClaseHallazgo::Mínimo, .5, 0), Textos{"Mínimo de f0(X) en X=.5, vale 0"});
    EXPECT_EQ(textos(ClaseHallazgo::Inflexión, 0, 1),
              Textos{"Punto de inflexión de f0(X) en X=0, vale 1"});
    EXPECT_EQ(textos(ClaseHallazgo::Área, 0, .929), Textos{"Área de f0(X) de 0 a 1.5: .929"});
    banco.contexto.DígitosRedondeo = 1;
    EXPECT_EQ(DevTextos(), Textos{"Área de f0(X) de 0 a 1.5: .9"});
}

TEST_F(ConHallados, LasSolucionesDeUnaDiferenciaSonCortesEnLaPrimera) {
    Define(0, "X^2");
    Define(3, "X+2");
    hallados.Pon({{ClaseHallazgo::Solución, "(X^2)-(X+2)", -5, 5, -1, 0},
                  {ClaseHallazgo::Solución, "(X^2)-(X+2)", -5, 5, 2, 0}},
                 8);
    EXPECT_EQ(DevTextos(), (Textos{"Corte de f0(X) y f3(X) en X=-1, vale 1",
                                   "Corte de f0(X) y f3(X) en X=2, vale 4"}));
    const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
    EXPECT_EQ(marcas->lugares[1].índice, 0);
    EXPECT_EQ(marcas->lugares[1].lugar.y, 4);
    funciones.Apaga(3);
    EXPECT_EQ(DevTextos(), Textos{});
    Define(3, "X+2");
    // a maximum of the difference is none of either
    hallados.Pon({{ClaseHallazgo::Máximo, "(X^2)-(X+2)", -5, 5, -1, 0}}, 8);
    EXPECT_EQ(DevTextos(), Textos{});
}

// A change of sign is all that a command looks for; the graph shows what there is.
TEST_F(ConHallados, NiUnPoloNiUnSaltoSeMarcanComoSolución) {
    constexpr double Tercio = .33333333;
    const auto textos = [&](const char* función, double x) {
        Define(0, función);
        hallados.Pon({{ClaseHallazgo::Solución, función, -5, 5, x, 0}}, 8);
        return DevTextos();
    };
    EXPECT_EQ(textos("1/X", 0), Textos{});
    EXPECT_EQ(textos("1/(X-1/3)", Tercio), Textos{});
    EXPECT_EQ(textos("TAN(X)", 1.57079633), Textos{});
    EXPECT_EQ(textos("SQR(X^2)/X", 0), Textos{});
    EXPECT_EQ(textos("SQR((X-1/3)^2)/(X-1/3)", Tercio), Textos{});
    for (const char* cero : {"X-1/3", "(X-1/3)^3", "(X-1/3)^2", "SQR(X-1/3)", "TAN(X-1/3)",
                             "ATN(1000000000000*(X-1/3))", "(X-1/3)/1E+200"})
        EXPECT_EQ(textos(cero, 1 / 3.0), Textos{"Solución de f0(X) en X=.333333333333333"}) << cero;
}

TEST_F(ConHallados, UnaSoluciónSeMarcaDondeEstáYNoDondeSeRedondea) {
    Define(0, "X^2-2");
    for (const int dígitos : {0, 2, 8, 15}) {
        const double x = std::round(std::sqrt(2) * std::pow(10, dígitos)) / std::pow(10, dígitos);
        hallados.Pon({{ClaseHallazgo::Solución, "X^2-2", 0, 5, x, 0}}, dígitos);
        const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
        ASSERT_NE(marcas, nullptr) << dígitos;
        EXPECT_NEAR(marcas->lugares[0].lugar.x, std::sqrt(2), 1e-15) << dígitos;
        EXPECT_EQ(marcas->lugares[0].lugar.y, 0);
    }
    Define(1, "X/2"); // meets it a little further on
    hallados.Pon({{ClaseHallazgo::Solución, "(X^2-2)-(X/2)", 0, 5, 1.69, 0}}, 2);
    const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
    ASSERT_NE(marcas, nullptr);
    const Lugar lugar = marcas->lugares[0].lugar;
    EXPECT_NEAR(lugar.x, (1 + std::sqrt(33)) / 4, 1e-15);
    EXPECT_NEAR(lugar.y, lugar.x / 2, 1e-15);
}

TEST_F(ConHallados, UnPoloNoEsExtremoNiInflexión) {
    const auto textos = [&](ClaseHallazgo clase, const char* función, double x, double y) {
        Define(0, función);
        hallados.Pon({{clase, función, -1, 1, x, y}}, 8);
        return DevTextos();
    };
    constexpr double Tercio = .33333333;
    EXPECT_EQ(textos(ClaseHallazgo::Mínimo, "1/(X-1/3)^2", Tercio, 9e16), Textos{});
    EXPECT_EQ(textos(ClaseHallazgo::Máximo, "-1/(X-1/3)^2", Tercio, -9e16), Textos{});
    EXPECT_EQ(textos(ClaseHallazgo::Inflexión, "1/(X-1/3)", Tercio, -3e8), Textos{});
    EXPECT_EQ(textos(ClaseHallazgo::Mínimo, "(X-1/3)^2", Tercio, 1e-17).size(), 1U);
    EXPECT_EQ(textos(ClaseHallazgo::Máximo, "1/(1+X^2)", 0, 1).size(), 1U);
    EXPECT_EQ(textos(ClaseHallazgo::Inflexión, "X^3", 0, 0).size(), 1U);
}

TEST_F(ConHallados, NadaHalladoLosDejaYQuitarNo) {
    Define(0, "X^2-4");
    hallados.Pon(soluciones, 8);
    hallados.Pon({}, 8);
    EXPECT_EQ(DevTextos().size(), 2U);
    hallados.Pon({{ClaseHallazgo::Mínimo, "X^2-4", -5, 5, 0, -4}}, 8);
    EXPECT_EQ(DevTextos(), Textos{"Mínimo de f0(X) en X=0, vale -4"});
    hallados.Quita();
    EXPECT_TRUE(hallados.EstáVacío());
    EXPECT_EQ(DevTextos(), Textos{});
}

TEST_F(ConHallados, SonLosMismosMientrasNadaCambia) {
    Define(0, "X^2-4");
    hallados.Pon(soluciones, 8);
    const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
    EXPECT_EQ(hallados.DevMarcas(banco.contexto, funciones), marcas);
    Define(1, "X");
    EXPECT_NE(hallados.DevMarcas(banco.contexto, funciones), marcas);
}

TEST_F(ConHallados, ElTextoDeUnLugarEsElDelMásCercano) {
    Define(0, "X^2-4");
    hallados.Pon(soluciones, 8);
    const auto marcas = hallados.DevMarcas(banco.contexto, funciones);
    const auto texto = [&](double x, double y) { return DevTextoLugar(*marcas, {x, y}, .1, .1); };
    EXPECT_EQ(texto(2, 0), "Solución de f0(X) en X=2");
    EXPECT_EQ(texto(2.4, .4), "Solución de f0(X) en X=2");
    EXPECT_EQ(texto(-1.8, .4), "Solución de f0(X) en X=-2");
    EXPECT_EQ(texto(2.9, 0), "");
    EXPECT_EQ(texto(2, 1), "");
}

TEST_F(ConHallados, MuchosSeCuentan) {
    const std::string onda = "SIN(40*ATN(1)*X)"; // zero at every tenth
    Define(0, onda.c_str());
    std::vector<Hallazgo> muchos;
    for (int i = 0; i < 300; ++i)
        muchos.push_back({ClaseHallazgo::Solución, onda, 0, 30, i / 10.0, 0});
    hallados.Pon(muchos, 8);
    const std::string texto = DevTextoMarcas(*hallados.DevMarcas(banco.contexto, funciones));
    EXPECT_TRUE(texto.starts_with("Solución de f0(X) en X=0; Solución de f0(X) en X=.1; "));
    EXPECT_TRUE(texto.ends_with("en X=.7; y 292 más")) << texto;
}

} // namespace
} // namespace quiralto
