#include "commands/lagrange.h"

#include "commands/ordenes.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quiralto {
namespace {

class Lagrange : public testing::Test {
protected:
    std::string Ejecuta(const std::string& texto) {
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, "Hallar polinomio de Lagrange");
        EXPECT_EQ(hoja.texto.substr(0, texto.size()), texto);
        return hoja.texto.substr(texto.size());
    }
    // What follows the heading; empty where it is not there.
    std::string DevPolinomio(const std::string& texto) {
        const std::string título = "\r\n\r\n'Polinomio de Lagrange: \r\n'";
        const std::string escrito = Ejecuta(texto);
        return escrito.starts_with(título) ? escrito.substr(título.size()) : "";
    }

    Banco banco;
};

TEST_F(Lagrange, DaElPolinomioQuePasaPorLosPuntos) {
    const struct {
        const char* puntos;
        const char* polinomio;
    } casos[] = {
        {"2,4,3,9,4,16,5,25", "X^2"},
        {"2,8,6,216", "52*X-96"},
        {"2,8\r\n6,216", "52*X-96"},
        {"0,1,1,1,2,1", "1"},
        {"0,0,1,0", "0"},
        {"-1,-1,0,0,1,1", "X"},
        {"-1,.5,.5,2,3,-7", "-1.15*X^2+.425*X+2.075"}, // by divided differences
        {"0,0,3,1", ".33333333*X"},
        {"-2,-3,-1,-1", "2*X+1"},
        {"0,1000000000000,1,0", "-1000000000000*X+1000000000000"},
        {".123456789,0,1.123456789,1", "X-.12345679"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(DevPolinomio(caso.puntos), caso.polinomio) << caso.puntos;
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Lagrange, LasListasMalFormadasTienenSuMensaje) {
    const std::string parejas = "Se esperaban por lo menos dos parejas de valores "
                                " en la forma x1,y1,x2,y2,....; ejemplo : \r\n2,8,6,216";
    const std::string pares = "Se esperaban una lista con un número par de datos, en la forma "
                              "x1,y1,x2,y2,.....,xn,yn; ejemplo : \r\n2,4,3,9,4,16,5,25";
    for (const auto& [lista, mensaje] :
         {std::pair{"1,2,3", pares}, {"1", pares}, {"1,2", parejas}}) {
        EXPECT_EQ(Ejecuta(lista), "") << lista;
        EXPECT_EQ(banco.TomaMensajes(), (std::vector<Mensaje>{{Icono::Exclamación, mensaje}}))
            << lista;
    }
}

TEST_F(Lagrange, DosPuntosConLaMismaXSonUnaDivisiónPorCero) {
    for (const char* lista : {"1,2,1,3", "1,2,1,2", "0,0,1,1,2,2,0,5"}) {
        EXPECT_EQ(Ejecuta(lista), "") << lista;
        const auto mensajes = banco.TomaMensajes();
        ASSERT_EQ(mensajes.size(), 1U) << lista;
        EXPECT_EQ(mensajes[0].icono, Icono::Crítico) << lista;
        EXPECT_TRUE(mensajes[0].texto.starts_with(
            "Se produjo el error número :11. Tipo de error :División por cero."))
            << lista;
    }
}

// y = the sum of c[k] x^k on x = x2 / 2, exact: as a whole number over 2^grado.
std::string DevPunto(const std::vector<int>& c, int x2) {
    const std::size_t grado = c.size() - 1;
    std::int64_t suma = 0;
    std::int64_t potencia = std::int64_t{1} << grado;
    for (std::size_t k = 0; k <= grado; ++k) {
        suma += c[k] * potencia;
        potencia = potencia / 2 * x2;
    }
    // In decimals: suma / 2^grado = suma * 5^grado / 10^grado.
    std::int64_t entera = suma >> grado;
    const std::int64_t resto = suma - (entera << grado);
    std::string texto = std::to_string(entera);
    if (resto != 0) {
        const bool negativo = suma < 0;
        std::int64_t magnitud = negativo ? -suma : suma;
        entera = magnitud >> grado;
        magnitud -= entera << grado;
        texto = (negativo ? "-" : "") + std::to_string(entera) + ".";
        for (std::size_t k = 0; k < grado && magnitud != 0; ++k) {
            magnitud *= 10;
            texto += static_cast<char>('0' + (magnitud >> grado));
            magnitud &= (std::int64_t{1} << grado) - 1;
        }
    }
    return texto;
}

std::string DevTexto(const std::vector<int>& c) {
    std::string texto;
    for (std::size_t k = c.size(); k-- > 0;) {
        if (c[k] == 0)
            continue;
        texto += c[k] < 0 ? "-" : texto.empty() ? "" : "+";
        if (k == 0 || std::abs(c[k]) != 1)
            texto += std::to_string(std::abs(c[k])) + (k == 0 ? "" : "*");
        if (k > 0)
            texto += k == 1 ? "X" : "X^" + std::to_string(k);
    }
    return texto.empty() ? "0" : texto;
}

TEST_F(Lagrange, EsExactoParaCoeficientesEnterosPequeños) {
    std::mt19937_64 azar(20274);
    for (int i = 0; i < 300; ++i) {
        const std::size_t n = 2 + static_cast<std::size_t>(i) % 11; // up to 12 points
        // Whole places, or, where 15 digits hold the values, halves.
        const bool mitades = i % 3 == 0 && n <= 8;
        std::vector<int> lugares;
        for (int x = -10; x <= 10; ++x)
            lugares.push_back(mitades ? x : 2 * x);
        std::ranges::shuffle(lugares, azar);
        std::vector<int> c(n);
        for (int& coeficiente : c)
            coeficiente = static_cast<int>(azar() % 19) - 9;
        std::string lista;
        for (std::size_t k = 0; k < n; ++k) {
            const std::string x = lugares[k] % 2 == 0 ? std::to_string(lugares[k] / 2)
                                  : lugares[k] < 0    ? "-" + std::to_string(-lugares[k] / 2) + ".5"
                                                      : std::to_string(lugares[k] / 2) + ".5";
            lista += (k == 0 ? "" : ",") + x + "," + DevPunto(c, lugares[k]);
        }
        EXPECT_EQ(DevPolinomio(lista), DevTexto(c)) << lista;
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Lagrange, QuinientosPuntosNoSonDemasiados) {
    std::string cuadrados;
    std::string azarosos;
    for (int i = 0; i < 500; ++i) {
        const std::string coma = i == 0 ? "" : ",";
        cuadrados += coma + std::to_string(i) + "," + std::to_string(i * i);
        azarosos += coma + std::to_string(i - 250) + "." + std::to_string(i * 7919 % 97) + "," +
                    std::to_string(i * 31 % 17);
    }
    EXPECT_EQ(DevPolinomio(cuadrados), "X^2");
    EXPECT_NE(DevPolinomio(azarosos), "");
    EXPECT_TRUE(banco.TomaMensajes().empty());
    EXPECT_EQ(Ejecuta(cuadrados + ",7,49"), "");
    EXPECT_NE(banco.TomaMensajes().at(0).texto.find("número :11."), std::string::npos);
}

TEST_F(Lagrange, DemasiadosPuntosTerminanConUnError) {
    std::string lista;
    for (int i = 0; i < 20000; ++i)
        lista += (i == 0 ? "" : ",") + std::to_string(i) + ",1";
    EXPECT_EQ(Ejecuta(lista), "");
    const auto mensajes = banco.TomaMensajes();
    ASSERT_EQ(mensajes.size(), 1U);
    EXPECT_NE(mensajes[0].texto.find("número :6."), std::string::npos);
}

TEST_F(Lagrange, CanceladaDejaLaHojaComoEstaba) {
    banco.vigilante.continúa = [] { return false; };
    EXPECT_EQ(Ejecuta("2,8,6,216"), "");
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

} // namespace
} // namespace quiralto
