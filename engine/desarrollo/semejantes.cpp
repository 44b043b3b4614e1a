#include "engine/desarrollo/semejantes.h"

#include "engine/lenguaje/aritmetica.h"
#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace quiralto {
namespace {

std::uint64_t DevHash(const ValoresDePrueba& prueba) {
    std::uint64_t hash = prueba.sinValor;
    for (const double valor : prueba.valores) {
        hash = (hash ^ std::bit_cast<std::uint64_t>(valor)) * 0x9E3779B97F4A7C15U;
        hash ^= hash >> 29;
    }
    return hash;
}

void Redondea(ValoresDePrueba& prueba, int dígitos) {
    for (double& valor : prueba.valores)
        valor = quiralto::Redondea(valor, dígitos) + 0.0; // no negative zero
}

// A number, or a power of X with a whole exponent that is not negative. Two different ones never
// agree at ten random points, so no values are needed to tell them apart.
bool EsMonomioDeX(const TablaSímbolos& tabla, const Literal& literal) {
    if (literal.empty())
        return true;
    constexpr double LugarX = 'X';
    const Base& base = tabla.BaseDe(literal[0].símbolo);
    return literal.size() == 1 && base.texto == "X" && base.número == LugarX &&
           tabla.EsLlano(literal[0].símbolo) && literal[0].exponente > 0 &&
           EsEntero(literal[0].exponente);
}

} // namespace

std::array<double, PuntosDePrueba> SorteaPuntos(Contexto& contexto) {
    std::uniform_real_distribution<double> uniforme(0, 1);
    std::array<double, PuntosDePrueba> puntos{};
    for (double& punto : puntos)
        punto = uniforme(contexto.generador) * 21 - 10;
    return puntos;
}

namespace {

ValoresDePrueba EvalúaTextoSinRedondear(Contexto& contexto, const std::string& texto,
                                        const std::array<double, PuntosDePrueba>& puntos) {
    const std::int16_t errorAnterior = contexto.ErrorCódigo;
    Programa programa = CompilaExpresión(texto);
    ValoresDePrueba prueba;
    for (std::size_t i = 0; i < PuntosDePrueba; ++i) {
        contexto.ErrorCódigo = SinFallo;
        prueba.valores[i] = EvalúaPrograma(contexto, programa, puntos[i]);
        if (contexto.ErrorCódigo != SinFallo) {
            prueba.valores[i] = 0;
            prueba.sinValor |= static_cast<std::uint16_t>(1U << i);
        }
    }
    contexto.ErrorCódigo = errorAnterior;
    return prueba;
}

} // namespace

ValoresDePrueba EvalúaTexto(Contexto& contexto, const std::string& texto,
                            const std::array<double, PuntosDePrueba>& puntos) {
    ValoresDePrueba prueba = EvalúaTextoSinRedondear(contexto, texto, puntos);
    Redondea(prueba, contexto.DígitosRedondeo);
    return prueba;
}

Puntos::Puntos(const TablaSímbolos& tabla) : tabla_(tabla), puntos_(SorteaPuntos(tabla.contexto)) {
}

ValoresDePrueba Puntos::Evalúa(const Literal& literal) {
    ValoresDePrueba valores = EvalúaSinRedondear(literal);
    Redondea(valores, tabla_.contexto.DígitosRedondeo);
    return valores;
}

bool Puntos::SonElMismoFactor(const Literal& a, const Literal& b) {
    constexpr double Precisión = 1e-9;
    ValoresDePrueba deA = EvalúaSinRedondear(a);
    ValoresDePrueba deB = EvalúaSinRedondear(b);
    for (std::size_t k = 0; k < PuntosDePrueba; ++k)
        if (std::fabs(deA.valores[k] - deB.valores[k]) > Precisión * std::fabs(deA.valores[k]))
            return false;
    Redondea(deA, tabla_.contexto.DígitosRedondeo);
    Redondea(deB, tabla_.contexto.DígitosRedondeo);
    return !deA.SinNinguno() && deA == deB;
}

ValoresDePrueba Puntos::EvalúaSinRedondear(const Literal& literal) {
    ValoresDePrueba producto;
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla_, literal, i);
        const ValoresDePrueba factor = EvalúaPotencia(literal, i, fin);
        producto.sinValor |= factor.sinValor;
        for (std::size_t k = 0; k < PuntosDePrueba; ++k)
            producto.valores[k] =
                i == 0 ? factor.valores[k] : producto.valores[k] * factor.valores[k];
        i = fin;
    }
    for (std::size_t k = 0; k < PuntosDePrueba; ++k)
        if (!std::isfinite(producto.valores[k]))
            producto.sinValor |= static_cast<std::uint16_t>(1U << k);
    for (std::size_t k = 0; k < PuntosDePrueba; ++k)
        if ((producto.sinValor >> k & 1U) != 0)
            producto.valores[k] = 0;
    return producto;
}

ValoresDePrueba Puntos::EvalúaBase(const Base& base, IdBase id) {
    if (base.clase == ClaseBase::Variable) {
        ValoresDePrueba valores;
        if (base.texto == "X")
            valores.valores = puntos_;
        else
            valores.valores.fill(base.número);
        return valores;
    }
    const auto conocida = bases_.find(id);
    if (conocida != bases_.end())
        return conocida->second;
    return bases_.emplace(id, EvalúaTextoSinRedondear(tabla_.contexto, base.texto, puntos_))
        .first->second;
}

ValoresDePrueba Puntos::EvalúaPotencia(const Literal& literal, std::size_t desde, std::size_t fin) {
    const Factor& primero = literal[desde];
    ValoresDePrueba potencia =
        EvalúaBase(tabla_.BaseDe(primero.símbolo), tabla_.IdDe(primero.símbolo));
    if (fin == desde + 1 && tabla_.EsLlano(primero.símbolo)) {
        if (primero.exponente == 1)
            return potencia;
        // A letter has one value at all points.
        const bool constante = std::ranges::all_of(
            potencia.valores, [&](double v) { return v == potencia.valores[0]; });
        for (std::size_t k = 0; k < PuntosDePrueba; ++k)
            potencia.valores[k] = constante && k > 0
                                      ? potencia.valores[0]
                                      : DevPotencia(potencia.valores[k], primero.exponente);
        return potencia;
    }
    ValoresDePrueba exponente;
    for (std::size_t i = desde; i < fin; ++i) {
        const std::string& texto = tabla_.TextoExponente(literal[i].símbolo);
        auto conocido = exponentes_.find(texto);
        if (conocido == exponentes_.end()) {
            const std::string deUno = texto.empty() ? "1" : texto;
            conocido =
                exponentes_.emplace(texto, EvalúaTextoSinRedondear(tabla_.contexto, deUno, puntos_))
                    .first;
        }
        exponente.sinValor |= conocido->second.sinValor;
        for (std::size_t k = 0; k < PuntosDePrueba; ++k)
            exponente.valores[k] += literal[i].exponente * conocido->second.valores[k];
    }
    potencia.sinValor |= exponente.sinValor;
    for (std::size_t k = 0; k < PuntosDePrueba; ++k)
        potencia.valores[k] = DevPotencia(potencia.valores[k], exponente.valores[k]);
    return potencia;
}

void ÍndiceHash::Añade(std::uint64_t hash, std::uint32_t posición) {
    if (2 * (ocupadas_ + 1) > casillas_.size()) {
        std::vector<Casilla> anteriores = std::exchange(
            casillas_, std::vector<Casilla>(std::max<std::size_t>(16, casillas_.size() * 4)));
        ocupadas_ = 0;
        for (const Casilla& casilla : anteriores)
            if (casilla.posición != Ninguno)
                Añade(casilla.hash, casilla.posición);
    }
    std::size_t i = hash & (casillas_.size() - 1);
    while (casillas_[i].posición != Ninguno)
        i = (i + 1) & (casillas_.size() - 1);
    casillas_[i] = {hash, posición};
    ++ocupadas_;
}

void Recolector::Añade(double coeficiente, const Literal& literal) {
    if (++añadidos_ % EntreVigilias == 0)
        contexto_.Vigila();
    const std::uint64_t hash = quiralto::DevHash(literal);
    const std::uint32_t hallado =
        índice_.Busca(hash, [&](std::uint32_t i) { return términos_[i].literal == literal; });
    if (hallado != ÍndiceHash::Ninguno) {
        double& suma = términos_[hallado].coeficiente;
        suma = CompruebaFinito(suma + coeficiente);
        return;
    }
    if (términos_.size() == MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    índice_.Añade(hash, static_cast<std::uint32_t>(términos_.size()));
    términos_.push_back({CompruebaFinito(coeficiente), literal});
}

void Recolector::Añade(const Términos& suma, double factor) {
    for (const Término& término : suma)
        Añade(término.coeficiente * factor, término.literal);
}

Términos Recolector::Toma() {
    std::erase_if(términos_, [](const Término& t) { return t.coeficiente == 0; });
    return std::move(términos_);
}

void FundeSemejantes(const TablaSímbolos& tabla, Términos& suma) {
    if (suma.size() < 2 ||
        std::ranges::all_of(suma, [&](const Término& t) { return EsMonomioDeX(tabla, t.literal); }))
        return;
    Puntos puntos(tabla);
    ÍndiceHash índice;
    std::vector<ValoresDePrueba> valores(suma.size());
    bool fundidos = false;
    for (std::size_t i = 0; i < suma.size(); ++i) {
        if (i % EntreVigilias == 0)
            tabla.contexto.Vigila();
        if (suma[i].literal.empty())
            continue;
        valores[i] = puntos.Evalúa(suma[i].literal);
        if (valores[i].SinNinguno())
            continue;
        const std::uint64_t hash = DevHash(valores[i]);
        const std::uint32_t hallado =
            índice.Busca(hash, [&](std::uint32_t j) { return valores[j] == valores[i]; });
        if (hallado == ÍndiceHash::Ninguno) {
            índice.Añade(hash, static_cast<std::uint32_t>(i));
            continue;
        }
        double& coeficiente = suma[hallado].coeficiente;
        coeficiente = quiralto::Redondea(CompruebaFinito(coeficiente + suma[i].coeficiente),
                                         tabla.contexto.DígitosRedondeo);
        suma[i].coeficiente = 0;
        fundidos = true;
    }
    if (fundidos)
        std::erase_if(suma, [](const Término& t) { return t.coeficiente == 0; });
}

SumaAbierta::SumaAbierta(TablaSímbolos& tabla, Términos suma) : tabla_(tabla) {
    nodos_.reserve(suma.size() + 1);
    for (Término& término : suma) {
        const std::uint64_t hash = quiralto::DevHash(término.literal);
        porLetra_.Añade(hash, static_cast<std::uint32_t>(nodos_.size()));
        soloDeX_ = soloDeX_ && EsMonomioDeX(tabla_, término.literal);
        nodos_.push_back({std::move(término), último_++});
    }
    vivos_ = nodos_.size();
}

double SumaAbierta::Sumado(double a, double b) const {
    return quiralto::Redondea(CompruebaFinito(a + b), tabla_.contexto.DígitosRedondeo);
}

void SumaAbierta::EmpiezaPrueba() {
    puntos_.emplace(tabla_);
    valores_.clear();
    for (std::uint32_t i = 0; i < nodos_.size(); ++i) {
        if (i % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        valores_.push_back(puntos_->Evalúa(nodos_[i].término.literal));
        if (!nodos_[i].término.literal.empty() && !valores_[i].SinNinguno())
            porValores_.Añade(DevHash(valores_[i]), i);
    }
}

std::uint32_t SumaAbierta::BuscaPorValores(const ValoresDePrueba& valores) const {
    if (valores.SinNinguno())
        return ÍndiceHash::Ninguno;
    return porValores_.Busca(DevHash(valores),
                             [&](std::uint32_t i) { return valores_[i] == valores; });
}

// The node of a like term, gone or not.
std::uint32_t SumaAbierta::Busca(const Literal& literal, std::uint64_t hash) {
    const std::uint32_t hallado = porLetra_.Busca(
        hash, [&](std::uint32_t i) { return nodos_[i].término.literal == literal; });
    if (hallado != ÍndiceHash::Ninguno || literal.empty() || tabla_.soloPorLetra)
        return hallado;
    if (!puntos_) {
        if (nodos_.empty() || (soloDeX_ && EsMonomioDeX(tabla_, literal)))
            return ÍndiceHash::Ninguno;
        EmpiezaPrueba();
    }
    últimos_ = puntos_->Evalúa(literal);
    return BuscaPorValores(últimos_);
}

// Makes a node of the literal part last looked for, or gives one that is gone (`hallado`) to it.
void SumaAbierta::Pon(std::uint32_t hallado, const Literal& literal, double coeficiente,
                      std::uint64_t hash, std::int64_t orden) {
    ++vivos_;
    soloDeX_ = soloDeX_ && EsMonomioDeX(tabla_, literal);
    if (hallado != ÍndiceHash::Ninguno) {
        nodos_[hallado] = {{coeficiente, literal}, orden};
        porLetra_.Añade(hash, hallado);
        return;
    }
    if (nodos_.size() == MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    const auto nuevo = static_cast<std::uint32_t>(nodos_.size());
    nodos_.push_back({{coeficiente, literal}, orden});
    porLetra_.Añade(hash, nuevo);
    if (!puntos_)
        return;
    valores_.push_back(literal.empty() ? ValoresDePrueba{} : últimos_);
    if (!literal.empty() && !últimos_.SinNinguno())
        porValores_.Añade(DevHash(últimos_), nuevo);
}

void SumaAbierta::AñadeDetrás(const Términos& b, double signo) {
    const auto cantidad = static_cast<std::int64_t>(b.size());
    primero_ -= cantidad;
    for (std::int64_t i = 0; i < cantidad; ++i) {
        if (++pasos_ % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        const Término& término = b[static_cast<std::size_t>(i)];
        const double coeficiente = signo * término.coeficiente;
        const std::uint64_t hash = quiralto::DevHash(término.literal);
        const std::uint32_t hallado = Busca(término.literal, hash);
        if (hallado == ÍndiceHash::Ninguno || nodos_[hallado].término.coeficiente == 0) {
            Pon(hallado, término.literal, signo_ * coeficiente, hash, último_++);
            continue;
        }
        Nodo& nodo = nodos_[hallado];
        nodo.término.coeficiente = signo_ * Sumado(signo_ * nodo.término.coeficiente, coeficiente);
        nodo.orden = primero_ + i;
        if (nodo.término.coeficiente == 0) {
            --vivos_;
        } else if (nodo.término.literal != término.literal) {
            nodo.término.literal = término.literal;
            porLetra_.Añade(hash, hallado);
        }
    }
}

void SumaAbierta::AñadeDelante(const Términos& a, double signo) {
    signo_ *= signo;
    std::vector<std::uint32_t> hallados;
    primero_ -= static_cast<std::int64_t>(a.size());
    std::int64_t lugar = primero_;
    for (const Término& término : a) {
        if (++pasos_ % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        const std::uint64_t hash = quiralto::DevHash(término.literal);
        const std::uint32_t hallado = Busca(término.literal, hash);
        if (hallado == ÍndiceHash::Ninguno || nodos_[hallado].término.coeficiente == 0) {
            Pon(hallado, término.literal, signo_ * término.coeficiente, hash, lugar++);
            continue;
        }
        double& coeficiente = nodos_[hallado].término.coeficiente;
        coeficiente = signo_ * Sumado(término.coeficiente, signo_ * coeficiente);
        if (coeficiente == 0)
            --vivos_;
        else
            hallados.push_back(hallado);
    }
    std::ranges::sort(hallados, {}, [&](std::uint32_t i) { return nodos_[i].orden; });
    primero_ -= static_cast<std::int64_t>(hallados.size());
    for (std::size_t i = 0; i < hallados.size(); ++i)
        nodos_[hallados[i]].orden = primero_ + static_cast<std::int64_t>(i);
}

Términos SumaAbierta::Cierra() const {
    std::vector<std::pair<std::int64_t, std::uint32_t>> vivos;
    vivos.reserve(vivos_);
    for (std::uint32_t i = 0; i < nodos_.size(); ++i)
        if (nodos_[i].término.coeficiente != 0)
            vivos.emplace_back(nodos_[i].orden, i);
    std::ranges::sort(vivos);
    Términos suma;
    suma.reserve(vivos.size());
    for (const auto& vivo : vivos) {
        const Término& término = nodos_[vivo.second].término;
        suma.push_back({signo_ * término.coeficiente, término.literal});
    }
    return suma;
}

} // namespace quiralto
