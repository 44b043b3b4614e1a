// quiralto-cli: the commands of the worksheet without a window.

#include "cli/opciones.h"
#include "commands/fichero_primos.h"
#include "commands/ordenes.h"
#include "engine/base/utf8.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"
#include "quiralto_version.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <iterator>

namespace quiralto::cli {
namespace {

enum Estado { SinMensajes = 0, ConMensajes = 1, MalUso = 2 };

// Every message box becomes a line (or some lines) on standard error.
class MensajesDeTerminal : public Mensajes {
public:
    void Muestra(Icono icono, std::string_view texto) override {
        mostrado_ = true;
        constexpr std::array Palabras = {"mensaje: ", "exclamación: ", "crítico: "};
        std::cerr << Palabras[static_cast<std::size_t>(icono)] << ConLf(texto) << '\n';
    }
    Estado DevEstado() const { return mostrado_ ? ConMensajes : SinMensajes; }

private:
    bool mostrado_ = false;
};

// A terminal user stops long work with Ctrl+C.
class SinVigilante : public Vigilante {
public:
    bool Continúa() override { return true; }
};

// One line, whatever the words of the call that it repeats.
Estado RechazaUso(std::string esperado) {
    const auto esDeControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    std::ranges::replace_if(esperado, esDeControl, '?');
    std::cerr << "quiralto-cli: " << esperado << '\n';
    return MalUso;
}

// As printf's %.<digits>g, whatever the locale.
std::string TextoGeneral(double valor, int dígitos) {
    std::array<char, 64> búfer{};
    const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(), valor,
                                   std::chars_format::general, dígitos);
    return {búfer.data(), fin.ptr};
}

std::optional<std::string> LeeHoja(const std::optional<std::string>& fichero) {
    std::ifstream abierto;
    const bool deFichero = fichero && *fichero != "-";
    if (deFichero)
        abierto.open(*fichero, std::ios::binary);
    std::istream& entrada = deFichero ? abierto : std::cin;
    if (!entrada)
        return std::nullopt;
    try {
        return std::string(std::istreambuf_iterator<char>(entrada), {});
    } catch (const std::ios_base::failure&) { // a folder, say
        return std::nullopt;
    }
}

Estado EjecutaOrden(Contexto& contexto, const Opciones& opciones) {
    const auto órdenes = DevÓrdenes();
    if (std::ranges::find(órdenes, opciones.argumento, &Orden::texto) == órdenes.end())
        return RechazaUso("orden desconocida, se esperaba una de las que escribe --listar: " +
                          opciones.argumento);
    std::optional<std::string> texto = LeeHoja(opciones.hoja);
    if (!texto)
        return RechazaUso("no se puede leer la hoja " + opciones.hoja.value_or("-"));
    if (!EsUtf8(*texto))
        return RechazaUso("se esperaba una hoja en UTF-8");
    constexpr std::string_view MarcaDeOrden = "\xEF\xBB\xBF"; // byte order mark
    if (texto->starts_with(MarcaDeOrden))
        texto->erase(0, MarcaDeOrden.size());
    Hoja hoja(ConCrLf(*texto));
    CargaPrimos(contexto, DevFicheroPrimos(DevCarpetaPrograma()));
    EjecutaInstrucciones(contexto, hoja, opciones.argumento);
    if (hoja.líneaSeleccionada)
        std::cerr << "línea: " << *hoja.líneaSeleccionada << '\n';
    std::cout << ConLf(hoja.texto);
    return SinMensajes;
}

void ImprimeSintaxis(Contexto& contexto, std::string f) {
    if (Sintaxis(contexto, f))
        std::cout << f << '\n';
}

void ImprimeDerivada(Contexto& contexto, std::string f) {
    if (Sintaxis(contexto, f))
        std::cout << Deriva(contexto, f) << '\n';
}

void ImprimeValores(Contexto& contexto, std::string f, std::span<const double> equis) {
    if (!Sintaxis(contexto, f))
        return;
    Programa programa = CompilaExpresión(f);
    for (const double x : equis) {
        contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(contexto, programa, x);
        if (contexto.ErrorCódigo != SinFallo)
            std::cout << "error " << contexto.ErrorCódigo << '\n';
        else
            std::cout << TextoGeneral(valor, 17) << '\n';
    }
}

void ImprimePuntos(Contexto& contexto, std::string f, const Opciones& opciones) {
    if (!Sintaxis(contexto, f))
        return;
    const Programa programa = CompilaExpresión(f);
    std::string salida;
    for (const Punto& punto : CargaPuntos(contexto, programa, opciones.ventana, opciones.puntos)) {
        salida += TextoGeneral(static_cast<double>(punto.x), 9) + '\t';
        salida += TextoGeneral(static_cast<double>(punto.y), 9) + '\n';
    }
    std::cout << salida;
}

Estado Ejecuta(Contexto& contexto, const Opciones& opciones) {
    switch (opciones.modo) {
    case Modo::Orden:
        return EjecutaOrden(contexto, opciones);
    case Modo::Sintaxis:
        ImprimeSintaxis(contexto, opciones.argumento);
        break;
    case Modo::Evaluar:
        ImprimeValores(contexto, opciones.argumento, opciones.equis);
        break;
    case Modo::Derivar:
        ImprimeDerivada(contexto, opciones.argumento);
        break;
    case Modo::Muestrear:
        ImprimePuntos(contexto, opciones.argumento, opciones);
        break;
    case Modo::Listar:
        for (const Orden& orden : DevÓrdenes())
            std::cout << orden.texto << '\n';
        break;
    case Modo::Ayuda:
        std::cout << TextoAyuda();
        break;
    case Modo::Versión:
        std::cout << "quiralto-cli " << Versión << '\n';
        break;
    }
    return SinMensajes;
}

int Principal(const std::vector<std::string>& palabras) {
    std::string error;
    const std::optional<Opciones> opciones = LeeOpciones(palabras, error);
    if (!opciones)
        return RechazaUso(error);
    MensajesDeTerminal mensajes;
    SinVigilante vigilante;
    Primos tabla{};
    Contexto contexto(mensajes, vigilante, tabla);
    contexto.DígitosRedondeo = opciones->cifras;
    Estado estado = SinMensajes;
    EjecutaConTrampa(contexto, [&] { estado = Ejecuta(contexto, *opciones); });
    if (!std::cout.flush())
        return RechazaUso("no se puede escribir en la salida estándar");
    return estado == SinMensajes ? mensajes.DevEstado() : estado;
}

} // namespace
} // namespace quiralto::cli

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    return quiralto::cli::Principal({argv + 1, argv + argc});
}
