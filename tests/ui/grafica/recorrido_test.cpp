// The functions over the window: as a table, and the height that holds them.

#include "ui/grafica/recorrido.h"

#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace quiralto {
namespace {

class ElRecorrido : public testing::Test {
protected:
    void Define(int índice, const char* texto) {
        funciones.Escribe(índice, texto);
        funciones.Enciende(índice);
    }
    std::optional<Ventana> Ajusta() { return DevAjustada(funciones, Ventana(), 300); }

    Banco banco;
    FuncionesGráficas funciones{banco.contexto};
};

TEST_F(ElRecorrido, LaTablaTieneUnaColumnaPorFunciónEncendida) {
    EXPECT_EQ(DevTabla(funciones, Ventana(), 4), "");
    Define(1, "X/4");
    Define(3, "1/X");
    EXPECT_EQ(DevTabla(funciones, Ventana(), 4), "X\tf1(X)=X/4\tf3(X)=1/X\n"
                                                 "-10\t-2.5\t-.1\n"
                                                 "-5\t-1.25\t-.2\n"
                                                 "0\t0\t\n"
                                                 "5\t1.25\t.2\n"
                                                 "10\t2.5\t.1\n");
    funciones.Apaga(1);
    EXPECT_EQ(DevTabla(funciones, Ventana(), 1), "X\tf3(X)=1/X\n-10\t-.1\n10\t.1\n");
}

// In every row the value is that at the X which is written, whatever the window.
TEST_F(ElRecorrido, CadaFilaEsCierta) {
    Define(0, "X*X");
    for (const Ventana& ventana :
         {Ventana{1.0 / 3, -1.0 / 7, 1, 0}, Ventana{1e-11, -3e-11, 1, 0}, Ventana{1e9, 7, 1, 0}}) {
        std::istringstream tabla(DevTabla(funciones, ventana, 150));
        std::string línea;
        std::getline(tabla, línea);
        int filas = 0;
        for (; std::getline(tabla, línea); ++filas) {
            const std::size_t corte = línea.find('\t');
            const double x = Val(línea.substr(0, corte));
            EXPECT_EQ(línea.substr(corte + 1), TextoNúmero(x * x)) << línea;
        }
        EXPECT_EQ(filas, 151);
    }
}

TEST_F(ElRecorrido, SinValoresNoHayNadaQueAjustar) {
    EXPECT_FALSE(Ajusta().has_value());
    Define(0, "SQR(-1-X^2)");
    EXPECT_FALSE(Ajusta().has_value());
}

TEST_F(ElRecorrido, LaAlturaAbarcaLasCurvasConAireYExtremosRedondos) {
    const struct {
        const char* función;
        double menor;
        double mayor;
    } casos[] = {
        {"SIN(X)", -1.1, 1.1},
        {"X^2", -10, 110},
        {"5", 0, 10},
        {"-5", -10, 0},
        {"0", -1, 1},
        {"X/10^9", -1.1e-8, 1.1e-8},
        {"1E30*X", -1.1e31, 1.1e31},
    };
    for (const auto& caso : casos) {
        Define(0, caso.función);
        const std::optional<Ventana> ventana = Ajusta();
        ASSERT_TRUE(ventana.has_value()) << caso.función;
        EXPECT_EQ(ventana->YMín, caso.menor) << caso.función;
        EXPECT_EQ(ventana->YMáx, caso.mayor) << caso.función;
        EXPECT_EQ(ventana->XMáx, 10);
    }
}

TEST_F(ElRecorrido, UnPoloNoAplastaLaCurva) {
    Define(0, "1/X");
    EXPECT_LT(Ajusta()->YMáx, 3);
    EXPECT_GT(Ajusta()->YMáx, 1);
    Define(0, "EXP(X)"); // no pole: all of it
    EXPECT_GT(Ajusta()->YMáx, std::exp(10.0));
}

TEST_F(ElRecorrido, LoInmensoNoRompeNada) {
    for (const char* función : {"1E308*X", "1.7E308*SIN(X)", "1E15+X*1E-3"}) {
        Define(0, función);
        if (const std::optional<Ventana> ventana = Ajusta()) {
            EXPECT_LE(ventana->YMín, ventana->YMáx) << función;
        }
    }
}

} // namespace
} // namespace quiralto
