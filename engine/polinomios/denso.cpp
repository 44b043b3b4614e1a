#include "engine/polinomios/denso.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

std::uint64_t DevPaso(const PolinomioExacto& p, double bajo, std::uint64_t paso) {
    for (const Monomio<Entero>& t : p.términos)
        paso = std::gcd(paso, static_cast<std::uint64_t>(t.exponente - bajo));
    return paso;
}

Disperso DevDisperso(const PolinomioExacto& p, double bajo, std::uint64_t paso) {
    Disperso disperso;
    disperso.reserve(p.términos.size());
    for (const Monomio<Entero>& t : p.términos)
        disperso.push_back({static_cast<std::uint64_t>(t.exponente - bajo) / paso, t.coeficiente});
    return disperso;
}

} // namespace

Pareja DevPareja(const PolinomioExacto& p, const PolinomioExacto& q) {
    if (p.términos.front().exponente > MáximoEnteroExacto ||
        q.términos.front().exponente > MáximoEnteroExacto)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    const double bajo = std::min(p.términos.back().exponente, q.términos.back().exponente);
    const std::uint64_t paso = std::max<std::uint64_t>(1, DevPaso(q, bajo, DevPaso(p, bajo, 0)));
    return {DevDisperso(p, bajo, paso), DevDisperso(q, bajo, paso), bajo,
            static_cast<double>(paso)};
}

Denso DevDenso(const Disperso& p) {
    if (p.front().exponente > MáximoTérminosPolinomio)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    Denso denso(static_cast<std::size_t>(p.front().exponente) + 1);
    for (const MonomioNatural& t : p)
        denso[static_cast<std::size_t>(t.exponente)] = t.coeficiente;
    return denso;
}

Polinomio DevPolinomio(Denso denso, double bajo, double paso, Entero denominador) {
    Monomios<Entero> términos;
    for (std::size_t i = denso.size(); i-- > 0;)
        if (!denso[i].EsCero())
            términos.push_back({static_cast<double>(i) * paso + bajo, std::move(denso[i])});
    return DevExacto(std::move(términos), std::move(denominador));
}

Entero DividePorContenido(Denso& p) {
    Entero contenido = DevContenido(p);
    if (p.back().Signo() < 0)
        contenido.CambiaSigno();
    if (!contenido.EsUno())
        for (Entero& c : p)
            c = Entero::Divide(c, contenido).cociente;
    return contenido;
}

std::optional<Denso> DivideDensos(Contexto& contexto, Denso resto, const Denso& divisor) {
    if (resto.size() < divisor.size())
        return std::nullopt;
    const std::size_t grado = divisor.size() - 1;
    Denso cociente(resto.size() - grado);
    for (std::size_t i = cociente.size(); i-- > 0;) {
        contexto.Vigila();
        auto [factor, sobra] = Entero::Divide(resto[i + grado], divisor.back());
        if (!sobra.EsCero())
            return std::nullopt;
        if (factor.EsCero())
            continue;
        for (std::size_t j = 0; j < grado; ++j)
            resto[i + j].RestaProducto(factor, divisor[j]);
        cociente[i] = std::move(factor);
    }
    resto.resize(grado);
    if (!std::ranges::all_of(resto, &Entero::EsCero))
        return std::nullopt;
    return cociente;
}

} // namespace quiralto
