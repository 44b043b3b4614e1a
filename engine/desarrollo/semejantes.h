// Like terms: the numeric test at ten random points, and the collection of sums and products.
//
// Two terms are alike when their literal parts are the same to the letter, or give the same ten
// values, rounded to DígitosRedondeo, at ten random values of X drawn for that sum. At a point
// where both have no value the point says nothing; where only one has none, they differ; with no
// point left, only equal literal parts are alike. A number is like a number and nothing else.
#pragma once

#include "engine/desarrollo/simbolos.h"

#include <array>
#include <optional>
#include <unordered_map>

namespace quiralto {

inline constexpr std::size_t PuntosDePrueba = 10;

// The terms that an expansion may hold at a time: with every copy that the work on them needs they
// stay well within a gigabyte.
inline constexpr std::size_t MáximoTérminos = std::size_t{1} << 19;

// The steps of a long loop between two questions to the watcher.
inline constexpr std::size_t EntreVigilias = 4096;

// Values at the ten points; a set bit in sinValor: no value there (and 0 in its place).
struct ValoresDePrueba {
    std::array<double, PuntosDePrueba> valores{};
    std::uint16_t sinValor = 0;
    bool SinNinguno() const { return sinValor == (1U << PuntosDePrueba) - 1; }
    bool operator==(const ValoresDePrueba&) const = default;
};

// x = R*21 - 10 with R uniform in [0, 1).
std::array<double, PuntosDePrueba> SorteaPuntos(Contexto& contexto);

// The rounded values of a text of the language at the points. ErrorCódigo is left as it was.
ValoresDePrueba EvalúaTexto(Contexto& contexto, const std::string& texto,
                            const std::array<double, PuntosDePrueba>& puntos);

// Ten points and what the bases are worth there. Values are formed as the program compiled from
// the literal part's text would form them.
class Puntos {
public:
    explicit Puntos(const TablaSímbolos& tabla);

    // The values rounded to DígitosRedondeo.
    ValoresDePrueba Evalúa(const Literal& literal);

    // Whether two literal parts are alike and also agree to a part in a thousand million: what is
    // cancelled may be worth less than the rounding shows.
    bool SonElMismoFactor(const Literal& a, const Literal& b);

private:
    ValoresDePrueba EvalúaSinRedondear(const Literal& literal);
    ValoresDePrueba EvalúaBase(const Base& base, IdBase id);
    ValoresDePrueba EvalúaPotencia(const Literal& literal, std::size_t desde, std::size_t fin);

    const TablaSímbolos& tabla_;
    std::array<double, PuntosDePrueba> puntos_;
    std::unordered_map<IdBase, ValoresDePrueba> bases_;
    std::unordered_map<std::string, ValoresDePrueba> exponentes_;
};

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

// Collects terms to the letter, each kind in the place of its first term: a product.
class Recolector {
public:
    explicit Recolector(Contexto& contexto) : contexto_(contexto) {}

    // Faults: run-time error 6 for a coefficient beyond the Double range, 14 past MáximoTérminos.
    void Añade(double coeficiente, const Literal& literal);
    void Añade(const Términos& suma, double factor = 1);
    Términos Toma();

private:
    Contexto& contexto_;
    Términos términos_;
    ÍndiceHash índice_;
    std::size_t añadidos_ = 0;
};

// Adds the like terms of a product that only their values show, each to the first of its kind.
void FundeSemejantes(const TablaSímbolos& tabla, Términos& suma);

// A sum that is being added up: successive additions cost what the shorter operand costs, and the
// result is that of collecting after each of them. An addition A + B puts first the terms that met
// a like one, in the order of B, with B's literal part and the rounded sum of the coefficients;
// then the other terms of A, then those of B.
class SumaAbierta {
public:
    SumaAbierta(TablaSímbolos& tabla, Términos suma);

    std::size_t Cantidad() const { return vivos_; }
    void AñadeDetrás(const Términos& b, double signo);  // *this + signo*b
    void AñadeDelante(const Términos& a, double signo); // a + signo*(*this)
    Términos Cierra() const;

private:
    struct Nodo {
        Término término;    // the coefficient without signo_; 0: gone
        std::int64_t orden; // the terms' places ascend
    };

    std::uint32_t Busca(const Literal& literal, std::uint64_t hash);
    void Pon(std::uint32_t hallado, const Literal& literal, double coeficiente, std::uint64_t hash,
             std::int64_t orden);
    std::uint32_t BuscaPorValores(const ValoresDePrueba& valores) const;
    void EmpiezaPrueba();
    double Sumado(double a, double b) const;

    TablaSímbolos& tabla_;
    std::vector<Nodo> nodos_;
    ÍndiceHash porLetra_;
    ÍndiceHash porValores_;
    std::vector<ValoresDePrueba> valores_; // by node, once the test has begun
    std::optional<Puntos> puntos_;
    ValoresDePrueba últimos_; // of the literal part last looked for
    bool soloDeX_ = true;     // every node a number or a power of X
    double signo_ = 1;        // of all coefficients
    std::int64_t primero_ = 0;
    std::int64_t último_ = 0;
    std::size_t vivos_ = 0;
    std::size_t pasos_ = 0;
};

} // namespace quiralto
