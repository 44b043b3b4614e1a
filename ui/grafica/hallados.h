// What the last command has found, and where it is marked: on the functions that are drawn.
#pragma once

#include "commands/hallazgos.h"
#include "ui/grafica/funciones.h"

#include <memory>
#include <string>
#include <vector>

namespace quiralto {

// A place on a function's curve, and what it is: "Máximo de f0(X) en X=-1, vale 2".
struct LugarHallado {
    int índice = 0; // of the function
    Lugar lugar;
    std::string texto;
};

// What lies between a function's curve and the axis: "Área de f0(X) de 0 a 1: .5".
struct ÁreaHallada {
    int índice = 0;
    double desde = 0;
    double hasta = 0;
    std::string texto;
};

struct Marcas {
    std::vector<LugarHallado> lugares;
    std::vector<ÁreaHallada> áreas;

    bool EstáVacía() const { return lugares.empty() && áreas.empty(); }
};

class Hallados {
public:
    // What a command has found takes the place of what the last one had; nothing found changes
    // nothing. `dígitos`: to which the places were rounded.
    void Pon(const std::vector<Hallazgo>& hallazgos, int dígitos);
    void Quita();
    bool EstáVacío() const { return hallazgos_.empty(); }

    // The marks on the active functions: those found for a function of the same text, and on f the
    // solutions of (f)-(g) where g is active too. A solution stands where the curve crosses the
    // axis, not where that place was rounded to; a pole or a jump, at which the sign changes too,
    // has no mark. None: a null pointer. The same pointer as long as nothing has changed.
    std::shared_ptr<const Marcas> DevMarcas(const Contexto& contexto, FuncionesGráficas& funciones);

private:
    // What the marks depend on.
    struct Estado {
        PorFunción<std::uint64_t> versiones{}; // 0 of a function that is not active
        int dígitos = 0;

        bool operator==(const Estado&) const = default;
    };

    std::vector<Hallazgo> hallazgos_;
    int dígitos_ = 0; // to which they are rounded
    std::shared_ptr<const Marcas> marcas_;
    Estado estado_; // that the marks were made for
    bool hechas_ = false;
};

// What there is at a place of the picture, where pixels are dx and dy apart: the nearest mark
// within a few pixels; empty where there is none.
std::string DevTextoLugar(const Marcas& marcas, const Lugar& lugar, double dx, double dy);

// The marks in words, the first few of them one by one.
std::string DevTextoMarcas(const Marcas& marcas);

} // namespace quiralto
