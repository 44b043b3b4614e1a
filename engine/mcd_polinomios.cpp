#include "engine/mcd_polinomios.h"

#include "engine/campo_primo.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace quiralto {
namespace {

// --- Whole coefficients

struct TérminoNatural {
    std::uint64_t exponente;
    Entero coeficiente;
};
using Disperso = std::vector<TérminoNatural>; // highest exponent first, never empty
using Denso = std::vector<Entero>;            // coefficient i is that of X^i; the last one is not 0

// Two exact polynomials p and q in the variable Y = X^paso, without the powers of X that they
// share: p = X^bajo * p(Y) / denominador.
struct Pareja {
    Disperso p;
    Disperso q;
    double bajo = 0;
    double paso = 1;
};

// Above this a Double does not tell whole exponents apart.
constexpr double MáximoExponente = 9007199254740992;

std::uint64_t DevPaso(const PolinomioExacto& p, double bajo, std::uint64_t paso) {
    for (const Término<Entero>& t : p.términos)
        paso = std::gcd(paso, static_cast<std::uint64_t>(t.exponente - bajo));
    return paso;
}

Disperso DevDisperso(const PolinomioExacto& p, double bajo, std::uint64_t paso) {
    Disperso disperso;
    disperso.reserve(p.términos.size());
    for (const Término<Entero>& t : p.términos)
        disperso.push_back({static_cast<std::uint64_t>(t.exponente - bajo) / paso, t.coeficiente});
    return disperso;
}

Pareja DevPareja(const PolinomioExacto& p, const PolinomioExacto& q) {
    if (p.términos.front().exponente > MáximoExponente ||
        q.términos.front().exponente > MáximoExponente)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    const double bajo = std::min(p.términos.back().exponente, q.términos.back().exponente);
    const std::uint64_t paso = std::max<std::uint64_t>(1, DevPaso(q, bajo, DevPaso(p, bajo, 0)));
    return {DevDisperso(p, bajo, paso), DevDisperso(q, bajo, paso), bajo,
            static_cast<double>(paso)};
}

Denso DevDenso(const Disperso& p) {
    if (p.front().exponente > MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    Denso denso(static_cast<std::size_t>(p.front().exponente) + 1);
    for (const TérminoNatural& t : p)
        denso[static_cast<std::size_t>(t.exponente)] = t.coeficiente;
    return denso;
}

Polinomio DevPolinomio(Denso denso, double bajo, double paso, Entero denominador) {
    Términos<Entero> términos;
    for (std::size_t i = denso.size(); i-- > 0;)
        if (!denso[i].EsCero())
            términos.push_back({static_cast<double>(i) * paso + bajo, std::move(denso[i])});
    return DevExacto(std::move(términos), std::move(denominador));
}

// The greatest common divisor of the coefficients, with the sign of the leading one.
Entero DevContenido(const Denso& p) {
    Entero contenido = 0;
    for (const Entero& c : p)
        if (!contenido.EsUno())
            contenido = DevMCD(std::move(contenido), c);
    if (p.back().Signo() < 0)
        contenido.CambiaSigno();
    return contenido;
}

void DividePorContenido(Denso& p) {
    const Entero contenido = DevContenido(p);
    if (contenido.EsUno())
        return;
    for (Entero& c : p)
        c = Entero::Divide(c, contenido).cociente;
}

// The quotient where every step of the division is exact and nothing is left.
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

// --- Images modulo a prime

using Resto = CampoPrimo::Resto;
using Imagen = std::vector<Resto>; // coefficient i is that of Y^i; the last one is not 0

class Imágenes {
public:
    Imágenes(Contexto& contexto, std::uint64_t primo) : contexto_(contexto), campo_(primo) {}

    const CampoPrimo& Campo() const { return campo_; }

    // The image of p / denominador; none where the prime divides the leading coefficient or the
    // denominator. Only for degrees up to MáximoTérminos.
    std::optional<Imagen> DevImagen(const Disperso& p, const Entero& denominador) const;

    // The remainder of p / denominador by the image, by Horner's rule in Y.
    Imagen DevRestoDisperso(const Disperso& p, const Entero& denominador,
                            const Imagen& divisor) const;

    // The last divisor other than 0 of the chain that begins with divisor and resto.
    Imagen DevÚltimoDivisor(Imagen divisor, Imagen resto) const;

private:
    void Divide(Imagen& resto, const Imagen& divisor) const;
    void MultiplicaPorPotencia(Imagen& r, std::uint64_t salto, const Imagen& mónico) const;
    Imagen Multiplica(const Imagen& a, const Imagen& b, const Imagen& mónico) const;
    Imagen Mónico(Imagen p) const;

    Contexto& contexto_;
    CampoPrimo campo_;
};

void Recorta(Imagen& p) {
    while (!p.empty() && p.back() == 0)
        p.pop_back();
}

std::optional<Imagen> Imágenes::DevImagen(const Disperso& p, const Entero& denominador) const {
    const Resto abajo = campo_.DevResto(denominador);
    if (abajo == 0 || campo_.DevResto(p.front().coeficiente) == 0)
        return std::nullopt;
    const Resto factor = campo_.Inverso(abajo);
    Imagen imagen(static_cast<std::size_t>(p.front().exponente) + 1);
    for (const TérminoNatural& t : p)
        imagen[static_cast<std::size_t>(t.exponente)] =
            campo_.Producto(campo_.DevResto(t.coeficiente), factor);
    return imagen;
}

Imagen Imágenes::Mónico(Imagen p) const {
    const Resto factor = campo_.Inverso(p.back());
    for (Resto& c : p)
        c = campo_.Producto(c, factor);
    return p;
}

// The remainder takes the place of the dividend.
void Imágenes::Divide(Imagen& resto, const Imagen& divisor) const {
    const std::size_t grado = divisor.size() - 1;
    const Resto inverso = campo_.Inverso(divisor.back());
    for (; resto.size() > grado; resto.pop_back()) {
        contexto_.Vigila();
        const Resto factor = campo_.Producto(resto.back(), inverso);
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
            const Resto alto = r.back();
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
    for (const TérminoNatural& t : p) {
        MultiplicaPorPotencia(r, anterior - t.exponente, mónico);
        r.front() = campo_.Suma(r.front(), campo_.DevResto(t.coeficiente));
        anterior = t.exponente;
    }
    MultiplicaPorPotencia(r, anterior, mónico);
    const Resto factor = campo_.Inverso(campo_.DevResto(denominador));
    for (Resto& c : r)
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

// --- The Chinese remainder theorem

// Whole numbers known modulo the product of some primes.
class NúmerosPorRestos {
public:
    void Vacía() { *this = {}; }
    bool EstáVacío() const { return números_.empty(); }
    std::size_t Cantidad() const { return números_.size(); }

    void Añade(const CampoPrimo& campo, const Imagen& restos) {
        if (números_.empty())
            números_.resize(restos.size());
        const Resto inverso = campo.Inverso(campo.DevResto(módulo_));
        for (std::size_t i = 0; i < restos.size(); ++i) {
            const Resto falta =
                campo.Producto(campo.Resta(restos[i], campo.DevResto(números_[i])), inverso);
            números_[i].SumaProducto(
                módulo_, static_cast<std::int64_t>(campo.DevValor(falta))); // below 2^62
        }
        módulo_ *= static_cast<std::int64_t>(campo.Primo());
    }

    // The numbers of least magnitude.
    std::vector<Entero> DevNúmeros() const {
        std::vector<Entero> números = números_;
        for (Entero& n : números)
            if ((n + n - módulo_).Signo() > 0)
                n -= módulo_;
        return números;
    }

private:
    Entero módulo_ = 1;
    std::vector<Entero> números_; // 0 .. módulo - 1
};

// --- The greatest common divisor

struct Operando {
    const Disperso& p;
    const Entero& denominador;
};

// Of two polynomials in Y that are not 0; the dividend has the higher degree, or the same.
class BuscadorMCD {
public:
    BuscadorMCD(Contexto& contexto, Operando dividendo, Operando divisor)
        : contexto_(contexto), dividendo_(dividendo), divisor_(divisor) {
        if (divisor.p.front().exponente > MáximoTérminos)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    }

    // With whole coefficients, no common factor in them, the leading one positive.
    Denso DevPrimitivo();

    // The last divisor of the chain times 10^dígitos, where that has whole coefficients of a size
    // that can be told for sure; a multiple of the given greatest common divisor.
    std::optional<Denso> DevÚltimoDivisor(const Denso& primitivo);

private:
    struct ImagenMCD {
        CampoPrimo campo;
        Imagen últimoDivisor; // of the chain
    };

    const ImagenMCD& DevImagen(std::size_t i);
    bool DivideAmbos(const Denso& candidato);

    Contexto& contexto_;
    Operando dividendo_;
    Operando divisor_;
    std::optional<Denso> dividendoDenso_;
    std::optional<Denso> divisorDenso_;
    SucesiónDePrimos primos_;
    std::vector<ImagenMCD> imágenes_;
};

const BuscadorMCD::ImagenMCD& BuscadorMCD::DevImagen(std::size_t i) {
    while (imágenes_.size() <= i) {
        contexto_.Vigila();
        const Imágenes imágenes(contexto_, primos_.Siguiente());
        const CampoPrimo& campo = imágenes.Campo();
        std::optional<Imagen> divisor = imágenes.DevImagen(divisor_.p, divisor_.denominador);
        if (!divisor || campo.DevResto(dividendo_.denominador) == 0 ||
            campo.DevResto(dividendo_.p.front().coeficiente) == 0)
            continue;
        Imagen resto = imágenes.DevRestoDisperso(dividendo_.p, dividendo_.denominador, *divisor);
        imágenes_.push_back(
            {campo, imágenes.DevÚltimoDivisor(*std::move(divisor), std::move(resto))});
    }
    return imágenes_[i];
}

bool BuscadorMCD::DivideAmbos(const Denso& candidato) {
    if (!divisorDenso_) {
        dividendoDenso_ = DevDenso(dividendo_.p);
        divisorDenso_ = DevDenso(divisor_.p);
    }
    return DivideDensos(contexto_, *divisorDenso_, candidato) &&
           DivideDensos(contexto_, *dividendoDenso_, candidato);
}

Denso BuscadorMCD::DevPrimitivo() {
    // Of every image the monic form is known; times a multiple of the true leading coefficient it
    // is the image of a polynomial with whole coefficients.
    const Entero principal =
        DevMCD(dividendo_.p.front().coeficiente, divisor_.p.front().coeficiente);
    NúmerosPorRestos números;
    Denso anterior;
    for (std::size_t i = 0;; ++i) {
        const auto& [campo, último] = DevImagen(i);
        if (último.size() == 1)
            return {1};
        // An image of higher degree than another one belongs to an unlucky prime.
        if (!números.EstáVacío() && último.size() > números.Cantidad())
            continue;
        if (último.size() < números.Cantidad())
            números.Vacía();
        const bool primera = números.EstáVacío();
        const Resto factor =
            campo.Producto(campo.DevResto(principal), campo.Inverso(último.back()));
        Imagen escalada = último;
        for (Resto& c : escalada)
            c = campo.Producto(c, factor);
        números.Añade(campo, escalada);
        Denso candidato = números.DevNúmeros();
        DividePorContenido(candidato);
        if ((primera || candidato == anterior) && DivideAmbos(candidato))
            return candidato;
        anterior = std::move(candidato);
    }
}

std::optional<Denso> BuscadorMCD::DevÚltimoDivisor(const Denso& primitivo) {
    // Numbers of 100 bits in a modulus of 186: that others agree with them by chance is out of the
    // question, and most are found out by the second prime.
    constexpr std::size_t Primos = 3;
    constexpr std::size_t MáximoBits = 100;
    const Entero escala = DevPotenciaDeDiez(contexto_.DígitosRedondeo);
    NúmerosPorRestos números;
    Denso último;
    for (std::size_t i = 0, sumados = 0; sumados < Primos; ++i) {
        const auto& [campo, imagen] = DevImagen(i);
        if (imagen.size() != primitivo.size())
            continue;
        Imagen escalada = imagen;
        for (Resto& c : escalada)
            c = campo.Producto(c, campo.DevResto(escala));
        números.Añade(campo, escalada);
        if (++sumados < 2)
            continue;
        último = números.DevNúmeros();
        if (std::ranges::any_of(último, [](const Entero& c) { return c.Bits() > MáximoBits; }))
            return std::nullopt;
    }
    for (std::size_t i = 0; i < último.size(); ++i)
        if (último[i] * primitivo.back() != último.back() * primitivo[i])
            return std::nullopt;
    return último;
}

// --- The two ways

// The polynomials where nothing needs rounding.
struct Exactos {
    const PolinomioExacto& p;
    const PolinomioExacto& q;
};

std::optional<Exactos> SiExactos(const Polinomio& p, const Polinomio& q) {
    const auto* const a = std::get_if<PolinomioExacto>(&p);
    const auto* const b = std::get_if<PolinomioExacto>(&q);
    if (a == nullptr || b == nullptr || EsCero(p) || EsCero(q) || !TieneExponentesNaturales(p) ||
        !TieneExponentesNaturales(q) || DevGrado(p) > MáximoExponente ||
        DevGrado(q) > MáximoExponente)
        return std::nullopt;
    return Exactos{*a, *b};
}

// Decimals of at most `dígitos` places that the general number form writes in full.
bool EsDecimal(const PolinomioExacto& p, int dígitos) {
    constexpr int DígitosSignificativos = 15;
    const Entero tope = DevPotenciaDeDiez(DígitosSignificativos);
    return std::ranges::all_of(p.términos, [&](const Término<Entero>& t) {
        auto [escalado, sobra] =
            Entero::Divide(t.coeficiente * DevPotenciaDeDiez(dígitos), p.denominador);
        if (!sobra.EsCero())
            return false;
        if (escalado.Signo() < 0)
            escalado.CambiaSigno();
        while ((escalado - tope).Signo() >= 0) {
            auto [décima, cifra] = Entero::Divide(escalado, 10);
            if (!cifra.EsCero())
                return false;
            escalado = std::move(décima);
        }
        return true;
    });
}

// The gcd over whole numbers with the order of the chain: the first operand is the dividend.
class MCDExacto {
public:
    MCDExacto(Contexto& contexto, const Exactos& e)
        : contexto_(contexto), pareja_(DevPareja(e.p, e.q)),
          buscador_(EnOrden(contexto, pareja_, e)), primitivo_(buscador_.DevPrimitivo()) {}

    Polinomio DevPrimitivo() const {
        return DevPolinomio(primitivo_, pareja_.bajo, pareja_.paso, 1);
    }

    Polinomio DevÚltimoDivisor() {
        if (std::optional<Denso> último = buscador_.DevÚltimoDivisor(primitivo_)) {
            const Polinomio p = DevPolinomio(*std::move(último), pareja_.bajo, pareja_.paso,
                                             DevPotenciaDeDiez(contexto_.DígitosRedondeo));
            const auto* const exacto = std::get_if<PolinomioExacto>(&p);
            if (exacto != nullptr && EsDecimal(*exacto, contexto_.DígitosRedondeo))
                return p;
        }
        return DevPrimitivo();
    }

private:
    static BuscadorMCD EnOrden(Contexto& contexto, const Pareja& pareja, const Exactos& e) {
        const Operando p{pareja.p, e.p.denominador};
        const Operando q{pareja.q, e.q.denominador};
        if (pareja.p.front().exponente < pareja.q.front().exponente)
            return {contexto, q, p};
        return {contexto, p, q};
    }

    Contexto& contexto_;
    Pareja pareja_;
    BuscadorMCD buscador_;
    Denso primitivo_;
};

// The chain of divisions with rounding.
Polinomio DevÚltimoDivisorRedondeado(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    Polinomio dividendo = AReal(RedondeaPolinomio(contexto, p));
    Polinomio divisor = AReal(RedondeaPolinomio(contexto, q));
    if (DevGrado(dividendo) < DevGrado(divisor))
        std::swap(dividendo, divisor);
    while (!EsCero(divisor)) {
        Polinomio resto = DividePolinomios(contexto, dividendo, divisor).resto;
        dividendo = std::move(divisor);
        divisor = AReal(RedondeaPolinomio(contexto, resto));
    }
    return dividendo;
}

double DevMayorCoeficiente(const PolinomioReal& p) {
    double mayor = 0;
    for (const Término<double>& t : p)
        mayor = std::max(mayor, std::fabs(t.coeficiente));
    return mayor;
}

// Rounding may end the chain in a polynomial that is no divisor at all; one that it has only moved
// leaves a remainder near the last rounded digit.
bool DejaPocoResto(Contexto& contexto, const Polinomio& p, const Polinomio& divisor) {
    constexpr double CifrasDeMargen = 100;
    constexpr double MáximaTolerancia = 1e-3;
    const double tolerancia =
        std::min(MáximaTolerancia, CifrasDeMargen * std::pow(10.0, -contexto.DígitosRedondeo));
    const Polinomio resto = DividePolinomios(contexto, p, divisor).resto;
    return DevMayorCoeficiente(AReal(resto)) <= tolerancia * DevMayorCoeficiente(AReal(p));
}

// The quotient of the long division where what it leaves, rounded if it is real, is 0.
std::optional<Polinomio> DivideSiNoSobra(Contexto& contexto, const Polinomio& dividendo,
                                         const Polinomio& divisor) {
    auto [cociente, resto] = DividePolinomios(contexto, dividendo, divisor);
    if (std::holds_alternative<PolinomioReal>(resto))
        resto = RedondeaPolinomio(contexto, resto);
    if (!EsCero(resto))
        return std::nullopt;
    return std::move(cociente);
}

} // namespace

Polinomio MCDPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsCero(p))
        return q;
    if (EsCero(q))
        return p;
    if (const auto exactos = SiExactos(p, q))
        return MCDExacto(contexto, *exactos).DevÚltimoDivisor();
    return DevÚltimoDivisorRedondeado(contexto, p, q);
}

Polinomio DevFactorComún(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (const auto exactos = SiExactos(p, q))
        return MCDExacto(contexto, *exactos).DevPrimitivo();
    const PolinomioReal común = AReal(MCDPolinomios(contexto, p, q));
    if (común.empty() || común.front().exponente == 0)
        return DevConstante(1);
    // With the leading coefficient 1 the quotients keep the size of what is divided.
    Polinomio mónico =
        DividePolinomios(contexto, común, PolinomioReal{{0, común.front().coeficiente}}).cociente;
    for (const Polinomio* const dividido : {&p, &q})
        if (!DejaPocoResto(contexto, AReal(*dividido), mónico))
            return DevConstante(1);
    return mónico;
}

std::optional<Polinomio> DivideSiExacta(Contexto& contexto, const Polinomio& dividendo,
                                        const Polinomio& divisor) {
    const auto exactos = SiExactos(dividendo, divisor);
    if (!exactos)
        return DivideSiNoSobra(contexto, dividendo, divisor);
    const Pareja pareja = DevPareja(exactos->p, exactos->q);
    const auto& [p, q, bajo, paso] = pareja;
    if (p.front().exponente < q.front().exponente || p.back().exponente < q.back().exponente)
        return std::nullopt;
    if (q.size() == 1) {
        Términos<Entero> cociente;
        for (const TérminoNatural& t : p)
            cociente.push_back(
                {static_cast<double>(t.exponente) * paso, t.coeficiente * exactos->q.denominador});
        return DevExacto(std::move(cociente), exactos->p.denominador * q.front().coeficiente);
    }
    if (q.front().exponente > MáximoTérminos)
        return DivideSiNoSobra(contexto, dividendo, divisor);
    SucesiónDePrimos primos;
    for (;;) {
        const Imágenes imágenes(contexto, primos.Siguiente());
        const std::optional<Imagen> imagen = imágenes.DevImagen(q, 1);
        if (!imagen)
            continue;
        if (!imágenes.DevRestoDisperso(p, 1, *imagen).empty())
            return std::nullopt;
        break;
    }
    // A primitive divisor that divides at all leaves whole quotients (Gauss's lemma).
    Denso primitivo = DevDenso(q);
    const Entero contenido = DevContenido(primitivo);
    DividePorContenido(primitivo);
    std::optional<Denso> cociente = DivideDensos(contexto, DevDenso(p), primitivo);
    if (!cociente)
        return std::nullopt;
    for (Entero& c : *cociente)
        c *= exactos->q.denominador;
    return DevPolinomio(*std::move(cociente), 0, paso, contenido * exactos->p.denominador);
}

} // namespace quiralto
