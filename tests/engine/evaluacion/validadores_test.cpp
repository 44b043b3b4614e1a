#include "engine/evaluacion/validadores.h"

#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <functional>

namespace quiralto {
namespace {

const std::string MensajeEntero = "Se requiere un número en el rango de los enteros largos";
const std::string MensajeNegativo = "No se permiten valores negativos";
const std::string MensajeCero = "No está permitido el número cero";
const std::string MensajeMayor = "El primer número debe ser mayor que el segundo";
const std::string MensajeMenor = "El primer número debe ser menor que el segundo";
const std::string MensajeConX = "Este dato no admite la variable X";
const std::string MensajeFuera =
    "El argumento dado a la función está fuera de rango, pruebe otro valor";

// What a validator must say: nothing where it accepts, and one message, or none, where it refuses.
struct Caso {
    std::string texto;
    bool vale;
    std::string mensaje;
};

void Comprueba(const std::vector<Caso>& casos,
               const std::function<bool(Contexto&, const std::string&)>& validador) {
    for (const Caso& caso : casos) {
        Banco banco;
        EXPECT_EQ(validador(banco.contexto, caso.texto), caso.vale) << caso.texto;
        std::vector<Mensaje> mensajes;
        if (!caso.mensaje.empty())
            mensajes.push_back({Icono::Exclamación, caso.mensaje});
        EXPECT_EQ(banco.TomaMensajes(), mensajes) << caso.texto;
    }
}

TEST(EsEnteroLargo, AceptaLosEnterosDeTreintaYDosBits) {
    Comprueba({{"0", true, ""},
               {"-0", true, ""},
               {"007", true, ""},
               {"2147483647", true, ""},
               {"-2147483648", true, ""},
               {"00000000000000000000012", true, ""},
               {"2147483648", false, MensajeEntero},
               {"-2147483649", false, MensajeEntero},
               {std::string(1000, '9'), false, MensajeEntero},
               {"1.5", false, MensajeEntero},
               {"1.", false, MensajeEntero},
               {"", false, MensajeEntero},
               {"-", false, MensajeEntero},
               {"+5", false, MensajeEntero},
               {" 5", false, MensajeEntero},
               {"5 ", false, MensajeEntero},
               {"1E3", false, MensajeEntero},
               {"X", false, MensajeEntero},
               {"١", false, MensajeEntero},
               {"12-3", false, ""},
               {"--5", false, ""},
               {"5-", false, ""},
               {"99999999999-", false, ""}},
              EsEnteroLargo);
}

TEST(NoContieneX, SoloMiraLaXMayúscula) {
    EXPECT_TRUE(NoContieneX(""));
    EXPECT_TRUE(NoContieneX("2*SQR(3)"));
    EXPECT_TRUE(NoContieneX("x"));
    EXPECT_FALSE(NoContieneX("X"));
    EXPECT_FALSE(NoContieneX("2+EXP(1)"));
    EXPECT_FALSE(NoContieneX("2+X"));
}

TEST(NoNegativo, MiraElSignoDelValor) {
    Comprueba({{"0", true, ""},
               {"-0", true, ""},
               {"5", true, ""},
               {".001", true, ""},
               {" 3", true, ""},
               {"X", true, ""},
               {"-5", false, MensajeNegativo},
               {"-.001", false, MensajeNegativo},
               {" -1", false, MensajeNegativo},
               {"-1E-300", false, MensajeNegativo}},
              NoNegativo);
}

TEST(NoCero, ComparaElTexto) {
    Comprueba({{"0", false, MensajeCero},
               {"0.0", true, ""},
               {"00", true, ""},
               {"-0", true, ""},
               {"", true, ""},
               {"5", true, ""}},
              NoCero);
}

TEST(CompruebaOrden, EsEstrictoEnAmbosModos) {
    const struct {
        const char* primero;
        const char* segundo;
        int signo; // of the first minus the second
    } casos[] = {{"2", "1", 1},    {"1", "2", -1},   {"1", "1", 0},       {"1.0", "1", 0},
                 {"-2", "-1", -1}, {"10", "9", 1},   {"1E+20", "1E3", 1}, {"-0", "0", 0},
                 {" 5", "5", 0},   {".5", ".49", 1}, {"-1E+20", "0", -1}};
    for (const auto& caso : casos) {
        Banco banco;
        EXPECT_EQ(CompruebaOrden(banco.contexto, caso.primero, caso.segundo, ModoOrden::Mayor),
                  caso.signo > 0);
        EXPECT_EQ(CompruebaOrden(banco.contexto, caso.primero, caso.segundo, ModoOrden::Menor),
                  caso.signo < 0);
        std::vector<Mensaje> mensajes;
        if (caso.signo <= 0)
            mensajes.push_back({Icono::Exclamación, MensajeMayor});
        if (caso.signo >= 0)
            mensajes.push_back({Icono::Exclamación, MensajeMenor});
        EXPECT_EQ(banco.TomaMensajes(), mensajes) << caso.primero << ' ' << caso.segundo;
    }
}

TEST(DevValorDato, CambiaElTextoPorSuValor) {
    const struct {
        const char* texto;
        const char* valor;
    } casos[] = {{"5", "5"},
                 {"-5", "-5"},
                 {"--5", "5"},
                 {"0.5", ".5"},
                 {"2*SQR(3)", "3.46410161513775"},
                 {"2^3^2", "64"},
                 {"1/3", ".333333333333333"},
                 {"1E20", "1E+20"},
                 {"-0", "0"},
                 {"0*-1", "0"},
                 {"SIN(0)", "0"},
                 {"1/30", "3.33333333333333E-02"},
                 {"0.123456789", ".12345679"}};
    for (const auto& caso : casos) {
        Banco banco;
        banco.contexto.ErrorCódigo = Desbordamiento; // of an earlier run: it must not count
        std::string texto = caso.texto;
        EXPECT_TRUE(DevValorDato(banco.contexto, texto)) << caso.texto;
        EXPECT_EQ(texto, caso.valor);
        EXPECT_TRUE(banco.TomaMensajes().empty());
        EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
    }
}

TEST(DevValorDato, RechazaConUnMensaje) {
    Comprueba({{"", false, "No ha escrito ninguna función o valor numérico "},
               {"5,", false, "Error de sintáxis: ','"},
               {"(5", false, "Desequilibrio de paréntesis abiertos y cerrados"},
               {"5*", false, "No está permitido terminar con: *"},
               {"5(3)", false, "Error de lógica en la expresión, verifique la sintaxis"},
               {"1E309", false, "Un número de doble precisión está fuera del rango permitido"},
               {"X", false, MensajeConX},
               {"2*X", false, MensajeConX},
               {"1/0", false, MensajeFuera},
               {"0/0", false, MensajeFuera},
               {"SQR(-1)", false, MensajeFuera},
               {"LOG(0)", false, MensajeFuera},
               {"ARCSIN(1)", false, MensajeFuera},
               {"1E300*1E300", false, MensajeFuera},
               {"9^9^9^9", false, MensajeFuera}},
              [](Contexto& contexto, std::string texto) { return DevValorDato(contexto, texto); });
}

TEST(DevValorDato, UnaExpEsUnaX) {
    // The search for the variable is one for the letter.
    Comprueba({{"EXP(1)", false, MensajeConX}},
              [](Contexto& contexto, std::string texto) { return DevValorDato(contexto, texto); });
}

struct CasoExtremos {
    const char* primero;
    const char* segundo;
    ModoOrden modo;
    Caja caja;
    const char* mensaje;
};

TEST(CompruebaExtremos, DiceLaCajaQueFalla) {
    const CasoExtremos casos[] = {
        {"", "1", ModoOrden::Mayor, Caja::Primera,
         "No ha escrito ninguna función o valor numérico "},
        {"1", "", ModoOrden::Mayor, Caja::Segunda,
         "No ha escrito ninguna función o valor numérico "},
        {"X", "", ModoOrden::Mayor, Caja::Primera, MensajeConX.c_str()},
        {"1/0", "X", ModoOrden::Mayor, Caja::Primera, MensajeFuera.c_str()},
        {"1", "SQR(-2)", ModoOrden::Menor, Caja::Segunda, MensajeFuera.c_str()},
        {"1", "2", ModoOrden::Mayor, Caja::Primera, MensajeMayor.c_str()},
        {"2", "2", ModoOrden::Mayor, Caja::Primera, MensajeMayor.c_str()},
        {"2", "1", ModoOrden::Menor, Caja::Primera, MensajeMenor.c_str()},
        {"1+1", "2", ModoOrden::Menor, Caja::Primera, MensajeMenor.c_str()},
    };
    for (const CasoExtremos& caso : casos) {
        Banco banco;
        std::string primero = caso.primero;
        std::string segundo = caso.segundo;
        double a = 111;
        double b = 222;
        EXPECT_EQ(CompruebaExtremos(banco.contexto, primero, segundo, a, b, caso.modo), caso.caja);
        EXPECT_EQ(banco.TomaMensajes(), (std::vector<Mensaje>{{Icono::Exclamación, caso.mensaje}}));
        EXPECT_EQ(primero, caso.primero);
        EXPECT_EQ(segundo, caso.segundo);
        EXPECT_EQ(a, 111);
        EXPECT_EQ(b, 222);
    }
}

TEST(CompruebaExtremos, EscribeLosValoresRedondeados) {
    Banco banco;
    banco.contexto.DígitosRedondeo = 3;
    std::string primero = "2*SQR(3)";
    std::string segundo = "-1/3";
    double a = 0;
    double b = 0;
    EXPECT_EQ(CompruebaExtremos(banco.contexto, primero, segundo, a, b, ModoOrden::Mayor),
              Caja::Ninguna);
    EXPECT_EQ(primero, "3.464");
    EXPECT_EQ(segundo, "-.333");
    EXPECT_EQ(a, 3464 * 1e-3);
    EXPECT_EQ(b, -333 * 1e-3);
    EXPECT_EQ(CompruebaExtremos(banco.contexto, segundo, primero, b, a, ModoOrden::Menor),
              Caja::Ninguna);
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST(EsNúmeroEnRango, AceptaNúmerosLlanos) {
    const struct {
        std::string texto;
        double mínimo;
        double máximo;
        bool vale;
    } casos[] = {
        {"5", 0, 0, true},
        {"-5", 0, 0, true},
        {"+5", 0, 0, true},
        {"5.25", 0, 0, true},
        {".5", 0, 0, true},
        {"-.5", 0, 0, true},
        {"007", 0, 0, true},
        {"5-3", 0, 0, true}, // Val reads the 5
        {"", 0, 0, false},
        {"+", 0, 0, false},
        {"-", 0, 0, false},
        {".", 0, 0, false},
        {"-.", 0, 0, false},
        {"5.", 0, 0, false},
        {"5-", 0, 0, false},
        {"5+", 0, 0, false},
        {"1.2.3", 0, 0, false},
        {"..5", 0, 0, false},
        {".-5", 0, 0, false},
        {"5.2-3", 0, 0, false},
        {"--5", 0, 0, false},
        {"+-5", 0, 0, false},
        {"-5-3", 0, 0, false},
        {"1E3", 0, 0, false},
        {" 5", 0, 0, false},
        {"5 ", 0, 0, false},
        {"X", 0, 0, false},
        {"5,3", 0, 0, false},
        {"１", 0, 0, false},
        {"1", 1, 3, true},
        {"3", 1, 3, true},
        {"2.5", 1, 3, true},
        {"0.999", 1, 3, false},
        {"3.001", 1, 3, false},
        {"-1", -1, 0, true},
        {"0", -1, 0, true},
        {"1", -1, 0, false},
        {"5-9", 1, 5, true},
        {std::string(400, '9'), 1, 1e300, false},
        {std::string(400, '9'), 0, 0, true},
        {"-" + std::string(400, '9'), -1e300, 0, false},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(EsNúmeroEnRango(caso.texto, caso.mínimo, caso.máximo), caso.vale) << caso.texto;
}

TEST(FiltraTecla, DecideCadaCódigo) {
    // The lower-case letters up to 254, and what they become.
    const std::u32string minúsculas = U"abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ";
    const std::u32string mayúsculas = U"ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ";
    ASSERT_EQ(minúsculas.size(), mayúsculas.size());
    for (char32_t código = 0; código <= 400; ++código) {
        char32_t esperado = código;
        if (const std::size_t letra = minúsculas.find(código); letra != std::u32string::npos)
            esperado = mayúsculas[letra];
        else if ((código < 33 && código != 8 && código != 13) || código > 254)
            esperado = 0;
        EXPECT_EQ(FiltraTecla(código), esperado) << static_cast<unsigned>(código);
    }
    EXPECT_EQ(FiltraTecla(0x10FFFF), 0U);
}

} // namespace
} // namespace quiralto
