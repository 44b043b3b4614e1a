#include "commands/ecuaciones.h"
#include "commands/ordenes.h"
#include "commands/sistemas.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/numeros/numero.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <random>

namespace quiralto {
namespace {

constexpr std::string_view Texto = "Resolver sistema lineal";

using Matriz = std::vector<std::vector<double>>; // the constant last

std::string EscribeEcuaciones(const Matriz& matriz) {
    std::string hoja;
    for (const std::vector<double>& fila : matriz) {
        std::string ecuación;
        for (std::size_t j = 0; j + 1 < fila.size(); ++j)
            if (fila[j] != 0)
                ecuación += (fila[j] < 0 ? "-" : "+") + TextoNúmero(std::fabs(fila[j])) + "*X(" +
                            std::to_string(j + 1) + ")";
        hoja += (hoja.empty() ? "" : "\r\n") + ecuación + "=" + TextoNúmero(fila.back());
    }
    return hoja;
}

std::string Resuelve(const std::string& texto) {
    Banco banco;
    Hoja hoja(texto);
    EjecutaInstrucciones(banco.contexto, hoja, Texto);
    EXPECT_TRUE(banco.TomaMensajes().empty());
    return hoja.texto.substr(texto.size());
}

// The unknowns' values, each free one with the value given.
std::vector<double> LeeSoluciones(const std::string& salida, const std::vector<double>& libres) {
    Banco banco;
    std::vector<double> valores(libres.size());
    for (const std::string_view línea : CortaLíneas(salida)) {
        if (!línea.starts_with("'X("))
            continue;
        const auto j = static_cast<std::size_t>(Val(línea.substr(3)));
        std::string texto(línea.substr(línea.find('=') + 1));
        for (std::size_t i = 0; (i = texto.find("SLN(", i)) != std::string::npos;) {
            const std::size_t fin = texto.find(')', i);
            const auto k = static_cast<std::size_t>(Val(texto.substr(i + 4)));
            texto.replace(i, fin + 1 - i, "(" + TextoNúmero(libres.at(k - 1)) + ")");
        }
        Programa programa = CompilaExpresión(texto);
        valores.at(j - 1) = EvalúaPrograma(banco.contexto, programa, 0);
    }
    return valores;
}

TEST(Sistemas, HallanLaSoluciónConLaQueSeHicieron) {
    std::mt19937_64 azar(4242);
    const auto entero = [&](int máximo) {
        return static_cast<double>(azar() % static_cast<unsigned>(2 * máximo + 1)) - máximo;
    };
    for (const std::size_t n : {1U, 2U, 3U, 5U, 8U, 16U, 40U, 100U, 256U}) {
        std::vector<double> solución;
        for (std::size_t j = 0; j < n; ++j)
            solución.push_back(entero(9));
        Matriz matriz;
        for (std::size_t i = 0; i < n; ++i) {
            std::vector<double> fila;
            double suma = 0;
            for (std::size_t j = 0; j < n; ++j) {
                // a heavy diagonal keeps the system well-conditioned
                fila.push_back(entero(9) + (i == j ? 10.0 * static_cast<double>(n) : 0));
                suma += fila.back() * solución[j];
            }
            fila.push_back(suma);
            matriz.push_back(fila);
        }
        const auto halladas =
            LeeSoluciones(Resuelve(EscribeEcuaciones(matriz)), std::vector<double>(n, 0));
        for (std::size_t j = 0; j < n; ++j)
            EXPECT_NEAR(halladas[j], solución[j], 1e-6) << n << " incógnitas, la " << j + 1;
    }
}

TEST(Sistemas, DeRangoMenorSeCumplenConCualquierValorDeLasLibres) {
    std::mt19937_64 azar(777);
    const auto entero = [&](int máximo) {
        return static_cast<double>(azar() % static_cast<unsigned>(2 * máximo + 1)) - máximo;
    };
    for (int vez = 0; vez < 60; ++vez) {
        const std::size_t n = 3 + static_cast<std::size_t>(vez) % 8;
        Matriz matriz;
        for (std::size_t i = 0; i + 2 < n; ++i) {
            std::vector<double> fila;
            for (std::size_t j = 0; j <= n; ++j)
                fila.push_back(entero(5));
            fila[i] += 20;
            matriz.push_back(fila);
        }
        std::vector<double> suma(n + 1); // a row more that says nothing new
        for (const auto& fila : matriz)
            for (std::size_t j = 0; j <= n; ++j)
                suma[j] += fila[j];
        matriz.push_back(suma);
        std::vector<double> libres;
        for (std::size_t j = 0; j < n; ++j)
            libres.push_back(entero(9));
        const std::string salida = Resuelve(EscribeEcuaciones(matriz));
        EXPECT_NE(salida.find("'SLN(i), indica"), std::string::npos);
        const auto valores = LeeSoluciones(salida, libres);
        for (const auto& fila : matriz) {
            double lado = 0;
            for (std::size_t j = 0; j < n; ++j)
                lado += fila[j] * valores[j];
            EXPECT_NEAR(lado, fila[n], 1e-4);
        }
        matriz.back()[n] += 1;
        EXPECT_EQ(Resuelve(EscribeEcuaciones(matriz)),
                  "\r\n'El sistema anterior es imcompatible en la ecuación : " +
                      std::to_string(matriz.size()));
    }
}

// A line that is plainly written and the same in parentheses go different ways to the same bytes.
TEST(Sistemas, LoLlanoYLoGeneralEscribenLoMismo) {
    constexpr std::uint64_t Semilla = 20305;
    std::mt19937_64 azar(Semilla);
    for (int vez = 0; vez < 300; ++vez) {
        const std::size_t n = 1 + azar() % 5;
        std::string llano;
        std::string general;
        for (std::size_t i = 0; i < n; ++i) {
            std::string lado;
            for (std::size_t k = 0; k < 1 + azar() % 6; ++k) {
                lado += k == 0 ? "" : azar() % 2 == 0 ? "-" : "+";
                lado += std::to_string(azar() % 100);
                if (azar() % 2 == 0)
                    lado += "." + std::to_string(azar() % 1000);
                lado += azar() % 5 == 0 ? "" : "*X(" + std::to_string(1 + azar() % 4) + ")";
            }
            lado += "+X(" + std::to_string(1 + i) + ")";
            const std::string otro =
                std::to_string(azar() % 50) + "-X(" + std::to_string(1 + azar() % 4) + ")";
            llano += (i == 0 ? "" : "\r\n") + lado + "=" + otro;
            general += (i == 0 ? "" : "\r\n") + ("(" + lado + ")=(" + otro) + ")";
        }
        const auto resuelve = [](const std::string& texto) {
            Banco banco;
            Hoja hoja(texto);
            EjecutaInstrucciones(banco.contexto, hoja, Texto);
            return hoja.texto.substr(texto.size());
        };
        EXPECT_EQ(resuelve(llano), resuelve(general)) << llano << "\nseed " << Semilla;
    }
}

// A linear expression with products, groups and quotients around its unknowns.
std::string SorteaLineal(std::mt19937_64& azar, std::size_t n, int hondura) {
    static constexpr std::array Factores = {"2", "3", ".5", "SQR(4)", "SIN(2)", "EXP(1)", "(1+2)"};
    const std::string factor = Factores.at(azar() % Factores.size());
    if (hondura == 0)
        return factor + "*X(" + std::to_string(1 + azar() % n) + ")";
    const std::string a = SorteaLineal(azar, n, hondura - 1);
    switch (azar() % 6) {
    case 0:
        return factor + "*(" + a + ")";
    case 1:
        return "(" + a + ")*" + factor;
    case 2:
        return "(" + a + ")/" + factor;
    case 3:
        return "(" + a + "+" + factor + ")";
    case 4:
        return "(" + a + "-" + SorteaLineal(azar, n, hondura - 1) + ")";
    default:
        return "(" + a + "+" + SorteaLineal(azar, n, hondura - 1) + ")";
    }
}

std::string ConValores(std::string texto, const std::vector<double>& valores) {
    for (std::size_t i = 0; (i = texto.find("X(", i)) != std::string::npos;) {
        const auto j = static_cast<std::size_t>(Val(texto.substr(i + 2)));
        texto.replace(i, texto.find(')', i) + 1 - i, "(" + TextoNúmero(valores.at(j - 1)) + ")");
    }
    return texto;
}

TEST(Sistemas, ConProductosGruposYCocientesSeCumplenAlSustituir) {
    constexpr std::uint64_t Semilla = 140240;
    for (std::uint64_t i = 0; i < 200; ++i) {
        std::mt19937_64 azar(Semilla + i);
        const std::size_t n = 2 + i % 3;
        std::vector<double> solución;
        for (std::size_t j = 0; j < n; ++j)
            solución.push_back(static_cast<double>(azar() % 19) - 9);
        std::vector<std::string> lados;
        std::string hoja;
        for (std::size_t j = 1; j <= n; ++j) {
            // a heavy diagonal keeps the system well-conditioned
            lados.push_back("5000*X(" + std::to_string(j) + ")-" +
                            SorteaLineal(azar, n, 1 + static_cast<int>(i % 4)));
            hoja +=
                (j == 1 ? "" : "\r\n") + lados.back() + "=" + ConValores(lados.back(), solución);
        }
        SCOPED_TRACE("semilla " + std::to_string(Semilla + i) + ":\n" + hoja);
        const auto halladas = LeeSoluciones(Resuelve(hoja), std::vector<double>(n, 0));
        Banco banco;
        for (std::size_t j = 0; j < n; ++j) {
            EXPECT_NEAR(halladas[j], solución[j], 1e-6);
            Programa hallado = CompilaExpresión(ConValores(lados[j], halladas));
            Programa esperado = CompilaExpresión(ConValores(lados[j], solución));
            EXPECT_NEAR(EvalúaPrograma(banco.contexto, hallado, 0),
                        EvalúaPrograma(banco.contexto, esperado, 0), 1e-3);
        }
    }
}

TEST(Sistemas, LoQueEntraEnUnaFunciónNoSeRedondea) {
    for (const auto& [texto, valor] : std::vector<std::pair<const char*, double>>{
             {"X(1)=TAN(TAN(1))", std::tan(std::tan(1.0))},
             {"X(1)=1000^SQR(2)", std::pow(1000, std::sqrt(2.0))},
             {"EXP(10/3)*X(1)=EXP(SIN(1)*20)", std::exp(std::sin(1.0) * 20 - 10.0 / 3)},
         })
        EXPECT_NEAR(LeeSoluciones(Resuelve(texto), {0})[0], valor, 1e-7) << texto;
}

TEST(Sistemas, DejanElPrefijoComoEstaba) {
    for (const char* texto : {"X(1)=1", "X(1)^2=1", "1/0*X(1)=1", "X(1)=1)"}) {
        Banco banco;
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, Texto);
        EXPECT_EQ(banco.contexto.PrefijoVariable, "") << texto;
    }
    Banco banco;
    banco.vigilante.continúa = [] { return false; };
    Hoja hoja("X(1)=1");
    EjecutaInstrucciones(banco.contexto, hoja, Texto);
    EXPECT_EQ(banco.contexto.PrefijoVariable, "");
    EXPECT_EQ(hoja.texto, "X(1)=1");
}

TEST(Sistemas, CanceladosDejanLaHojaComoEstaba) {
    std::mt19937 azar(31);
    std::uniform_int_distribution<int> coeficiente(1, 9);
    Matriz matriz(40, std::vector<double>(41));
    for (std::vector<double>& fila : matriz)
        for (double& entrada : fila)
            entrada = coeficiente(azar);
    const std::string texto = EscribeEcuaciones(matriz);
    int cuántas = 0; // how often an undisturbed run asks the watcher
    {
        Banco banco;
        banco.vigilante.continúa = [&] { return ++cuántas > 0; };
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, Texto);
        EXPECT_GT(hoja.texto.size(), texto.size());
    }
    ASSERT_GT(cuántas, 40); // it asks all along, not at the ends alone
    for (const int últimas : {0, 1, cuántas / 2, cuántas - 1}) {
        Banco banco;
        int quedan = últimas;
        banco.vigilante.continúa = [&] { return quedan-- > 0; };
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, Texto);
        EXPECT_EQ(hoja.texto, texto) << últimas;
        EXPECT_EQ(banco.contexto.PrefijoVariable, "") << últimas;
        EXPECT_TRUE(banco.TomaMensajes().empty()) << últimas;
    }
}

// A million lines take long to be read, too.
TEST(Sistemas, PreguntanAntesDeCadaLínea) {
    Banco banco;
    int quedan = 2;
    banco.vigilante.continúa = [&] { return quedan-- > 0; };
    Hoja hoja("");
    hoja.líneas = {"X(1)=1", "X(1)=1", "X(1)=1=2"};
    EXPECT_THROW(ResolverSistemaLineal1(banco.contexto, hoja), OrdenCancelada);
    EXPECT_TRUE(banco.TomaMensajes().empty()); // the third line has not been looked at
}

TEST(Sistemas, SustituyenLasIncógnitas) {
    EXPECT_EQ(Sustituye1("X(3)+x(3)*EXP(2)-X"), "SLN(3)+SLN(3)*EXP(2)-X");
}

} // namespace
} // namespace quiralto
