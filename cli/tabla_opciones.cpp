#include "cli/tabla_opciones.h"

#include "engine/base/contexto.h"
#include "engine/numeros/numero.h"

#include <array>
#include <cmath>

namespace quiralto::cli {
namespace {

int LeeEntero(const std::string& palabra, const std::string& qué, int mínimo, int máximo) {
    const double valor = LeeDoble(palabra, qué);
    if (valor != std::trunc(valor) || valor < mínimo || valor > máximo)
        throw UsoErróneo{"se esperaba un entero de " + std::to_string(mínimo) + " a " +
                         std::to_string(máximo) + " para " + qué};
    return static_cast<int>(valor);
}

using Texto = const std::string&;

constexpr void PonArgumento(Opciones& o, Texto, Texto valor) {
    o.argumento = valor;
}
constexpr void NoPongasNada(Opciones&, Texto, Texto) {
}

constexpr Modo DeOrden[] = {Modo::Orden};
constexpr Modo DeDerivar[] = {Modo::Derivar};
constexpr Modo DeListar[] = {Modo::Listar};
constexpr Modo DePuntos[] = {Modo::Muestrear, Modo::Tabla};
constexpr Modo DeMuestrear[] = {Modo::Muestrear};

constexpr Opción DevModo(std::string_view nombre, std::string_view valor, Modo modo,
                         std::string_view uso, std::string_view ayuda) {
    return {nombre, "", "", valor, modo, {}, uso, PonArgumento, ayuda};
}

constexpr Opción DevExtremo(std::string_view nombre, std::string_view sinAcento,
                            std::span<const Modo> con, void (*pon)(Opciones&, Texto, Texto),
                            std::string_view ayuda) {
    return {nombre, sinAcento, "", "V", std::nullopt, con, "", pon, ayuda};
}

constexpr Opción DevInterruptor(std::string_view nombre, std::span<const Modo> con,
                                void (*pon)(Opciones&, Texto, Texto), std::string_view ayuda) {
    return {nombre, "", "", "", std::nullopt, con, "", pon, ayuda};
}

constexpr std::array Tabla = {
    Opción{"--cifras",
           "",
           "",
           "N",
           std::nullopt,
           {},
           "",
           [](Opciones& o, Texto opción, Texto valor) {
               o.cifras = LeeEntero(valor, opción, 0, MáximoDígitosRedondeo);
           },
           "dígitos decimales del redondeo, de 0 a 15 (8)"},
    DevModo("--orden", "TEXTO", Modo::Orden, "[OPCIONES] --orden TEXTO [HOJA]",
            "ejecuta la orden, llamada por su texto o por su título en\n"
            "los menús, sobre la HOJA (un fichero; la entrada estándar\n"
            "si falta o es -) y escribe la hoja como queda"),
    DevInterruptor(
        "--resultado", DeOrden, [](Opciones& o, Texto, Texto) { o.soloResultado = true; },
        "con --orden: escribe solo lo que la orden ha añadido"),
    DevInterruptor(
        "--json", DeOrden, [](Opciones& o, Texto, Texto) { o.json = true; },
        "con --orden: escribe un objeto JSON con la orden, la hoja,\n"
        "el resultado, los mensajes y la línea señalada"),
    DevModo("--sintaxis", "E", Modo::Sintaxis, "[OPCIONES] --sintaxis EXPRESIÓN",
            "escribe la expresión normalizada"),
    DevModo("--evaluar", "F X1...", Modo::Evaluar, "[OPCIONES] --evaluar F(X) X1 [X2 ...]",
            "escribe el valor de F en cada X, o 'error N'"),
    DevModo("--derivar", "F", Modo::Derivar, "[OPCIONES] --derivar F(X) [--pasos]",
            "escribe la derivada de F sin desarrollar"),
    DevInterruptor(
        "--pasos", DeDerivar, [](Opciones& o, Texto, Texto) { o.pasos = true; },
        "con --derivar: escribe delante el texto de cada paso; lo\n"
        "que está entre D( y )D queda por derivar"),
    DevModo("--programa", "F", Modo::Programa, "[OPCIONES] --programa F(X)",
            "escribe las instrucciones en que se traduce F"),
    DevModo("--muestrear", "F", Modo::Muestrear,
            "[OPCIONES] --muestrear F(X) [--xmín V] [--xmáx V] [--ymín V] [--ymáx V]"
            " [--puntos N]",
            "escribe los puntos de la gráfica, en la escala de dibujo"),
    DevModo("--tabla", "F", Modo::Tabla,
            "[OPCIONES] --tabla F(X) [--xmín V] [--xmáx V] [--puntos N]",
            "escribe X y F(X) en cada punto, separados por un tabulador"),
    DevExtremo(
        "--xmín", "--xmin", DePuntos,
        [](Opciones& o, Texto opción, Texto v) { o.ventana.XMín = LeeDoble(v, opción); },
        "comienzo del intervalo de X (-10)"),
    DevExtremo(
        "--xmáx", "--xmax", DePuntos,
        [](Opciones& o, Texto opción, Texto v) { o.ventana.XMáx = LeeDoble(v, opción); },
        "final del intervalo de X (10)"),
    DevExtremo(
        "--ymín", "--ymin", DeMuestrear,
        [](Opciones& o, Texto opción, Texto v) { o.ventana.YMín = LeeDoble(v, opción); },
        "comienzo del intervalo de Y (-10)"),
    DevExtremo(
        "--ymáx", "--ymax", DeMuestrear,
        [](Opciones& o, Texto opción, Texto v) { o.ventana.YMáx = LeeDoble(v, opción); },
        "final del intervalo de Y (10)"),
    Opción{"--puntos", "", "", "N", std::nullopt, DePuntos, "",
           [](Opciones& o, Texto opción, Texto v) {
               o.puntos = LeeEntero(v, opción, 1, MáximoCantidadPuntos);
           },
           "partes iguales del intervalo de X, hasta 32767 (300)"},
    Opción{"--listar",
           "",
           "",
           "",
           Modo::Listar,
           {},
           "--listar [--largo]",
           NoPongasNada,
           "escribe los textos de las órdenes"},
    DevInterruptor(
        "--largo", DeListar, [](Opciones& o, Texto, Texto) { o.largo = true; },
        "con --listar: y su título, la forma de sus datos y un\n"
        "ejemplo, separados por tabuladores (\\n parte sus líneas)"),
    Opción{"--ayuda",
           "--help",
           "-h",
           "",
           Modo::Ayuda,
           {},
           "--ayuda",
           NoPongasNada,
           "escribe este texto"},
    Opción{"--version",
           "--versión",
           "-V",
           "",
           Modo::Versión,
           {},
           "--version",
           NoPongasNada,
           "escribe la versión"},
};

} // namespace

double LeeDoble(const std::string& palabra, const std::string& qué) {
    const NúmeroLeído leído = LeeNúmero(palabra);
    if (leído.longitud == 0 || leído.longitud != palabra.size() || leído.desborda)
        throw UsoErróneo{"se esperaba un número para " + qué};
    return leído.valor;
}

std::span<const Opción> DevTablaOpciones() {
    return Tabla;
}

} // namespace quiralto::cli
