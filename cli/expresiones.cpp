#include "cli/expresiones.h"

#include "engine/evaluacion/bloque.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/lenguaje/sintaxis.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quiralto::cli {
namespace {

// As printf's %.<digits>g, whatever the locale; without digits, the shortest text that reads back
// to the same Double.
template <typename... Forma> std::string TextoDoble(double valor, Forma... forma) {
    std::array<char, 64> búfer{};
    const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(), valor, forma...);
    return {búfer.data(), fin.ptr};
}

std::string TextoGeneral(double valor, int dígitos) {
    return TextoDoble(valor, std::chars_format::general, dígitos);
}

// The normalised text of the call's expression.
std::optional<std::string> DevExpresión(Contexto& contexto, const Opciones& opciones) {
    std::string f = opciones.argumento;
    if (!Sintaxis(contexto, f))
        return std::nullopt;
    return f;
}

// The ends of `partes` equal parts. Each is computed from its number, so that no error adds up, and
// stays between the ends of the whole.
std::vector<double> DevEquis(double xMín, double xMáx, int partes) {
    std::vector<double> equis;
    equis.reserve(static_cast<std::size_t>(partes) + 1);
    for (int i = 0; i <= partes; ++i) {
        double x = (xMín * (partes - i) + xMáx * i) / partes;
        if (!std::isfinite(x)) // so wide that the products are beyond a Double
            x = xMín * (1 - static_cast<double>(i) / partes) +
                xMáx * (static_cast<double>(i) / partes);
        equis.push_back(std::clamp(x, xMín, xMáx));
    }
    equis.front() = xMín;
    equis.back() = xMáx;
    return equis;
}

} // namespace

std::string DevSintaxis(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    return f ? *f + '\n' : "";
}

std::string DevValores(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    if (!f)
        return "";
    Programa programa = CompilaExpresión(*f);
    std::string salida;
    for (const double x : opciones.equis) {
        contexto.ErrorCódigo = SinFallo;
        const double valor = EvalúaPrograma(contexto, programa, x);
        if (contexto.ErrorCódigo != SinFallo)
            (salida += "error ") += std::to_string(contexto.ErrorCódigo);
        else
            salida += TextoGeneral(valor, 17);
        salida += '\n';
    }
    return salida;
}

std::string DevDerivada(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    if (!f)
        return "";
    std::string pasos;
    ObservadorDeRondas observa;
    if (opciones.pasos)
        observa = [&](const std::string& ronda) {
            if (pasos.size() + ronda.size() > MáximoTexto)
                throw ErrorEjecución(EspacioDeCadenasInsuficiente);
            (pasos += ronda) += '\n';
        };
    const std::string derivada = Deriva(contexto, *f, observa);
    return pasos + derivada + '\n';
}

std::string DevListado(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    return f ? ListaPrograma(CompilaExpresión(*f)) : "";
}

std::string DevMuestras(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    if (!f)
        return "";
    const Programa programa = CompilaExpresión(*f);
    std::string salida;
    for (const Punto& punto : CargaPuntos(contexto, programa, opciones.ventana, opciones.puntos)) {
        salida += TextoGeneral(static_cast<double>(punto.x), 9) + '\t';
        salida += TextoGeneral(static_cast<double>(punto.y), 9) + '\n';
    }
    return salida;
}

std::string DevTabla(Contexto& contexto, const Opciones& opciones) {
    const auto f = DevExpresión(contexto, opciones);
    if (!f)
        return "";
    const Programa programa = CompilaExpresión(*f);
    const std::vector<double> equis =
        DevEquis(opciones.ventana.XMín, opciones.ventana.XMáx, opciones.puntos);
    std::vector<double> valores(equis.size());
    std::vector<std::int16_t> fallos(equis.size());
    EvalúaBloque(contexto, programa, equis, valores, fallos);
    std::string salida;
    for (std::size_t i = 0; i < equis.size(); ++i) {
        (salida += TextoDoble(equis[i])) += '\t';
        if (fallos[i] == SinFallo)
            salida += TextoDoble(valores[i]);
        salida += '\n';
    }
    return salida;
}

} // namespace quiralto::cli
