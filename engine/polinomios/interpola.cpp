#include "engine/polinomios/interpola.h"

#include "engine/numeros/mcd_decimales.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quiralto {
namespace {

// Decimal numbers as whole ones, all times the same power of ten.
struct Enteros {
    std::vector<Entero> números;
    int ceros = 0; // the power, from 0 up
};

// The numbers at the places desde, desde + 2, ...
Enteros DevEnteros(std::span<const double> números, std::size_t desde) {
    std::vector<Decimal> decimales;
    Enteros enteros;
    for (std::size_t i = desde; i < números.size(); i += 2) {
        decimales.push_back(Decimal::DesdeDouble(números[i]));
        enteros.ceros = std::max(enteros.ceros, -decimales.back().exponente);
    }
    for (const Decimal& decimal : decimales)
        enteros.números.push_back(decimal.mantisa *
                                  DevPotenciaDeDiez(decimal.exponente + enteros.ceros));
    return enteros;
}

// The coefficients from the constant up of the sum of diferencias[k] * (X - x[0]) * ... *
// (X - x[k-1]).
std::vector<Entero> DesarrollaNewton(Contexto& contexto, std::span<const Entero> equis,
                                     std::span<const Entero> diferencias) {
    std::vector<Entero> coeficientes;
    for (std::size_t k = diferencias.size(); k-- > 0;) {
        contexto.Vigila();
        // times (X - x), plus the difference
        coeficientes.insert(coeficientes.begin(), diferencias[k]);
        for (std::size_t i = 0; i + 1 < coeficientes.size(); ++i)
            coeficientes[i].RestaProducto(coeficientes[i + 1], equis[k]);
    }
    return coeficientes;
}

// Newton's form: the sum of diferencias[k] * (X - x[0]) * ... * (X - x[k-1]), over a denominator.
class FormaDeNewton {
public:
    FormaDeNewton(Contexto& contexto, std::span<const Entero> equis)
        : contexto_(contexto), equis_(equis) {}

    // The next point of equis, with its value. False: the denominator has grown too long.
    bool Incluye(const Entero& y) {
        contexto_.Vigila();
        const Entero& x = equis_[diferencias_.size()];
        Entero producto = 1; // of the distances to the points before
        Entero valor;        // of what there is so far
        for (std::size_t k = diferencias_.size(); k-- > 0;) {
            const Entero distancia = x - equis_[k];
            producto *= distancia;
            valor *= distancia;
            valor += diferencias_[k];
        }
        Entero diferencia = y * denominador_ - valor;
        Entero común = DevMCD(producto, diferencia);
        if (producto.Signo() < 0)
            común.CambiaSigno();
        Amplía(Entero::Divide(producto, común).cociente);
        diferencias_.push_back(Entero::Divide(diferencia, común).cociente);
        return denominador_.Bits() <= MáximoBitsExactos;
    }

    std::vector<Entero> DevCoeficientes() {
        return DesarrollaNewton(contexto_, equis_, diferencias_);
    }
    const Entero& Denominador() const { return denominador_; }

private:
    void Amplía(const Entero& factor) {
        if (factor.EsUno())
            return;
        denominador_ *= factor;
        for (Entero& diferencia : diferencias_)
            diferencia *= factor;
    }

    Contexto& contexto_;
    std::span<const Entero> equis_;
    std::vector<Entero> diferencias_;
    Entero denominador_ = 1;
};

// The exact polynomial; none where its numbers are too long.
std::optional<Polinomio> DevExactoPorPuntos(Contexto& contexto, const Enteros& equis,
                                            const Enteros& valores) {
    FormaDeNewton newton(contexto, equis.números);
    for (const Entero& y : valores.números)
        if (!newton.Incluye(y))
            return std::nullopt;
    const Entero base = DevPotenciaDeDiez(equis.ceros); // the places were taken times this
    Entero escala = 1;
    Monomios<Entero> términos;
    for (const Entero& coeficiente : newton.DevCoeficientes()) {
        términos.push_back({static_cast<double>(términos.size()), coeficiente * escala});
        escala *= base;
    }
    std::ranges::reverse(términos);
    return DevExacto(std::move(términos), newton.Denominador() * DevPotenciaDeDiez(valores.ceros));
}

// How many bits behind the point leave an error below 2^-128 in every coefficient. A difference
// is off by less than 2^(k+1) units of the last bit: it halves nothing (places are whole numbers),
// adds two errors and rounds once. A factor (X - x) multiplies errors by 1 + |x| at most, and the
// places were taken times a power of ten, which the coefficients give back.
std::size_t DevPrecisión(const Enteros& equis) {
    constexpr std::size_t Margen = 128 + 16; // and as many terms as there may be
    const std::size_t n = equis.números.size();
    std::size_t bits = Margen + n + DevPotenciaDeDiez(equis.ceros).Bits() * n;
    for (const Entero& x : equis.números)
        bits += x.Bits() + 1;
    return bits;
}

Polinomio DevRealPorPuntos(Contexto& contexto, const Enteros& equis, const Enteros& valores) {
    const std::size_t precisión = DevPrecisión(equis);
    const std::vector<Entero>& x = equis.números;
    std::vector<Entero> diferencias;
    for (const Entero& y : valores.números)
        diferencias.push_back(y.Desplazado(precisión));
    for (std::size_t k = 1; k < x.size(); ++k) {
        contexto.Vigila();
        for (std::size_t i = x.size(); i-- > k;) {
            diferencias[i] -= diferencias[i - 1];
            diferencias[i] = Entero::Divide(diferencias[i], x[i] - x[i - k]).cociente;
        }
    }
    const Entero unidad = Entero(1).Desplazado(precisión) * DevPotenciaDeDiez(valores.ceros);
    const Entero base = DevPotenciaDeDiez(equis.ceros);
    Entero escala = 1;
    PolinomioReal términos;
    for (const Entero& coeficiente : DesarrollaNewton(contexto, x, diferencias)) {
        contexto.Vigila();
        términos.push_back(
            {static_cast<double>(términos.size()), DevCociente(coeficiente * escala, unidad)});
        escala *= base;
    }
    std::ranges::reverse(términos);
    return DevReal(std::move(términos));
}

bool HayRepetidos(std::vector<Entero> equis) {
    std::ranges::sort(equis, [](const Entero& a, const Entero& b) { return (a - b).Signo() < 0; });
    return std::ranges::adjacent_find(equis) != equis.end();
}

} // namespace

Polinomio DevPolinomioPorPuntos(Contexto& contexto, std::span<const double> puntos) {
    if (puntos.size() / 2 > MáximosPuntosInterpolación)
        throw ErrorEjecución(Desbordamiento);
    const Enteros equis = DevEnteros(puntos, 0);
    if (HayRepetidos(equis.números))
        throw ErrorEjecución(DivisiónPorCero);
    const Enteros valores = DevEnteros(puntos, 1);
    if (auto exacto = DevExactoPorPuntos(contexto, equis, valores))
        return *std::move(exacto);
    return DevRealPorPuntos(contexto, equis, valores);
}

} // namespace quiralto
