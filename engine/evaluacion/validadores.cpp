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

bool EsEnteroLargo(Contexto& contexto, std::string_view texto) {
    const auto noDígito =
        std::ranges::find_if_not(texto.substr(texto.starts_with('-') ? 1 : 0), EsDígito);
    if (noDígito != texto.end() && *noDígito == '-')
        return false;
    if (CabeEnEnteroLargo(texto))
        return true;
    contexto.Avisa("Se requiere un número en el rango de los enteros largos");
    return false;
}

bool NoContieneX(std::string_view texto) {
    return texto.find('X') == std::string_view::npos;
}

bool NoNegativo(Contexto& contexto, std::string_view texto) {
    if (Val(texto) >= 0)
        return true;
    contexto.Avisa("No se permiten valores negativos");
    return false;
}

bool NoCero(Contexto& contexto, std::string_view texto) {
    if (texto != "0")
        return true;
    contexto.Avisa("No está permitido el número cero");
    return false;
}

bool CompruebaOrden(Contexto& contexto, std::string_view primero, std::string_view segundo,
                    ModoOrden modo) {
    const double a = Val(primero);
    const double b = Val(segundo);
    if (modo == ModoOrden::Mayor ? a > b : a < b)
        return true;
    contexto.Avisa(modo == ModoOrden::Mayor ? "El primer número debe ser mayor que el segundo"
                                            : "El primer número debe ser menor que el segundo");
    return false;
}

bool DevValorDato(Contexto& contexto, std::string& texto) {
    if (!Sintaxis(contexto, texto))
        return false;
    if (!NoContieneX(texto)) {
        contexto.Avisa("Este dato no admite la variable X");
        return false;
    }
    Programa programa = CompilaExpresión(texto);
    contexto.ErrorCódigo = SinFallo;
    const double valor = EvalúaPrograma(contexto, programa, 0);
    if (contexto.ErrorCódigo != SinFallo) {
        contexto.Avisa("El argumento dado a la función está fuera de rango, pruebe otro valor");
        return false;
    }
    texto = TextoNúmero(valor);
    return true;
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
