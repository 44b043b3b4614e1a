// What the commands on rational functions write, held against an exact reading of its own at 0, 8
// and 15 rounding digits.
#include "commands/ordenes.h"
#include "commands/racionales.h"
#include "tests/apoyo.h"
#include "tests/commands/exacto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace quiralto {
namespace {

constexpr std::uint64_t Semilla = 20281;

// Whether the coefficient that was written is the exact one, rounded.
bool Redondea(exacto::Fracción escrito, exacto::Fracción valor, int dígitos) {
    constexpr double MedioDeQuince = 6e-15; // of fifteen digits
    const double diferencia = std::fabs((escrito + -valor).ADouble());
    return diferencia <=
           .5000001 * std::pow(10.0, -dígitos) + MedioDeQuince * std::fabs(valor.ADouble());
}

bool Redondea(const exacto::Polinomio& escrito, const exacto::Polinomio& valor, int dígitos) {
    for (std::size_t i = 0; i < std::max(escrito.size(), valor.size()); ++i)
        if (!Redondea(i < escrito.size() ? escrito[i] : exacto::Fracción{},
                      i < valor.size() ? valor[i] : exacto::Fracción{}, dígitos))
            return false;
    return true;
}

// Fifteen digits may not have been enough.
bool TieneNúmerosLargos(const exacto::Cociente& c) {
    constexpr double Máximo = 1e15;
    const auto largo = [](exacto::Fracción f) { return std::fabs(f.ADouble()) >= Máximo; };
    return std::ranges::any_of(c.n, largo) || std::ranges::any_of(c.d, largo);
}

class PropiedadesRacionales : public testing::Test {
protected:
    PropiedadesRacionales() { RecordProperty("semilla", std::to_string(Semilla)); }

    // What the command appends, behind its ":"; `esComentario` whether it began with an apostrophe.
    std::string Ejecuta(const char* orden, const std::string& texto) {
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, orden);
        const std::string línea = hoja.texto.substr(texto.size());
        esComentario = línea.find('\'') != std::string::npos;
        const std::size_t puntos = línea.find(':');
        return puntos == std::string::npos ? "" : línea.substr(puntos + 1);
    }
    int DevEntre(int desde, int hasta) {
        return desde + static_cast<int>(azar() % static_cast<std::uint64_t>(hasta - desde + 1));
    }
    template <typename... Textos> std::string Elige(Textos... textos) {
        const std::string lista[] = {textos...};
        return lista[azar() % sizeof...(textos)];
    }
    // A number that no rounding changes.
    std::string DevNúmero() {
        if (banco.contexto.DígitosRedondeo == 0 || azar() % 3 != 0)
            return std::to_string(azar() % 4 == 0 ? DevEntre(1, 300) : DevEntre(1, 12));
        return Elige(".5", "1.5", ".25", "2.75", ".1", "4.3", "12.05");
    }
    std::string DevLineal() {
        return Elige("X", "(X+" + DevNúmero() + ")", "(X-" + DevNúmero() + ")",
                     "(" + DevNúmero() + "*X-" + DevNúmero() + ")", "(1-X)");
    }
    std::string DevFórmula(int hondura) {
        if (hondura == 0)
            return Elige(DevLineal(), DevNúmero(), std::string("X^2"));
        const std::string a = DevFórmula(hondura - 1);
        switch (azar() % 8) {
        case 0:
            return "(" + a + ")^" + Elige("2", "3", "-1", "-2");
        case 1:
            return "(-" + a + ")";
        default:
            return "(" + a + Elige("+", "-", "*", "/", "/") + DevFórmula(hondura - 1) + ")";
        }
    }
    void CompruebaSimplificación(const std::string& f, const exacto::Cociente& exacta);
    void CompruebaLista(const std::vector<std::string>& lista);

    Banco banco;
    bool esComentario = false;
    int comparados = 0;
    std::mt19937_64 azar{Semilla};
};

void PropiedadesRacionales::CompruebaSimplificación(const std::string& f,
                                                    const exacto::Cociente& exacta) {
    const std::string simple = Ejecuta("Simplificar función racional", f);
    const exacto::Cociente reducida = Reducido(exacta);
    EXPECT_TRUE(banco.TomaMensajes().empty()) << f;
    EXPECT_EQ(esComentario, reducida.d.size() > 1) << f << " -> " << simple;
    const exacto::Cociente escrita = exacto::Lee(simple);
    if (!esComentario) {
        EXPECT_TRUE(Redondea(escrita.n, reducida.n, banco.contexto.DígitosRedondeo))
            << f << " -> " << simple;
    } else if (!TieneNúmerosLargos(escrita)) {
        // To the last digit, and nothing in common.
        EXPECT_EQ(escrita.n * reducida.d, reducida.n * escrita.d) << f << " -> " << simple;
        EXPECT_EQ(escrita.d.size(), reducida.d.size()) << f << " -> " << simple;
    }
    ++comparados;
}

TEST_F(PropiedadesRacionales, LoSimplificadoEsLaFunciónEnTérminosMínimos) {
    constexpr int Fórmulas = 3000;
    for (int i = 0; i < Fórmulas; ++i) {
        banco.contexto.DígitosRedondeo = std::array{0, 8, 15}[static_cast<std::size_t>(i % 3)];
        const std::string f = DevFórmula(1 + i % 4);
        try {
            CompruebaSimplificación(f, exacto::Lee(f));
        } catch (const exacto::NoCabe&) {
            banco.TomaMensajes();
        } catch (const exacto::EntreCero&) {
            EXPECT_EQ(Ejecuta("Simplificar función racional", f), "") << f;
            EXPECT_EQ(banco.TomaMensajes().size(), 1U) << f;
        }
    }
    EXPECT_GT(comparados, Fórmulas * 3 / 4);
}

TEST_F(PropiedadesRacionales, CadaLadoConservaSuSigno) {
    constexpr int Cocientes = 500;
    for (int i = 0; i < Cocientes; ++i) {
        const auto lado = [&] {
            return "(" + Elige("", "-") + DevLineal() + "*" + DevLineal() + "*" + DevNúmero() + ")";
        };
        const std::string n = lado();
        const std::string d = lado();
        const std::string simple = Ejecuta("Simplificar función racional", n + "/" + d);
        if (!esComentario)
            continue;
        const std::string abajo = simple.substr(simple.find('/') + 1);
        EXPECT_EQ(exacto::Lee(abajo).n.back().n > 0, exacto::Lee(d).n.back().n > 0)
            << n << '/' << d << " -> " << simple;
        ++comparados;
    }
    EXPECT_GT(comparados, Cocientes / 2);
}

TEST_F(PropiedadesRacionales, LosFactoresMultiplicadosDanElPolinomio) {
    constexpr int Polinomios = 1500;
    for (int i = 0; i < Polinomios; ++i) {
        const int dígitos = std::array{2, 8, 15}[static_cast<std::size_t>(i % 3)];
        banco.contexto.DígitosRedondeo = dígitos;
        // Roots far enough apart for the steps of the search, some of them twice, and a factor
        // without any.
        std::vector<exacto::Fracción> raíces;
        exacto::Polinomio producto{{DevEntre(1, 9) - 10 * DevEntre(0, 1), 1}};
        for (int raíz = -9 + DevEntre(0, 4); raíz < 9; raíz += DevEntre(2, 9)) {
            raíces.push_back(exacto::Reducida(raíz * 12 + DevEntre(0, 11), 12));
            for (int veces = azar() % 4 == 0 ? 2 : 1; veces > 0; --veces)
                producto =
                    producto * exacto::Polinomio{{-raíces.back().n, 1}, {raíces.back().d, 1}};
        }
        if (azar() % 2 == 0)
            producto = producto * exacto::Polinomio{{DevEntre(1, 9), 1}, {}, {1, 1}};
        std::string f;
        for (std::size_t e = producto.size(); e-- > 0;)
            f += (e + 1 == producto.size() ? "" : "+(") +
                 std::to_string(static_cast<std::int64_t>(producto[e].n)) + "*X^" +
                 std::to_string(e) + (e + 1 == producto.size() ? "" : ")");
        std::string escrito = Ejecuta("Factorizar función racional", f + ",-10,10");
        ASSERT_TRUE(escrito.ends_with(")/(1)")) << f;
        escrito = escrito.substr(1, escrito.size() - 6);
        // The roots in order, each in the text as it is rounded, and what they leave.
        exacto::Polinomio resto = producto;
        for (const exacto::Fracción raíz : raíces) {
            const std::size_t x = escrito.find('X');
            const bool entreParéntesis = x > 0 && escrito[x - 1] == '(';
            const std::size_t fin = entreParéntesis ? escrito.find(')', x) : x + 1;
            ASSERT_LT(fin, escrito.size() + 1) << f << " -> " << escrito;
            const exacto::Polinomio factor = exacto::Lee(escrito.substr(x, fin - x)).n;
            ASSERT_EQ(factor.size(), 2U) << f << " -> " << escrito;
            EXPECT_TRUE(Redondea(-factor[0], raíz, dígitos)) << f << " -> " << escrito;
            escrito.replace(entreParéntesis ? x - 1 : x, fin - x + (entreParéntesis ? 2 : 0), "1");
            resto = Divide(resto, {-raíz, {1, 1}});
        }
        EXPECT_TRUE(Redondea(exacto::Lee(escrito).n, resto, dígitos)) << f << " -> " << escrito;
        ++comparados;
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
    EXPECT_EQ(comparados, Polinomios);
}

void PropiedadesRacionales::CompruebaLista(const std::vector<std::string>& lista) {
    std::string texto;
    exacto::Cociente mcd;
    exacto::Cociente mcm;
    for (const std::string& f : lista) {
        const exacto::Cociente r = Reducido(exacto::Lee(f));
        mcd = texto.empty() ? r : exacto::Cociente{MCD(mcd.n, r.n), MCM(mcd.d, r.d)};
        mcm = texto.empty() ? r : exacto::Cociente{MCM(mcm.n, r.n), MCD(mcm.d, r.d)};
        (texto += texto.empty() ? "" : ",") += f;
    }
    const std::string mínimo = Ejecuta("Mínimo común múltiplo función racional", texto);
    const exacto::Cociente mínimoEscrito = exacto::Lee(mínimo);
    const std::string máximo = Ejecuta("Máximo común divisor función racional", texto);
    const exacto::Cociente máximoEscrito = exacto::Lee(máximo);
    EXPECT_TRUE(banco.TomaMensajes().empty()) << texto;
    if (TieneNúmerosLargos(mínimoEscrito) || TieneNúmerosLargos(máximoEscrito))
        return;
    // Of the least degree, and divisible by each: the one such polynomial, but for a number.
    EXPECT_EQ(Mónico(mínimoEscrito.n), Mónico(mcm.n)) << texto << " -> " << mínimo;
    EXPECT_EQ(Mónico(mínimoEscrito.d), Mónico(mcm.d)) << texto << " -> " << mínimo;
    for (const exacto::Polinomio& p : {mínimoEscrito.n, mínimoEscrito.d}) {
        EXPECT_TRUE(p.empty() || p.back().n > 0) << texto << " -> " << mínimo;
        EXPECT_TRUE(std::ranges::all_of(p, [](auto c) { return c.d == 1; })) << mínimo;
    }
    EXPECT_EQ(Mónico(máximoEscrito.n), Mónico(mcd.n)) << texto << " -> " << máximo;
    EXPECT_EQ(Mónico(máximoEscrito.d), Mónico(mcd.d)) << texto << " -> " << máximo;
    ++comparados;
}

TEST_F(PropiedadesRacionales, ElMcmEsElMenorMúltiploYElMcdElMayorDivisor) {
    constexpr int Listas = 1500;
    for (int i = 0; i < Listas; ++i) {
        banco.contexto.DígitosRedondeo = std::array{0, 8, 15}[static_cast<std::size_t>(i % 3)];
        const std::string factores[] = {DevLineal(), DevLineal(), DevLineal(), "(X^2+1)"};
        const auto producto = [&](int cantidad) {
            std::string texto = DevNúmero();
            for (; cantidad > 0; --cantidad)
                (texto += '*') += factores[azar() % 4];
            return texto;
        };
        std::vector<std::string> lista;
        for (int cantidad = DevEntre(1, 4); cantidad > 0; --cantidad) {
            lista.push_back(Elige("", "-") + producto(DevEntre(0, 3)));
            if (azar() % 2 == 0)
                lista.back() += "/(" + producto(DevEntre(1, 3)) + ")";
        }
        try {
            CompruebaLista(lista);
        } catch (const exacto::NoCabe&) {
            banco.TomaMensajes();
        }
    }
    EXPECT_GT(comparados, Listas * 3 / 4);
}

} // namespace
} // namespace quiralto
