#include "engine/desarrollo/multinomio.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/recolector.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace quiralto {
namespace {

constexpr std::size_t MáximosSumandos = 8;

// The ways to share n out among k terms.
double DevRepartos(double n, std::size_t k) {
    double repartos = 1;
    for (std::size_t i = 1; i < k; ++i)
        repartos = repartos * (n + static_cast<double>(i)) / static_cast<double>(i);
    return std::round(repartos);
}

// No more terms than this can be unlike: the exponents of each symbol lie between n times the
// least and n times the greatest.
double DevCota(const Términos& base, double n) {
    std::map<IdSímbolo, std::pair<double, double>> extremos;
    for (const Término& término : base)
        for (const Factor& factor : término.literal) {
            auto& [mínimo, máximo] = extremos[factor.símbolo]; // 0 where a term lacks it
            mínimo = std::min(mínimo, factor.exponente.ADouble());
            máximo = std::max(máximo, factor.exponente.ADouble());
        }
    double cota = 1;
    for (const auto& [símbolo, suyos] : extremos)
        cota *= n * (suyos.second - suyos.first) + 1;
    return cota;
}

class Repartidor {
public:
    Repartidor(const TablaSímbolos& tabla, const Términos& base, std::size_t n)
        : tabla_(tabla), base_(base), n_(n), orden_(DevOrden(tabla, base)), partes_(base.size(), 0),
          previos_(base.size() + 1) {
        previos_[0] = {1, {}, n};
        literales_.resize(base.size());
        coeficientes_.resize(base.size());
        for (std::size_t i = 0; i < base.size(); ++i) {
            literales_[i].push_back({});
            coeficientes_[i].push_back(1);
        }
    }

    // Terms of one symbol each, no two of the same, have powers that are all unlike.
    Términos Eleva() {
        partes_[0] = n_;
        Acumula(0);
        if (orden_.empty()) {
            Recolector potencia(tabla_.contexto);
            do
                potencia.Añade(previos_.back().coeficiente, previos_.back().literal);
            while (Avanza());
            return potencia.Toma();
        }
        Términos potencia;
        do {
            if (potencia.size() % EntreVigilias == EntreVigilias - 1)
                tabla_.contexto.Vigila();
            if (potencia.size() == MáximoTérminos)
                throw ErrorEjecución(EspacioDeCadenasInsuficiente);
            potencia.push_back({previos_.back().coeficiente, DevLiteral()});
        } while (Avanza());
        return potencia;
    }

private:
    // The places of such terms in the order of their symbols; none where a term is another.
    static std::vector<std::size_t> DevOrden(const TablaSímbolos& tabla, const Términos& base) {
        std::vector<std::size_t> orden;
        for (std::size_t i = 0; i < base.size(); ++i) {
            if (base[i].literal.size() > 1)
                return {};
            if (!base[i].literal.empty())
                orden.push_back(i);
        }
        const auto símboloDe = [&](std::size_t i) { return base[i].literal[0].símbolo; };
        std::ranges::sort(orden, [&](std::size_t i, std::size_t j) {
            return tabla.Precede(símboloDe(i), símboloDe(j));
        });
        const auto repetido = std::ranges::adjacent_find(orden, {}, símboloDe);
        return repetido == orden.end() ? orden : std::vector<std::size_t>();
    }

    Literal DevLiteral() const {
        Literal literal;
        literal.reserve(orden_.size());
        for (const std::size_t i : orden_)
            if (partes_[i] > 0)
                literal.push_back(
                    {base_[i].literal[0].símbolo,
                     base_[i].literal[0].exponente * static_cast<std::int64_t>(partes_[i])});
        return literal;
    }

    // The next way to share n out. Whether there is one.
    bool Avanza() {
        const std::size_t último = base_.size() - 1;
        std::size_t i = último;
        while (i > 0 && partes_[i - 1] == 0)
            --i;
        if (i == 0)
            return false;
        --partes_[i - 1];
        const std::size_t resto = partes_[último] + 1;
        partes_[último] = 0;
        partes_[i] = resto;
        Acumula(i - 1);
        return true;
    }

    // The product of the powers of the first terms, and what is left to share out.
    struct Previo {
        Coeficiente coeficiente;
        Literal literal;
        std::size_t resto;
    };

    void Acumula(std::size_t desde) {
        for (std::size_t i = desde; i < base_.size(); ++i) {
            const std::size_t parte = partes_[i];
            Previo& siguiente = previos_[i + 1];
            const Previo& previo = previos_[i];
            siguiente.resto = previo.resto - parte;
            if (parte == 0) {
                siguiente.coeficiente = previo.coeficiente;
                if (orden_.empty())
                    siguiente.literal = previo.literal;
                continue;
            }
            PreparaPotencia(i, parte);
            siguiente.coeficiente =
                previo.coeficiente * Binomio(previo.resto, parte) * coeficientes_[i][parte];
            if (orden_.empty())
                MultiplicaLiterales(tabla_, previo.literal, literales_[i][parte],
                                    siguiente.literal);
        }
    }

    void PreparaPotencia(std::size_t i, std::size_t parte) {
        while (coeficientes_[i].size() <= parte) {
            coeficientes_[i].push_back(coeficientes_[i].back() * base_[i].coeficiente);
            if (!orden_.empty())
                continue;
            Literal literal;
            MultiplicaLiterales(tabla_, literales_[i].back(), base_[i].literal, literal);
            literales_[i].push_back(std::move(literal));
        }
    }

    const Coeficiente& Binomio(std::size_t de, std::size_t parte) {
        parte = std::min(parte, de - parte);
        if (binomios_.size() <= de)
            binomios_.resize(de + 1);
        std::vector<Coeficiente>& fila = binomios_[de];
        if (fila.empty())
            fila.push_back(1);
        while (fila.size() <= parte) {
            const auto i = static_cast<std::int64_t>(fila.size());
            fila.push_back(fila.back() * (static_cast<std::int64_t>(de) - i + 1) / i);
        }
        return fila[parte];
    }

    const TablaSímbolos& tabla_;
    const Términos& base_;
    std::size_t n_;
    std::vector<std::size_t> orden_;
    std::vector<std::size_t> partes_;
    std::vector<Previo> previos_;
    std::vector<std::vector<Literal>> literales_;        // powers of each term
    std::vector<std::vector<Coeficiente>> coeficientes_; // likewise
    std::vector<std::vector<Coeficiente>> binomios_;     // rows, as far as they were needed
};

} // namespace

std::optional<Términos> ElevaPorMultinomio(const TablaSímbolos& tabla, const Términos& base,
                                           std::int64_t n) {
    const double repartos =
        DevRepartos(static_cast<double>(n), std::min(base.size(), MáximosSumandos));
    if (HayCocientes(tabla, base) || tabla.HayRaíces() || base.size() > MáximosSumandos ||
        repartos > DevCota(base, static_cast<double>(n)))
        return std::nullopt;
    // A binomial runs through all of them, a longer sum ends at the bound on terms.
    constexpr std::int64_t MáximoExponente = 1 << 20;
    if (n > MáximoExponente)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    return Repartidor(tabla, base, static_cast<std::size_t>(n)).Eleva();
}

} // namespace quiralto
