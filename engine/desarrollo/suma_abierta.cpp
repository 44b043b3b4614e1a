#include "engine/desarrollo/suma_abierta.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/forma_canonica.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace quiralto {

SumaAbierta::SumaAbierta(TablaSímbolos& tabla, Términos suma) : tabla_(tabla) {
    nodos_.reserve(suma.size() + 1);
    for (Término& término : suma) {
        porLetra_.Añade(DevHash(término.literal), static_cast<std::uint32_t>(nodos_.size()));
        soloDeX_ = soloDeX_ && EsMonomioDeX(tabla_, término.literal);
        soloNúmeros_ = soloNúmeros_ && término.literal.empty();
        nodos_.push_back({std::move(término), último_++});
    }
    vivos_ = nodos_.size();
}

void SumaAbierta::EmpiezaPrueba() {
    porValores_.emplace(tabla_);
    for (std::uint32_t i = 0; i < nodos_.size(); ++i) {
        if (i % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        porValores_->Añade(nodos_[i].término.literal, i);
    }
}

// The node of a like term, gone or not.
std::uint32_t SumaAbierta::Busca(const Literal& literal, std::uint64_t hash) {
    const auto literalDe = [&](std::uint32_t i) -> const Literal& {
        return nodos_[i].término.literal;
    };
    const std::uint32_t hallado =
        porLetra_.Busca(hash, [&](std::uint32_t i) { return literalDe(i) == literal; });
    if (hallado != ÍndiceHash::Ninguno || literal.empty() || tabla_.SoloPorLetra())
        return hallado;
    if (!porValores_) {
        if (soloNúmeros_ || (soloDeX_ && EsMonomioDeX(tabla_, literal)))
            return ÍndiceHash::Ninguno;
        EmpiezaPrueba();
    }
    return porValores_->Busca(literal, literalDe);
}

// Makes a node of a literal part, or gives one that is gone (`hallado`) to it.
void SumaAbierta::Pon(std::uint32_t hallado, const Literal& literal, Coeficiente coeficiente,
                      std::uint64_t hash, std::int64_t orden) {
    ++vivos_;
    soloDeX_ = soloDeX_ && EsMonomioDeX(tabla_, literal);
    soloNúmeros_ = soloNúmeros_ && literal.empty();
    if (hallado != ÍndiceHash::Ninguno) {
        nodos_[hallado] = {{std::move(coeficiente), literal}, orden};
        porLetra_.Añade(hash, hallado);
        return;
    }
    if (nodos_.size() == MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    const auto nuevo = static_cast<std::uint32_t>(nodos_.size());
    nodos_.push_back({{std::move(coeficiente), literal}, orden});
    porLetra_.Añade(hash, nuevo);
    if (porValores_)
        porValores_->Añade(literal, nuevo);
}

void SumaAbierta::AñadeDetrás(const Términos& b, int signo) {
    const auto cantidad = static_cast<std::int64_t>(b.size());
    primero_ -= cantidad;
    for (std::int64_t i = 0; i < cantidad; ++i) {
        if (++pasos_ % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        const Término& término = b[static_cast<std::size_t>(i)];
        Coeficiente coeficiente = ConSigno(término.coeficiente, signo * signo_);
        const std::uint64_t hash = DevHash(término.literal);
        const std::uint32_t hallado = Busca(término.literal, hash);
        if (hallado == ÍndiceHash::Ninguno || nodos_[hallado].término.coeficiente.EsCero()) {
            Pon(hallado, término.literal, std::move(coeficiente), hash, último_++);
            continue;
        }
        Nodo& nodo = nodos_[hallado];
        nodo.término.coeficiente += coeficiente;
        nodo.orden = primero_ + i;
        if (nodo.término.coeficiente.EsCero()) {
            --vivos_;
        } else if (nodo.término.literal != término.literal) {
            nodo.término.literal = término.literal;
            porLetra_.Añade(hash, hallado);
        }
    }
}

void SumaAbierta::AñadeDelante(const Términos& a, int signo) {
    signo_ *= signo;
    std::vector<std::uint32_t> hallados;
    primero_ -= static_cast<std::int64_t>(a.size());
    std::int64_t lugar = primero_;
    for (const Término& término : a) {
        if (++pasos_ % EntreVigilias == 0)
            tabla_.contexto.Vigila();
        Coeficiente coeficiente = ConSigno(término.coeficiente, signo_);
        const std::uint64_t hash = DevHash(término.literal);
        const std::uint32_t hallado = Busca(término.literal, hash);
        if (hallado == ÍndiceHash::Ninguno || nodos_[hallado].término.coeficiente.EsCero()) {
            Pon(hallado, término.literal, std::move(coeficiente), hash, lugar++);
            continue;
        }
        Coeficiente& suma = nodos_[hallado].término.coeficiente;
        suma += coeficiente;
        if (suma.EsCero())
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
        if (!nodos_[i].término.coeficiente.EsCero())
            vivos.emplace_back(nodos_[i].orden, i);
    std::ranges::sort(vivos);
    Términos suma;
    suma.reserve(vivos.size());
    for (const auto& vivo : vivos) {
        const Término& término = nodos_[vivo.second].término;
        suma.push_back({ConSigno(término.coeficiente, signo_), término.literal});
    }
    assert(EsCanónica(tabla_, suma));
    return suma;
}

} // namespace quiralto
