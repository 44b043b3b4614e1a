#include "ui/grafica/pista.h"

#include "engine/lenguaje/operaciones.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quiralto {
namespace {

using Texto = std::string_view;

// What is written elsewhere, and how it is written here.
constexpr auto NombresAjenos = std::to_array<std::pair<Texto, Texto>>({
    {"SEN", "seno es SIN"},
    {"TG", "tangente es TAN"},
    {"TAG", "tangente es TAN"},
    {"CSC", "cosecante es COSEC"},
    {"COT", "cotangente es 1/TAN"},
    {"CTG", "cotangente es 1/TAN"},
    {"COTAN", "cotangente es 1/TAN"},
    {"LN", "logaritmo neperiano es LOG"},
    {"SQRT", "raíz cuadrada es SQR"},
    {"RAIZ", "raíz cuadrada es SQR"},
    {"ASIN", "arco seno es ARCSIN"},
    {"ASEN", "arco seno es ARCSIN"},
    {"ARCSEN", "arco seno es ARCSIN"},
    {"ATAN", "arco tangente es ATN"},
    {"ATG", "arco tangente es ATN"},
    {"ARCTAN", "arco tangente es ATN"},
    {"ARCTG", "arco tangente es ATN"},
    {"ABS", "el valor absoluto de X es SQR(X^2)"},
    {"PI", "el número pi es 4*ATN(1)"},
    {"E", "el número e es EXP(1)"},
});

constexpr auto SignosAjenos = std::to_array<std::pair<Texto, Texto>>({
    {"**", "la potencia es ^"},
    {"[", "sólo hay paréntesis ( )"},
    {"{", "sólo hay paréntesis ( )"},
    {"·", "el producto es *"},
    {"×", "el producto es *"},
    {"÷", "el cociente es /"},
    {":", "el cociente es /"},
    {"²", "el cuadrado es ^2"},
    {"=", "sobra el signo ="},
    {" ", "sobra un blanco"},
});

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

template <typename Es> std::size_t DevFin(Texto texto, std::size_t lugar, Es es) {
    while (lugar < texto.size() && es(texto[lugar]))
        ++lugar;
    return lugar;
}

// The next piece of the text: a number with its exponent, X, a run of other letters, or a sign.
Texto CortaPieza(Texto texto) {
    if (EsCifra(texto[0]) || texto[0] == '.') {
        std::size_t fin = DevFin(texto, 0, [](char c) { return EsCifra(c) || c == '.'; });
        if (fin < texto.size() && texto[fin] == 'E') {
            const bool signo =
                fin + 1 < texto.size() && (texto[fin + 1] == '+' || texto[fin + 1] == '-');
            const std::size_t cifras = DevFin(texto, fin + 1 + (signo ? 1 : 0), EsCifra);
            fin = cifras > fin + 1 + (signo ? 1 : 0) ? cifras : fin;
        }
        return texto.substr(0, fin);
    }
    if (texto[0] == 'X')
        return texto.substr(0, 1);
    return texto.substr(0, std::max<std::size_t>(1, DevFin(texto, 0, EsLetra)));
}

bool EsNombre(Texto pieza) {
    return std::ranges::any_of(TablaOperaciones, [&](const DescripciónOperación& fila) {
        return fila.familia == Familia::Función && fila.nombre == pieza;
    });
}

bool AcabaOperando(Texto pieza) {
    return EsCifra(pieza.back()) || pieza.back() == '.' || pieza == "X" || pieza == ")";
}

bool EmpiezaOperando(Texto pieza) {
    return EsCifra(pieza.front()) || pieza.front() == '.' || pieza == "X" || pieza == "(" ||
           EsNombre(pieza);
}

// Of a piece and the one before it.
std::string DevPista(Texto anterior, Texto pieza, Texto resto) {
    for (const auto& [nombre, pista] : NombresAjenos)
        if (pieza == nombre)
            return std::string(pista);
    const bool coma = pieza == "," && resto.size() > 1 && EsCifra(resto[1]);
    if (coma && (anterior.empty() || EsCifra(anterior.back())))
        return "el decimal es el punto";
    for (const auto& [signo, pista] : SignosAjenos)
        if (resto.starts_with(signo))
            return std::string(pista);
    if (!anterior.empty() && AcabaOperando(anterior) && EmpiezaOperando(pieza))
        return "falta * entre " + std::string(anterior) + " y " + std::string(pieza);
    return {};
}

} // namespace

std::string DevPista(std::string_view texto) {
    Texto anterior;
    for (Texto resto = texto; !resto.empty();) {
        const Texto pieza = CortaPieza(resto);
        if (std::string pista = DevPista(anterior, pieza, resto); !pista.empty())
            return pista;
        anterior = pieza;
        resto.remove_prefix(pieza.size());
    }
    return {};
}

} // namespace quiralto
