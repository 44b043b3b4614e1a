#include "engine/polinomios/factores.h"

#include "engine/evaluacion/raices.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/termino_texto.h"
#include "engine/numeros/coeficiente.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"
#include "engine/polinomios/raices_exactas.h"

#include <algorithm>
#include <vector>

namespace quiralto {
namespace {

Polinomio DerivaExacto(const PolinomioExacto& p) {
    Monomios<Entero> derivada;
    for (const auto& [exponente, coeficiente] : p.términos)
        if (exponente != 0)
            derivada.push_back({exponente - 1, coeficiente * Entero::DesdeDouble(exponente)});
    return DevExacto(std::move(derivada), p.denominador);
}

// Of a polynomial that is not 0.
double DevMenorExponente(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr ? exacto->términos.back().exponente
                             : std::get<PolinomioReal>(p).back().exponente;
}

// The polynomial with the same roots, each of them once: only there does the sign change at every
// root, and rounding does not blur where.
Polinomio SinRaícesMúltiples(Contexto& contexto, const Polinomio& p) {
    const auto* const exacto = std::get_if<PolinomioExacto>(&p);
    if (exacto == nullptr || (DevGrado(p) > MáximoGradoExacto && exacto->términos.size() > 1))
        return p;
    const Polinomio común = MCDPrimitivo(contexto, p, DerivaExacto(*exacto));
    return EsUno(común) ? p : DividePolinomios(contexto, p, común).cociente;
}

struct Raíz {
    double valor;
    std::optional<RaízExacta> exacta; // none where the polynomial is not exact
};

// Whole coefficients, where the signs can be taken exactly.
std::optional<Denso> SiDenso(const Polinomio& simple) {
    const PolinomioExacto* const exacto = SiExacto(simple);
    if (exacto == nullptr || DevGrado(simple) > MáximoGradoExacto)
        return std::nullopt;
    Denso denso(static_cast<std::size_t>(DevGrado(simple)) + 1);
    for (const auto& [exponente, coeficiente] : exacto->términos)
        denso[static_cast<std::size_t>(exponente)] = coeficiente;
    return denso;
}

// A root of p that is not looked at exactly: the number of its text where that divides p, otherwise
// all of its digits.
Raíz DevRaízDeGradoAlto(Contexto& contexto, const Polinomio& p, const Solución& solución) {
    const double valor = solución.redondeada;
    if (SiExacto(p) == nullptr)
        return {solución.raíz, std::nullopt};
    const Polinomio factor = RestaPolinomios(DevPotenciaDeX(1), DevConstante(valor));
    const bool esRacional = DivideSiExacta(contexto, p, factor).has_value();
    const Coeficiente fracción =
        esRacional ? Coeficiente::DesdeDouble(valor) : Coeficiente::DesdeBits(solución.raíz);
    return {valor, RaízExacta{fracción.Numerador(), fracción.Denominador(), esRacional}};
}

// The roots from left to right; never more than the degree, whatever rounding makes of the signs.
// Where signs can be taken exactly, none that is no root and none twice.
std::vector<Raíz> DevRaíces(Contexto& contexto, const Polinomio& p, double a, double b, double h) {
    // Whole coefficients: nothing of them is lost in a text.
    const Polinomio simple = DevPrimitivo(SinRaícesMúltiples(contexto, p));
    const std::optional<Denso> denso = SiDenso(simple);
    Programa programa = CompilaExpresión(EscribePolinomio(contexto, simple));
    std::vector<Raíz> raíces;
    for (std::optional<double> comienzo = a;
         comienzo && static_cast<double>(raíces.size()) < DevGrado(p);) {
        const auto solución = BuscaSolución(contexto, programa, *comienzo, b, h);
        if (!solución)
            break;
        comienzo = DevSiguienteComienzo(*solución, h);
        if (!denso) {
            raíces.push_back(DevRaízDeGradoAlto(contexto, p, *solución));
            continue;
        }
        const auto exacta = DevRaízExacta(contexto, *denso, solución->raíz, h);
        if (exacta && (raíces.empty() || raíces.back().exacta != exacta))
            raíces.push_back({exacta->ADouble(), exacta});
    }
    return raíces;
}

std::string TextoFactores(const Contexto& contexto, const std::vector<Raíz>& raíces) {
    std::string texto;
    for (const Raíz& raíz : raíces) {
        if (!texto.empty())
            texto += '*';
        const double redondeada = Redondea(raíz.valor, contexto.DígitosRedondeo);
        if (redondeada == 0) {
            texto += 'X';
            continue;
        }
        EscribeTérmino(texto += "(X", -redondeada, {});
        texto += ')';
    }
    return texto;
}

Polinomio QuitaRaíces(Contexto& contexto, const Polinomio& p, const std::vector<Raíz>& raíces) {
    if (raíces.front().exacta) {
        std::vector<RaízExacta> exactas;
        exactas.reserve(raíces.size());
        for (const Raíz& raíz : raíces)
            exactas.push_back(*raíz.exacta);
        return DivideEntreRaíces(contexto, *SiExacto(p), exactas);
    }
    Polinomio producto = DevConstante(1);
    for (const Raíz& raíz : raíces)
        producto = MultiplicaPolinomios(
            contexto, producto, RestaPolinomios(DevPotenciaDeX(1), DevConstante(raíz.valor)));
    return DivideSinRedondear(contexto, p, producto).cociente;
}

std::string TextoCoeficientePrincipal(const Contexto& contexto, const Polinomio& p) {
    const double principal = Redondea(AReal(p).front().coeficiente, contexto.DígitosRedondeo);
    if (principal == 1)
        return {};
    return principal == -1 ? "-" : TextoNúmero(principal) + '*';
}

} // namespace

std::string FactorizaPolinomio(Contexto& contexto, const Polinomio& polinomio, double a, double b,
                               double h) {
    const Polinomio p = QuitaPrincipalesNulos(contexto, polinomio);
    if (EsConstante(p) || !TieneExponentesNaturales(p))
        return EscribePolinomio(contexto, p);
    // A power of X would come to 0 in Doubles where X is not 0.
    const double potencia = std::max(DevMenorExponente(p) - 1, 0.0);
    const Polinomio simple = MultiplicaPolinomios(contexto, p, DevPotenciaDeX(-potencia));
    const std::vector<Raíz> raíces = DevRaíces(contexto, simple, a, b, h);
    if (raíces.empty())
        return EscribePolinomio(contexto, p);
    const std::string factores = TextoFactores(contexto, raíces);
    if (static_cast<double>(raíces.size()) == DevGrado(p))
        return TextoCoeficientePrincipal(contexto, p) + factores;
    const Polinomio cociente = MultiplicaPolinomios(contexto, QuitaRaíces(contexto, simple, raíces),
                                                    DevPotenciaDeX(potencia));
    return factores + "*(" + EscribePolinomio(contexto, cociente) + ')';
}

} // namespace quiralto
