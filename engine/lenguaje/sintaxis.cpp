#include "engine/lenguaje/sintaxis.h"

#include "engine/base/caracteres.h"
#include "engine/base/utf8.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <utility>
#include <vector>

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

std::optional<Rechazo> CompruebaVacía(const std::string& texto) {
    if (!texto.empty())
        return std::nullopt;
    return Rechazo{.motivo = Motivo::SinFórmula};
}

// Length of the function name or set prefix that begins the text; 0 where none does.
std::size_t LongitudNombreOPrefijo(const Contexto& contexto, std::string_view texto) {
    if (const std::size_t longitud = LongitudNombre(texto); longitud > 0)
        return longitud;
    const std::string& prefijo = contexto.PrefijoVariable;
    return !prefijo.empty() && texto.starts_with(prefijo) ? prefijo.size() : 0;
}

std::optional<Rechazo> CompruebaCaracteres(const Contexto& contexto, const std::string& texto) {
    for (std::size_t i = 0; i < texto.size();) {
        if (EsDígito(texto[i]) || EstáEn(texto[i], "+-*/^()DX.")) {
            ++i;
            continue;
        }
        const std::size_t salto =
            LongitudNombreOPrefijo(contexto, std::string_view(texto).substr(i));
        if (salto == 0) {
            // A character is shown whole, whatever its length in bytes.
            const std::size_t longitud = std::max<std::size_t>(1, LongitudCarácter(texto, i));
            return Rechazo{Motivo::CarácterExtraño, {texto.substr(i, longitud)}, i};
        }
        i += salto;
    }
    return std::nullopt;
}

// The place of the last parenthesis that is left open, in a text that closes none too many.
std::size_t LugarSinCerrar(std::string_view texto) {
    std::size_t i = texto.size();
    for (long cerrados = 0; cerrados >= 0;) {
        --i;
        cerrados += texto[i] == ')' ? 1 : texto[i] == '(' ? -1 : 0;
    }
    return i;
}

std::optional<Rechazo> CompruebaParéntesis(const std::string& texto) {
    long abiertos = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        abiertos += texto[i] == '(' ? 1 : texto[i] == ')' ? -1 : 0;
        if (abiertos < 0)
            return Rechazo{.motivo = Motivo::ParéntesisDesiguales, .lugar = i};
    }
    if (abiertos == 0)
        return std::nullopt;
    return Rechazo{.motivo = Motivo::ParéntesisDesiguales, .lugar = LugarSinCerrar(texto)};
}

std::optional<Rechazo> CompruebaFinal(const std::string& texto) {
    if (!EstáEn(texto.back(), "+-*/^.D"))
        return std::nullopt;
    return Rechazo{Motivo::FinalNoPermitido, {std::string(1, texto.back())}, texto.size() - 1};
}

std::optional<Rechazo> CompruebaComienzo(const std::string& texto) {
    if (!EstáEn(texto.front(), "*/^D"))
        return std::nullopt;
    return Rechazo{Motivo::ComienzoNoPermitido, {std::string(1, texto.front())}};
}

std::optional<Rechazo> CompruebaLógica(const std::string& texto) {
    // "+*X" hides a forbidden beginning until its signs are folded.
    if (EstáEn(texto.front(), "*/^D"))
        return Rechazo{.motivo = Motivo::FaltaDeLógica};
    EstadoPares estado;
    ParVálido(estado, '\0', '\0', true);
    for (std::size_t i = 0; i + 1 < texto.size(); ++i)
        if (!ParVálido(estado, texto[i], texto[i + 1]))
            return Rechazo{.motivo = Motivo::FaltaDeLógica, .lugar = i + 1};
    return std::nullopt;
}

// Position behind the number that begins at i: it ends at the next operator or ")", where a sign
// directly behind an exponent letter is the exponent's.
std::size_t FinDeNúmero(std::string_view texto, std::size_t i) {
    while (i < texto.size() && !EstáEn(texto[i], "*/^)") &&
           !(EsSigno(texto[i]) && !EstáEn(texto[i - 1], "DE")))
        ++i;
    return i;
}

std::optional<Rechazo> CompruebaRangoNúmeros(int dígitos, std::string& texto) {
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
            return Rechazo{.motivo = número.desborda ? Motivo::NúmeroFueraDeRango
                                                     : Motivo::NúmeroIlegible,
                           .lugar = i};
        }
        reescrito += TextoNúmero(Redondea(número.valor, dígitos));
        i = fin;
    }
    texto = std::move(reescrito);
    return std::nullopt;
}

// The steps before the signs are folded; they change no place.
std::optional<Rechazo> CompruebaEscrito(const Contexto& contexto, const std::string& texto) {
    if (auto rechazo = CompruebaVacía(texto))
        return rechazo;
    if (auto rechazo = CompruebaCaracteres(contexto, texto))
        return rechazo;
    if (auto rechazo = CompruebaParéntesis(texto))
        return rechazo;
    if (auto rechazo = CompruebaFinal(texto))
        return rechazo;
    return CompruebaComienzo(texto);
}

std::optional<Rechazo> CompruebaPlegado(const Contexto& contexto, std::string& texto) {
    if (auto rechazo = CompruebaLógica(texto))
        return rechazo;
    return CompruebaRangoNúmeros(contexto.DígitosRedondeo, texto);
}

// Folds the runs of signs; `alEscribir` is told the place that each character comes from.
template <typename F> std::string PliegaSignos(std::string_view texto, F alEscribir) {
    std::string plegado;
    plegado.reserve(texto.size());
    const auto escribe = [&](char c, std::size_t lugar) {
        plegado += c;
        alEscribir(lugar);
    };
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t primero = i;
        while (i < texto.size() && !EsSigno(texto[i]))
            alEscribir(i++);
        if (i > primero) {
            plegado.append(texto.substr(primero, i - primero));
            continue;
        }
        bool negativo = false;
        for (; i < texto.size() && EsSigno(texto[i]); ++i)
            negativo ^= texto[i] == '-';
        if (negativo)
            escribe('-', primero);
        else if (!plegado.empty() && plegado.back() != '(' && !EsOperadorFuerte(plegado.back()))
            escribe('+', primero);
    }
    return plegado;
}

// Where the character at `lugar` of the folded text stood before.
std::size_t LugarSinPlegar(std::string_view texto, std::size_t lugar) {
    std::vector<std::size_t> lugares;
    lugares.reserve(texto.size());
    PliegaSignos(texto, [&](std::size_t i) { lugares.push_back(i); });
    return lugares[lugar];
}

bool PuedeEmpezarOperando(char c) {
    return EsDígito(c) || c == '.' || c == '(' || (c >= 'A' && c <= 'Z' && c != 'D');
}

} // namespace

std::optional<Rechazo> CompruebaSintaxis(const Contexto& contexto, std::string& texto) {
    MarcaExponentes(texto);
    if (auto rechazo = CompruebaEscrito(contexto, texto))
        return rechazo;
    const std::string sinPlegar = std::exchange(texto, SimplificaSignos(texto));
    auto rechazo = CompruebaPlegado(contexto, texto);
    if (rechazo)
        rechazo->lugar = LugarSinPlegar(sinPlegar, rechazo->lugar);
    return rechazo;
}

bool Sintaxis(Contexto& contexto, std::string& texto) {
    return Acepta(contexto, CompruebaSintaxis(contexto, texto));
}

std::string SimplificaSignos(std::string_view texto) {
    return PliegaSignos(texto, [](std::size_t) {});
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
