#include "commands/analisis.h"

#include "commands/datos_funcion.h"
#include "engine/evaluacion/evalua.h"
#include "engine/evaluacion/raices.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/deriva.h"
#include "engine/numeros/numero.h"

#include <cmath>
#include <vector>

namespace quiralto {
namespace {

constexpr int Pasos = 1000;

struct Intervalo {
    double a;
    double b;
    double h; // (b - a) / Pasos
};

Intervalo DevIntervalo(const DatosFunción& datos) {
    const double ancho = CompruebaFinito(datos.segundo - datos.primero);
    return {datos.primero, datos.segundo, ancho / Pasos};
}

void AñadeLínea(const Contexto& contexto, Hoja& hoja, Hallazgo hallazgo) {
    AñadeHallazgo(hoja, std::move(hallazgo), contexto.DígitosRedondeo);
    hoja.texto += "\r\n";
}

void DevSolucionesReales(Contexto& contexto, Hoja& hoja, const std::string& f,
                         const Intervalo& intervalo) {
    Programa programa = CompilaExpresión(f);
    hoja.texto += "\r\n\r\n";
    const auto [a, b, h] = intervalo;
    bool hallada = false;
    for (std::optional<double> comienzo = a; comienzo && *comienzo < b;) {
        const std::optional<Solución> r = BuscaSolución(contexto, programa, *comienzo, b, h);
        if (!r)
            break;
        hallada = true;
        AñadeLínea(contexto, hoja, {ClaseHallazgo::Solución, f, a, b, Val(r->texto)});
        comienzo = DevSiguienteComienzo(*r, h);
    }
    if (!hallada)
        hoja.texto += "'No se hallaron soluciones";
}

// A function with its derivatives, each compiled once for the whole search; the second one, which
// may be far larger than the others, only where it is asked for.
class FunciónDerivada {
public:
    FunciónDerivada(Contexto& contexto, const std::string& f)
        : contexto_(contexto), f_(CompilaExpresión(f)), textoPrimera_(Deriva(contexto, f)),
          primera_(CompilaExpresión(textoPrimera_)) {}

    Programa& Función() { return f_; }
    Programa& Primera() { return primera_; }
    Programa& Segunda() {
        if (!segunda_)
            segunda_ = CompilaExpresión(Deriva(contexto_, textoPrimera_));
        return *segunda_;
    }

private:
    Contexto& contexto_;
    Programa f_;
    std::string textoPrimera_;
    Programa primera_;
    std::optional<Programa> segunda_;
};

enum class ClasePunto { Ninguna, Máximo, Mínimo };

struct PuntoExtremo {
    Solución lugar;
    ClasePunto clase;
    double valor; // of f there; without meaning for Ninguna
};

// The next zero of the first derivative at or after a, told apart by the sign of the second at the
// rounded place. Ninguna where that sign is 0 or f or the second derivative has no value there.
std::optional<PuntoExtremo> DevPuntoExtremo(Contexto& contexto, FunciónDerivada& f, double a,
                                            double b, double h) {
    const std::optional<Solución> r = BuscaSolución(contexto, f.Primera(), a, b, h);
    if (!r)
        return std::nullopt;
    const double x = Val(r->texto);
    const std::optional<double> curvatura = DevValor(contexto, f.Segunda(), x);
    const std::optional<double> valor = DevValor(contexto, f.Función(), x);
    if (!curvatura || *curvatura == 0 || !valor)
        return PuntoExtremo{*r, ClasePunto::Ninguna, 0};
    return PuntoExtremo{*r, *curvatura < 0 ? ClasePunto::Máximo : ClasePunto::Mínimo, *valor};
}

void DevExtremos(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo,
                 ClasePunto clase) {
    hoja.texto += "\r\n\r\n";
    FunciónDerivada función(contexto, f);
    const bool máximos = clase == ClasePunto::Máximo;
    const auto [a, b, h] = intervalo;
    bool hallado = false;
    for (std::optional<double> comienzo = a; comienzo && *comienzo <= b;) {
        const std::optional<PuntoExtremo> punto =
            DevPuntoExtremo(contexto, función, *comienzo, b, h);
        if (!punto)
            break;
        if (punto->clase == clase) {
            hallado = true;
            AñadeLínea(contexto, hoja,
                       {máximos ? ClaseHallazgo::Máximo : ClaseHallazgo::Mínimo, f, a, b,
                        Val(punto->lugar.texto), punto->valor});
        }
        comienzo = DevSiguienteComienzo(punto->lugar, h);
    }
    if (!hallado)
        hoja.texto += máximos ? "'No se hallaron máximos" : "'No se hallaron mínimos";
}

void DevPuntosInflexión(Contexto& contexto, Hoja& hoja, const std::string& f,
                        const Intervalo& intervalo) {
    hoja.texto += "\r\n\r\n";
    Programa programa = CompilaExpresión(f);
    Programa segunda = CompilaExpresión(Deriva(contexto, Deriva(contexto, f)));
    const auto [a, b, h] = intervalo;
    bool hallado = false;
    for (std::optional<double> comienzo = a; comienzo && *comienzo <= b;) {
        const std::optional<Solución> r = BuscaSolución(contexto, segunda, *comienzo, b, h);
        if (!r)
            break;
        if (const auto valor = DevValor(contexto, programa, Val(r->texto))) {
            hallado = true;
            AñadeLínea(contexto, hoja, {ClaseHallazgo::Inflexión, f, a, b, Val(r->texto), *valor});
        }
        comienzo = DevSiguienteComienzo(*r, h);
    }
    if (!hallado)
        hoja.texto += "'No se hallaron puntos de inflexión";
}

// The trapezoid rule on |f|; a point without a value counts as 0.
void DevArea(Contexto& contexto, Hoja& hoja, const std::string& f, const Intervalo& intervalo) {
    hoja.texto += "\r\n\r\n";
    const Programa programa = CompilaExpresión(f);
    const auto [a, b, h] = intervalo;
    std::vector<double> equis;
    equis.reserve(Pasos + 1);
    equis.push_back(a);
    // Each point from its number, so that no accumulated rounding drops or adds one.
    for (int k = 1; k < Pasos; ++k)
        equis.push_back(a + k * h);
    equis.push_back(b);
    std::vector<double> valores(equis.size());
    std::vector<std::int16_t> fallos(equis.size());
    EvalúaBloque(contexto, programa, equis, valores, fallos);
    const auto altura = [&](std::size_t i) {
        return fallos[i] == SinFallo ? std::fabs(valores[i]) : 0;
    };
    double suma = 0;
    for (std::size_t i = 1; i < Pasos; ++i)
        suma = CompruebaFinito(suma + altura(i));
    const double area = CompruebaFinito((altura(0) + altura(Pasos) + 2 * suma) * h / 2);
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
    ConDatos(contexto, hoja, [](Contexto& c, Hoja& h, const std::string& f, const Intervalo& i) {
        DevExtremos(c, h, f, i, ClasePunto::Máximo);
    });
}

void ResolverMínimosEcuación(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, [](Contexto& c, Hoja& h, const std::string& f, const Intervalo& i) {
        DevExtremos(c, h, f, i, ClasePunto::Mínimo);
    });
}

void ResolverPuntosInflexión(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevPuntosInflexión);
}

void ResolverArea(Contexto& contexto, Hoja& hoja) {
    ConDatos(contexto, hoja, DevArea);
}

} // namespace quiralto
