#include "engine/polinomios/mcd.h"

#include "engine/polinomios/division.h"
#include "engine/polinomios/modular.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

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
        if (divisor.p.front().exponente > MáximoTérminosPolinomio)
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
        const CampoPrimo::Resto factor =
            campo.Producto(campo.DevResto(principal), campo.Inverso(último.back()));
        Imagen escalada = último;
        for (CampoPrimo::Resto& c : escalada)
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
        for (CampoPrimo::Resto& c : escalada)
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
        !TieneExponentesNaturales(q) || DevGrado(p) > MáximoEnteroExacto ||
        DevGrado(q) > MáximoEnteroExacto)
        return std::nullopt;
    return Exactos{*a, *b};
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
            Polinomio p = DevPolinomio(*std::move(último), pareja_.bajo, pareja_.paso,
                                       DevPotenciaDeDiez(contexto_.DígitosRedondeo));
            if (EsDeDecimales(contexto_, p))
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
    for (const Monomio<double>& t : p)
        mayor = std::max(mayor, std::fabs(t.coeficiente));
    return mayor;
}

// --- Doubles, whatever their size

constexpr double Tolerancia = 1e-10; // of the largest coefficient: what rounding may leave over

Polinomio ConMayorUno(Contexto& contexto, const Polinomio& p) {
    const Polinomio mayor = PolinomioReal{{0, DevMayorCoeficiente(AReal(p))}};
    return DivideSinRedondear(contexto, p, mayor).cociente;
}

// Without leading terms that are no more than rounding.
Polinomio SinRuidoDelante(const Polinomio& p, double ruido) {
    PolinomioReal real = AReal(p);
    const auto esGrande = [&](const Monomio<double>& t) {
        return std::fabs(t.coeficiente) > ruido;
    };
    real.erase(real.begin(), std::ranges::find_if(real, esGrande));
    return real;
}

// The last divisor of the chain of divisions of two that are not 0.
Polinomio DevÚltimoDivisorReal(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    Polinomio dividendo = ConMayorUno(contexto, p);
    Polinomio divisor = ConMayorUno(contexto, q);
    if (DevGrado(dividendo) < DevGrado(divisor))
        std::swap(dividendo, divisor);
    for (;;) {
        const auto [cociente, resto] = DivideSinRedondear(contexto, dividendo, divisor);
        const double ruido = Tolerancia * std::max(1.0, DevMayorCoeficiente(AReal(cociente)));
        const Polinomio limpio = SinRuidoDelante(resto, ruido);
        if (EsCero(limpio))
            return divisor;
        dividendo = std::exchange(divisor, ConMayorUno(contexto, limpio));
    }
}

// The chain may end in a polynomial that is no divisor at all; one that rounding has only moved
// leaves next to nothing.
bool DejaPocoResto(Contexto& contexto, const Polinomio& p, const Polinomio& divisor) {
    const Polinomio resto = DivideSinRedondear(contexto, p, divisor).resto;
    return DevMayorCoeficiente(AReal(resto)) <= Tolerancia * DevMayorCoeficiente(AReal(p));
}

// The quotient of the long division where nothing is left, or of real ones what rounding explains.
std::optional<Polinomio> DivideSiNoSobra(Contexto& contexto, const Polinomio& dividendo,
                                         const Polinomio& divisor) {
    auto [cociente, resto] = DivideSinRedondear(contexto, dividendo, divisor);
    const bool esReal = std::holds_alternative<PolinomioReal>(resto);
    if (!EsCero(resto) && !(esReal && DevMayorCoeficiente(AReal(resto)) <=
                                          Tolerancia * DevMayorCoeficiente(AReal(dividendo))))
        return std::nullopt;
    return std::move(cociente);
}

} // namespace

Polinomio MCDPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsCero(p))
        return q;
    if (EsCero(q))
        return p;
    // A divisor that is constant, or the dividend itself, is the last one at once.
    const Polinomio& divisor = DevGrado(p) < DevGrado(q) ? p : q;
    if ((EsConstante(divisor) || p == q) && EsDeDecimales(contexto, divisor))
        return divisor;
    if (const auto exactos = SiExactos(p, q))
        return MCDExacto(contexto, *exactos).DevÚltimoDivisor();
    return DevÚltimoDivisorRedondeado(contexto, p, q);
}

Polinomio MCDPrimitivo(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsConstante(p) || EsConstante(q))
        return DevConstante(1);
    if (const auto exactos = SiExactos(p, q))
        return MCDExacto(contexto, *exactos).DevPrimitivo();
    const PolinomioReal común = AReal(DevÚltimoDivisorReal(contexto, p, q));
    if (común.front().exponente == 0)
        return DevConstante(1);
    // With the leading coefficient 1 the quotients keep the size of what is divided.
    const PolinomioReal principal{{0, común.front().coeficiente}};
    Polinomio mónico = DivideSinRedondear(contexto, común, principal).cociente;
    if (!DejaPocoResto(contexto, AReal(p), mónico) || !DejaPocoResto(contexto, AReal(q), mónico))
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
        Monomios<Entero> cociente;
        for (const MonomioNatural& t : p)
            cociente.push_back(
                {static_cast<double>(t.exponente) * paso, t.coeficiente * exactos->q.denominador});
        return DevExacto(std::move(cociente), exactos->p.denominador * q.front().coeficiente);
    }
    if (q.front().exponente > MáximoTérminosPolinomio)
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
    const Entero contenido = DividePorContenido(primitivo);
    std::optional<Denso> cociente = DivideDensos(contexto, DevDenso(p), primitivo);
    if (!cociente)
        return std::nullopt;
    for (Entero& c : *cociente)
        c *= exactos->q.denominador;
    return DevPolinomio(*std::move(cociente), 0, paso, contenido * exactos->p.denominador);
}

} // namespace quiralto
