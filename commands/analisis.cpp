#include "commands/analisis.h"

#include "commands/datos_funcion.h"
#include "engine/evaluacion/evalua.h"
#include "engine/evaluacion/raices.h"
#include "engine/evaluacion/reduce.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/numeros/numero.h"

#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quiralto {
namespace {

struct Intervalo {
    double a;
    double b;
    double h; // (b - a) / PasosDeBúsqueda
};

Intervalo DevIntervalo(const DatosFunción& datos) {
    const double ancho = CompruebaFinito(datos.segundo - datos.primero);
    return {datos.primero, datos.segundo, ancho / PasosDeBúsqueda};
}

// The next place of a search, and what there is to tell of it: nothing where it is none of what
// is looked for.
struct Punto {
    Solución lugar;
    std::optional<Hallazgo> hallazgo;
};

// Writes the findings of a kind that `siguiente` gives, one a line, each search beginning behind
// the place before; `ninguno` where there is none. The last search begins before b, or at b where
// `hastaElFinal`.
template <typename Siguiente>
void EscribeTodos(const Contexto& contexto, Hoja& hoja, const Intervalo& intervalo,
                  bool hastaElFinal, ClaseHallazgo clase, std::string_view ninguno,
                  Siguiente siguiente) {
    const auto [a, b, h] = intervalo;
    bool hallado = false;
    for (std::optional<double> comienzo = a;
         comienzo && (*comienzo < b || (hastaElFinal && *comienzo == b));) {
        std::optional<Punto> punto = siguiente(*comienzo);
        if (!punto)
            break;
        comienzo = DevSiguienteComienzo(punto->lugar, h);
        if (!punto->hallazgo || punto->hallazgo->clase != clase)
            continue;
        hallado = true;
        AñadeHallazgo(hoja, std::move(*punto->hallazgo), contexto.DígitosRedondeo);
        hoja.texto += "\r\n";
    }
    if (!hallado)
        hoja.texto += ninguno;
}

void DevSolucionesReales(Contexto& contexto, Hoja& hoja, const std::string& f,
                         const Intervalo& intervalo) {
    hoja.texto += "\r\n\r\n";
    BuscadorDeSoluciones buscador(contexto, CompilaExpresión(f));
    EscribeTodos(contexto, hoja, intervalo, false, ClaseHallazgo::Solución,
                 "'No se hallaron soluciones", [&](double comienzo) -> std::optional<Punto> {
                     const std::optional<Solución> r =
                         buscador.Busca(comienzo, intervalo.b, intervalo.h, Precisión::Texto);
                     if (!r)
                         return std::nullopt;
                     return Punto{*r, Hallazgo{ClaseHallazgo::Solución, f, intervalo.a, intervalo.b,
                                               r->redondeada}};
                 });
}

// A function with its derivatives, each compiled once for the whole search; the second one, which
// may be far larger than the others, only where it is asked for.
class FunciónDerivada {
public:
    FunciónDerivada(Contexto& contexto, std::string f)
        : contexto_(contexto), texto_(std::move(f)), función_(CompilaExpresión(texto_)),
          textoPrimera_(Deriva(contexto, texto_)) {}

    const std::string& Texto() const { return texto_; }
    std::optional<double> DevValorFunción(double x) { return DevValor(contexto_, función_, x); }
    std::optional<double> DevCurvatura(double x) {
        if (!segunda_) {
            segunda_ = CompilaSegunda();
            if (std::optional<Programa> reducida = Reduce(*segunda_))
                segunda_ = std::move(reducida);
        }
        return DevValor(contexto_, *segunda_, x);
    }
    Programa CompilaPrimera() const { return CompilaExpresión(textoPrimera_); }
    Programa CompilaSegunda() const { return CompilaExpresión(Deriva(contexto_, textoPrimera_)); }

private:
    Contexto& contexto_;
    std::string texto_;
    Programa función_;
    std::string textoPrimera_;
    std::optional<Programa> segunda_;
};

// The next zero of the first derivative at or after a, told apart by the sign of the second at the
// rounded place. Nothing to tell where that sign is 0, or f or the second derivative has no value.
std::optional<Punto> DevPuntoExtremo(FunciónDerivada& f, BuscadorDeSoluciones& primera, double a,
                                     const Intervalo& intervalo) {
    const std::optional<Solución> r = primera.Busca(a, intervalo.b, intervalo.h, Precisión::Texto);
    if (!r)
        return std::nullopt;
    const double x = r->redondeada;
    const std::optional<double> curvatura = f.DevCurvatura(x);
    const std::optional<double> valor = f.DevValorFunción(x);
    if (!curvatura || *curvatura == 0 || !valor)
        return Punto{*r, std::nullopt};
    const auto clase = *curvatura < 0 ? ClaseHallazgo::Máximo : ClaseHallazgo::Mínimo;
    return Punto{*r, Hallazgo{clase, f.Texto(), intervalo.a, intervalo.b, x, *valor}};
}

void DevExtremos(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo,
                 ClaseHallazgo clase, std::string_view ninguno) {
    hoja.texto += "\r\n\r\n";
    FunciónDerivada función(contexto, f);
    BuscadorDeSoluciones primera(contexto, función.CompilaPrimera());
    EscribeTodos(contexto, hoja, intervalo, true, clase, ninguno, [&](double comienzo) {
        return DevPuntoExtremo(función, primera, comienzo, intervalo);
    });
}

void DevMáximos(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo) {
    DevExtremos(contexto, hoja, f, intervalo, ClaseHallazgo::Máximo, "'No se hallaron máximos");
}

void DevMínimos(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo) {
    DevExtremos(contexto, hoja, f, intervalo, ClaseHallazgo::Mínimo, "'No se hallaron mínimos");
}

// The next zero of the second derivative at or after a. Nothing to tell where f has no value.
std::optional<Punto> DevPuntoInflexión(FunciónDerivada& f, BuscadorDeSoluciones& segunda, double a,
                                       const Intervalo& intervalo) {
    const std::optional<Solución> r = segunda.Busca(a, intervalo.b, intervalo.h, Precisión::Texto);
    if (!r)
        return std::nullopt;
    const double x = r->redondeada;
    const std::optional<double> valor = f.DevValorFunción(x);
    if (!valor)
        return Punto{*r, std::nullopt};
    return Punto{
        *r, Hallazgo{ClaseHallazgo::Inflexión, f.Texto(), intervalo.a, intervalo.b, x, *valor}};
}

void DevPuntosInflexión(Contexto& contexto, Hoja& hoja, const std::string& f,
                        const Intervalo& intervalo) {
    hoja.texto += "\r\n\r\n";
    FunciónDerivada función(contexto, f);
    BuscadorDeSoluciones segunda(contexto, función.CompilaSegunda());
    EscribeTodos(contexto, hoja, intervalo, true, ClaseHallazgo::Inflexión,
                 "'No se hallaron puntos de inflexión", [&](double comienzo) {
                     return DevPuntoInflexión(función, segunda, comienzo, intervalo);
                 });
}

// The trapezoid rule on |f|; a point without a value counts as 0.
void DevArea(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo) {
    hoja.texto += "\r\n\r\n";
    const Programa programa = CompilaExpresión(f);
    const auto [a, b, h] = intervalo;
    std::vector<double> equis;
    equis.reserve(PasosDeBúsqueda + 1);
    equis.push_back(a);
    // Each point from its number, so that no accumulated rounding drops or adds one.
    for (int k = 1; k < PasosDeBúsqueda; ++k)
        equis.push_back(a + k * h);
    equis.push_back(b);
    std::vector<double> valores(equis.size());
    std::vector<std::int16_t> fallos(equis.size());
    EvalúaBloque(contexto, programa, equis, valores, fallos, Causa::Ninguna);
    const auto altura = [&](std::size_t i) {
        return fallos[i] == SinFallo ? std::fabs(valores[i]) : 0;
    };
    double suma = 0;
    for (std::size_t i = 1; i < PasosDeBúsqueda; ++i)
        suma = CompruebaFinito(suma + altura(i));
    const double area = CompruebaFinito((altura(0) + altura(PasosDeBúsqueda) + 2 * suma) * h / 2);
    AñadeHallazgo(hoja, {ClaseHallazgo::Área, f, a, b, 0, area}, contexto.DígitosRedondeo);
}

template <typename Trabajo> void ConDatos(Contexto& contexto, Hoja& hoja, Trabajo trabajo) {
    if (const auto datos = CargaDatosFunción(contexto, hoja, TipoDatos::FunciónYExtremos))
        trabajo(contexto, hoja, datos->función, DevIntervalo(*datos));
}

} // namespace

void ResolverSolucionesEcuación(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevSolucionesReales);
}

void ResolverMáximosEcuación(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevMáximos);
}

void ResolverMínimosEcuación(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevMínimos);
}

void ResolverPuntosInflexión(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevPuntosInflexión);
}

void ResolverArea(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevArea);
}

} // namespace quiralto
