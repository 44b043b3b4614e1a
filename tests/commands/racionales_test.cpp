#include "commands/racionales.h"

#include "commands/ordenes.h"
#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>

namespace quiralto {
namespace {

constexpr const char* Simplificar = "Simplificar función racional";
constexpr const char* Factorizar = "Factorizar función racional";
constexpr const char* Máximo = "Máximo común divisor función racional";
constexpr const char* Mínimo = "Mínimo común múltiplo función racional";

using Raíces = std::vector<int>;

// The coefficients of the product of (X-a), constant first, by plain convolution.
std::vector<std::int64_t> DevCoeficientes(const Raíces& raíces) {
    std::vector<std::int64_t> producto{1};
    for (const int a : raíces) {
        producto.insert(producto.begin(), 0);
        for (std::size_t i = 0; i + 1 < producto.size(); ++i)
            producto[i] -= a * producto[i + 1];
    }
    return producto;
}

std::string DevTexto(const Raíces& raíces) {
    const auto coeficientes = DevCoeficientes(raíces);
    std::string texto;
    for (std::size_t i = coeficientes.size(); i-- > 0;) {
        const std::int64_t c = coeficientes[i];
        if (c == 0)
            continue;
        texto += c < 0 ? "-" : texto.empty() ? "" : "+";
        if (i == 0 || std::abs(c) != 1)
            texto += std::to_string(std::abs(c)) + (i == 0 ? "" : "*");
        if (i > 0)
            texto += i == 1 ? "X" : "X^" + std::to_string(i);
    }
    return texto;
}

std::string DevFactor(int a) {
    if (a == 0)
        return "X";
    return a < 0 ? "(X+" + std::to_string(-a) + ")" : "(X-" + std::to_string(a) + ")";
}

std::string DevProducto(const Raíces& raíces) {
    std::string texto;
    for (const int a : raíces)
        texto += (texto.empty() ? "" : "*") + DevFactor(a);
    return texto.empty() ? "1" : texto;
}

// What is left of both when each common factor is struck out once for each time that both have it.
void Reduce(Raíces& n, Raíces& d) {
    std::erase_if(n, [&](int a) {
        const auto lugar = std::ranges::find(d, a);
        if (lugar == d.end())
            return false;
        d.erase(lugar);
        return true;
    });
}

class Racionales : public testing::Test {
protected:
    // What the command appends to the text.
    std::string Ejecuta(const char* orden, const std::string& texto) {
        Hoja hoja(texto);
        EjecutaInstrucciones(banco.contexto, hoja, orden);
        EXPECT_EQ(hoja.texto.substr(0, texto.size()), texto);
        seleccionada = hoja.líneaSeleccionada;
        return hoja.texto.substr(texto.size());
    }
    int DevEntre(int desde, int hasta) {
        return desde + static_cast<int>(azar() % static_cast<std::uint64_t>(hasta - desde + 1));
    }
    Raíces DevRaíces(int cantidad) {
        Raíces raíces;
        for (int i = 0; i < cantidad; ++i)
            raíces.push_back(DevEntre(-9, 9));
        return raíces;
    }
    Raíces DevRaícesDistintas(int cantidad) {
        Raíces todas;
        for (int a = -9; a <= 9; ++a)
            todas.push_back(a);
        std::ranges::shuffle(todas, azar);
        todas.resize(static_cast<std::size_t>(cantidad));
        return todas;
    }
    std::string DevCociente(const Raíces& n, const Raíces& d, bool desarrollado) {
        if (desarrollado)
            return "(" + DevTexto(n) + ")/(" + DevTexto(d) + ")";
        // Either one quotient of products or a product of quotients and inverses.
        if (azar() % 2 == 0)
            return "(" + DevProducto(n) + ")/(" + DevProducto(d) + ")";
        std::string texto = DevProducto(n);
        for (const int a : d)
            texto += azar() % 2 == 0 ? "/" + DevFactor(a) : "*" + DevFactor(a) + "^-1";
        return texto;
    }

    Banco banco;
    std::optional<std::string> seleccionada;
    std::mt19937_64 azar{20273};
};

TEST_F(Racionales, UnCocienteDeFactoresLinealesSeSimplificaATérminosMínimos) {
    for (int i = 0; i < 4000; ++i) {
        Raíces n = DevRaíces(DevEntre(0, 6));
        Raíces d = DevRaíces(DevEntre(1, 6));
        const std::string f = DevCociente(n, d, i % 2 == 0);
        Reduce(n, d);
        const std::string esperado =
            d.empty() ? "\r\n\r\nSimplificación :" + DevTexto(n)
                      : "\r\n\r\n'Simplificación :(" + DevTexto(n) + ")/(" + DevTexto(d) + ")";
        EXPECT_EQ(Ejecuta(Simplificar, f), esperado) << f;
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Racionales, UnCocienteDeFactoresLinealesDistintosSeFactorizaEnEllos) {
    for (int i = 0; i < 1000; ++i) {
        Raíces n = DevRaícesDistintas(DevEntre(1, 6));
        Raíces d = DevRaícesDistintas(DevEntre(1, 6));
        const std::string f = i % 2 == 0 ? "(" + DevTexto(n) + ")/(" + DevTexto(d) + ")"
                                         : "(" + DevProducto(n) + ")/(" + DevProducto(d) + ")";
        std::ranges::sort(n);
        std::ranges::sort(d);
        // A division without a remainder leaves a polynomial; nothing else is reduced.
        if (std::ranges::includes(n, d))
            Reduce(n, d);
        EXPECT_EQ(Ejecuta(Factorizar, f + ",-10,10"),
                  "\r\n\r\n'Factorización :(" + DevProducto(n) + ")/(" + DevProducto(d) + ")")
            << f;
    }
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Racionales, LoSimplificadoLoAceptaSintaxisYNoSeSimplificaMás) {
    for (int i = 0; i < 300; ++i) {
        const std::string f =
            DevCociente(DevRaíces(DevEntre(0, 6)), DevRaíces(DevEntre(1, 6)), false);
        const std::string línea = Ejecuta(Simplificar, f);
        const std::string simple = línea.substr(línea.find(':') + 1);
        std::string normal = simple;
        EXPECT_TRUE(Sintaxis(banco.contexto, normal)) << simple;
        EXPECT_EQ(normal, simple);
        EXPECT_EQ(Ejecuta(Simplificar, simple), línea) << f;
    }
}

TEST_F(Racionales, UnaFórmulaRechazadaNoEscribeNada) {
    for (const char* orden : {Simplificar, Factorizar}) {
        const std::string datos = orden == Factorizar ? ",-1,1" : "";
        for (const char* f : {"SIN(X)", "1/(X-X)", "LOG(-1)", "EXP(1000)", "X^.5"}) {
            EXPECT_EQ(Ejecuta(orden, f + datos), "") << f;
            EXPECT_EQ(banco.TomaMensajes().size(), 1U) << f;
            EXPECT_EQ(seleccionada, std::nullopt) << f; // the line is as it should be
            EXPECT_NE(banco.contexto.ErrorCódigo, SinFallo) << f;
        }
    }
}

TEST_F(Racionales, LaListaSeLeeDeUnaOVariasLíneas) {
    const std::string esperado = "\r\n\r\n'Máximo común divisor hallado :X-1";
    for (const char* lista :
         {"X^2-1,X-1", "X^2-1\r\nX-1", "'nota\r\nX^2-1'otra\r\n\r\n  \r\nX-1\r\n",
          "X^2-1,X^3-1\r\nX^4-1,X-1"})
        EXPECT_EQ(Ejecuta(Máximo, lista), esperado) << lista;
}

TEST_F(Racionales, SeEligeLaLíneaDeLaFunciónRechazada) {
    const struct {
        const char* lista;
        const char* línea;
        const char* mensaje;
    } casos[] = {
        {"X,SIN(X)", "X,SIN(X)",
         "Se esperaba una función racional de la variable X \r\nEjemplo :\r\n12*X^3+(1/3)*X^2-2"},
        {"X\r\nX,1/0 \r\nX", "X,1/0 ", "Error de sintáxis: ' '"},
        {"X\r\nX,1/0'nota\r\nX", "X,1/0",
         "Se intentó dividir por cero, la operación solicitada será cancelada"},
        {"X\r\nX,", "X,", "No ha escrito ninguna función o valor numérico "},
        {",X", ",X", "No ha escrito ninguna función o valor numérico "},
        {"X\r\nñ", "ñ", "Error de sintáxis: 'ñ'"},
    };
    for (const char* orden : {Máximo, Mínimo}) {
        for (const auto& caso : casos) {
            EXPECT_EQ(Ejecuta(orden, caso.lista), "") << caso.lista;
            EXPECT_EQ(seleccionada, caso.línea) << caso.lista;
            EXPECT_EQ(banco.TomaMensajes(),
                      (std::vector<Mensaje>{{Icono::Exclamación, caso.mensaje}}))
                << caso.lista;
        }
    }
}

TEST_F(Racionales, LoQueNoCabeTerminaConElErrorGeneral) {
    EXPECT_EQ(Ejecuta(Simplificar, "(X+1)^300*(X^1000+1)^300"), "");
    const auto mensajes = banco.TomaMensajes();
    ASSERT_EQ(mensajes.size(), 1U);
    EXPECT_EQ(mensajes[0].icono, Icono::Crítico);
    EXPECT_NE(mensajes[0].texto.find("número :14"), std::string::npos);
    EXPECT_EQ(Ejecuta(Factorizar, "X^2-1,-1E308,1E308"), ""); // no such number
    EXPECT_EQ(banco.TomaMensajes().size(), 1U);
}

TEST_F(Racionales, LaOrdenLargaRespondeAlVigilante) {
    using Reloj = std::chrono::steady_clock;
    Reloj::time_point última;
    Reloj::duration mayor{};
    banco.vigilante.continúa = [&] {
        const auto ahora = Reloj::now();
        mayor = std::max(mayor, ahora - última);
        última = ahora;
        return true;
    };
    std::string unos = "1";
    std::string lineales = "X";
    for (int i = 1; i < 100000; ++i)
        unos += ",1";
    for (int i = 1; i < 120; ++i)
        lineales += ",X+" + std::to_string(i) + "/7";
    const struct {
        const char* orden;
        std::string hoja;
    } casos[] = {
        {Máximo, unos},
        {Mínimo, unos},
        {Mínimo, lineales},
        {Simplificar, "(X+1)^900*(X-1)/((X+1)^900*(X+2))"},
        {Simplificar, "((X+1)^400-1)/((X+2)^400-1)"},
        {Simplificar, "(X+SQR(2))^900/(X+SQR(3))^900"},
        {Simplificar, "(X^20000-1)/(X^9999-1)"},
        {Simplificar, "(X/3+1/7)^300/(X/5+1/9)^299"},
        {Simplificar, "(X^1E15+1)/(X^99999+X+1)"},
        {Factorizar, "X^1000-2,-5,5"},
        {Factorizar, "(X-1/3)^300*(X-2),-5,5"},
        {Factorizar, "X^30000-X-1,-5,5"},
        {Factorizar, "(X^2-2)^250*(X-1/7)^100,-5,5"},
    };
    for (const auto& caso : casos) {
        última = Reloj::now();
        mayor = {};
        Ejecuta(caso.orden, caso.hoja);
        banco.vigilante.continúa();
        EXPECT_LT(mayor, std::chrono::milliseconds(200)) << caso.hoja.substr(0, 40);
    }
}

TEST_F(Racionales, CanceladaDejaLaHojaComoEstaba) {
    banco.vigilante.continúa = [] { return false; };
    for (const char* orden : {Simplificar, Máximo, Mínimo})
        EXPECT_EQ(Ejecuta(orden, "X^2-1"), "");
    EXPECT_EQ(Ejecuta(Factorizar, "X^2-1,-10,10"), "");
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

} // namespace
} // namespace quiralto
