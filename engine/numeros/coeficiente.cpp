#include "engine/numeros/coeficiente.h"

#include "engine/base/fallos.h"
#include "engine/numeros/ancho128.h"
#include "engine/numeros/numero.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

using EnteroDoble = Entero128;

constexpr std::uint32_t MáximoDenominador = std::numeric_limits<std::uint32_t>::max();

std::uint64_t Magnitud64(std::int64_t valor) {
    return valor < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(valor)
                     : static_cast<std::uint64_t>(valor);
}

double SinPerderse(double valor) {
    if (CompruebaFinito(valor) == 0)
        throw ErrorEjecución(Desbordamiento);
    return valor;
}

} // namespace

Coeficiente::Coeficiente(std::int64_t entero) : valor_{.pequeño = entero} {
    if (entero == Mínimo)
        *this = DesdeFracción(Entero(entero), 1);
}

Coeficiente::Coeficiente(Entero numerador, Entero denominador) {
    if (denominador.EsCero())
        throw ErrorEjecución(DivisiónPorCero);
    if (denominador.Signo() < 0) {
        numerador.CambiaSigno();
        denominador.CambiaSigno();
    }
    const Entero mcd = DevMCD(numerador, denominador);
    if (!mcd.EsUno()) {
        numerador = Entero::Divide(numerador, mcd).cociente;
        denominador = Entero::Divide(denominador, mcd).cociente;
    }
    *this = DesdeFracción(std::move(numerador), std::move(denominador));
}

Coeficiente Coeficiente::DesdeFracción(Entero numerador, Entero denominador) {
    Coeficiente c;
    if (numerador.EsPequeño() && numerador.Pequeño() != Mínimo && denominador.EsPequeño() &&
        denominador.Pequeño() <= std::int64_t{MáximoDenominador}) {
        c.valor_.pequeño = numerador.Pequeño();
        c.denominador_ = static_cast<std::uint32_t>(denominador.Pequeño());
        return c;
    }
    if (numerador.Bits() > MáximosBits || denominador.Bits() > MáximosBits)
        return Inexacto(SinPerderse(DevCociente(numerador, denominador)));
    c.valor_.grande = new Fracción{std::move(numerador), std::move(denominador)};
    c.clase_ = Clase::Grande;
    return c;
}

Coeficiente Coeficiente::DesdeDouble(double valor) {
    const FormaEntera forma = DevFormaEntera(valor);
    const Entero potencia = DevPotenciaDeDiez(std::abs(forma.exponente));
    const Entero mantisa(valor < 0 ? -forma.mantisa : forma.mantisa);
    return forma.exponente >= 0 ? Coeficiente(mantisa * potencia, 1)
                                : Coeficiente(mantisa, potencia);
}

Coeficiente Coeficiente::DesdeBits(double valor) {
    int exponente = 0;
    const double mantisa = std::frexp(CompruebaFinito(valor), &exponente);
    constexpr int Bits = std::numeric_limits<double>::digits;
    const Entero entero(static_cast<std::int64_t>(std::ldexp(mantisa, Bits)));
    exponente -= Bits;
    return exponente >= 0
               ? Coeficiente(entero.Desplazado(static_cast<std::size_t>(exponente)), 1)
               : Coeficiente(entero, Entero(1).Desplazado(static_cast<std::size_t>(-exponente)));
}

Coeficiente Coeficiente::Inexacto(double valor) {
    Coeficiente c;
    c.valor_.real = CompruebaFinito(valor);
    c.clase_ = Clase::Real;
    return c;
}

Coeficiente Coeficiente::DesdeTexto(std::string_view texto) {
    const NúmeroLeído leído = LeeNúmero(texto);
    if (leído.desborda)
        throw ErrorEjecución(Desbordamiento);
    if (leído.valor == 0)
        return {};
    Entero mantisa;
    long exponente = 0;
    bool trasPunto = false;
    std::size_t dígitos = 0;
    constexpr std::size_t MáximosDígitos = 350; // MáximosBits hold no more
    for (std::size_t i = 0; i < leído.longitud; ++i) {
        const char c = texto[i];
        if (c == '.') {
            trasPunto = true;
        } else if (c >= '0' && c <= '9') {
            if (dígitos == MáximosDígitos)
                return DesdeDouble(leído.valor);
            mantisa = mantisa * Entero(10) + Entero(c - '0');
            dígitos += mantisa.EsCero() ? 0 : 1;
            exponente -= trasPunto ? 1 : 0;
        } else if (c != '+' && c != '-') {
            exponente += std::strtol(std::string(texto.substr(i + 1)).c_str(), nullptr, 10);
            break;
        }
    }
    if (texto.starts_with('-'))
        mantisa.CambiaSigno();
    const Entero potencia = DevPotenciaDeDiez(static_cast<int>(std::labs(exponente)));
    return exponente >= 0 ? Coeficiente(mantisa * potencia, 1) : Coeficiente(mantisa, potencia);
}

void Coeficiente::CopiaGrande(const Coeficiente& otro) {
    valor_.grande = new Fracción(*otro.valor_.grande);
    denominador_ = 1;
    clase_ = Clase::Grande;
}

bool Coeficiente::EsEntero() const {
    switch (clase_) {
    case Clase::Pequeño:
        return denominador_ == 1;
    case Clase::Grande:
        return valor_.grande->denominador.EsUno();
    case Clase::Real:
        break;
    }
    return valor_.real == std::trunc(valor_.real);
}

int Coeficiente::Signo() const {
    switch (clase_) {
    case Clase::Pequeño:
        return (valor_.pequeño > 0) - (valor_.pequeño < 0);
    case Clase::Grande:
        return valor_.grande->numerador.Signo();
    case Clase::Real:
        break;
    }
    return (valor_.real > 0) - (valor_.real < 0);
}

double Coeficiente::ADouble() const {
    constexpr std::int64_t MáximoExacto = std::int64_t{1} << std::numeric_limits<double>::digits;
    switch (clase_) {
    case Clase::Pequeño:
        if (denominador_ == 1)
            return static_cast<double>(valor_.pequeño);
        if (valor_.pequeño <= MáximoExacto && valor_.pequeño >= -MáximoExacto)
            return static_cast<double>(valor_.pequeño) / denominador_;
        return DevCociente(Entero(valor_.pequeño), Entero(std::int64_t{denominador_}));
    case Clase::Grande:
        return SinPerderse(DevCociente(valor_.grande->numerador, valor_.grande->denominador));
    case Clase::Real:
        break;
    }
    return valor_.real;
}

Entero Coeficiente::Numerador() const {
    return clase_ == Clase::Grande ? valor_.grande->numerador : Entero(valor_.pequeño);
}

Entero Coeficiente::Denominador() const {
    return clase_ == Clase::Grande ? valor_.grande->denominador
                                   : Entero(std::int64_t{denominador_});
}

Coeficiente Coeficiente::Redondeado(int dígitos) const {
    if (EsEnteroPequeño())
        return *this;
    if (clase_ == Clase::Real)
        return DesdeDouble(Redondea(valor_.real, dígitos));
    if (EsEntero())
        return *this;
    const Entero escala = DevPotenciaDeDiez(dígitos);
    auto [entero, resto] = Entero::Divide(Numerador() * escala, Denominador());
    // half of the denominator or more is left over: away from zero
    Entero doble = resto + resto;
    if (doble.Signo() < 0)
        doble.CambiaSigno();
    if ((doble - Denominador()).Signo() >= 0)
        entero += Signo();
    return {std::move(entero), escala};
}

Coeficiente Coeficiente::Escrito(int dígitos) const {
    constexpr std::int64_t MáximoEscrito = 1'000'000'000'000'000; // 15 digits
    if (EsEnteroPequeño() && valor_.pequeño < MáximoEscrito && valor_.pequeño > -MáximoEscrito)
        return *this;
    const Coeficiente redondo = Redondeado(dígitos);
    if (redondo.EsEnteroPequeño() && redondo.valor_.pequeño < MáximoEscrito &&
        redondo.valor_.pequeño > -MáximoEscrito)
        return redondo;
    return DesdeTexto(TextoNúmero(redondo.ADouble()));
}

std::string Coeficiente::Texto(int dígitos) const {
    return TextoNúmero(Escrito(dígitos).ADouble());
}

void Coeficiente::CambiaSigno() {
    switch (clase_) {
    case Clase::Pequeño:
        valor_.pequeño = -valor_.pequeño;
        break;
    case Clase::Grande:
        valor_.grande->numerador.CambiaSigno();
        break;
    case Clase::Real:
        valor_.real = -valor_.real;
        break;
    }
}

Coeficiente& Coeficiente::SumaGeneral(Coeficiente otro) {
    if (clase_ == Clase::Real || otro.clase_ == Clase::Real)
        return *this = Inexacto(ADouble() + otro.ADouble());
    if (clase_ == Clase::Grande || otro.clase_ == Clase::Grande) {
        const Entero db = otro.Denominador();
        const Entero da = Denominador();
        return *this = da == db ? Coeficiente(Numerador() + otro.Numerador(), da)
                                : Coeficiente(Numerador() * db + otro.Numerador() * da, da * db);
    }
    const std::uint64_t mcdDenominadores = std::gcd(denominador_, otro.denominador_);
    const std::uint64_t deA = otro.denominador_ / mcdDenominadores;
    const std::uint64_t deB = denominador_ / mcdDenominadores;
    EnteroDoble numerador =
        EnteroDoble{valor_.pequeño} * deA + EnteroDoble{otro.valor_.pequeño} * deB;
    std::uint64_t denominador = deA * denominador_; // below 2^64
    const auto resto = static_cast<std::uint64_t>((numerador < 0 ? -numerador : numerador) %
                                                  static_cast<EnteroDoble>(denominador));
    const std::uint64_t mcd = std::gcd(resto, denominador);
    numerador /= static_cast<EnteroDoble>(mcd);
    denominador /= mcd;
    if (denominador <= MáximoDenominador && numerador > Mínimo &&
        numerador <= std::numeric_limits<std::int64_t>::max()) {
        valor_.pequeño = static_cast<std::int64_t>(numerador);
        denominador_ = static_cast<std::uint32_t>(denominador);
        return *this;
    }
    return *this = DesdeFracción(Entero::DesdeAncho(numerador),
                                 Entero::DesdeAncho(static_cast<EnteroDoble>(denominador)));
}

Coeficiente Coeficiente::Multiplica(const Coeficiente& a, const Coeficiente& b) {
    if (a.EsCero() || b.EsCero())
        return {};
    if (a.clase_ == Clase::Real || b.clase_ == Clase::Real)
        return Inexacto(SinPerderse(a.ADouble() * b.ADouble()));
    if (a.clase_ == Clase::Grande || b.clase_ == Clase::Grande) {
        if (a.EsEntero() && b.EsEntero())
            return DesdeFracción(a.Numerador() * b.Numerador(), 1);
        return {a.Numerador() * b.Numerador(), a.Denominador() * b.Denominador()};
    }
    const std::int64_t na = a.valor_.pequeño;
    const std::int64_t nb = b.valor_.pequeño;
    const auto cruzaA = static_cast<std::int64_t>(std::gcd(Magnitud64(na), b.denominador_));
    const auto cruzaB = static_cast<std::int64_t>(std::gcd(Magnitud64(nb), a.denominador_));
    const EnteroDoble numerador = EnteroDoble{na / cruzaA} * (nb / cruzaB);
    const EnteroDoble denominador =
        EnteroDoble{a.denominador_ / cruzaB} * (std::int64_t{b.denominador_} / cruzaA);
    if (denominador <= MáximoDenominador && numerador > Mínimo &&
        numerador <= std::numeric_limits<std::int64_t>::max()) {
        Coeficiente c;
        c.valor_.pequeño = static_cast<std::int64_t>(numerador);
        c.denominador_ = static_cast<std::uint32_t>(denominador);
        return c;
    }
    return DesdeFracción(Entero::DesdeAncho(numerador), Entero::DesdeAncho(denominador));
}

Coeficiente Coeficiente::Inverso() const {
    if (EsCero())
        throw ErrorEjecución(DivisiónPorCero);
    if (clase_ == Clase::Real)
        return Inexacto(SinPerderse(1 / valor_.real));
    Entero numerador = Denominador();
    Entero denominador = Numerador();
    if (denominador.Signo() < 0) {
        numerador.CambiaSigno();
        denominador.CambiaSigno();
    }
    return DesdeFracción(std::move(numerador), std::move(denominador));
}

Coeficiente Coeficiente::Potencia(std::int64_t exponente) const {
    if (exponente < 0)
        return Inverso().Potencia(-exponente);
    if (EsUno() || exponente == 0)
        return 1;
    if (EsMenosUno())
        return exponente % 2 == 0 ? 1 : -1;
    Coeficiente potencia = 1;
    Coeficiente base = *this;
    for (; exponente > 0; exponente /= 2) {
        if (exponente % 2 == 1)
            potencia *= base;
        if (exponente > 1)
            base *= base;
    }
    return potencia;
}

bool operator==(const Coeficiente& a, const Coeficiente& b) {
    using Clase = Coeficiente::Clase;
    if (a.clase_ == Clase::Pequeño && b.clase_ == Clase::Pequeño)
        return a.valor_.pequeño == b.valor_.pequeño && a.denominador_ == b.denominador_;
    if (a.clase_ == Clase::Grande && b.clase_ == Clase::Grande)
        return a.valor_.grande->numerador == b.valor_.grande->numerador &&
               a.valor_.grande->denominador == b.valor_.grande->denominador;
    if (a.clase_ == Clase::Real || b.clase_ == Clase::Real)
        return a.ADouble() == b.ADouble();
    return false;
}

Coeficiente DevMCD(const Coeficiente& a, const Coeficiente& b) {
    if (a.EsCero())
        return b.Absoluto();
    if (b.EsCero())
        return a.Absoluto();
    if (a.EsEnteroPequeño() && b.EsEnteroPequeño())
        return std::gcd(a.EnteroPequeño(), b.EnteroPequeño());
    const Entero da = a.Denominador();
    const Entero db = b.Denominador();
    return {DevMCD(a.Numerador() * db, b.Numerador() * da), da * db};
}

} // namespace quiralto
