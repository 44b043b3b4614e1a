#include "engine/desarrollo/recolector.h"

#include "engine/base/fallos.h"

#include <algorithm>
#include <utility>

namespace quiralto {

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

void Recolector::Añade(const Coeficiente& coeficiente, const Literal& literal) {
    if (++añadidos_ % EntreVigilias == 0)
        contexto_.Vigila();
    const std::uint64_t hash = DevHash(literal);
    const std::uint32_t hallado =
        índice_.Busca(hash, [&](std::uint32_t i) { return términos_[i].literal == literal; });
    if (hallado != ÍndiceHash::Ninguno) {
        términos_[hallado].coeficiente += coeficiente;
        return;
    }
    if (términos_.size() == MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    índice_.Añade(hash, static_cast<std::uint32_t>(términos_.size()));
    términos_.push_back({coeficiente, literal});
}

void Recolector::Añade(const Términos& suma) {
    for (const Término& término : suma)
        Añade(término.coeficiente, término.literal);
}

Términos Recolector::Toma() {
    std::erase_if(términos_, [](const Término& t) { return t.coeficiente.EsCero(); });
    return std::move(términos_);
}

} // namespace quiralto
