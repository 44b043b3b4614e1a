// Large and hostile texts pasted into the worksheet: one message or a result, and no waiting.

#include "tests/ui/ventana_de_prueba.h"

#include <QClipboard>

#include <ctime>
#include <random>

namespace quiralto {
namespace {

constexpr qsizetype Mega = qsizetype{1} << 20;

struct Caso {
    const char* nombre;
    QString (*texto)();
    const char* mensaje; // how the message begins
};

std::ostream& operator<<(std::ostream& salida, const Caso& caso) {
    return salida << caso.nombre;
}

QString Basura() {
    std::mt19937 azar(1);
    QByteArray bytes;
    for (qsizetype i = 0; i < Mega / 2; ++i)
        bytes += static_cast<char>(azar() % 256);
    return QString::fromUtf8(bytes);
}

QString Muchas(QStringView pieza, qsizetype total) {
    return pieza.toString().repeated(total / pieza.size());
}

constexpr const char* Uso = "Se esperaba una línea con el formato: ";

const Caso Casos[] = {
    {"Parentesis", [] { return QString(500'000, u'(') + u'X' + QString(500'000, u')'); }, Uso},
    {"ParentesisAbiertos", [] { return QString(Mega, u'('); }, "Desequilibrio de paréntesis"},
    {"Suma", [] { return Muchas(u"X+", Mega) + QStringLiteral("X,1,2"); }, "Se produjo el error"},
    {"Signos", [] { return QString(Mega, u'-') + QStringLiteral("X,1,2"); }, ""},
    {"Numero", [] { return QString(1000, u'9') + QStringLiteral(",1,2"); }, "Un número de doble"},
    {"Lineas", [] { return Muchas(u"x\n", Mega); }, Uso},
    {"Ceros", [] { return QString(Mega, QChar(0)); }, "Error de sintáxis: '"},
    {"Basura", Basura, ""},
    {"Potencias", [] { return QStringLiteral("9^9^9^9,1,2"); }, ""},
};

class EntradaMala : public VentanaDePrueba, public testing::WithParamInterface<Caso> {};

TEST_P(EntradaMala, SeRespondeEnseguida) {
    QApplication::clipboard()->setText(GetParam().texto());
    // The processor's time, so that a busy machine fails nothing.
    const std::clock_t comienzo = std::clock();
    QTest::keyClick(&txtSalida, Qt::Key_V, Qt::ControlModifier);
    QApplication::processEvents();
    Pulsa("HallarSoluciones");
    QApplication::processEvents();
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    QApplication::processEvents();
    // Far more than it takes, for the sake of slow and sanitized runs.
    EXPECT_LT(static_cast<double>(std::clock() - comienzo) / CLOCKS_PER_SEC, 20);
    EXPECT_LE(grabados.mensajes.size(), 1U);
    if (*GetParam().mensaje != '\0') {
        ASSERT_EQ(grabados.mensajes.size(), 1U);
        EXPECT_TRUE(grabados.mensajes[0].texto.starts_with(GetParam().mensaje))
            << grabados.mensajes[0].texto;
    }
}

INSTANTIATE_TEST_SUITE_P(Casos, EntradaMala, testing::ValuesIn(Casos),
                         [](const auto& datos) { return std::string(datos.param.nombre); });

} // namespace
} // namespace quiralto
