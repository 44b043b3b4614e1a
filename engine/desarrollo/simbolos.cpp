#include "engine/desarrollo/simbolos.h"

#include <algorithm>

namespace quiralto {
namespace {

// The texts of all bases of one expansion together: deeply nested calls repeat each other's.
constexpr std::size_t MáximoTextos = 4 * MáximoTexto;

constexpr int MáximaProfundidad = 64;

// Of exponents in exponents: their values are computed by recursion.
constexpr int MáximaHonduraExponentes = 500;

constexpr std::uint64_t BitNoVariable = std::uint64_t{1} << 63;

constexpr std::string_view TextoEuler = "EXP(";

// Variables come first, by their place; the rest by the first bytes of their texts.
std::uint64_t DevClave(const Base& base) {
    if (base.clase == ClaseBase::Variable)
        return static_cast<std::uint64_t>(base.lugar);
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
    return DevBase({.clase = ClaseBase::Variable, .texto = std::move(texto), .lugar = lugar});
}

IdBase TablaSímbolos::DevEuler() {
    return IdDe(DevBase({.clase = ClaseBase::Euler, .texto = std::string(TextoEuler)}));
}

IdSímbolo TablaSímbolos::DevBase(Base base) {
    const auto conocida = porTexto_.find(base.texto);
    if (conocida != porTexto_.end())
        return conocida->second;
    CuentaTexto(base.texto.size());
    base.clave = DevClave(base);
    base.símbolo = static_cast<IdSímbolo>(símbolos_.size());
    hayReducibles_ |= base.clase == ClaseBase::Grupo || base.clase == ClaseBase::Número;
    hayRaíces_ |= EsRaíz(base);
    hayCocientes_ |= base.clase == ClaseBase::Cociente;
    símbolos_.push_back({static_cast<IdBase>(bases_.size()), 0});
    claves_.push_back(base.clave);
    bases_.push_back(std::move(base));
    porTexto_.emplace(bases_.back().texto, bases_.back().símbolo);
    return bases_.back().símbolo;
}

IdSímbolo TablaSímbolos::ConExponente(IdBase base, const Literal& literal,
                                      const std::string& texto) {
    if (literal.empty())
        return bases_[base].símbolo;
    auto exponente = exponentePorTexto_.find(texto);
    if (exponente == exponentePorTexto_.end()) {
        CuentaTexto(texto.size());
        int hondura = 1;
        for (const Factor& factor : literal)
            hondura = std::max(hondura, exponentes_[IdExponente(factor.símbolo)].hondura + 1);
        if (hondura > MáximaHonduraExponentes)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        exponentes_.push_back({texto, literal, hondura});
        exponente = exponentePorTexto_
                        .emplace(exponentes_.back().texto,
                                 static_cast<std::uint32_t>(exponentes_.size() - 1))
                        .first;
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

void TablaSímbolos::Ordena(Literal& literal) const {
    std::ranges::sort(
        literal, [&](const Factor& a, const Factor& b) { return Precede(a.símbolo, b.símbolo); });
}

void TablaSímbolos::CuentaTexto(std::size_t longitud) {
    longitudTextos_ += longitud;
    if (longitud > MáximoTexto || longitudTextos_ > MáximoTextos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
}

void TablaSímbolos::Entra() {
    if (profundidad_ == MáximaProfundidad)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    ++profundidad_;
}

std::size_t FinDeBase(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde) {
    std::size_t fin = desde + 1;
    while (fin < literal.size() &&
           tabla.IdDe(literal[fin].símbolo) == tabla.IdDe(literal[desde].símbolo))
        ++fin;
    return fin;
}

bool EsBaseLlana(const TablaSímbolos& tabla, const Literal& literal, IdBase base) {
    return std::ranges::none_of(literal, [&](const Factor& factor) {
        return tabla.IdDe(factor.símbolo) == base && !tabla.EsLlano(factor.símbolo);
    });
}

const Base* DevCocienteDe(const TablaSímbolos& tabla, const Literal& literal) {
    if (literal.size() != 1)
        return nullptr;
    const Base& base = tabla.BaseDe(literal[0].símbolo);
    return base.clase == ClaseBase::Cociente ? &base : nullptr;
}

bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayCocientes() && std::ranges::any_of(suma, [&](const Término& t) {
               return DevCocienteDe(tabla, t.literal) != nullptr;
           });
}

} // namespace quiralto
