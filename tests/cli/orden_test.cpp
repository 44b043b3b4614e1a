// The worksheet on its way through the terminal program: where it comes from, its line breaks, its
// encoding.

#include "tests/cli/terminal.h"

namespace quiralto {
namespace {

constexpr const char* Soluciones = "Hallar soluciones ecuación";
constexpr const char* Área = "Hallar área";

Final ResuelveÁrea(const std::string& hoja) {
    return LlamaAlTerminal({"--orden", Área}, hoja);
}

TEST(ModoOrden, ResuelveLaEcuaciónDeLaEntradaEstándar) {
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", Soluciones}, "X^2-4,-5,5\n"), 0,
                        "X^2-4,-5,5\n\n\n'Solución en X=-2\n'Solución en X= 2\n", ""));
}

TEST(ModoOrden, LaHojaEsLaEntradaOUnFichero) {
    const std::string texto = "'área\nX,0,1";
    const std::string salida = "'área\nX,0,1\n\n'Area= .5";
    const FicheroTemporal fichero(texto);
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", Área}, texto), 0, salida, ""));
    EXPECT_TRUE(Termina(LlamaAlTerminal({"--orden", Área, "-"}, texto), 0, salida, ""));
    EXPECT_TRUE(
        Termina(LlamaAlTerminal({"--orden", Área, fichero.Ruta()}, "X,0,8"), 0, salida, ""));
}

TEST(ModoOrden, RechazaLaHojaQueNoSePuedeLeer) {
    for (const std::string& ruta :
         {std::string("/no/hay/tal/hoja"), std::string("-.hoja"), testing::TempDir()})
        EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--orden", Área, ruta}, "X,0,1"))) << ruta;
}

TEST(ModoOrden, LaSalidaTerminaLasLíneasEnLf) {
    EXPECT_TRUE(Termina(ResuelveÁrea("'nota\r\nX,0,1\r\n"), 0, "'nota\nX,0,1\n\n\n'Area= .5", ""));
    EXPECT_TRUE(Termina(ResuelveÁrea("'nota\nX,0,1\r\n"), 0, "'nota\nX,0,1\n\n\n'Area= .5", ""));
    EXPECT_TRUE(Termina(ResuelveÁrea("X,0,1\r\n\r\n\r\n"), 0, "X,0,1\n\n\n\n\n'Area= .5", ""));
}

TEST(ModoOrden, ElSaltoFinalSeQuedaYNoSeAñade) {
    EXPECT_TRUE(Termina(ResuelveÁrea("X,0,1"), 0, "X,0,1\n\n'Area= .5", ""));
    EXPECT_TRUE(Termina(ResuelveÁrea("X,0,1\n"), 0, "X,0,1\n\n\n'Area= .5", ""));
    const Final rechazada = ResuelveÁrea("x,0,1");
    EXPECT_TRUE(
        Termina(rechazada, 1, "x,0,1", "exclamación: Error de sintáxis: 'x'\nlínea: x,0,1\n"));
}

TEST(ModoOrden, UnRetornoSueltoNoEsUnSalto) {
    EXPECT_TRUE(
        Termina(ResuelveÁrea("'nota\rX,0,9\nX,0,1"), 0, "'nota\rX,0,9\nX,0,1\n\n'Area= .5", ""));
    EXPECT_TRUE(Termina(ResuelveÁrea("X\r,0,1"), 1, "X\r,0,1",
                        "exclamación: Error de sintáxis: '\r'\nlínea: X\r,0,1\n"));
}

TEST(ModoOrden, LaMarcaDeOrdenDeOctetosSeQuita) {
    const std::string marca = "\xEF\xBB\xBF";
    EXPECT_TRUE(Termina(ResuelveÁrea(marca + "X,0,1"), 0, "X,0,1\n\n'Area= .5", ""));
    // Only one, and only at the very front.
    EXPECT_TRUE(
        Termina(ResuelveÁrea(marca + marca + "X,0,1"), 1, marca + "X,0,1",
                "exclamación: Error de sintáxis: '" + marca + "'\nlínea: " + marca + "X,0,1\n"));
    EXPECT_TRUE(Termina(ResuelveÁrea("'nota " + marca + "\nX,0,1"), 0,
                        "'nota " + marca + "\nX,0,1\n\n'Area= .5", ""));
    const Final vacía = ResuelveÁrea(marca);
    EXPECT_EQ(vacía.estado, 1);
    EXPECT_EQ(vacía.salida, "");
}

TEST(ModoOrden, RechazaLaHojaQueNoEsUtf8) {
    for (const char* mala : {"X,0,1\xFF", "'\x80\nX,0,1", "'\xC3", "'\xC0\xAF", "'\xED\xA0\x80",
                             "'\xF4\x90\x80\x80", "\xFF\xFEX"}) {
        EXPECT_TRUE(EsMalUso(ResuelveÁrea(mala))) << mala;
        const FicheroTemporal fichero(mala);
        EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--orden", Área, fichero.Ruta()}))) << mala;
    }
}

TEST(ModoOrden, LosComentariosPuedenLlevarCualquierTexto) {
    const std::string hoja = "'ñandú € 🙂 \x01\t\nX,0,1'🙂\n";
    EXPECT_TRUE(Termina(ResuelveÁrea(hoja), 0, hoja + "\n\n'Area= .5", ""));
}

TEST(ModoOrden, LosOctetosNulosSonCaracteresComoOtros) {
    const std::string nulo(1, '\0');
    EXPECT_TRUE(
        Termina(ResuelveÁrea("'" + nulo + "\nX,0,1"), 0, "'" + nulo + "\nX,0,1\n\n'Area= .5", ""));
    EXPECT_TRUE(
        Termina(ResuelveÁrea("X" + nulo + ",0,1"), 1, "X" + nulo + ",0,1",
                "exclamación: Error de sintáxis: '" + nulo + "'\nlínea: X" + nulo + ",0,1\n"));
}

TEST(ModoOrden, UnErrorDeEjecuciónDejaLoEscrito) {
    EXPECT_TRUE(Termina(
        ResuelveÁrea("1E308,0,1"), 1, "1E308,0,1\n\n",
        "crítico: Se produjo el error número :6. Tipo de error :Desbordamiento. Utilice valores "
        "diferentes para evitar este tipo de error. El proceso solicitado se cancelará.\n"));
}

TEST(ModoOrden, NoEsperaLaEntradaSiLaOrdenNoExiste) {
    EXPECT_TRUE(EsMalUso(LlamaAlTerminal({"--orden", "Hallar"}, "X,0,1")));
}

} // namespace
} // namespace quiralto
