#include "engine/lenguaje/sintaxis.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <array>

namespace quiralto {
namespace {

const std::string MensajeLógica = "Error de lógica en la expresión, verifique la sintaxis";
const std::string MensajeParéntesis = "Desequilibrio de paréntesis abiertos y cerrados";

std::vector<Mensaje> SoloUno(const std::string& texto) {
    return {{Icono::Exclamación, texto}};
}

struct TextoRechazado {
    std::string texto;
    std::string mensaje;
};

void CompruebaRechazos(const std::vector<TextoRechazado>& casos) {
    for (const TextoRechazado& caso : casos) {
        Banco banco;
        std::string texto = caso.texto;
        EXPECT_FALSE(Sintaxis(banco.contexto, texto)) << caso.texto;
        EXPECT_EQ(banco.TomaMensajes(), SoloUno(caso.mensaje)) << caso.texto;
    }
}

TEST(Sintaxis, AceptaYNormaliza) {
    const struct {
        const char* texto;
        const char* normal;
    } casos[] = {
        {"X", "X"},
        {"+X", "X"},
        {"-X", "-X"},
        {"--X", "X"},
        {"-+-X", "X"},
        {"---X", "-X"},
        {"X--2", "X+2"},
        {"X+-2", "X-2"},
        {"X-+-+2", "X+2"},
        {"X*+2", "X*2"},
        {"X/+2", "X/2"},
        {"X^+2", "X^2"},
        {"(+2)", "(2)"},
        {"X*-2", "X*-2"},
        {"X/-2", "X/-2"},
        {"X^-2", "X^-2"},
        {"X^+-2", "X^-2"},
        {"X^--2", "X^2"},
        {"(-2)", "(-2)"},
        {"((X))", "((X))"},
        {"2E+3", "2000"},
        {"2E3", "2000"},
        {"2E-3", ".002"},
        {"2E--3", "2000"},
        {"2E-+3", ".002"},
        {"2D3", "2000"},
        {"2D-3-1", ".002-1"},
        {"2D3+1.5", "2000+1.5"},
        {"2D3*1.5E2/.5", "2000*150/.5"},
        {"1.5E-3+1.5", ".0015+1.5"},
        {"1E20*X", "1E+20*X"},
        {"1E+20*X", "1E+20*X"},
        {"1E+20+1E+21-X", "1E+20+1E+21-X"},
        {"1E-400", "0"},
        {"0.123456789", ".12345679"},
        {"0.5", ".5"},
        {".5", ".5"},
        {"00012", "12"},
        {"0", "0"},
        {"X-0.000000001", "X-0"},
        {"1.50*X^2.0", "1.5*X^2"},
        {"12345678901234567890", "1.23456789012346E+19"},
        {"999999999999999", "999999999999999"},
        {"ARCSIN(X)", "ARCSIN(X)"},
        {"COSEC(X)", "COSEC(X)"},
        {"SIN(X)", "SIN(X)"},
        {"COS(X)", "COS(X)"},
        {"TAN(X)", "TAN(X)"},
        {"ATN(X)", "ATN(X)"},
        {"LOG(X)", "LOG(X)"},
        {"EXP(X)", "EXP(X)"},
        {"SQR(X)", "SQR(X)"},
        {"SEC(X)", "SEC(X)"},
        {"2*EXP(-X^2/2)", "2*EXP(-X^2/2)"},
        {"-SIN(+X)*-COS(--X)", "-SIN(X)*-COS(X)"},
        {"EXP(EXP(1E-2))", "EXP(EXP(.01))"},
        {"(1.5)*(2.5)", "(1.5)*(2.5)"},
        {"1.5+2.5-3.5*4.5/5.5^6.5", "1.5+2.5-3.5*4.5/5.5^6.5"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        std::string texto = caso.texto;
        EXPECT_TRUE(Sintaxis(banco.contexto, texto)) << caso.texto;
        EXPECT_EQ(texto, caso.normal);
        EXPECT_TRUE(banco.TomaMensajes().empty()) << caso.texto;
        EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo);
    }
}

TEST(Sintaxis, RechazaElTextoVacío) {
    CompruebaRechazos({{"", "No ha escrito ninguna función o valor numérico "}});
}

TEST(Sintaxis, EnseñaEnteroElCarácterRechazado) {
    const auto mensaje = [](const std::string& c) { return "Error de sintáxis: '" + c + "'"; };
    CompruebaRechazos({
        {"X,5", mensaje(",")},
        {"FOO(X)", mensaje("F")},
        {"x", mensaje("x")},
        {"sin(X)", mensaje("s")},
        {" X", mensaje(" ")},
        {"X ", mensaje(" ")},
        {"X=2", mensaje("=")},
        {"'X", mensaje("'")},
        {"X\r\n", mensaje("\r")},
        {"X\t", mensaje("\t")},
        {std::string("X\0", 2), mensaje(std::string(1, '\0'))},
        {"Y+1", mensaje("Y")},
        {"Z1", mensaje("Z")},
        {"SIN", mensaje("S")},
        {"SINX", mensaje("S")},
        {"X+SI(X)", mensaje("S")},
        {"EXP", mensaje("E")},
        {"5E", mensaje("E")},
        {"5EX", mensaje("E")},
        {"XP", mensaje("P")},
        {"SLN(X)", mensaje("S")},
        {"ARCOS(X)", mensaje("A")},
        {"Ñ", mensaje("Ñ")},
        {"X+€", mensaje("€")},
        {"2*\U0001F600*X", mensaje("\U0001F600")},
        {"X\xFF\xFE", mensaje("\xFF")},
        {"\xE2\x82", mensaje("\xE2")},
        {"\x80", mensaje("\x80")},
    });
}

TEST(Sintaxis, RechazaParéntesisDesequilibrados) {
    CompruebaRechazos({
        {"SIN(X", MensajeParéntesis},
        {")X(", MensajeParéntesis},
        {"X(", MensajeParéntesis},
        {"(X", MensajeParéntesis},
        {"X)", MensajeParéntesis},
        {"(X))((X)", MensajeParéntesis},
        {"())(", MensajeParéntesis},
    });
}

TEST(Sintaxis, RechazaFinalesYComienzos) {
    std::vector<TextoRechazado> casos;
    for (const char c : std::string("+-*/^.D"))
        casos.push_back(
            {std::string("X") + c, std::string("No está permitido terminar con: ") + c});
    for (const char c : std::string("*/^D"))
        casos.push_back({c + std::string("X"), std::string("No está permitido comenzar con:") + c});
    casos.push_back({"+", "No está permitido terminar con: +"});
    casos.push_back({"5.", "No está permitido terminar con: ."});
    casos.push_back({"5E+", "No está permitido terminar con: +"});
    CompruebaRechazos(casos);
}

TEST(Sintaxis, RechazaLoQueNoTieneLógica) {
    std::vector<TextoRechazado> casos;
    for (const char* texto :
         {"1..2",   "1.2.3",   "X(1)",    "2D1.5",   "()",           "SIN()",   "2X",
          "X2",     "XX",      "2(X)",    "(X)2",    "(X)X",         "(X)(X)",  "X*/2",
          "X**2",   "X+*2",    "(*X)",    "(/X)",    "X.5",          ".X",      "1.+2",
          "1.*X",   "XD2",     "2D3D4",   "2D3.5",   "2D+3.5",       "2D+X",    "2D(3)",
          "(2D)",   "SIN(D2)", "XSIN(X)", "2SIN(X)", "SIN(X)COS(X)", "XEXP(X)", "2.5.EXP(1)",
          "1D+-*2", "+*X",     "+/X",     "-*X",     "--^X"})
        casos.push_back({texto, MensajeLógica});
    CompruebaRechazos(casos);
}

TEST(Sintaxis, ElPrimerPasoQueFallaDaElMensaje) {
    CompruebaRechazos({
        {"Ñ)*", "Error de sintáxis: 'Ñ'"},
        {")X*", MensajeParéntesis},
        {"*X+", "No está permitido terminar con: +"},
        {"*2X", "No está permitido comenzar con:*"},
        {"1E309X", MensajeLógica},
    });
}

TEST(Sintaxis, LoYaNormalizadoQuedaEnElTextoRechazado) {
    const struct {
        const char* texto;
        const char* queda;
    } casos[] = {{"2E+X,", "2D+X,"}, {"2E+3*", "2D+3*"}, {"+*X", "*X"}, {"2E+3--X.", "2D+3--X."}};
    for (const auto& caso : casos) {
        Banco banco;
        std::string texto = caso.texto;
        EXPECT_FALSE(Sintaxis(banco.contexto, texto));
        EXPECT_EQ(texto, caso.queda);
    }
}

TEST(CompruebaSintaxis, DiceQuéYDóndeSinMostrarNada) {
    const struct {
        const char* texto;
        Rechazo rechazo;
    } casos[] = {
        {"", {Motivo::SinFórmula, {}, 0}},
        {"X+Ñ", {Motivo::CarácterExtraño, {"Ñ"}, 2}},
        {"EXP(X)+EXQ(X)", {Motivo::CarácterExtraño, {"E"}, 7}},
        {"(X))+(X", {Motivo::ParéntesisDesiguales, {}, 3}},
        {"((X)+(X", {Motivo::ParéntesisDesiguales, {}, 5}},
        {"((X+(X)", {Motivo::ParéntesisDesiguales, {}, 1}},
        {"X+3*", {Motivo::FinalNoPermitido, {"*"}, 3}},
        {"/X", {Motivo::ComienzoNoPermitido, {"/"}, 0}},
        {"X+2X", {Motivo::FaltaDeLógica, {}, 3}},
        {"--X+-+2X", {Motivo::FaltaDeLógica, {}, 7}},
        {"+-+*X", {Motivo::FaltaDeLógica, {}, 3}},
        {"++*X", {Motivo::FaltaDeLógica, {}, 2}},
        {"X---1E999", {Motivo::NúmeroFueraDeRango, {}, 4}},
        {"2*++1E309+1E310", {Motivo::NúmeroFueraDeRango, {}, 4}},
    };
    for (const auto& caso : casos) {
        Banco banco;
        std::string texto = caso.texto;
        const std::optional<Rechazo> rechazo = CompruebaSintaxis(banco.contexto, texto);
        ASSERT_TRUE(rechazo) << caso.texto;
        EXPECT_EQ(rechazo->motivo, caso.rechazo.motivo) << TextoRechazo(*rechazo);
        EXPECT_EQ(rechazo->argumentos, caso.rechazo.argumentos) << caso.texto;
        EXPECT_EQ(rechazo->lugar, caso.rechazo.lugar) << caso.texto;
        EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << caso.texto;
        EXPECT_EQ(banco.contexto.ErrorCódigo, SinFallo) << caso.texto;
    }
}

TEST(CompruebaSintaxis, NormalizaComoSintaxis) {
    Banco banco;
    std::string texto = "X--2E+3*0.123456789";
    EXPECT_EQ(CompruebaSintaxis(banco.contexto, texto), std::nullopt);
    EXPECT_EQ(texto, "X+2000*.12345679");
}

TEST(Sintaxis, RechazaNúmerosMásAlláDelRango) {
    for (const std::string& número :
         {std::string("1E309"), std::string("X+1E309"), std::string("2D+999*X"),
          "SIN(" + std::string(400, '9') + ")", std::string("1E99999999999999999999")}) {
        Banco banco;
        std::string texto = número;
        EXPECT_FALSE(Sintaxis(banco.contexto, texto)) << número;
        EXPECT_EQ(banco.TomaMensajes(),
                  SoloUno("Un número de doble precisión está fuera del rango permitido"));
        EXPECT_EQ(banco.contexto.ErrorCódigo, Desbordamiento);
    }
    Banco banco;
    std::string texto = "1.7E308";
    EXPECT_TRUE(Sintaxis(banco.contexto, texto));
    EXPECT_EQ(texto, "1.7E+308");
}

TEST(Sintaxis, RedondeaLosNúmerosALosDígitosElegidos) {
    const std::array<const char*, 16> esperado = {"X+0",
                                                  "X+.1",
                                                  "X+.12",
                                                  "X+.123",
                                                  "X+.1235",
                                                  "X+.12346",
                                                  "X+.123457",
                                                  "X+.1234568",
                                                  "X+.12345679",
                                                  "X+.123456789",
                                                  "X+.123456789",
                                                  "X+.12345678901",
                                                  "X+.123456789012",
                                                  "X+.1234567890123",
                                                  "X+.12345678901235",
                                                  "X+.123456789012346"};
    for (int dígitos = 0; dígitos <= 15; ++dígitos) {
        Banco banco;
        banco.contexto.DígitosRedondeo = dígitos;
        std::string texto = "X+0.123456789012346";
        EXPECT_TRUE(Sintaxis(banco.contexto, texto));
        EXPECT_EQ(texto, esperado[static_cast<std::size_t>(dígitos)]);
    }
    Banco banco;
    banco.contexto.DígitosRedondeo = 0;
    std::string texto = "2.5+.5-2.4*.4";
    EXPECT_TRUE(Sintaxis(banco.contexto, texto));
    EXPECT_EQ(texto, "3+1-2*0");
}

TEST(Sintaxis, AceptaElPrefijoMientrasEstáPuesto) {
    Banco banco;
    const GuardaPrefijo guarda(banco.contexto, "SLN(");
    std::string texto = "2*SLN(3)+SLN(0)";
    EXPECT_TRUE(Sintaxis(banco.contexto, texto));
    EXPECT_EQ(texto, "2*SLN(3)+SLN(0)");
    texto = "SLN";
    EXPECT_FALSE(Sintaxis(banco.contexto, texto));
    EXPECT_EQ(banco.TomaMensajes(), SoloUno("Error de sintáxis: 'S'"));
}

TEST(Sintaxis, LoNormalizadoYaNoCambia) {
    for (const char* caso : {"-X^2+2E-3*--X", "1E20*SIN(+X)", "0.123456789/-X", "X*-2^-3"}) {
        Banco banco;
        std::string texto = caso;
        ASSERT_TRUE(Sintaxis(banco.contexto, texto));
        std::string otraVez = texto;
        EXPECT_TRUE(Sintaxis(banco.contexto, otraVez));
        EXPECT_EQ(otraVez, texto);
    }
}

// The pair table, written down row by row.

const std::string Dígitos = "0123456789";
const std::string Letras = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string LetrasSinD = "ABCEFGHIJKLMNOPQRSTUVWXYZ";

bool Pertenece(char c, const std::string& conjunto) {
    return conjunto.find(c) != std::string::npos;
}

bool ParEsperado(EstadoPares& estado, char a, char b) {
    const char anterior = estado.anterior;
    estado.anterior = a;
    if (Pertenece(a, "+-")) {
        estado.punto = false;
        estado.exponente = estado.exponente && anterior == 'D';
        return Pertenece(b, estado.exponente ? Dígitos : Dígitos + ".(" + LetrasSinD);
    }
    if (Pertenece(a, "*/^")) {
        estado.punto = estado.exponente = false;
        return Pertenece(b, Dígitos + "-.(" + LetrasSinD);
    }
    if (a == '(')
        return Pertenece(b, Dígitos + "-.(" + LetrasSinD);
    if (a == ')')
        return Pertenece(b, "+-*/^)");
    if (a == 'X')
        return Pertenece(b, "+-*/^)P");
    if (a == 'D') {
        estado.exponente = true;
        return Pertenece(b, "+-" + Dígitos);
    }
    if (Pertenece(a, Letras))
        return Pertenece(b, Letras + "(");
    if (a == '.') {
        if (estado.punto)
            return false;
        estado.punto = true;
        return !estado.exponente && Pertenece(b, Dígitos);
    }
    if (Pertenece(a, Dígitos))
        return Pertenece(b, Dígitos + (estado.exponente ? "+-*/^)" : ".+-*/^)D"));
    return false;
}

TEST(ParVálido, SigueLaTablaEnCadaParYEstado) {
    for (const bool punto : {false, true}) {
        for (const bool exponente : {false, true}) {
            for (const char anterior : {'\0', 'D', 'X', '5'}) {
                for (int a = -128; a < 128; ++a) {
                    for (int b = -128; b < 128; ++b) {
                        EstadoPares estado{punto, exponente, anterior};
                        EstadoPares esperado = estado;
                        const char ca = static_cast<char>(a);
                        const char cb = static_cast<char>(b);
                        ASSERT_EQ(ParVálido(estado, ca, cb), ParEsperado(esperado, ca, cb))
                            << ca << cb << punto << exponente << anterior;
                        ASSERT_EQ(estado.punto, esperado.punto) << ca << cb;
                        ASSERT_EQ(estado.exponente, esperado.exponente) << ca << cb;
                        ASSERT_EQ(estado.anterior, esperado.anterior) << ca << cb;
                    }
                }
            }
        }
    }
}

TEST(ParVálido, SeReinicia) {
    EstadoPares estado{true, true, 'D'};
    EXPECT_TRUE(ParVálido(estado, '\0', '\0', true));
    EXPECT_FALSE(estado.punto);
    EXPECT_FALSE(estado.exponente);
    EXPECT_EQ(estado.anterior, '\0');
}

// Every text of up to `longitud` characters of the alphabet.
template <typename F> void ParaCadaTexto(const std::string& alfabeto, std::size_t longitud, F f) {
    std::string texto;
    std::vector<std::size_t> índices;
    const auto siguiente = [&] {
        std::size_t i = índices.size();
        while (i > 0 && índices[i - 1] + 1 == alfabeto.size())
            --i;
        if (i == 0) {
            índices.assign(índices.size() + 1, 0);
            texto.assign(índices.size(), alfabeto.front());
            return;
        }
        ++índices[i - 1];
        texto[i - 1] = alfabeto[índices[i - 1]];
        for (; i < índices.size(); ++i) {
            índices[i] = 0;
            texto[i] = alfabeto.front();
        }
    };
    for (; texto.size() <= longitud; siguiente())
        f(texto);
}

// The folding step by step: pairs of signs, from the left and again until nothing gets shorter.
std::string PliegaIngenuo(std::string texto) {
    for (std::size_t antes = texto.size() + 1; texto.size() < antes;) {
        antes = texto.size();
        for (std::size_t i = 0; i + 1 < texto.size(); ++i)
            if (Pertenece(texto[i], "+-") && Pertenece(texto[i + 1], "+-"))
                texto.replace(i, 2, texto[i] == texto[i + 1] ? "+" : "-");
    }
    for (std::size_t i = 1; i < texto.size(); ++i)
        if (texto[i] == '+' && Pertenece(texto[i - 1], "(/*^"))
            texto.erase(i, 1);
    return texto.starts_with('+') ? texto.substr(1) : texto;
}

TEST(SimplificaSignos, PliegaComoElReemplazoPorPares) {
    ParaCadaTexto("+-(/*^X", 8, [](const std::string& texto) {
        ASSERT_EQ(SimplificaSignos(texto), PliegaIngenuo(texto)) << texto;
    });
    ParaCadaTexto("+-E5)", 7, [](const std::string& texto) {
        ASSERT_EQ(SimplificaSignos(texto), PliegaIngenuo(texto)) << texto;
    });
}

TEST(SimplificaSignos, PliegaCarrerasLargas) {
    EXPECT_EQ(SimplificaSignos("X" + std::string(100001, '-') + "2"), "X-2");
    EXPECT_EQ(SimplificaSignos(std::string(100000, '-') + "X"), "X");
    EXPECT_EQ(SimplificaSignos("2*" + std::string(100000, '+') + "X"), "2*X");
    EXPECT_EQ(SimplificaSignos(""), "");
    EXPECT_EQ(SimplificaSignos("1E+20--1E-20"), "1E+20+1E-20");
}

} // namespace
} // namespace quiralto
