// The state of the graph view without a toolkit in it: the plot window, the point X, the four
// functions, and every way to change the view. A change that overflows or leaves a view that cannot
// be drawn is undone as a whole.
#pragma once

#include "engine/base/contexto.h"
#include "engine/evaluacion/muestreo.h"
#include "engine/lenguaje/programa.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quiralto {

enum class MétodoDibujo { Líneas, Puntos };

class VentanaGráfica {
public:
    static constexpr int CantidadFunciones = 4;

    // The context outlives the view.
    explicit VentanaGráfica(Contexto& contexto) : contexto_(contexto) {}

    const Ventana& DevVentana() const { return vista_.ventana; }
    double DevPuntoX() const { return vista_.PuntoX; }
    double DevAncho() const { return vista_.ventana.XMáx - vista_.ventana.XMín; }
    // One twentieth of each range.
    double UnidadX() const;
    double UnidadY() const;

    // The saved view: every change below saves before it begins. Recovering also undoes a change
    // that was good in itself but could not be shown.
    void SalvaValores() { salvada_ = vista_; }
    void RecuperaValores() { vista_ = salvada_; }

    // The entries of the zoom menus: índice 0 to 2 is X2, X4, X8, and 3 to 5 is /2, /4, /8.
    // ZoomGráfica magnifies (X) or shrinks (/) about the point X and the value of the first
    // function there, or about the middle of the window where no function has one; the axis zooms
    // widen (X) or narrow (/) their ranges about 0, the point X with them.
    // All changes return whether the view has changed; if not it is as it was.
    bool ZoomGráfica(int índice);
    bool ZoomEjeX(int índice);
    bool ZoomEjeY(int índice);
    bool ZoomEjesXY(int índice);
    bool ValoresPorDefecto();
    bool FijaExtremos(const Ventana& ventana);
    // The scroll bars: by v units; the point X goes with the X range. A positive v shows what is
    // to the left, and what is above.
    bool DesplazaX(int v);
    bool DesplazaY(int v);
    // The pointer: ranges shifted by a distance, or divided by `factor` about a place; the point X
    // stays.
    bool Desplaza(double dx, double dy);
    bool ZoomEn(double x, double y, double factor);
    bool PonPuntoX(double x);

    // Checks the text with Sintaxis, which normalises it and shows its one message, and makes it
    // the function's formula; a refused text leaves the function undefined and switched off.
    bool DefineFunción(int índice, std::string& texto);
    void QuitaFunción(int índice);
    void Activa(int índice, bool activa);
    bool EstáDefinida(int índice) const { return Función(índice).programa.has_value(); }
    bool EstáActiva(int índice) const { return Función(índice).activa && EstáDefinida(índice); }
    const std::string& DevTexto(int índice) const { return Función(índice).texto; }

    // The value at the point X; none where the function is off, undefined, or has no value there.
    std::optional<double> DevValor(int índice);

    struct PrimeraFunción {
        int índice = CantidadFunciones; // of the first active function with a value at the point X
        double valor = 0;
    };
    PrimeraFunción DevPrimeraFunciónDefinida();

    // Of an active function.
    std::vector<Punto> CargaPuntos(int índice) const;

    int CantidadPuntos = CantidadPuntosInicial;
    MétodoDibujo método = MétodoDibujo::Líneas;

private:
    struct Vista {
        Ventana ventana;
        double PuntoX = 0;
    };
    struct FunciónGráfica {
        std::string texto; // as Sintaxis left it
        std::optional<Programa> programa;
        bool activa = false;
    };

    const FunciónGráfica& Función(int índice) const {
        return funciones_.at(static_cast<std::size_t>(índice));
    }
    FunciónGráfica& Función(int índice) { return funciones_.at(static_cast<std::size_t>(índice)); }
    bool Cambia(const Vista& nueva);

    Contexto& contexto_;
    Vista vista_;
    Vista salvada_;
    std::array<FunciónGráfica, CantidadFunciones> funciones_;
};

} // namespace quiralto
