#include "engine/polinomios/racional.h"

#include "engine/numeros/numero.h"
#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// The product, without work where a factor is 1.
Polinomio Por(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    if (EsUno(p))
        return q;
    if (EsUno(q))
        return p;
    return MultiplicaPolinomios(contexto, p, q);
}

using Suma = Polinomio (*)(const Polinomio&, const Polinomio&);

Racional SumaConDenominadores(Contexto& contexto, const Racional& a, const Racional& b, Suma suma) {
    if (EsPolinomio(a) && EsPolinomio(b))
        return {suma(a.numerador, b.numerador)};
    return {
        suma(Por(contexto, a.numerador, b.denominador), Por(contexto, b.numerador, a.denominador)),
        Por(contexto, a.denominador, b.denominador)};
}

// Repeated squaring; the exponent is whole and not negative.
Polinomio Potencia(Contexto& contexto, Polinomio base, double exponente) {
    Polinomio potencia = DevConstante(1);
    while (exponente > 0) {
        contexto.Vigila();
        const double mitad = std::floor(exponente / 2);
        if (exponente != 2 * mitad)
            potencia = Por(contexto, potencia, base);
        exponente = mitad;
        if (exponente > 0)
            base = Por(contexto, base, base);
    }
    return potencia;
}

// With the leading coefficient 1, so that the quotients keep the decimals that were typed.
Polinomio DevMónico(const Polinomio& común) {
    const PolinomioExacto* const exacto = SiExacto(común);
    return exacto == nullptr ? común
                             : DevExacto(exacto->términos, exacto->términos.front().coeficiente);
}

// Whole, and no point in its general form: 2.5E+20 is whole, but not written as a whole number.
bool SeEscribeSinPunto(double valor) {
    constexpr double MáximoLlano = 1e15;
    if (!EsEntero(valor) || std::fabs(valor) < MáximoLlano)
        return EsEntero(valor);
    std::int64_t mantisa = DevFormaEntera(valor).mantisa;
    while (mantisa % 10 == 0)
        mantisa /= 10;
    return mantisa < 10;
}

bool SonExactos(const Racional& r) {
    return SiExacto(r.numerador) != nullptr && SiExacto(r.denominador) != nullptr;
}

// Times the least power of ten that leaves every coefficient at least 1, where rounding would leave
// nothing of one; of real ones.
Racional ConTérminosVisibles(Contexto& contexto, Racional r) {
    double menor = 1;
    for (const Polinomio& lado : {r.numerador, r.denominador})
        for (const Monomio<double>& t : AReal(lado))
            menor = std::min(menor, std::fabs(t.coeficiente));
    if (Redondea(menor, contexto.DígitosRedondeo) != 0)
        return r;
    const auto ceros = static_cast<int>(std::ceil(-std::log10(menor)));
    const Polinomio escala = DevExacto({{0, DevPotenciaDeDiez(ceros)}}, 1);
    return {Por(contexto, r.numerador, escala), Por(contexto, r.denominador, escala)};
}

} // namespace

Racional LeeRacional(const Contexto& contexto, std::string_view texto) {
    constexpr std::string_view Barra = ")/(";
    const std::size_t barra = texto.find(Barra);
    if (barra == std::string_view::npos)
        return {ReduceTérminos(contexto, LeePolinomio(texto))};
    const std::string_view trasBarra = texto.substr(barra + Barra.size());
    auto [numerador, denominador] =
        LeePolinomios(texto.substr(1, barra - 1), trasBarra.substr(0, trasBarra.size() - 1));
    return {ReduceTérminos(contexto, std::move(numerador)),
            ReduceTérminos(contexto, std::move(denominador))};
}

std::string SeparaRacional(const Contexto& contexto, const Racional& r) {
    std::string numerador = EscribePolinomio(contexto, r.numerador);
    if (EsPolinomio(r))
        return numerador;
    return "(" + numerador + ")/(" + EscribePolinomio(contexto, r.denominador) + ")";
}

Racional SumaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return SumaConDenominadores(contexto, a, b, SumaPolinomios);
}

Racional RestaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return SumaConDenominadores(contexto, a, b, RestaPolinomios);
}

Racional MultiplicaRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    return {Por(contexto, a.numerador, b.numerador), Por(contexto, a.denominador, b.denominador)};
}

Racional DivideRacional(Contexto& contexto, const Racional& a, const Racional& b) {
    if (EsCero(b.numerador))
        throw ErrorEjecución(DivisiónPorCero);
    Racional cociente{Por(contexto, a.numerador, b.denominador),
                      Por(contexto, a.denominador, b.numerador)};
    if (auto exacto = DivideSiExacta(contexto, cociente.numerador, cociente.denominador))
        return {*std::move(exacto)};
    return cociente;
}

Racional PotenciaRacional(Contexto& contexto, const Racional& base, double exponente) {
    if (!SeEscribeSinPunto(exponente))
        throw ErrorEjecución(NoEsFunciónRacional);
    if (exponente >= 0)
        return {Potencia(contexto, base.numerador, exponente),
                Potencia(contexto, base.denominador, exponente)};
    if (EsCero(base.numerador))
        throw ErrorEjecución(DivisiónPorCero);
    return {Potencia(contexto, base.denominador, -exponente),
            Potencia(contexto, base.numerador, -exponente)};
}

void NormalizaFracción(Polinomio& numerador, Polinomio& denominador) {
    if (!EsDeCoeficientesEnteros(numerador) || !EsDeCoeficientesEnteros(denominador))
        return;
    auto& n = std::get<PolinomioExacto>(numerador).términos;
    auto& d = std::get<PolinomioExacto>(denominador).términos;
    const Entero contenido = DevContenido(d, &Monomio<Entero>::coeficiente, DevContenido(n));
    if (contenido.EsCero() || contenido.EsUno())
        return;
    for (auto* const términos : {&n, &d})
        for (Monomio<Entero>& t : *términos)
            t.coeficiente = Entero::Divide(t.coeficiente, contenido).cociente;
}

Racional ConCoeficientesEnteros(Racional r) {
    if (!SonExactos(r))
        return r;
    auto [n, abajoN] = std::get<PolinomioExacto>(std::move(r.numerador));
    auto [d, abajoD] = std::get<PolinomioExacto>(std::move(r.denominador));
    for (Monomio<Entero>& t : n)
        t.coeficiente *= abajoD;
    for (Monomio<Entero>& t : d)
        t.coeficiente *= abajoN;
    Racional entera{DevExacto(std::move(n), 1), DevExacto(std::move(d), 1)};
    NormalizaFracción(entera.numerador, entera.denominador);
    return entera;
}

Racional ConCoeficientesLegibles(Contexto& contexto, Racional r) {
    if (EsPolinomio(r))
        return r;
    if (!SonExactos(r))
        return ConTérminosVisibles(contexto, std::move(r));
    if (EsDeDecimales(contexto, r.numerador) && EsDeDecimales(contexto, r.denominador))
        return r;
    return ConCoeficientesEnteros(std::move(r));
}

Racional ReduceRacional(Contexto& contexto, const Racional& r) {
    if (EsCero(r.denominador))
        throw ErrorEjecución(DivisiónPorCero);
    if (EsCero(r.numerador))
        return {DevConstante(0)};
    if (EsPolinomio(r))
        return r;
    const auto divide = [&](const Polinomio& p, const Polinomio& divisor) {
        return EsUno(divisor) ? p : DivideSinRedondear(contexto, p, divisor).cociente;
    };
    const Polinomio común = DevMónico(MCDPrimitivo(contexto, r.numerador, r.denominador));
    Racional reducida{divide(r.numerador, común), divide(r.denominador, común)};
    if (EsConstante(reducida.denominador))
        return {divide(reducida.numerador, reducida.denominador)};
    return reducida;
}

Racional SimplificaRacional(Contexto& contexto, const Racional& r) {
    Racional simple = ConCoeficientesLegibles(contexto, ReduceRacional(contexto, r));
    if (!SonExactos(simple))
        simple = {RedondeaPolinomio(contexto, simple.numerador),
                  RedondeaPolinomio(contexto, simple.denominador)};
    if (EsCero(simple.numerador))
        return {DevConstante(0)};
    NormalizaFracción(simple.numerador, simple.denominador);
    return simple;
}

} // namespace quiralto
