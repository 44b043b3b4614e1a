// Lists of monomials, the stuff of polynomials, with coefficients of either kind: whole numbers or
// Doubles. A list in order has its highest exponent first and each exponent once.
// Tested by polinomio_test.cpp.
#pragma once

#include "engine/base/contexto.h"
#include "engine/numeros/entero.h"
#include "engine/numeros/enteros_en_double.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

namespace quiralto {

// More terms than this are run-time error 14: past every use, and far below what memory holds.
inline constexpr std::size_t MáximoTérminosPolinomio = 65536;

template <typename Coeficiente, typename Exponente = double> struct Monomio {
    Exponente exponente;
    Coeficiente coeficiente;
    bool operator==(const Monomio&) const = default;
};
template <typename Coeficiente> using Monomios = std::vector<Monomio<Coeficiente>>;

// Above the whole numbers that a Double tells apart, an exponent that is off would collect terms
// that are not alike: run-time error 6.
inline double SumaExponentes(double a, double b) {
    const double suma = a + b;
    if (std::fabs(suma) >= MáximoEnteroExacto && (suma - a != b || suma - b != a))
        throw ErrorEjecución(Desbordamiento);
    return suma;
}

inline double SumaExponentes(double a, double b, double c) {
    return SumaExponentes(SumaExponentes(a, b), c);
}

// --- The two kinds of coefficient

inline bool EsNulo(double c) {
    return c == 0;
}
inline bool EsNulo(const Entero& c) {
    return c.EsCero();
}
inline void SumaProducto(double& suma, double a, double b) {
    suma += a * b;
}
inline void SumaProducto(Entero& suma, const Entero& a, const Entero& b) {
    suma.SumaProducto(a, b);
}

// A sum of products. One of Doubles that is nothing beside what was added up has cancelled but for
// rounding, and is 0.
template <typename C> class Acumulado {
public:
    void Añade(const C& a, const C& b) { SumaProducto(suma_, a, b); }
    C Toma() { return std::move(suma_); }

private:
    C suma_ = 0;
};
template <> class Acumulado<double> {
public:
    void Añade(double a, double b) {
        suma_ += a * b;
        magnitud_ += std::fabs(a * b);
    }
    double Toma() const {
        constexpr double Ruido = 0x1p-46;
        return std::fabs(suma_) < Ruido * magnitud_ && std::isfinite(magnitud_) ? 0 : suma_;
    }

private:
    double suma_ = 0;
    double magnitud_ = 0;
};

inline void CompruebaCantidad(std::size_t términos) {
    if (términos > MáximoTérminosPolinomio)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
}

// The greatest common divisor of the coefficients and `inicial`, never negative. `coeficiente`
// finds the coefficient in an element of the list.
template <typename Lista, typename Coeficiente = std::identity>
Entero DevContenido(const Lista& lista, Coeficiente coeficiente = {}, Entero inicial = 0) {
    for (const auto& elemento : lista)
        if (!inicial.EsUno())
            inicial = DevMCD(std::move(inicial), std::invoke(coeficiente, elemento));
    return inicial;
}
inline Entero DevContenido(const Monomios<Entero>& monomios) {
    return DevContenido(monomios, &Monomio<Entero>::coeficiente);
}

// Adds up neighbours of equal exponents in an ordered list.
template <typename C> void Agrupa(Monomios<C>& términos) {
    std::size_t escritos = 0;
    for (std::size_t i = 0; i < términos.size(); ++i) {
        if (escritos > 0 && términos[escritos - 1].exponente == términos[i].exponente)
            términos[escritos - 1].coeficiente += términos[i].coeficiente;
        else if (escritos++ != i)
            términos[escritos - 1] = std::move(términos[i]);
    }
    términos.erase(términos.begin() + static_cast<std::ptrdiff_t>(escritos), términos.end());
}

template <typename C> void Ordena(Monomios<C>& términos) {
    std::ranges::stable_sort(términos, std::ranges::greater{}, &Monomio<C>::exponente);
}

// p * factorP + q * factorQ, one pass over both.
template <typename C>
Monomios<C> Combina(const Monomios<C>& p, const C& factorP, const Monomios<C>& q,
                    const C& factorQ) {
    Monomios<C> suma;
    suma.reserve(p.size() + q.size());
    auto i = p.begin();
    auto j = q.begin();
    while (i != p.end() || j != q.end()) {
        if (j == q.end() || (i != p.end() && i->exponente > j->exponente)) {
            suma.push_back({i->exponente, i->coeficiente * factorP});
            ++i;
        } else if (i == p.end() || j->exponente > i->exponente) {
            suma.push_back({j->exponente, j->coeficiente * factorQ});
            ++j;
        } else {
            Acumulado<C> coeficiente;
            coeficiente.Añade(i->coeficiente, factorP);
            coeficiente.Añade(j->coeficiente, factorQ);
            suma.push_back({i->exponente, coeficiente.Toma()});
            ++i;
            ++j;
        }
    }
    return suma;
}

// Calls `par(i, j)` for every pair, and the watcher now and then.
template <typename C, typename Par>
void RecorrePares(Contexto& contexto, const Monomios<C>& p, const Monomios<C>& q, Par par) {
    constexpr std::size_t ParesEntreAvisos = 4096;
    std::size_t pares = 0;
    for (const Monomio<C>& a : p) {
        for (const Monomio<C>& b : q) {
            par(a, b);
            if (++pares % ParesEntreAvisos == 0)
                contexto.Vigila();
        }
    }
}

// Cells of a product whose exponents go in steps of one; 0 where they do not, or are too far apart.
template <typename C> std::size_t DevCeldas(const Monomios<C>& p, const Monomios<C>& q) {
    constexpr double MáximoCeldas = 262144;
    constexpr double CeldasPorPar = 8;
    const double base = q.back().exponente;
    const auto conPasoUno = [](const Monomios<C>& términos) {
        return std::ranges::all_of(términos, [&](const Monomio<C>& t) {
            return EsEntero(t.exponente - términos.back().exponente);
        });
    };
    const double celdas =
        p.front().exponente - p.back().exponente + (q.front().exponente - base) + 1;
    const double pares = static_cast<double>(p.size()) * static_cast<double>(q.size());
    if (!(celdas <= std::min(MáximoCeldas, 64 + CeldasPorPar * pares)) || !conPasoUno(p) ||
        !conPasoUno(q))
        return 0;
    return static_cast<std::size_t>(celdas);
}

template <typename C>
Monomios<C> Multiplica(Contexto& contexto, const Monomios<C>& p, const Monomios<C>& q) {
    Monomios<C> producto;
    if (p.empty() || q.empty())
        return producto;
    if (const std::size_t celdas = DevCeldas(p, q)) {
        std::vector<Acumulado<C>> suma(celdas);
        const double baseP = p.back().exponente;
        const double baseQ = q.back().exponente;
        RecorrePares(contexto, p, q, [&](const Monomio<C>& a, const Monomio<C>& b) {
            const double celda = (a.exponente - baseP) + (b.exponente - baseQ);
            suma[static_cast<std::size_t>(celda)].Añade(a.coeficiente, b.coeficiente);
        });
        for (std::size_t i = celdas; i-- > 0;)
            if (C coeficiente = suma[i].Toma(); !EsNulo(coeficiente))
                producto.push_back(
                    {SumaExponentes(baseP, baseQ, static_cast<double>(i)), std::move(coeficiente)});
        return producto;
    }
    std::unordered_map<double, Acumulado<C>> sumas;
    RecorrePares(contexto, p, q, [&](const Monomio<C>& a, const Monomio<C>& b) {
        sumas[SumaExponentes(a.exponente, b.exponente)].Añade(a.coeficiente, b.coeficiente);
        CompruebaCantidad(sumas.size());
    });
    producto.reserve(sumas.size());
    for (auto& [exponente, suma] : sumas)
        if (C coeficiente = suma.Toma(); !EsNulo(coeficiente))
            producto.push_back({exponente, std::move(coeficiente)});
    Ordena(producto);
    return producto;
}

} // namespace quiralto
