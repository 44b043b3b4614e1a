// The root finder behind every command that looks for zeros.
#pragma once

#include "engine/evaluacion/evalua.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quiralto {

struct Solución {
    double raíz;       // a Double before the change of sign
    std::string texto; // rounded to DígitosRedondeo, with a leading blank if not negative
    double redondeada; // what the text reads as
};

// The solution at a root.
Solución DevSolución(double raíz, int dígitosRedondeo);

// How near the root is looked for: up to where its text is certain, and where the search for the
// next one starts, or up to the largest Double before the change of sign, which has the same ones.
enum class Precisión { Texto, ÚltimoDoble };

// The commands divide the interval that they search into so many steps.
inline constexpr int PasosDeBúsqueda = 1000;

// Finds the roots of one program; made once for all of them.
class BuscadorDeSoluciones {
public:
    BuscadorDeSoluciones(Contexto& contexto, const Programa& programa);

    // The first root at or after a, up to the extended end b + h: it walks in steps of h > 0 and
    // halves the step at a change of sign until the step no longer changes the Double. Points
    // without a value are stepped over. A pole where the sign changes counts as a root; a zero
    // without a change of sign is found only where a sample falls on it exactly. None: no root.
    //
    // Leaves ErrorCódigo clear. Asks the watcher. Fault: run-time error 6 where b + h overflows.
    std::optional<Solución> Busca(double a, double b, double h, Precisión precisión);

private:
    // A step that the sign does not outlast: from the last point before it to the one behind.
    struct Cambio {
        double antes;
        double después;
        int signo; // of the points up to the change
    };
    Solución Estrecha(Cambio cambio, double h, Precisión precisión);
    std::optional<Solución> DevSiCierta(const Cambio& cambio, double paso) const;
    std::optional<Cambio> BuscaCambio(double a, double b, double h);
    void EvalúaPasos(double x, double b, double h, std::size_t cantidad);

    Contexto& contexto_;
    EvaluadorDeBloques función_;
    // The next points of the walk, with what the program gives there.
    std::vector<double> equis_;
    std::vector<double> valores_;
    std::vector<std::int16_t> fallos_;
    // That the last walk took, and the one before it, or usual ones.
    std::array<std::size_t, 2> puntosAnteriores_ = {15, 15};
};

// The first root of the program to the last Double, for a single search.
std::optional<Solución> BuscaSolución(Contexto& contexto, const Programa& programa, double a,
                                      double b, double h);

// Where the search for the next root starts: the rounded root plus h; where that does not lie
// beyond the root (few rounding digits, a tiny interval), the root itself plus h. None: the step
// is too small to leave the root.
std::optional<double> DevSiguienteComienzo(const Solución& solución, double h);

} // namespace quiralto
