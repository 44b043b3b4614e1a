#include "engine/polinomios/modular.h"

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

void Recorta(Imagen& p) {
    while (!p.empty() && p.back() == 0)
        p.pop_back();
}

} // namespace

std::optional<Imagen> Imágenes::DevImagen(const Disperso& p, const Entero& denominador) const {
    const CampoPrimo::Resto abajo = campo_.DevResto(denominador);
    if (abajo == 0 || campo_.DevResto(p.front().coeficiente) == 0)
        return std::nullopt;
    const CampoPrimo::Resto factor = campo_.Inverso(abajo);
    Imagen imagen(static_cast<std::size_t>(p.front().exponente) + 1);
    for (const MonomioNatural& t : p)
        imagen[static_cast<std::size_t>(t.exponente)] =
            campo_.Producto(campo_.DevResto(t.coeficiente), factor);
    return imagen;
}

Imagen Imágenes::Mónico(Imagen p) const {
    const CampoPrimo::Resto factor = campo_.Inverso(p.back());
    for (CampoPrimo::Resto& c : p)
        c = campo_.Producto(c, factor);
    return p;
}

// The remainder takes the place of the dividend.
void Imágenes::Divide(Imagen& resto, const Imagen& divisor) const {
    const std::size_t grado = divisor.size() - 1;
    const CampoPrimo::Resto inverso = campo_.Inverso(divisor.back());
    for (; resto.size() > grado; resto.pop_back()) {
        contexto_.Vigila();
        const CampoPrimo::Resto factor = campo_.Producto(resto.back(), inverso);
        if (factor == 0)
            continue;
        const std::size_t salto = resto.size() - divisor.size();
        for (std::size_t j = 0; j < grado; ++j)
            resto[salto + j] = campo_.Resta(resto[salto + j], campo_.Producto(factor, divisor[j]));
    }
    Recorta(resto);
}

Imagen Imágenes::Multiplica(const Imagen& a, const Imagen& b, const Imagen& mónico) const {
    if (a.empty() || b.empty())
        return {};
    Imagen producto(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i) {
        contexto_.Vigila();
        for (std::size_t j = 0; j < b.size(); ++j)
            producto[i + j] = campo_.Suma(producto[i + j], campo_.Producto(a[i], b[j]));
    }
    Recorta(producto);
    Divide(producto, mónico);
    return producto;
}

// r := r * Y^salto, reduced; r has the divisor's degree as its length.
void Imágenes::MultiplicaPorPotencia(Imagen& r, std::uint64_t salto, const Imagen& mónico) const {
    const std::size_t grado = mónico.size() - 1;
    constexpr std::uint64_t CosteCuadrados = 128; // two products for each bit of an exponent
    if (salto <= CosteCuadrados * grado) {
        for (; salto > 0; --salto) {
            contexto_.Vigila();
            const CampoPrimo::Resto alto = r.back();
            std::rotate(r.begin(), r.end() - 1, r.end());
            r.front() = 0;
            if (alto != 0)
                for (std::size_t j = 0; j < grado; ++j)
                    r[j] = campo_.Resta(r[j], campo_.Producto(alto, mónico[j]));
        }
        return;
    }
    Imagen base{0, campo_.Uno()};
    Divide(base, mónico);
    Recorta(r);
    for (; salto > 0; salto >>= 1) {
        if ((salto & 1) != 0)
            r = Multiplica(r, base, mónico);
        base = Multiplica(base, base, mónico);
    }
    r.resize(grado);
}

Imagen Imágenes::DevRestoDisperso(const Disperso& p, const Entero& denominador,
                                  const Imagen& divisor) const {
    const std::size_t grado = divisor.size() - 1;
    if (grado == 0)
        return {};
    const Imagen mónico = Mónico(divisor);
    Imagen r(grado);
    std::uint64_t anterior = p.front().exponente;
    for (const MonomioNatural& t : p) {
        MultiplicaPorPotencia(r, anterior - t.exponente, mónico);
        r.front() = campo_.Suma(r.front(), campo_.DevResto(t.coeficiente));
        anterior = t.exponente;
    }
    MultiplicaPorPotencia(r, anterior, mónico);
    const CampoPrimo::Resto factor = campo_.Inverso(campo_.DevResto(denominador));
    for (CampoPrimo::Resto& c : r)
        c = campo_.Producto(c, factor);
    Recorta(r);
    return r;
}

Imagen Imágenes::DevÚltimoDivisor(Imagen divisor, Imagen resto) const {
    while (!resto.empty()) {
        std::swap(divisor, resto);
        Divide(resto, divisor);
    }
    return divisor;
}

void NúmerosPorRestos::Añade(const CampoPrimo& campo, const Imagen& restos) {
    if (números_.empty())
        números_.resize(restos.size());
    const CampoPrimo::Resto inverso = campo.Inverso(campo.DevResto(módulo_));
    for (std::size_t i = 0; i < restos.size(); ++i) {
        const CampoPrimo::Resto falta =
            campo.Producto(campo.Resta(restos[i], campo.DevResto(números_[i])), inverso);
        números_[i].SumaProducto(módulo_,
                                 static_cast<std::int64_t>(campo.DevValor(falta))); // below 2^62
    }
    módulo_ *= static_cast<std::int64_t>(campo.Primo());
}

std::vector<Entero> NúmerosPorRestos::DevNúmeros() const {
    std::vector<Entero> números = números_;
    for (Entero& n : números)
        if ((n + n - módulo_).Signo() > 0)
            n -= módulo_;
    return números;
}

} // namespace quiralto
