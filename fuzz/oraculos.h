// What a text that the program writes must fulfil, whatever the input was.
#pragma once

#include "commands/ordenes.h"
#include "engine/lenguaje/compila.h"
#include "fuzz/entrada.h"
#include "tests/valor_acotado.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace quiralto {

inline constexpr std::array PuntosDeOráculo = {-7.25, -2.5, -0.75, 0.125, 0.875, 1.5, 3.0, 9.5};

// Of a text written with so many decimal digits.
inline Redondeo DevRedondeo(int dígitos, bool tambiénEnteros = false) {
    return {0.5L * std::pow(10.0L, -dígitos), tambiénEnteros};
}

// The program of a text that must be of the language; none where the text has more terms than a
// program has registers, as the quotient of X^20000-1 by X-1.
inline std::optional<Programa> CompilaEscrito(std::string_view texto) {
    constexpr std::size_t LetrasDeMenos = MáximoRegistro;
    try {
        return CompilaExpresión(texto);
    } catch (const ErrorEjecución&) {
        Exige(texto.size() > LetrasDeMenos, "what is written can be read", texto);
        return std::nullopt;
    }
}

// The text with the whole number in front of every term, or the 1 that is not written there, as a
// sum with numbers that are not whole: it may stand for another that rounds to it, while whole
// numbers count as exact elsewhere.
inline std::string ConEnterosRedondeados(std::string_view texto) {
    std::string redondeado;
    bool empieza = true; // a term
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        const bool esSigno = c == '+' || c == '-';
        if (empieza && !esSigno) {
            const std::size_t fin =
                std::min(texto.find_first_not_of("0123456789", i), texto.size());
            const bool esEntero = fin == texto.size() || (texto[fin] != '.' && texto[fin] != 'E');
            if (fin == i && c != '.')
                redondeado += "(1-.5+.5)*";
            if (fin > i && esEntero) {
                redondeado += '(' + std::string(texto.substr(i, fin - i)) + "-.5+.5)";
                i = fin - 1;
                empieza = false;
                continue;
            }
        }
        const char anterior = i > 0 ? texto[i - 1] : '(';
        const bool esExponente = anterior == 'E' && i > 1 && texto[i - 2] != '(' &&
                                 std::isalpha(static_cast<unsigned char>(texto[i - 2])) == 0;
        empieza = c == '(' || (esSigno && !esExponente && anterior != '^' && anterior != '*' &&
                               anterior != '/');
        redondeado += c;
    }
    return redondeado;
}

// What a text may leave out because it rounds to 0.
struct Licencia {
    bool términos = false; // of a polynomial: the points within (-1, 1) are judged, where the
                           // missing ones add up to less than a geometric series
    long raíces = 0;       // of so many factors, X-r written as X
};

// Where both texts have a value it is one value. The first is what was typed; the numbers of the
// second are rounded.
inline void ExigeMismoValor(std::string_view typed, std::string_view written, int dígitos,
                            const Licencia& licencia = {}) {
    const Programa a = CompilaExpresión(typed);
    const std::optional<Programa> b = CompilaEscrito(ConEnterosRedondeados(written));
    if (!b)
        return;
    const EvaluadorAcotado exacto(a, {});
    const EvaluadorAcotado redondeado(*b, DevRedondeo(dígitos));
    const long double media = DevRedondeo(dígitos).mediaUnidad;
    for (const double x : PuntosDeOráculo) {
        const long double tamaño = std::fabs(x);
        if (licencia.términos && tamaño >= 1)
            continue;
        const auto va = exacto.Evalúa(x);
        auto vb = redondeado.Evalúa(x);
        if (!va || !vb)
            continue;
        if (licencia.términos)
            vb->cota += media / (1 - tamaño);
        vb->cota +=
            static_cast<long double>(licencia.raíces) * media / tamaño * std::fabs(vb->valor);
        if (!SonCompatibles(*va, *vb))
            Exige(false, "the same value at " + std::to_string(x),
                  std::string(typed) + "  =>  " + std::string(written));
    }
}

// Every occurrence of `viejo` replaced.
inline std::string Cambia(std::string texto, std::string_view viejo, std::string_view nuevo) {
    for (std::size_t i = 0; (i = texto.find(viejo, i)) != std::string::npos; i += nuevo.size())
        texto.replace(i, viejo.size(), nuevo);
    return texto;
}

// What the command appends to a worksheet of these lines (ended by LF), as lines.
struct Corrida {
    Corrida(Contexto& contexto, std::string_view líneas, std::string_view orden)
        : typed(ConCrLf(líneas)), hoja(typed) {
        EjecutaInstrucciones(contexto, hoja, orden);
        Exige(hoja.texto.starts_with(typed), "commands only append", typed);
    }
    // What stands behind the beginning of the last line that has it; none where no line does.
    std::optional<std::string> TextoTras(std::string_view principio) const {
        std::optional<std::string> texto;
        for (const std::string_view línea : CortaLíneas(hoja.texto))
            if (línea.starts_with(principio))
                texto = línea.substr(principio.size());
        return texto;
    }

    std::string typed;
    Hoja hoja;
};

} // namespace quiralto
