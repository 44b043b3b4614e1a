// What the status bar reads from the worksheet.

#include "commands/hoja.h"
#include "commands/ordenes.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/hoja/lector_estado.h"

#include <QMenu>

#include <set>

namespace quiralto {
namespace {

TEST(LectorEstado, DiceLoQueHayComoLoLeeríaUnaOrden) {
    const struct {
        const char* hoja;
        const char* lectura;
    } casos[] = {
        {"", "Sin datos"},
        {"'nota\n\n  'otra", "Sin datos"},
        {"X^2-4,-5,5", "f(X)=X^2-4 · extremo 1: -5 · extremo 2: 5"},
        {"X^2-4,-5,5'nota", "f(X)=X^2-4 · extremo 1: -5 · extremo 2: 5"},
        {"X^2,3", "f(X)=X^2 · punto: 3"},
        {"SIN(X)", "f(X)=SIN(X)"},
        {"0,5,0,75", "4 números: 0 · 5 · 0 · 75"},
        {"12\n18,30", "3 números: 12 · 18 · 30"},
        {"7", "1 número: 7"},
        {"X(1)+X(2)=3\nX(1)-X(2)=1", "2 ecuaciones, 2 incógnitas"},
        {"X(1)+X(2)+X(3)=3\nX(1)-X(2)=1\nX(3)=2", "3 ecuaciones, 3 incógnitas"},
        {"X(7)=3", "1 ecuación, 1 incógnita"},
        {"X^2\nX^3", "2 líneas de datos"},
        {"(A+B)^2", "Varias variables: (A+B)^2"},
        {"X^3-1,X^2-1", "2 funciones: X^3-1 · X^2-1"},
        {"X^2 ,3", "f(X)=X^2 · punto: 3 · Error de sintáxis: ' ' (sobra un blanco)"},
        {"X^2-4,5,-5",
         "f(X)=X^2-4 · extremo 1: 5 · extremo 2: -5 · Se esperaba que el extremo superior fuera "
         "mayor que el inferior"},
        {"2X,1,2",
         "f(X)=2X · extremo 1: 1 · extremo 2: 2 · Error de lógica en la expresión, verifique la "
         "sintaxis (falta * entre 2 y X)"},
    };
    Banco banco;
    for (const auto& caso : casos)
        EXPECT_EQ(LeeHoja(banco.contexto, ConCrLf(caso.hoja)).texto, caso.lectura) << caso.hoja;
    EXPECT_TRUE(banco.TomaMensajes().empty());
    EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
}

TEST(LectorEstado, NoLeeMásDe64KiB) {
    Banco banco;
    std::string hoja;
    for (int i = 0; i < 1'000'000; ++i)
        hoja += "1\r\n";
    const std::string lectura = LeeHoja(banco.contexto, hoja).texto;
    EXPECT_TRUE(lectura.starts_with("Al menos 218")) << lectura;
    EXPECT_LT(lectura.size(), 200U);
    const std::string línea = "X" + std::string(100'000, '+') + "X";
    EXPECT_EQ(LeeHoja(banco.contexto, línea).texto, "Más de 64 KiB en una línea");
    EXPECT_FALSE(LeeHoja(banco.contexto, línea).errónea);
}

TEST(LectorEstado, DiceQuéLíneaNoLeeríaNinguna) {
    const struct {
        const char* hoja;
        std::optional<std::size_t> errónea;
    } casos[] = {
        {"", {}},
        {"X^2-4,-5,5", {}},
        {"X^2,5,-5", 0},
        {"'nota\n2X", 0},
        {"X(1)=2\n'nota\nX(1)=2*+", 1},
        {"12,18", {}},
        {"X^2\nX^3", {}},
        {"X^2\n'nota\n2X,1\nX+", 1},
        {"12,18\nX^2,5,-5", 1},
    };
    Banco banco;
    for (const auto& caso : casos)
        EXPECT_EQ(LeeHoja(banco.contexto, ConCrLf(caso.hoja)).errónea, caso.errónea) << caso.hoja;
}

TEST(LectorEstado, SonPosiblesLasÓrdenesQueLeeríanLosDatos) {
    const auto posibles = [](std::string_view hoja) {
        Banco banco;
        std::set<std::string_view> textos;
        for (const std::size_t i : DevÓrdenesPosibles(banco.contexto, ConCrLf(hoja)))
            textos.insert(DevÓrdenes()[i].texto);
        EXPECT_TRUE(banco.TomaMensajes().empty());
        return textos;
    };
    using Textos = std::set<std::string_view>;
    EXPECT_EQ(posibles(""), Textos{});
    EXPECT_EQ(posibles("'X^2"), Textos{});
    EXPECT_EQ(posibles("X^2,5,-5"), (Textos{"Máximo común divisor función racional",
                                            "Mínimo común múltiplo función racional"}));
    EXPECT_EQ(posibles("2X"), Textos{});
    EXPECT_EQ(posibles("X^2-4,-5,5"),
              (Textos{"Hallar soluciones ecuación", "Hallar máximos", "Hallar mínimos",
                      "Hallar puntos de inflexión", "Hallar área", "Hallar secante",
                      "Factorizar función racional", "Máximo común divisor función racional",
                      "Mínimo común múltiplo función racional"}));
    EXPECT_EQ(posibles("X(1)=2\nX(2)=3"), (Textos{"Resolver sistema lineal"}));
    EXPECT_TRUE(posibles("SIN(X)").contains("Derivar"));
    EXPECT_TRUE(posibles("SIN(X)").contains("Desarrollo completo multivariable"));
    EXPECT_TRUE(posibles("360").contains("Hallar divisores"));
    EXPECT_FALSE(posibles("360,12").contains("Hallar divisores"));
    EXPECT_EQ(posibles(std::string(100'000, '1')), Textos{});
    // each takes its own example
    for (const Orden& orden : DevÓrdenes())
        EXPECT_TRUE(posibles(ConLf(orden.ejemplo)).contains(orden.texto)) << orden.texto;
}

class Lectura : public VentanaDePrueba {
protected:
    QString DevLeído() {
        QTest::qWait(static_cast<int>(FrmGráficas::Lectura.count()) + 30);
        return Busca<QLabel>("lectura").toolTip();
    }
};

TEST_F(Lectura, LaBarraDeEstadoLoDiceMientrasSeTeclea) {
    EXPECT_EQ(DevLeído(), QStringLiteral("Sin datos"));
    QTest::keyClicks(&txtSalida, QStringLiteral("x^2-4"));
    EXPECT_EQ(DevLeído(), QStringLiteral("f(X)=X^2-4"));
    QTest::keyClicks(&txtSalida, QStringLiteral(",0,5"));
    EXPECT_EQ(DevLeído(), QStringLiteral("f(X)=X^2-4 · extremo 1: 0 · extremo 2: 5"));
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Lectura, CadaOrdenDiceLoQueEsperaJuntoALoQueHay) {
    QTest::keyClicks(&txtSalida, QStringLiteral("0,5,0,75"));
    Q_EMIT Busca<QMenu>("MenúHoja").aboutToShow();
    EXPECT_EQ(Busca<QAction>("HallarSoluciones").statusTip(),
              QStringLiteral("Espera f(x),extremo1,extremo2 · Hay: 4 números: 0 · 5 · 0 · 75 · "
                             "Ejemplo: X^2-4,-5,5"));
}

// It reads with the context that a command works with, and must not come between.
TEST_F(Lectura, NoCambiaLoQueUnaOrdenCalcula) {
    txtSalida.setPlainText(QStringLiteral("SEN(X),1,2"));
    DevLeído();
    EXPECT_EQ(Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones"),
              "X^2-4,-5,5\n\n'Solución en X=-2\n'Solución en X= 2\n");
    EXPECT_TRUE(grabados.mensajes.empty());
}

} // namespace
} // namespace quiralto
