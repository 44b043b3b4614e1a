#include "engine/evaluacion/validadores.h"

#include "engine/base/caracteres.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quiralto {
namespace {

bool CabeEnEnteroLargo(std::string_view texto) {
    std::int32_t valor = 0;
    const char* const fin = texto.data() + texto.size();
    const auto leído = std::from_chars(texto.data(), fin, valor);
    return leído.ec == std::errc{} && leído.ptr == fin;
}

} // namespace

std::optional<Rechazo> CompruebaEnteroLargo(std::string_view texto) {
    const auto noDígito =
        std::ranges::find_if_not(texto.substr(texto.starts_with('-') ? 1 : 0), EsDígito);
    if (noDígito != texto.end() && *noDígito == '-')
        return Rechazo{.motivo = Motivo::Callado};
    if (CabeEnEnteroLargo(texto))
        return std::nullopt;
    return Rechazo{.motivo = Motivo::NoEsEnteroLargo};
}

bool NoContieneX(std::string_view texto) {
    return texto.find('X') == std::string_view::npos;
}

std::optional<Rechazo> CompruebaNoNegativo(std::string_view texto) {
    if (Val(texto) >= 0)
        return std::nullopt;
    return Rechazo{.motivo = Motivo::EsNegativo};
}

std::optional<Rechazo> CompruebaNoCero(std::string_view texto) {
    if (texto != "0")
        return std::nullopt;
    return Rechazo{.motivo = Motivo::EsCero};
}

std::optional<Rechazo> CompruebaOrdenados(std::string_view primero, std::string_view segundo,
                                          ModoOrden modo) {
    const double a = Val(primero);
    const double b = Val(segundo);
    const bool mayor = modo == ModoOrden::Mayor;
    if (mayor ? a > b : a < b)
        return std::nullopt;
    return Rechazo{.motivo = mayor ? Motivo::NoEsMayor : Motivo::NoEsMenor};
}

std::optional<Rechazo> CompruebaValorDato(Contexto& contexto, std::string& texto) {
    if (auto rechazo = CompruebaSintaxis(contexto, texto))
        return rechazo;
    if (!NoContieneX(texto))
        return Rechazo{.motivo = Motivo::DatoConX};
    Programa programa = CompilaExpresión(texto);
    const std::optional<double> valor = DevValor(contexto, programa, 0);
    if (!valor)
        return Rechazo{.motivo = Motivo::ArgumentoFueraDeRango};
    texto = TextoNúmero(*valor);
    return std::nullopt;
}

bool EsEnteroLargo(Contexto& contexto, std::string_view texto) {
    return Acepta(contexto, CompruebaEnteroLargo(texto));
}

bool NoNegativo(Contexto& contexto, std::string_view texto) {
    return Acepta(contexto, CompruebaNoNegativo(texto));
}

bool NoCero(Contexto& contexto, std::string_view texto) {
    return Acepta(contexto, CompruebaNoCero(texto));
}

bool CompruebaOrden(Contexto& contexto, std::string_view primero, std::string_view segundo,
                    ModoOrden modo) {
    return Acepta(contexto, CompruebaOrdenados(primero, segundo, modo));
}

bool DevValorDato(Contexto& contexto, std::string& texto) {
    return Acepta(contexto, CompruebaValorDato(contexto, texto));
}

Caja CompruebaExtremos(Contexto& contexto, std::string& primero, std::string& segundo,
                       double& valorPrimero, double& valorSegundo, ModoOrden modo) {
    std::string a = primero;
    std::string b = segundo;
    if (!DevValorDato(contexto, a))
        return Caja::Primera;
    if (!DevValorDato(contexto, b))
        return Caja::Segunda;
    if (!CompruebaOrden(contexto, a, b, modo))
        return Caja::Primera;
    valorPrimero = Redondea(Val(a), contexto.DígitosRedondeo);
    valorSegundo = Redondea(Val(b), contexto.DígitosRedondeo);
    primero = TextoNúmero(valorPrimero);
    segundo = TextoNúmero(valorSegundo);
    return Caja::Ninguna;
}

bool EsNúmeroEnRango(std::string_view texto, double mínimo, double máximo) {
    bool hayDígitos = false;
    bool hayPunto = false;
    bool haySigno = false;
    for (const char c : texto) {
        if (c == '.') {
            if (std::exchange(hayPunto, true))
                return false;
        } else if (c == '+' || c == '-') {
            if (hayPunto || std::exchange(haySigno, true))
                return false;
        } else if (EsDígito(c)) {
            hayDígitos = true;
        } else {
            return false;
        }
    }
    if (!hayDígitos || !EsDígito(texto.back()))
        return false;
    if (mínimo == 0 && máximo == 0)
        return true;
    const double valor = LeeNúmero(texto).valor;
    return mínimo <= valor && valor <= máximo;
}

char32_t FiltraTecla(char32_t código) {
    constexpr char32_t Retroceso = 8;
    constexpr char32_t Intro = 13;
    constexpr char32_t PrimeroVisible = 33;
    constexpr char32_t Último = 254;
    if (código == Retroceso || código == Intro)
        return código;
    if (código < PrimeroVisible || código > Último)
        return 0;
    const bool minúscula =
        (código >= U'a' && código <= U'z') || (código >= U'à' && código <= U'þ' && código != U'÷');
    constexpr char32_t DistanciaMayúscula = 32;
    return minúscula ? código - DistanciaMayúscula : código;
}

} // namespace quiralto
