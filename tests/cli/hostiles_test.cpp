// Long, deep and hostile input: whatever it is, the terminal program ends soon, in little memory
// and on a small stack, with its result or its message.

#include "tests/cli/terminal.h"

#include <cstring>
#include <random>

namespace quiralto {
namespace {

#ifdef QUIRALTO_CON_SANEADORES
constexpr double PlazoCpu = 10;
constexpr std::size_t Memoria = 0; // the sanitizers reserve more addresses than any limit allows
#else
constexpr double PlazoCpu = 2;
constexpr std::size_t Memoria = std::size_t{1} << 30;
#endif
constexpr std::size_t Pila = std::size_t{1} << 20;
constexpr std::size_t Mebi = std::size_t{1} << 20;
constexpr std::size_t MáximaPalabra = 120'000; // of a call; the system allows 128 KiB

constexpr const char* Lógica =
    "exclamación: Error de lógica en la expresión, verifique la sintaxis";
constexpr const char* Paréntesis = "exclamación: Desequilibrio de paréntesis abiertos y cerrados";
constexpr const char* Rango =
    "exclamación: Un número de doble precisión está fuera del rango permitido";
constexpr const char* Uso = "exclamación: Se esperaba una línea con el formato: f(x),";
constexpr const char* Extremos =
    "exclamación: Se esperaba que el extremo superior fuera mayor que el inferior";
constexpr const char* Carácter = "exclamación: Error de sintáxis: '";
constexpr const char* Vacía = "exclamación: No ha escrito ninguna función";
constexpr const char* TerminaMal = "exclamación: No está permitido terminar con: ";
constexpr const char* Desborda = "crítico: Se produjo el error número :6. ";
constexpr const char* SinEspacio = "crítico: Se produjo el error número :14. ";
constexpr const char* Error = "crítico: Se produjo el error número :"; // 6 or 14
constexpr const char* Cualquiera = nullptr;                            // or none

// A text made of a piece that is repeated; the table of them costs nothing until one is built.
struct Molde {
    std::string_view delante;
    std::string_view pieza;
    std::size_t veces;
    std::string_view detrás;
    bool cierra = false; // a ")" for each piece, behind all

    std::string Texto() const {
        std::string texto(delante);
        texto.reserve(texto.size() + veces * (pieza.size() + 1) + detrás.size());
        for (std::size_t i = 0; i < veces; ++i)
            texto += pieza;
        texto += detrás;
        return cierra ? texto.append(veces, ')') : texto;
    }
};

constexpr Molde Repite(std::string_view pieza, std::size_t veces, std::string_view detrás = "") {
    return {"", pieza, veces, detrás};
}

constexpr Molde Anida(std::size_t veces, std::string_view abre) {
    return {"", abre, veces, "X", true};
}

struct Hostil {
    const char* nombre;
    Molde molde;
    // How standard error begins; "" is nothing on it.
    const char* alEvaluar;
    const char* alDerivar;
    // Of a result: the area between -2 and 3.
    const char* área = nullptr;
};

constexpr std::string_view Nulo("\0", 1);

constexpr Hostil TablaDeHostiles[] = {
    {"Parentesis10Mil", Anida(10'000, "("), "", "", " 6.5"},
    {"Parentesis500Mil", Anida(500'000, "("), "", "", " 6.5"},
    {"ParentesisSinCerrar", Repite("(", 500'000), Paréntesis, Paréntesis},
    {"ParentesisSinAbrir", Repite(")", 500'000), Paréntesis, Paréntesis},
    {"ParentesisVacios", Repite("()", 500'000), Lógica, Lógica},
    {"ParentesisJuntos", Repite("(X)", 300'000), Lógica, Lógica},
    {"SumasAnidadas", Anida(10'000, "X+("), "", "", " 65006.5"},
    {"ProductosAnidados", Anida(200'000, "2*("), Desborda, Desborda},
    {"SumaDe100Mil", Repite("X+", 50'000, "X"), Desborda, Desborda},
    {"SumaLarga", Repite("X+", 16'000, "X"), "", "", " 104006.5"},
    {"SumaDeUnMega", Repite("X+", Mebi / 2, "X"), Desborda, Desborda},
    {"RestaLarga", Repite("X-", 16'000, "X"), "", "", " 103993.5"},
    {"ProductoLargo", Repite("X*", 16'000, "X"), "", SinEspacio},
    {"ProductoDeUnMega", Repite("X*", Mebi / 2, "X"), Desborda, Desborda},
    {"ProductoDeFactores", Repite("(X-1)*", 3'000, "(X-1)"), "", Error},
    {"CocienteLargo", Repite("X/", 16'000, "X"), "", SinEspacio},
    {"CocienteDeUnMega", Repite("X/", Mebi / 2, "X"), Desborda, Desborda},
    {"PotenciaGrande", Repite("9^9^9^9", 1), "", "", " 0"},
    {"TorreDe21", Repite("X^", 20, "X"), "", ""},
    {"TorreDe101", Repite("X^", 100, "X"), "", Cualquiera},
    {"TorreLarga", Repite("X^", 16'000, "X"), "", SinEspacio},
    {"TorreDeUnMega", Repite("X^", Mebi / 2, "X"), Desborda, Desborda},
    {"TorreAnidada", Anida(2'000, "X^("), "", Error},
    {"Signos100Mil", Repite("-", 100'000, "X"), "", "", " 6.5"},
    {"SignosEnMedio", Molde{"X", "-", 100'001, "1"}, "", "", " 6.5"},
    {"SignosTrasOperador", Molde{"X*", "+-", 500'000, "2"}, "", "", " 13"},
    {"SignosSolos", Repite("-", 100'000), TerminaMal, TerminaMal},
    {"NumeroDe1000", Molde{"X-", "9", 1'000, ""}, Rango, Rango},
    {"NumeroDe300", Repite("9", 300), "", ""},
    {"NumeroDe1000Decimales", Molde{"X-.", "0", 1'000, "1"}, "", "", " 6.5"},
    {"NumeroDeUnMega", Repite("1", Mebi), Rango, Rango},
    {"CerosDeUnMega", Repite("0", Mebi, "2"), "", "", " 10"},
    {"DecimalesDeUnMega", Molde{".", "5", Mebi, ""}, "", "", " 2.7777778"},
    {"ExponenteDeUnMega", Molde{"1E", "9", Mebi, ""}, Rango, Rango},
    {"ExponenteMinimo", Molde{"1E-", "9", Mebi, ""}, "", "", " 0"},
    {"Seno10Mil", Anida(10'000, "SIN("), "", SinEspacio},
    {"Seno200Mil", Anida(200'000, "SIN("), Desborda, Desborda},
    {"Secante1000", Anida(1'000, "SEC("), "", Error},
    {"Cosecante150Mil", Anida(150'000, "COSEC("), Desborda, Desborda},
    {"Arcoseno1000", Anida(1'000, "ARCSIN("), "", SinEspacio},
    {"Exponencial10Mil", Anida(10'000, "EXP("), "", SinEspacio},
    {"Raiz10Mil", Anida(10'000, "SQR("), "", SinEspacio},
    {"Logaritmo10Mil", Anida(10'000, "LOG("), "", SinEspacio, " 0"},
    {"SignosDeOperando", Repite("X*-", 300'000, "X"), Desborda, Desborda},
    {"ExponentesNegativos", Repite("2^-", 300'000, "2"), Desborda, Desborda},
    {"SumaDeExponentes", Repite("1E+1+", 200'000, "1E+1"), Desborda, Desborda},
    {"NumerosPegados", Repite("1E1", 300'000), Lógica, Lógica},
    {"Nulos", Molde{"X", Nulo, 1, ""}, Carácter, Carácter},
    {"NulosDeUnMega", Repite(Nulo, Mebi), Carácter, Carácter},
    {"Campos", Molde{"X", ",1", 500'000, ""}, Extremos, Extremos},
    {"Comas", Repite(",", 16 * Mebi), Vacía, Vacía},
    {"Lineas", Repite("X,0,1\n", 150'000), Uso, Uso},
    {"LineasVacias", Repite("\n", Mebi), Vacía, Vacía},
    {"Comentarios", Repite("'\n", Mebi / 2), Vacía, Vacía},
    {"ComentariosFinales", Repite("X'\r\n", Mebi / 4), Uso, Uso},
};

class Hostiles : public testing::TestWithParam<Hostil> {
protected:
    static Final LlamaConLímites(std::vector<std::string> palabras, std::string entrada = {}) {
        palabras.insert(palabras.begin(), QUIRALTO_CLI);
        return Ejecuta({.palabras = std::move(palabras),
                        .entrada = std::move(entrada),
                        .entorno = {},
                        .pila = Pila,
                        .memoria = Memoria});
    }

    static void CompruebaFinal(const Final& final, const char* errores) {
        ASSERT_FALSE(final.agotado);
        ASSERT_EQ(final.señal, 0);
        EXPECT_LE(final.cpu, PlazoCpu);
        if (errores == Cualquiera) {
            EXPECT_TRUE(final.errores.empty() || final.errores.starts_with(Error));
        } else if (*errores == '\0') {
            EXPECT_EQ(final.errores.substr(0, 200), "");
        } else {
            EXPECT_EQ(final.errores.substr(0, std::strlen(errores)), errores);
        }
        EXPECT_EQ(final.estado, final.errores.empty() ? 0 : 1);
    }
};

TEST_P(Hostiles, EnLaHojaAcabanConSuResultadoOSuMensaje) {
    const Hostil& hostil = GetParam();
    const std::string hoja = hostil.molde.Texto() + ",-2,3\n";
    const struct {
        const char* orden;
        bool deriva;
    } órdenes[] = {
        {"Hallar soluciones ecuación", false}, {"Hallar máximos", true}, {"Hallar mínimos", true},
        {"Hallar puntos de inflexión", true},  {"Hallar área", false},
    };
    std::string conLf; // what is left of the line breaks
    for (const char c : hoja)
        if (c != '\r')
            conLf += c;
    for (const auto& [orden, deriva] : órdenes) {
        SCOPED_TRACE(orden);
        const Final final = LlamaConLímites({"--orden", orden}, hoja);
        const char* esperado = deriva ? hostil.alDerivar : hostil.alEvaluar;
        CompruebaFinal(final, esperado);
        ASSERT_TRUE(final.salida.starts_with(conLf));
        const std::string añadido = final.salida.substr(conLf.size());
        if (final.errores.empty())
            EXPECT_TRUE(añadido.starts_with("\n\n'")) << añadido;
        else
            EXPECT_EQ(añadido, final.errores.starts_with(Error) ? "\n\n" : "");
        if (hostil.área != nullptr && std::string_view(orden) == "Hallar área") {
            EXPECT_EQ(añadido, std::string("\n\n'Area=") + hostil.área);
        }
    }
}

TEST_P(Hostiles, ComoPalabraAcabanConSuResultadoOSuMensaje) {
    const Hostil& hostil = GetParam();
    const std::string texto = hostil.molde.Texto();
    const bool cabe = texto.size() <= MáximaPalabra;
    if (!cabe || texto.find('\0') != std::string::npos)
        return; // no word of a call can be this
    const std::string_view evaluado = hostil.alEvaluar;
    const bool rechazada = evaluado.starts_with("exclamación");
    CompruebaFinal(LlamaConLímites({"--sintaxis", texto}), rechazada ? hostil.alEvaluar : "");
    CompruebaFinal(LlamaConLímites({"--evaluar", texto, "1.5", "-1.5"}), hostil.alEvaluar);
    CompruebaFinal(LlamaConLímites({"--derivar", texto}),
                   rechazada ? hostil.alDerivar : Cualquiera);
    CompruebaFinal(LlamaConLímites({"--muestrear", texto}), hostil.alEvaluar);
}

INSTANTIATE_TEST_SUITE_P(Entradas, Hostiles, testing::ValuesIn(TablaDeHostiles),
                         [](const auto& datos) { return std::string(datos.param.nombre); });

// 1 MB of each character that a keyboard has, and of some that it has not.
TEST(HostilesDeCaracteres, UnMegaDeCadaCarácterAcabaPronto) {
    std::vector<std::string> piezas = {"ñ", "€", "🙂", "\t", "\x01", "\x7F", "\r", "\r\n", "\n"};
    for (char c = ' '; c <= '~'; ++c)
        piezas.emplace_back(1, c);
    for (const std::string& pieza : piezas) {
        const std::string hoja = Repite(pieza, Mebi / pieza.size()).Texto();
        for (const char* orden : {"Hallar soluciones ecuación", "Hallar área"}) {
            const Final final = Ejecuta({.palabras = {QUIRALTO_CLI, "--orden", orden},
                                         .entrada = hoja,
                                         .entorno = {},
                                         .pila = Pila,
                                         .memoria = Memoria});
            EXPECT_FALSE(final.agotado) << pieza;
            EXPECT_EQ(final.señal, 0) << pieza;
            EXPECT_EQ(final.estado, 1) << pieza;
            EXPECT_LE(final.cpu, PlazoCpu) << pieza;
            EXPECT_TRUE(final.errores.starts_with("exclamación: ")) << pieza;
        }
    }
}

TEST(HostilesDeCaracteres, LosOctetosAlAzarSeRechazan) {
    const auto semilla = std::random_device{}();
    std::mt19937 generador(semilla);
    std::string octetos(Mebi, '\0');
    for (char& octeto : octetos)
        octeto = static_cast<char>(generador() & 0xFFU);
    octetos.back() = '\xFF';
    for (const char* orden : {"Hallar soluciones ecuación", "Hallar máximos", "Hallar mínimos",
                              "Hallar puntos de inflexión", "Hallar área"}) {
        const Final final = Ejecuta({.palabras = {QUIRALTO_CLI, "--orden", orden},
                                     .entrada = octetos,
                                     .entorno = {},
                                     .pila = Pila,
                                     .memoria = Memoria});
        EXPECT_TRUE(EsMalUso(final)) << "seed " << semilla;
        EXPECT_LE(final.cpu, PlazoCpu);
    }
}

} // namespace
} // namespace quiralto
