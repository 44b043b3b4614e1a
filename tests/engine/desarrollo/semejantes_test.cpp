// The criterion of likeness by letter and by value held against each other, and the values of what
// it joins, with rigorous bounds.
#include "tests/apoyo.h"
#include "tests/engine/desarrollo/desarrolla.h"
#include "tests/engine/generador.h"
#include "tests/valor_acotado.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace quiralto {
namespace {

constexpr std::array Puntos = {-7.25, -2.5, -.75, .125, .875, 1.5, 3.0, 9.5};

// One expression written in two ways: the operands of its sums and products change places.
struct Pareja {
    std::string una;
    std::string otra;
};

Pareja Sortea(Generador& azar, int hondura) {
    static constexpr std::array Hojas = {"X", "X", "SLN(65)", "SLN(66)", "2", "3", ".5"};
    static constexpr std::array Funciones = {"SIN(", "COS(", "ATN("};
    if (hondura == 0) {
        const char* const hoja = Hojas.at(azar.Hasta(Hojas.size()));
        return {hoja, hoja};
    }
    const std::size_t forma = azar.Hasta(8);
    const Pareja a = Sortea(azar, hondura - 1);
    if (forma == 0) {
        const std::string función = Funciones.at(azar.Hasta(Funciones.size()));
        return {función + a.una + ")", función + a.otra + ")"};
    }
    const Pareja b = Sortea(azar, hondura - 1);
    if (forma < 4)
        return {"(" + a.una + "+" + b.una + ")", "(" + b.otra + "+" + a.otra + ")"};
    if (forma < 7)
        return {"(" + a.una + "*" + b.una + ")", "(" + b.otra + "*" + a.otra + ")"};
    return {"(" + a.una + "/(" + b.una + "))", "(" + a.otra + "/(" + b.otra + "))"};
}

std::optional<ValorAcotado> Valor(const std::string& texto, double x, Redondeo redondeo = {}) {
    const Programa programa = CompilaExpresión(texto);
    return EvaluadorAcotado(programa, redondeo).Evalúa(x);
}

// Whether it has values that a Double carries with more digits than the criterion asks for.
bool TieneValores(const std::string& texto) {
    constexpr long double Grande = 1e-3L;
    constexpr long double BienDefinido = 1e-14L; // of a bound in long double
    for (const double x : Puntos)
        if (const auto valor = Valor(texto, x);
            !valor || std::fabs(valor->valor) < Grande ||
            valor->cota > BienDefinido * std::fabs(valor->valor))
            return false;
    return true;
}

TEST(Semejantes, LoIgualALaLetraLoEsPorLosValores) {
    constexpr std::uint64_t Semilla = 110240;
    int comparadas = 0;
    for (std::uint64_t i = 0; i < 1500; ++i) {
        Generador azar(Semilla + i);
        const auto [una, otra] = Sortea(azar, 2 + static_cast<int>(i % 3));
        if (!TieneValores(una))
            continue;
        SCOPED_TRACE("semilla " + std::to_string(Semilla + i) + ": " + una + " y " + otra);
        Banco banco;
        EXPECT_TRUE(MismaExpresión(banco.contexto, una, otra));
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Simplificado, una + "-" + otra), "0");
        EXPECT_EQ(Desarrolla(banco.contexto, Clase::Completo, una + "-" + otra), "0");
        ++comparadas;
    }
    EXPECT_GT(comparadas, 700);
}

// Expressions so small that many of them are the same function.
TEST(Semejantes, LoQueSeJuntaValeLoMismo) {
    constexpr std::uint64_t Semilla = 120240;
    constexpr long double Acuerdo = 1e-9L;
    int juntas = 0;
    int separadas = 0;
    for (std::uint64_t i = 0; i < 90; ++i) {
        Generador azar(Semilla + i);
        std::vector<std::string> textos;
        for (int k = 0; k < 20; ++k)
            textos.push_back(Sortea(azar, 1 + k % 2).una);
        Banco banco;
        for (const std::string& a : textos)
            for (const std::string& b : textos) {
                if (!MismaExpresión(banco.contexto, a, b)) {
                    EXPECT_NE(a, b);
                    ++separadas;
                    continue;
                }
                juntas += a != b ? 1 : 0;
                for (const double x : Puntos) {
                    const auto va = Valor(a, x);
                    const auto vb = Valor(b, x);
                    if (va && vb) {
                        EXPECT_LE(std::fabs(va->valor - vb->valor),
                                  va->cota + vb->cota + Acuerdo * std::fabs(va->valor))
                            << a << " y " << b << " en " << x << ", semilla " << Semilla + i;
                    }
                }
            }
    }
    EXPECT_GT(juntas, 100);
    EXPECT_GT(separadas, 1000);
}

// How many values were compared of which the bounds leave less than a part in ten open.
int ComparaValores(const std::string& texto, const std::string& desarrollo, int dígitos) {
    const Redondeo redondeo{.mediaUnidad = .5L * std::pow(10.0L, -dígitos)};
    int comparados = 0;
    for (const double x : Puntos) {
        const auto exacto = Valor(texto, x);
        const auto escrito = Valor(desarrollo, x, redondeo);
        if (!exacto || !escrito)
            continue;
        EXPECT_TRUE(SonCompatibles(*exacto, *escrito))
            << texto << " => " << desarrollo << " en " << x << " con " << dígitos << " dígitos";
        if (escrito->cota < std::fabs(exacto->valor) / 10)
            ++comparados;
    }
    return comparados;
}

// With 0 digits a number that is rounded to 1 is not written, and no bound would be its: there the
// numbers are whole, and what has decimals for quotients (a simplified expansion, and in a complete
// one the base of a power that stays) has none.
bool SeComparan(const std::string& texto, Clase clase, int dígitos) {
    const auto hay = [&](std::string_view parte) { return texto.find(parte) != std::string::npos; };
    if (dígitos > 0)
        return true;
    return clase == Clase::Completo ? !hay(")^") : !hay("/") && !hay("^-") && !hay("^(");
}

class ConDígitos : public testing::TestWithParam<int> {};

TEST_P(ConDígitos, LosValoresSonLosDeLoEscrito) {
    constexpr std::uint64_t Semilla = 130240;
    const int dígitos = GetParam();
    int comparados = 0;
    for (std::uint64_t i = 0; i < 1000; ++i) {
        Generador azar(Semilla + i);
        azar.números = {"1", "2", "3", "4", "7"};
        if (dígitos > 0)
            azar.números.insert(azar.números.end(), {".5", "2.5", "1.25"});
        azar.funciones = {"SIN", "COS", "LOG", "EXP", "SQR", "ATN", "ARCSIN"};
        azar.conCadenasDePotencias = false;
        const std::string texto = azar.Expresión(2 + i % 6);
        SCOPED_TRACE("semilla " + std::to_string(Semilla + i));
        Banco banco;
        banco.contexto.DígitosRedondeo = dígitos;
        for (const Clase clase : {Clase::Completo, Clase::Simplificado}) {
            if (!SeComparan(texto, clase, dígitos))
                continue;
            try {
                comparados +=
                    ComparaValores(texto, Desarrolla(banco.contexto, clase, texto), dígitos);
            } catch (const ErrorEjecución&) {
                continue; // too large, or without a value
            }
        }
    }
    RecordProperty("comparados", comparados);
    EXPECT_GT(comparados, 3000);
}

INSTANTIATE_TEST_SUITE_P(Desarrollo, ConDígitos, testing::Values(0, 8, 15));

} // namespace
} // namespace quiralto
