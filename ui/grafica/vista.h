// The plot window and the point X, and every way to change them. A change that overflows or leaves
// a view that cannot be drawn is undone as a whole.
#pragma once

#include "engine/evaluacion/muestreo.h"

#include <optional>

namespace quiralto {

// A place in logical coordinates.
struct Lugar {
    double x = 0;
    double y = 0;
};

class Vista {
public:
    struct Estado {
        Ventana ventana;
        double PuntoX = 0;
    };

    const Estado& DevEstado() const { return actual_; }
    const Ventana& DevVentana() const { return actual_.ventana; }
    double DevPuntoX() const { return actual_.PuntoX; }
    double DevAncho() const { return actual_.ventana.XMáx - actual_.ventana.XMín; }
    // One twentieth of each range.
    double UnidadX() const;
    double UnidadY() const;

    // The saved view: every change below saves before it begins. Recovering also undoes a change
    // that was good in itself but could not be shown.
    void SalvaValores() { salvada_ = actual_; }
    void RecuperaValores() { actual_ = salvada_; }

    // The entries of the zoom menus: índice 0 to 2 is X2, X4, X8, and 3 to 5 is /2, /4, /8.
    // ZoomGráfica magnifies (X) or shrinks (/) about `centro`, or about the middle of the window
    // where there is none; the axis zooms widen (X) or narrow (/) their ranges about 0, the point X
    // with them. All changes return whether the view has changed; if not it is as it was.
    bool ZoomGráfica(int índice, const std::optional<Lugar>& centro);
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
    bool ZoomEn(const Lugar& centro, double factor);
    bool PonPuntoX(double x);
    // The point X, and the window so far that the place lies in its middle where it lies outside;
    // less of that where the view could not be drawn.
    bool LlevaPuntoX(const Lugar& lugar);

    // A notch of the wheel about a place, towards what is nearer (1) or further (-1): by the square
    // root of 2, with the ends rounded to below `separación` (the logical distance of two pixels).
    // Two notches in one direction are a zoom by exactly 2, two in opposite ones none.
    bool Rueda(const Lugar& centro, int sentido, const Lugar& separación);
    // A unit as long on both axes, on a picture of that size in pixels. The axis with the longer
    // unit is widened about its middle, so that nothing leaves the picture.
    bool IgualaEjes(double ancho, double alto);
    bool Vuelve(const Estado& estado) { return Cambia(estado); }

private:
    // A notch of the wheel that waits for its other half.
    struct MediaRueda {
        Ventana antes;
        Ventana después;
        Lugar centro;
        int sentido = 0;
    };
    bool Cambia(const Estado& nuevo);

    Estado actual_;
    Estado salvada_;
    std::optional<MediaRueda> media_;
};

} // namespace quiralto
