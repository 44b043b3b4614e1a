#include "engine/desarrollo/semejantes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace quiralto {
namespace {

constexpr double Cercanía = 1e-9;
constexpr std::size_t MínimosQueDicen = 3;
constexpr std::size_t PuntosDeConfirmación = 60;

bool SonElMismo(double a, double b) {
    return std::fabs(a - b) <= Cercanía * std::max(std::fabs(a), std::fabs(b));
}

// Sign, exponent and the first binary digits: a cell a few parts in a million wide.
std::uint64_t DevCelda(double valor) {
    constexpr int BitsQueSobran = 34;
    return std::bit_cast<std::uint64_t>(valor) >> BitsQueSobran;
}

} // namespace

bool EsMonomioDeX(const TablaSímbolos& tabla, const Literal& literal) {
    if (literal.empty())
        return true;
    const Base& base = tabla.BaseDe(literal[0].símbolo);
    return literal.size() == 1 && base.clase == ClaseBase::Variable && base.texto == "X" &&
           tabla.EsLlano(literal[0].símbolo) && literal[0].exponente.Signo() > 0 &&
           literal[0].exponente.EsEntero();
}

ÍndiceSemejantes::ÍndiceSemejantes(TablaSímbolos& tabla)
    : tabla_(tabla), mitad_(.5 * std::pow(10, -tabla.contexto.DígitosRedondeo)) {
}

bool ÍndiceSemejantes::EsConstante(const Literal& literal) const {
    return std::ranges::all_of(literal, [&](const Factor& factor) {
        const Base& base = tabla_.BaseDe(factor.símbolo);
        return tabla_.EsLlano(factor.símbolo) &&
               (base.clase == ClaseBase::Número ||
                (base.clase == ClaseBase::Variable && base.texto != "X"));
    });
}

void ÍndiceSemejantes::Recoge(Huella& huella, const std::array<double, Decena>& valores,
                              std::size_t desde) const {
    for (std::size_t k = 0; k < Decena && huella.cuántos < Decena; ++k) {
        if (std::isnan(valores[k]))
            continue;
        huella.valores[huella.cuántos] = valores[k];
        huella.lugares[huella.cuántos++] = static_cast<std::uint16_t>(desde + k);
        if (!Redondea0(valores[k]))
            ++huella.dicen;
    }
}

ÍndiceSemejantes::Huella ÍndiceSemejantes::DevHuella(const Literal& literal) {
    PuntosDePrueba& puntos = DevPuntos(tabla_);
    Huella huella;
    if (EsConstante(literal)) {
        double valor = 0;
        puntos.Da(Conjunto::Primero, literal, 0, {&valor, 1});
        huella.constante = true;
        huella.valores.fill(valor);
        std::iota(huella.lugares.begin(), huella.lugares.end(), std::uint16_t{0});
        huella.cuántos = std::isnan(valor) ? 0 : Decena;
        huella.dicen = Redondea0(valor) ? 0 : huella.cuántos;
    } else {
        for (std::size_t desde = 0;
             desde < PuntosDePrueba::MáximosPuntos && huella.cuántos < Decena; desde += Decena)
            Recoge(huella, puntos.En(Conjunto::Primero, literal, desde), desde);
    }
    PonClave(huella, literal);
    return huella;
}

// The greatest value is as near to its like's as all others are. Where the first set says nothing,
// it is that of the second.
void ÍndiceSemejantes::PonClave(Huella& huella, const Literal& literal) {
    double guía = 0;
    for (std::size_t i = 0; i < huella.cuántos; ++i)
        guía = std::max(guía, std::fabs(huella.valores[i]));
    std::uint64_t mezcla = huella.cuántos;
    for (std::size_t i = 0; i < huella.cuántos; ++i)
        mezcla = (mezcla ^ huella.lugares[i]) * 0x9E3779B97F4A7C15U;
    if (huella.dicen == 0) {
        guía = 0;
        for (const double valor : DevPuntos(tabla_).En(Conjunto::Segundo, literal, 0))
            if (!std::isnan(valor))
                guía = std::max(guía, std::fabs(valor));
        if (Redondea0(guía))
            return; // nothing says anything: only the letter counts
    }
    huella.sirve = true;
    const auto clave = [&](double valor) {
        const std::uint64_t h = (mezcla ^ DevCelda(valor)) * 0xD6E8FEB86659FD93U;
        return h ^ h >> 32;
    };
    huella.clave = clave(guía);
    constexpr double Margen = 2 * Cercanía;
    huella.vecina = clave(guía * (1 + Margen));
    if (huella.vecina == huella.clave)
        huella.vecina = clave(guía * (1 - Margen));
}

void ÍndiceSemejantes::Prepara(const Literal& literal) {
    if (hayÚltimo_ && últimoLiteral_ == literal)
        return;
    última_ = DevHuella(literal);
    últimoLiteral_ = literal;
    hayÚltimo_ = true;
}

void ÍndiceSemejantes::Añade(const Literal& literal, std::uint32_t posición) {
    if (literal.empty()) {
        última_ = {};
        hayÚltimo_ = false;
    } else {
        Prepara(literal);
    }
    if (huellas_.size() <= posición)
        huellas_.resize(posición + 1);
    huellas_[posición] = última_;
    if (última_.sirve)
        índice_.Añade(última_.clave, posición);
}

bool ÍndiceSemejantes::Confirma(const Literal& a, const Huella& ha, const Literal& b,
                                const Huella& hb) {
    if (ha.cuántos != hb.cuántos || ha.lugares != hb.lugares)
        return false;
    for (std::size_t i = 0; i < ha.cuántos; ++i)
        if (!SonElMismo(ha.valores[i], hb.valores[i]) && !Callan(ha.valores[i], hb.valores[i]))
            return false;
    const bool constantes = ha.constante && hb.constante;
    if (!constantes && ha.cuántos == Decena && !ConfirmaPrimero(a, b, ha.lugares.back() + 1U))
        return false;
    const bool conPruebas = ha.dicen >= MínimosQueDicen;
    return (constantes && conPruebas) || ConfirmaSegundo(a, b, conPruebas);
}

bool ÍndiceSemejantes::ConfirmaPrimero(const Literal& a, const Literal& b, std::size_t desde) {
    PuntosDePrueba& puntos = DevPuntos(tabla_);
    for (std::size_t i = desde / Decena * Decena; i < PuntosDeConfirmación; i += Decena) {
        const auto va = puntos.En(Conjunto::Primero, a, i);
        const auto vb = puntos.En(Conjunto::Primero, b, i);
        for (std::size_t k = desde > i ? desde - i : 0; k < Decena; ++k) {
            if (std::isnan(va[k]) != std::isnan(vb[k]))
                return false;
            if (!std::isnan(va[k]) && !SonElMismo(va[k], vb[k]) && !Callan(va[k], vb[k]))
                return false;
        }
    }
    return true;
}

bool ÍndiceSemejantes::ConfirmaSegundo(const Literal& a, const Literal& b, bool bastaConCallar) {
    PuntosDePrueba& puntos = DevPuntos(tabla_);
    const auto va = puntos.En(Conjunto::Segundo, a, 0);
    const auto vb = puntos.En(Conjunto::Segundo, b, 0);
    std::size_t dicen = 0;
    for (std::size_t k = 0; k < Decena; ++k) {
        if (std::isnan(va[k]) != std::isnan(vb[k]))
            return false;
        if (std::isnan(va[k]) || Callan(va[k], vb[k]))
            continue;
        if (!SonElMismo(va[k], vb[k]))
            return false;
        ++dicen;
    }
    return dicen > 0 || bastaConCallar;
}

bool SonSemejantes(TablaSímbolos& tabla, const Literal& a, const Literal& b) {
    if (a == b)
        return true;
    if (tabla.SoloPorLetra() || a.empty() || b.empty())
        return false;
    ÍndiceSemejantes índice(tabla);
    const auto ha = índice.DevHuella(a);
    const auto hb = índice.DevHuella(b);
    return ha.sirve && hb.sirve && índice.Confirma(a, ha, b, hb);
}

void FundeSemejantes(TablaSímbolos& tabla, Términos& suma) {
    if (suma.size() < 2 || tabla.SoloPorLetra() ||
        std::ranges::all_of(suma, [&](const Término& t) { return EsMonomioDeX(tabla, t.literal); }))
        return;
    ÍndiceSemejantes índice(tabla);
    bool fundidos = false;
    for (std::uint32_t i = 0; i < suma.size(); ++i) {
        if (i % EntreVigilias == 0)
            tabla.contexto.Vigila();
        const std::uint32_t hallado =
            suma[i].literal.empty()
                ? ÍndiceSemejantes::Ninguno
                : índice.Busca(suma[i].literal,
                               [&](std::uint32_t j) -> const Literal& { return suma[j].literal; });
        if (hallado == ÍndiceSemejantes::Ninguno) {
            índice.Añade(suma[i].literal, i);
            continue;
        }
        suma[hallado].coeficiente += suma[i].coeficiente;
        suma[i].coeficiente = 0;
        fundidos = true;
    }
    if (fundidos)
        std::erase_if(suma, [](const Término& t) { return t.coeficiente.EsCero(); });
}

} // namespace quiralto
