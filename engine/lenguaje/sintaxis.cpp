#include "engine/lenguaje/sintaxis.h"

#include "engine/base/caracteres.h"
#include "engine/base/utf8.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

bool EstáEn(char c, std::string_view conjunto) {
    return conjunto.find(c) != std::string_view::npos;
}

void MarcaExponentes(std::string& texto) {
    for (std::size_t i = 0; i + 1 < texto.size(); ++i)
        if (texto[i] == 'E' && (EsSigno(texto[i + 1]) || EsDígito(texto[i + 1])))
            texto[i] = 'D';
}

bool CompruebaVacía(Contexto& contexto, const std::string& texto) {
    if (!texto.empty())
        return true;
    contexto.Avisa("No ha escrito ninguna función o valor numérico ");
    return false;
}

// Length of the function name with its parenthesis that begins the text; 0 where none does.
std::size_t LongitudNombre(const Contexto& contexto, std::string_view texto) {
    for (const std::string_view nombre : NombresFunción)
        if (texto.starts_with(nombre) && texto.substr(nombre.size()).starts_with('('))
            return nombre.size() + 1;
    const std::string& prefijo = contexto.PrefijoVariable;
    return !prefijo.empty() && texto.starts_with(prefijo) ? prefijo.size() : 0;
}

bool CompruebaCaracteres(Contexto& contexto, const std::string& texto) {
    for (std::size_t i = 0; i < texto.size();) {
        if (EsDígito(texto[i]) || EstáEn(texto[i], "+-*/^()DX.")) {
            ++i;
            continue;
        }
        const std::size_t salto = LongitudNombre(contexto, std::string_view(texto).substr(i));
        if (salto == 0) {
            // A character is shown whole, whatever its length in bytes.
            const std::size_t longitud = std::max<std::size_t>(1, LongitudCarácter(texto, i));
            contexto.Avisa("Error de sintáxis: '" + texto.substr(i, longitud) + "'");
            return false;
        }
        i += salto;
    }
    return true;
}

bool CompruebaParéntesis(Contexto& contexto, const std::string& texto) {
    long abiertos = 0;
    for (const char c : texto) {
        abiertos += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (abiertos < 0)
            break;
    }
    if (abiertos == 0)
        return true;
    contexto.Avisa("Desequilibrio de paréntesis abiertos y cerrados");
    return false;
}

bool CompruebaFinal(Contexto& contexto, const std::string& texto) {
    if (!EstáEn(texto.back(), "+-*/^.D"))
        return true;
    contexto.Avisa(std::string("No está permitido terminar con: ") + texto.back());
    return false;
}

bool CompruebaComienzo(Contexto& contexto, const std::string& texto) {
    if (!EstáEn(texto.front(), "*/^D"))
        return true;
    contexto.Avisa(std::string("No está permitido comenzar con:") + texto.front());
    return false;
}

bool CompruebaLógica(Contexto& contexto, const std::string& texto) {
    EstadoPares estado;
    ParVálido(estado, '\0', '\0', true);
    // "+*X" hides a forbidden beginning until its signs are folded.
    bool válida = !EstáEn(texto.front(), "*/^D");
    for (std::size_t i = 0; válida && i + 1 < texto.size(); ++i)
        válida = ParVálido(estado, texto[i], texto[i + 1]);
    if (!válida)
        contexto.Avisa("Error de lógica en la expresión, verifique la sintaxis");
    return válida;
}

// Position behind the number that begins at i: it ends at the next operator or ")", where a sign
// directly behind an exponent letter is the exponent's.
std::size_t FinDeNúmero(std::string_view texto, std::size_t i) {
    while (i < texto.size() && !EstáEn(texto[i], "*/^)") &&
           !(EsSigno(texto[i]) && !EstáEn(texto[i - 1], "DE")))
        ++i;
    return i;
}

bool CompruebaRangoNúmeros(Contexto& contexto, std::string& texto) {
    std::string reescrito;
    reescrito.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        if (!EsDígito(texto[i]) && texto[i] != '.') {
            reescrito += texto[i++];
            continue;
        }
        const std::size_t fin = FinDeNúmero(texto, i + 1);
        const std::string_view escrito = std::string_view(texto).substr(i, fin - i);
        const NúmeroLeído número = LeeNúmero(escrito);
        if (número.desborda || número.longitud != escrito.size()) {
            texto = std::move(reescrito.append(texto, i));
            contexto.ErrorCódigo = número.desborda ? Desbordamiento : ArgumentoInválido;
            contexto.Avisa(número.desborda
                               ? "Un número de doble precisión está fuera del rango permitido"
                               : "Error inesperado en la función Sintaxis contacte con el "
                                 "proveedor del programa");
            return false;
        }
        reescrito += TextoNúmero(Redondea(número.valor, contexto.DígitosRedondeo));
        i = fin;
    }
    texto = std::move(reescrito);
    return true;
}

bool PuedeEmpezarOperando(char c) {
    return EsDígito(c) || c == '.' || c == '(' || (c >= 'A' && c <= 'Z' && c != 'D');
}

} // namespace

bool Sintaxis(Contexto& contexto, std::string& texto) {
    MarcaExponentes(texto);
    if (!CompruebaVacía(contexto, texto) || !CompruebaCaracteres(contexto, texto) ||
        !CompruebaParéntesis(contexto, texto) || !CompruebaFinal(contexto, texto) ||
        !CompruebaComienzo(contexto, texto))
        return false;
    texto = SimplificaSignos(texto);
    return CompruebaLógica(contexto, texto) && CompruebaRangoNúmeros(contexto, texto);
}

std::string SimplificaSignos(std::string_view texto) {
    std::string plegado;
    plegado.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        if (!EsSigno(texto[i])) {
            plegado += texto[i++];
            continue;
        }
        bool negativo = false;
        for (; i < texto.size() && EsSigno(texto[i]); ++i)
            negativo ^= texto[i] == '-';
        if (negativo)
            plegado += '-';
        else if (!plegado.empty() && plegado.back() != '(' && !EsOperadorFuerte(plegado.back()))
            plegado += '+';
    }
    return plegado;
}

bool ParVálido(EstadoPares& estado, char a, char b, bool reinicia) {
    if (reinicia) {
        estado = {};
        return true;
    }
    const char anterior = std::exchange(estado.anterior, a);
    switch (a) {
    case '+':
    case '-':
        estado.punto = false;
        if (anterior != 'D')
            estado.exponente = false;
        return estado.exponente ? EsDígito(b) : PuedeEmpezarOperando(b);
    case '*':
    case '/':
    case '^':
        estado.punto = false;
        estado.exponente = false;
        return b == '-' || PuedeEmpezarOperando(b);
    case '(':
        return b == '-' || PuedeEmpezarOperando(b);
    case ')':
        return EstáEn(b, "+-*/^)");
    case 'X':
        return EstáEn(b, "+-*/^)P"); // the P lets the X inside "EXP(" pass
    case 'D':
        estado.exponente = true;
        return EsSigno(b) || EsDígito(b);
    case '.':
        return !std::exchange(estado.punto, true) && !estado.exponente && EsDígito(b);
    default:
        break;
    }
    if (EsDígito(a))
        return EsDígito(b) || EstáEn(b, estado.exponente ? "+-*/^)" : ".+-*/^)D");
    if (a >= 'A' && a <= 'Z')
        return b == '(' || (b >= 'A' && b <= 'Z');
    return false;
}

} // namespace quiralto
