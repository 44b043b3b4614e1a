#include "commands/ordenes.h"
#include "tests/apoyo.h"
#include "tests/criba.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace quiralto {
namespace {

constexpr const char* Divisores = "Hallar divisores";
constexpr const char* Factores = "Hallar factores primos";
constexpr const char* NúmerosPrimos = "Hallar números primos";
constexpr const char* Mínimo = "Hallar mínimo común múltiplo";
constexpr const char* Máximo = "Hallar máximo común divisor";

class Números : public testing::Test {
protected:
    Números() { banco.contexto.TablaPrimos = DevTablaDePrueba(); }

    // What the command appends to the text.
    std::string Ejecuta(const char* orden, const std::string& texto) {
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, orden);
        EXPECT_EQ(hoja.texto.substr(0, texto.size()), texto);
        return hoja.texto.substr(texto.size());
    }

    Banco banco;
};

std::vector<Mensaje> ErrorDeDivisión() {
    return {{Icono::Crítico,
             "Se produjo el error número :11. Tipo de error :División por cero. Utilice valores "
             "diferentes para evitar este tipo de error. El proceso solicitado se cancelará."}};
}

TEST_F(Números, SinTablaTerminanEnDivisiónPorCero) {
    for (const std::size_t leídos : {0U, 100U, 4791U}) {
        banco.contexto.TablaPrimos = DevTablaDePrueba(leídos);
        for (const auto& [orden, texto] :
             {std::pair{Divisores, "2147483647"}, std::pair{Factores, "2147483647"},
              std::pair{NúmerosPrimos, "2147483600,2147483647"}}) {
            EXPECT_EQ(Ejecuta(orden, texto), "") << orden << ' ' << leídos;
            EXPECT_EQ(banco.TomaMensajes(), ErrorDeDivisión()) << orden << ' ' << leídos;
        }
    }
    // These two do without it.
    EXPECT_EQ(Ejecuta(Máximo, "12,18"), "\r\n\r\n'Máximo común divisor hallado :6");
    EXPECT_EQ(Ejecuta(Mínimo, "12,18"), "\r\n\r\n'Mínimo común múltiplo hallado :36");
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Números, DeDosAVeinticincoMilDosEstánTodosLosPrimos) {
    const std::vector<bool> primo = CribaEratóstenes(25002);
    std::string líneas;
    std::size_t cuenta = 0;
    for (std::size_t n = 0; n < primo.size(); ++n) {
        if (!primo[n])
            continue;
        ++cuenta;
        líneas += "' " + std::to_string(n) + "\r\n";
    }
    const std::string esperado = "\r\n\r\n'Hallados  " + std::to_string(cuenta) + " primos :\r\n" +
                                 líneas + "\r\n'(Sólo se muestran los primos positivos)";
    EXPECT_EQ(Ejecuta(NúmerosPrimos, "2,25002"), esperado);
    EXPECT_EQ(Ejecuta(NúmerosPrimos, "25002.5\r\n1.99999+2"), ""); // one field is not a number
    EXPECT_EQ(banco.TomaMensajes().size(), 1U);
    EXPECT_EQ(Ejecuta(NúmerosPrimos, "25002.5,2"), esperado); // 25002.5 is 25002
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Números, LosÚltimosVeinticincoMilTambiénEstán) {
    std::string líneas;
    std::size_t cuenta = 0;
    for (std::uint32_t n = 2147458647; n <= 2147483647; ++n) {
        if (!EsPrimoMillerRabin(n))
            continue;
        ++cuenta;
        líneas += "' " + std::to_string(n) + "\r\n";
    }
    EXPECT_EQ(Ejecuta(NúmerosPrimos, "2147458647,2147483647"),
              "\r\n\r\n'Hallados  " + std::to_string(cuenta) + " primos :\r\n" + líneas +
                  "\r\n'(Sólo se muestran los primos positivos)");
}

TEST_F(Números, SeRedondeaAlEnteroMásCercanoYLaMitadAlPar) {
    const struct {
        const char* escrito;
        const char* factores;
    } casos[] = {
        {"6.4", "(2)*(3)"},
        {"6.5", "(2)*(3)"},
        {"6.50001", "(7)"},
        {"7.5", "(2^3)"},
        {"-6.5", "(2)*(3)"},
        {"-7.5", "(2^3)"},
        {"0.50001", ""},
        {"1.5", "(2)"},
        {"2147483646.5", "(2)*(3^2)*(7)*(11)*(31)*(151)*(331)"},
        {"-2147483647.4", "(2147483647)"},
    };
    for (const auto& [escrito, factores] : casos) {
        const std::string añadido = Ejecuta(Factores, escrito);
        const std::string línea = std::string("descomposición : \r\n'") + factores + "\r\n\r\n'(";
        EXPECT_NE(añadido.find(línea), std::string::npos) << escrito << añadido;
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Números, ElMcmDeEnterosAlAzarEsElMenorMúltiploDeTodos) {
    std::mt19937 azar(5204);
    for (int i = 0; i < 2000; ++i) {
        const int cuántos = std::uniform_int_distribution<int>(1, 5)(azar);
        std::string texto;
        std::int64_t mcm = 1;
        for (int k = 0; k < cuántos; ++k) {
            const auto n = std::uniform_int_distribution<std::int64_t>(1, 900)(azar);
            std::int64_t múltiplo = mcm; // the first multiple of what was there that n divides
            while (múltiplo % n != 0)
                múltiplo += mcm;
            mcm = múltiplo;
            texto += (k == 0 ? "" : k % 2 == 0 ? "," : "\r\n") + std::to_string(n);
        }
        ASSERT_EQ(Ejecuta(Mínimo, texto),
                  "\r\n\r\n'Mínimo común múltiplo hallado :" + std::to_string(mcm))
            << texto;
    }
}

TEST_F(Números, LaHojaSePuedeVolverAUsar) {
    std::string texto = "360";
    for (int i = 0; i < 2; ++i) {
        texto += Ejecuta(Factores, texto);
        texto += Ejecuta(Divisores, texto);
        texto += Ejecuta(Máximo, texto);
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Números, CanceladasDejanLaHojaComoEstaba) {
    for (const auto& [orden, texto] :
         {std::pair{Divisores, "2095133040"}, std::pair{NúmerosPrimos, "2,25000"},
          std::pair{Máximo, "12,18,24"}, std::pair{Mínimo, "12,18,24"}}) {
        int veces = 0;
        banco.vigilante.continúa = [&] { return ++veces < 3; };
        EXPECT_EQ(Ejecuta(orden, texto), "") << orden;
        EXPECT_EQ(veces, 3) << orden;
        EXPECT_TRUE(banco.TomaMensajes().empty()) << orden;
    }
}

TEST(ÓrdenesDeNúmeros, EstánEnSuMenúYPorSuOrden) {
    std::vector<std::string> títulos;
    for (const Orden& orden : DevÓrdenes())
        if (orden.menú == "Números")
            títulos.emplace_back(orden.título);
    EXPECT_EQ(títulos, (std::vector<std::string>{
                           "Hallar máximo común divisor", "Hallar mínimo común múltiplo",
                           "Hallar divisores", "Descomponer en factores primos",
                           "Hallar números primos", "Convertir coeficienes a fracción continua"}));
    const auto posición = [](std::string_view texto) {
        return std::ranges::find(DevÓrdenes(), texto, &Orden::texto) - DevÓrdenes().begin();
    };
    EXPECT_LT(posición(NúmerosPrimos), posición("Hallar soluciones ecuación"));
    EXPECT_LT(posición("Hallar área"), posición("Convertir coeficientes a fracción continua"));
}

TEST_F(Números, LosEjemplosDeLaTablaFuncionan) {
    for (const Orden& orden : DevÓrdenes()) {
        EXPECT_NE(Ejecuta(std::string(orden.texto).c_str(), std::string(orden.ejemplo)), "");
        EXPECT_TRUE(banco.TomaMensajes().empty()) << orden.texto;
    }
}

} // namespace
} // namespace quiralto
