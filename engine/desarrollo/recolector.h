// Collecting terms to the letter, each kind in the place of its first term: a product.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/suma.h"

#include "engine/base/contexto.h"

namespace quiralto {

// The terms that an expansion may hold at a time: with every copy that the work on them needs they
// stay well within a gigabyte.
inline constexpr std::size_t MáximoTérminos = std::size_t{1} << 19;

// The steps of a long loop between two questions to the watcher.
inline constexpr std::size_t EntreVigilias = 4096;

// Positions found by hash: the table of a collection that is kept elsewhere.
class ÍndiceHash {
public:
    static constexpr std::uint32_t Ninguno = ~std::uint32_t{0};

    // The first position under that hash for which `esEl` holds, or Ninguno.
    template <typename EsEl> std::uint32_t Busca(std::uint64_t hash, EsEl esEl) const {
        if (casillas_.empty())
            return Ninguno;
        for (std::size_t i = hash & (casillas_.size() - 1);; i = (i + 1) & (casillas_.size() - 1)) {
            const Casilla& casilla = casillas_[i];
            if (casilla.posición == Ninguno)
                return Ninguno;
            if (casilla.hash == hash && esEl(casilla.posición))
                return casilla.posición;
        }
    }

    void Añade(std::uint64_t hash, std::uint32_t posición);

private:
    struct Casilla {
        std::uint64_t hash = 0;
        std::uint32_t posición = Ninguno;
    };
    std::vector<Casilla> casillas_; // a power of two, at most half full
    std::size_t ocupadas_ = 0;
};

class Recolector {
public:
    explicit Recolector(Contexto& contexto) : contexto_(contexto) {}

    // Faults: run-time error 6 for a coefficient beyond the Double range, 14 past MáximoTérminos.
    void Añade(const Coeficiente& coeficiente, const Literal& literal);
    void Añade(const Términos& suma);
    Términos Toma();

private:
    Contexto& contexto_;
    Términos términos_;
    ÍndiceHash índice_;
    std::size_t añadidos_ = 0;
};

} // namespace quiralto
