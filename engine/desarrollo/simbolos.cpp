#include "engine/desarrollo/simbolos.h"

#include <bit>
#include <cmath>

namespace quiralto {
namespace {

// The texts of all bases of one expansion together: deeply nested calls repeat each other's.
constexpr std::size_t MáximoTextos = 4 * MáximoTexto;

constexpr int MáximaProfundidad = 64;

constexpr std::uint64_t BitNoVariable = std::uint64_t{1} << 63;

// Variables come first, by their place; the rest by the first bytes of their texts.
std::uint64_t DevClave(const Base& base) {
    if (base.clase == ClaseBase::Variable)
        return static_cast<std::uint64_t>(base.número);
    std::uint64_t principio = 0;
    for (std::size_t i = 0; i < sizeof principio; ++i)
        principio = principio << 8 |
                    (i < base.texto.size() ? static_cast<unsigned char>(base.texto[i]) : 0U);
    return BitNoVariable | principio >> 1;
}

} // namespace

TablaSímbolos::TablaSímbolos(Contexto& contextoDeLaOrden, ClaseDesarrollo claseDelDesarrollo)
    : contexto(contextoDeLaOrden), clase(claseDelDesarrollo) {
    exponentes_.emplace_back();
    exponentePorTexto_.emplace("", 0);
}

IdSímbolo TablaSímbolos::DevVariable(double lugar, std::string texto) {
    return DevBase({.clase = ClaseBase::Variable, .texto = std::move(texto), .número = lugar});
}

IdSímbolo TablaSímbolos::DevBase(Base base) {
    const auto conocida = porTexto_.find(base.texto);
    if (conocida != porTexto_.end())
        return conocida->second;
    CuentaTexto(base.texto.size());
    base.clave = DevClave(base);
    base.símbolo = static_cast<IdSímbolo>(símbolos_.size());
    hayReducibles_ |= base.clase == ClaseBase::Grupo || base.clase == ClaseBase::Número;
    hayCocientes_ |= base.clase == ClaseBase::Cociente;
    porTexto_.emplace(base.texto, base.símbolo);
    símbolos_.push_back({static_cast<IdBase>(bases_.size()), 0});
    claves_.push_back(base.clave);
    bases_.push_back(std::move(base));
    return bases_.back().símbolo;
}

IdSímbolo TablaSímbolos::ConExponente(IdBase base, const Literal& literal,
                                      const std::string& texto) {
    if (literal.empty())
        return bases_[base].símbolo;
    const auto [exponente, nuevo] =
        exponentePorTexto_.emplace(texto, static_cast<std::uint32_t>(exponentes_.size()));
    if (nuevo) {
        CuentaTexto(texto.size());
        exponentes_.push_back({texto, literal});
    }
    const std::uint64_t pareja = std::uint64_t{base} << 32 | exponente->second;
    const auto [símbolo, nueva] =
        porPareja_.emplace(pareja, static_cast<IdSímbolo>(símbolos_.size()));
    if (nueva) {
        símbolos_.push_back({base, exponente->second});
        claves_.push_back(bases_[base].clave);
    }
    return símbolo->second;
}

bool TablaSímbolos::PrecedePorTexto(IdSímbolo a, IdSímbolo b) const {
    if (a == b)
        return false;
    const Símbolo& sa = símbolos_[a];
    const Símbolo& sb = símbolos_[b];
    if (sa.base != sb.base)
        return bases_[sa.base].texto < bases_[sb.base].texto;
    if (sa.exponente == 0 || sb.exponente == 0)
        return sb.exponente == 0;
    return exponentes_[sa.exponente].texto < exponentes_[sb.exponente].texto;
}

void TablaSímbolos::CuentaTexto(std::size_t longitud) {
    longitudTextos_ += longitud;
    if (longitud > MáximoTexto || longitudTextos_ > MáximoTextos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
}

GuardaProfundidad::GuardaProfundidad(TablaSímbolos& tabla) : tabla_(tabla) {
    if (tabla.profundidad == MáximaProfundidad)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    ++tabla.profundidad;
}

void MultiplicaLiterales(const TablaSímbolos& tabla, const Literal& a, const Literal& b,
                         Literal& producto) {
    producto.clear();
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() && j != b.end()) {
        if (i->símbolo == j->símbolo) {
            const double exponente = LimpiaExponente(i->exponente + j->exponente);
            if (exponente != 0)
                producto.push_back({i->símbolo, exponente});
            ++i;
            ++j;
        } else if (tabla.Precede(i->símbolo, j->símbolo)) {
            producto.push_back(*i++);
        } else {
            producto.push_back(*j++);
        }
    }
    producto.insert(producto.end(), i, a.end());
    producto.insert(producto.end(), j, b.end());
}

FracciónPequeña DevFracciónPequeña(double valor) {
    constexpr double Máximo = 1e4; // beyond it the digits of a Double no longer tell a fraction
    constexpr double MáximoDenominador = 1000;
    constexpr double Tolerancia = 1e-11;
    if (!(std::fabs(valor) < Máximo))
        return {valor, EsEntero(valor) ? 1.0 : 0.0};
    // Convergents, until one is near enough.
    FracciónPequeña previo{0, 1};
    FracciónPequeña actual{1, 0};
    double resto = valor;
    for (;;) {
        const double parte = std::floor(resto);
        const FracciónPequeña siguiente{parte * actual.numerador + previo.numerador,
                                        parte * actual.denominador + previo.denominador};
        previo = std::exchange(actual, siguiente);
        if (actual.denominador > MáximoDenominador)
            return {valor, 0};
        if (std::fabs(valor - actual.numerador / actual.denominador) < Tolerancia)
            return actual;
        resto = 1 / (resto - parte);
    }
}

double LimpiaEntero(double valor) {
    constexpr double Ruido = 4e-15;
    const double entero = std::round(valor);
    return std::fabs(valor - entero) <= Ruido * std::fabs(entero) ? entero : valor;
}

double LimpiaExponente(double exponente) {
    if (EsEntero(exponente))
        return exponente;
    const FracciónPequeña fracción = DevFracciónPequeña(exponente);
    if (fracción.denominador != 0)
        return fracción.numerador / fracción.denominador;
    constexpr double Escala = 1e12;
    constexpr double Máximo = 1e3;
    return std::fabs(exponente) < Máximo ? std::round(exponente * Escala) / Escala : exponente;
}

std::uint64_t DevHash(const Literal& literal) {
    // The exponents differ in their highest bits, the table takes the lowest.
    std::uint64_t hash = 0;
    for (const Factor& factor : literal) {
        auto h = std::bit_cast<std::uint64_t>(factor.exponente);
        h = (h ^ h >> 32) + std::uint64_t{factor.símbolo} * 0x9E3779B97F4A7C15U;
        h *= 0xD6E8FEB86659FD93U;
        h = (h ^ h >> 32) * 0xD6E8FEB86659FD93U;
        hash += h ^ h >> 32;
    }
    return hash;
}

std::size_t FinDeBase(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde) {
    std::size_t fin = desde + 1;
    while (fin < literal.size() &&
           tabla.IdDe(literal[fin].símbolo) == tabla.IdDe(literal[desde].símbolo))
        ++fin;
    return fin;
}

const Base* DevCocienteDe(const TablaSímbolos& tabla, const Literal& literal) {
    if (literal.size() != 1)
        return nullptr;
    const Base& base = tabla.BaseDe(literal[0].símbolo);
    return base.clase == ClaseBase::Cociente ? &base : nullptr;
}

bool EsEntero(double valor) {
    return valor == std::trunc(valor);
}

} // namespace quiralto
