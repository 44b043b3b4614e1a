#include "engine/polinomios/factores.h"

#include "engine/evaluacion/raices.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "engine/polinomios/division.h"
#include "engine/polinomios/mcd.h"

#include <vector>

namespace quiralto {
namespace {

// Above this degree the common factor with the derivative would take longer than the search.
constexpr double MáximoGradoSinCuadrados = 1000;

Polinomio DerivaExacto(const PolinomioExacto& p) {
    TérminosPolinomio<Entero> derivada;
    for (const auto& [exponente, coeficiente] : p.términos)
        if (exponente != 0)
            derivada.push_back({exponente - 1, coeficiente * Entero::DesdeDouble(exponente)});
    return DevExacto(std::move(derivada), p.denominador);
}

// The polynomial with the same roots, each of them once: only there does the sign change at every
// root, and rounding does not blur where.
Polinomio SinRaícesMúltiples(Contexto& contexto, const Polinomio& p) {
    const auto* const exacto = std::get_if<PolinomioExacto>(&p);
    if (exacto == nullptr || (DevGrado(p) > MáximoGradoSinCuadrados && exacto->términos.size() > 1))
        return p;
    const Polinomio común = DevFactorComún(contexto, p, DerivaExacto(*exacto));
    return EsUno(común) ? p : DividePolinomios(contexto, p, común).cociente;
}

// Whole coefficients: nothing of them is lost in a text.
Polinomio QuitaDenominador(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto == nullptr ? p : DevExacto(exacto->términos, 1);
}

// The roots from left to right; never more than the degree, whatever rounding makes of the signs.
std::vector<Solución> DevRaíces(Contexto& contexto, const Polinomio& p, double a, double b,
                                double h) {
    const Polinomio simple = SinRaícesMúltiples(contexto, p);
    Programa programa = CompilaExpresión(EscribePolinomio(contexto, QuitaDenominador(simple)));
    const double grado = DevGrado(p);
    std::vector<Solución> raíces;
    for (std::optional<double> comienzo = a;
         comienzo && static_cast<double>(raíces.size()) < grado;) {
        std::optional<Solución> raíz = BuscaSolución(contexto, programa, *comienzo, b, h);
        if (!raíz)
            break;
        comienzo = DevSiguienteComienzo(*raíz, h);
        raíces.push_back(*std::move(raíz));
    }
    return raíces;
}

std::string TextoFactores(const std::vector<Solución>& raíces) {
    std::string texto;
    for (const Solución& raíz : raíces) {
        if (!texto.empty())
            texto += '*';
        const std::string r = TextoNúmero(Val(raíz.texto));
        if (r == "0")
            texto += 'X';
        else
            (texto += "(X-").append(r) += ')';
    }
    return SimplificaSignos(texto);
}

Polinomio DevProducto(Contexto& contexto, const std::vector<Solución>& raíces) {
    Polinomio producto = DevConstante(1);
    for (const Solución& raíz : raíces)
        producto = MultiplicaPolinomios(
            contexto, producto, RestaPolinomios(DevPotenciaDeX(1), DevConstante(Val(raíz.texto))));
    return producto;
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
    const Polinomio p = QuitaNulos(contexto, polinomio);
    if (EsConstante(p) || !TieneExponentesNaturales(p))
        return EscribePolinomio(contexto, p);
    const std::vector<Solución> raíces = DevRaíces(contexto, p, a, b, h);
    if (raíces.empty())
        return EscribePolinomio(contexto, p);
    const std::string factores = TextoFactores(raíces);
    if (static_cast<double>(raíces.size()) == DevGrado(p))
        return TextoCoeficientePrincipal(contexto, p) + factores;
    const Polinomio cociente =
        DividePolinomios(contexto, p, DevProducto(contexto, raíces)).cociente;
    return factores + "*(" + EscribePolinomio(contexto, cociente) + ')';
}

} // namespace quiralto
